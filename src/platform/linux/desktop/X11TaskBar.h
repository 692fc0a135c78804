// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/TaskBar.h"

namespace quillon {

/// The task bar by the hint _NET_WM_STATE_SKIP_TASKBAR (Extended Window Manager Hints). Does
/// nothing under another window system: Wayland leaves the list to the desktop.
class X11TaskBar : public TaskBar
{
public:
    void setSkipped(quintptr window, bool skipped) override;
};

} // namespace quillon
