// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/widgets/Toast.h"

namespace quillon {

class RulesPreferencesViewController;

/// Says that rules were deleted, as long as they can be had back.
class DeletedRulesToast : public Toast
{
    Q_OBJECT

public:
    DeletedRulesToast(RulesPreferencesViewController &editor, const Theme &theme,
        Scheduler &scheduler, QWidget *window);
};

} // namespace quillon
