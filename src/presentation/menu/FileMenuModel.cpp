// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/menu/FileMenuModel.h"

#include "base/Localized.h"

namespace quillon {

using namespace Qt::StringLiterals;

std::vector<MenuEntry> FileMenuModel::entriesAbove() const
{
    return {
        entryTo(Destination::NewNetworkRule, newNetworkRule, localized("New Network Rule\u2026")),
        entryTo(Destination::NewLoginRule, newLoginRule, localized("New Login Rule\u2026")),
        menuSeparator(u"close"_s),
        {.key = closeWindow,
            .title = localized("Close Window"),
            .action = MenuEntry::Action::CloseWindow},
    };
}

} // namespace quillon
