// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

namespace quillon {

/// Whether the internet can be reached now, for the default route: answered at once from what the
/// system knows, without sending anything. Main thread.
class Reachability
{
public:
    virtual ~Reachability() = default;

    virtual bool isReachable() = 0;
    /// From now on `changed` is called when the answer may be another one though nothing about
    /// links, addresses and routes has changed, of which NetworkChangeSource tells. Called once.
    virtual void watch(std::function<void()> changed) = 0;
};

} // namespace quillon
