// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/netlink/DefaultRoute.h"

#include "netlink/NetlinkAttributes.h"
#include "netlink/NextHops.h"

#include <linux/rtnetlink.h>

namespace quillon {

namespace {

bool isDead(unsigned int flags)
{
    return (flags & (RTNH_F_DEAD | RTNH_F_LINKDOWN)) != 0;
}

bool isForOrdinaryTraffic(quint32 table)
{
    return table == RT_TABLE_MAIN || table == RT_TABLE_DEFAULT;
}

} // namespace

std::optional<DefaultRoute> defaultRoute(const nlmsghdr &message)
{
    const auto about = headerOf<rtmsg>(message);
    if (!about || about->rtm_dst_len != 0 || about->rtm_type != RTN_UNICAST) {
        return std::nullopt;
    }
    const NetlinkAttributes<RTA_MAX> attributes(attributesOf<rtmsg>(message));
    if (!isForOrdinaryTraffic(attributes.value<quint32>(RTA_TABLE).value_or(about->rtm_table))) {
        return std::nullopt;
    }
    DefaultRoute route;
    if (const auto index = attributes.value<int>(RTA_OIF); index && !isDead(about->rtm_flags)) {
        route.interfaces.append(*index);
    }
    if (nlattr *const hops = attributes.find(RTA_MULTIPATH)) {
        forEachNextHop(hops, [&](const rtnexthop &hop) {
            if (!isDead(hop.rtnh_flags)) {
                route.interfaces.append(hop.rtnh_ifindex);
            }
        });
    }
    route.leadsToObject =
        attributes.has(RTA_NH_ID) && route.interfaces.isEmpty() && !isDead(about->rtm_flags);
    return route;
}

} // namespace quillon
