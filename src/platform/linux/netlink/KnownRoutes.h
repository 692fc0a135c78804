// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "netlink/NetlinkMessage.h"

#include <QByteArray>
#include <QHash>

namespace quillon {

/// The IPv6 routes that the kernel has told of. Whoever takes an announcement of a router renews
/// the routes that it makes, every few seconds on some networks, and the kernel tells of each.
/// IPv4 routes are left out: nobody renews them, and when a link goes they go untold.
class KnownRoutes
{
public:
    /// Whether the message tells only of a route that is known as it is. To be asked of every
    /// message: with a change of a link or of nexthop objects routes may go untold.
    bool isRepeated(const nlmsghdr &message);
    /// Messages were lost: each route is told of anew.
    void forget() { m_known.clear(); }

private:
    /// What makes a route the same one, to where it leads.
    QHash<QByteArray, QByteArray> m_known;
};

} // namespace quillon
