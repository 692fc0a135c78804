// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "netlink/NetlinkSocket.h"
#include "platform/linux/netlink/LinkMessages.h"

namespace quillon {

/// Questions to the kernel about links, addresses and routes (rtnetlink(7)).
class RouteSocket
{
public:
    /// All links, without their statistics.
    LinkMessages links();
    /// One link by name; no link and ENODEV when there is none.
    LinkMessages link(const QByteArray &name);
    /// The IPv4 addresses of one link, or of all (0), in the kernel's order.
    LinkMessages addresses(int index = 0);
    /// The next hops of all default routes, IPv4 and IPv6; a hop that several routes share is there
    /// several times.
    struct Hops
    {
        QList<NextHop> hops;
        int error = 0; ///< errno, else 0
    };
    Hops defaultHops();

private:
    LinkMessages defaultRoutes(int family);
    LinkMessages nextHopObjects();
    LinkMessages read(const NetlinkMessage &message);

    // Strict: for the index of an address request and the type of a route request.
    NetlinkSocket m_socket{{.protocol = NETLINK_ROUTE, .strict = true}};
};

} // namespace quillon
