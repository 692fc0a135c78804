// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "netlink/NetlinkMessage.h"

#include <QList>

#include <optional>

namespace quillon {

/// A way out to everywhere, as one RTM_NEWROUTE message of rtnetlink(7) tells it.
struct DefaultRoute
{
    QList<int> interfaces; ///< indexes of its next hops, without those that the kernel calls dead
    /// Its next hops are an object of their own that the message does not describe. The kernel
    /// withdraws a route when such an object fails.
    bool leadsToObject = false;

    bool operator==(const DefaultRoute &) const = default;
};

/// The route that a message tells of; none when it is no default route for ordinary traffic: one
/// with a prefix, one that rejects or stays on this machine, or one in a table that only special
/// traffic is led to (any but "main" and "default").
std::optional<DefaultRoute> defaultRoute(const nlmsghdr &message);

} // namespace quillon
