// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/rules/DeletedRulesToast.h"

#include "base/Localized.h"
#include "presentation/rules/RulesPreferencesViewController.h"

namespace quillon {

DeletedRulesToast::DeletedRulesToast(RulesPreferencesViewController &editor, const Theme &theme,
    Scheduler &scheduler, QWidget *window)
    : Toast(theme, scheduler, window)
{
    connect(&editor, &RulesPreferencesViewController::rulesDeleted, this,
        [this, &editor](qsizetype count) {
            say(localized("Rule deleted", "%Ln rules deleted", count),
                [&editor] { editor.restoreDeleted(); });
        });
    connect(&editor, &RulesPreferencesViewController::deletedForgotten, this, &Toast::dismiss);
}

} // namespace quillon
