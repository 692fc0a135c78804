// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Reachability.h"

namespace quillon {

/// The kernel's routes and links through rtnetlink(7), read at each call: there is a default route,
/// IPv4 or IPv6, and an interface that it leads through is up. Whether anybody answers at the other
/// end is not asked.
class RouteReachability : public Reachability
{
public:
    bool isReachable() override;
    /// It depends on nothing else.
    void watch(std::function<void()>) override {}
};

} // namespace quillon
