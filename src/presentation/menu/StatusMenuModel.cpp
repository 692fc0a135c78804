// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/menu/StatusMenuModel.h"

#include "base/Localized.h"

namespace quillon {

using namespace Qt::StringLiterals;

std::vector<MenuEntry> StatusMenuModel::entriesAbove() const
{
    return {
        {.key = u"open"_s,
            .title = localized("Open Quillon"),
            .action = MenuEntry::Action::OpenWindow},
        entryTo(Destination::Overview, u"overview"_s, localized("Overview")),
        entryTo(Destination::History, u"history"_s, localized("History")),
        entryTo(Destination::Rules, u"rules"_s, localized("Rules")),
        entryTo(
            Destination::SavedItems, u"saved-items"_s, localized("Saved Networks and Addresses")),
        entryTo(Destination::Preferences, u"preferences"_s, localized("Preferences")),
        entryTo(Destination::About, u"about"_s, localized("About Quillon")),
    };
}

std::vector<MenuEntry> StatusMenuModel::entriesBelow() const
{
    return {
        menuSeparator(u"below"_s),
        {.key = u"quit"_s, .title = localized("Quit Quillon"), .action = MenuEntry::Action::Quit},
    };
}

} // namespace quillon
