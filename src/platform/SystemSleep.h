// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

namespace quillon {

/// The system's word that the machine is back from being suspended.
class SystemSleep
{
public:
    virtual ~SystemSleep() = default;

    /// From now on `resumed` is called on the main thread, each time. Called once.
    virtual void watch(std::function<void()> resumed) = 0;
};

} // namespace quillon
