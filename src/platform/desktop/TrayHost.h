// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

namespace quillon {

/// The part of a desktop that shows status items. Main thread.
class TrayHost
{
public:
    virtual ~TrayHost() = default;

    /// Begins to watch. `observer` is called in a later turn of the main loop once it is known
    /// whether a host is there, and after that at every change. Called once.
    virtual void watch(std::function<void(bool available)> observer) = 0;
};

} // namespace quillon
