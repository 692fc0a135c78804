// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

namespace quillon {

/// Whether the person wants the battery to last: what can wait, waits. Main thread.
class PowerSaving
{
public:
    virtual ~PowerSaving() = default;

    /// False until the system has said otherwise, and where it says nothing.
    virtual bool isOn() const = 0;
    /// Asks the system, from now on; `changed` is called, in a later turn, when the answer is
    /// another one. Nothing is asked before. Called once.
    virtual void watch(std::function<void()> changed) = 0;
};

} // namespace quillon
