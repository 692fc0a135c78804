// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

namespace quillon {

/// The desktop's list of open windows. Main thread.
class TaskBar
{
public:
    virtual ~TaskBar() = default;

    /// Takes the window out of the list, or puts it back. `window` is the window system's
    /// identifier of a top-level window. Called again each time before the window is shown, since a
    /// window manager forgets hidden windows. Without effect on a desktop that gives programs no
    /// say in it.
    virtual void setSkipped(quintptr window, bool skipped) = 0;
};

} // namespace quillon
