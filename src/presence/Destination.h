// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quillon {

/// Where a menu can lead besides the main window: a window, a pane of one, or a form.
enum class Destination
{
    Overview,
    History,
    Rules,
    SavedItems,
    Preferences,
    About,
    NewNetworkRule,
    NewLoginRule,
};

} // namespace quillon
