// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/netlink/RouteReachability.h"

#include "platform/linux/netlink/RouteSocket.h"

#include <QSet>

#include <algorithm>
#include <linux/if.h>
#include <sys/socket.h>

namespace quillon {

namespace {

QSet<int> activeLinks(const QList<LinkInfo> &links)
{
    QSet<int> active;
    for (const LinkInfo &link : links) {
        if (isActive(link) && !(link.flags & IFF_LOOPBACK)) {
            active.insert(link.index);
        }
    }
    return active;
}

} // namespace

bool RouteReachability::isReachable()
{
    RouteSocket socket;
    const QSet<int> active = activeLinks(socket.links().links);
    const auto leadsOut = [&](const DefaultRoute &route) {
        return route.leadsToObject || std::ranges::any_of(route.interfaces,
                                          [&](int index) { return active.contains(index); });
    };
    return std::ranges::any_of(socket.defaultRoutes(AF_INET).routes, leadsOut) ||
           std::ranges::any_of(socket.defaultRoutes(AF_INET6).routes, leadsOut);
}

} // namespace quillon
