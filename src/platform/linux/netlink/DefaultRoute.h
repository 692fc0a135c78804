// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "netlink/NetlinkMessage.h"

#include <QList>
#include <QString>

#include <optional>

namespace quillon {

/// Where a route leads next.
struct NextHop
{
    int interface = 0; ///< its index
    QString gateway;   ///< the router's address, IPv4 or IPv6; "" where the link itself is the way

    bool operator==(const NextHop &) const = default;
};

/// A way out to everywhere, as one RTM_NEWROUTE message of rtnetlink(7) tells it.
struct DefaultRoute
{
    QList<NextHop> hops; ///< without those that the kernel calls dead
    /// The nexthop object (RTM_NEWNEXTHOP) that the hops are, when the message does not describe
    /// them itself; else 0.
    quint32 object = 0;

    bool operator==(const DefaultRoute &) const = default;
};

/// The route that a message tells of; none when it is no default route for ordinary traffic: one
/// with a prefix, one that rejects or stays on this machine, or one in a table that only special
/// traffic is led to (any but "main" and "default").
std::optional<DefaultRoute> defaultRoute(const nlmsghdr &message);

/// The text of an IPv4 or IPv6 address, which is told apart by its size; "" for any other.
QString internetAddressText(ByteSpan octets);

/// The kernel has taken a hop with these RTNH_F_… flags out of use.
bool isDeadHop(unsigned int flags);

} // namespace quillon
