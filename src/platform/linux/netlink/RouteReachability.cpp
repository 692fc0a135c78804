// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/netlink/RouteReachability.h"

#include "platform/linux/netlink/RouteSocket.h"

#include <QSet>

#include <algorithm>
#include <linux/if.h>

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
    return std::ranges::any_of(socket.defaultHops().hops,
        [&](const NextHop &hop) { return active.contains(hop.interface); });
}

} // namespace quillon
