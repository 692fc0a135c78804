// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "presence/Destination.h"

#include <QString>

#include <vector>

namespace quillon {

/// One line of a menu as it is shown.
struct MenuEntry
{
    enum class Action
    {
        None, ///< shown disabled, unless it has a submenu
        OpenWindow,
        GoToDestination,
        ChangeInterface,
        RestoreAddress,
        RandomizeAddress,
        PauseTimer,
        ResumeTimer,
        CloseWindow,
        Quit,
    };

    /// What the entry is, whatever it says at the moment; no other entry of its menu has it.
    QString key = {};
    QString title = {}; ///< empty: a separator
    Action action = Action::None;
    bool checked = false;
    Destination destination = Destination::Overview; ///< with Action::GoToDestination
    QString identifier = {};                         ///< the device of a timer's entry
    QString hint = {};                               ///< why it is disabled
    std::vector<MenuEntry> submenu = {};

    bool isSeparator() const { return title.isEmpty(); }
    bool isEnabled() const { return action != Action::None || !submenu.empty(); }
    bool operator==(const MenuEntry &) const = default;
};

} // namespace quillon
