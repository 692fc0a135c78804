// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/netlink/DefaultRoute.h"

#include <linux/rtnetlink.h>

namespace quillon {

namespace {

constexpr unsigned int deadFlags = RTNH_F_DEAD | RTNH_F_LINKDOWN;

bool isForOrdinaryTraffic(quint32 table)
{
    return table == RT_TABLE_MAIN || table == RT_TABLE_DEFAULT;
}

// Several next hops come as a list of rtnexthop, each with attributes of its own.
void addNextHops(DefaultRoute &route, ByteSpan hops)
{
    rtnexthop hop{};
    while (hops.size() >= sizeof hop) {
        std::memcpy(&hop, hops.data(), sizeof hop);
        if (hop.rtnh_len < sizeof hop || hop.rtnh_len > hops.size()) {
            return;
        }
        if (!(hop.rtnh_flags & deadFlags)) {
            route.interfaces.append(hop.rtnh_ifindex);
        }
        hops = afterPadded(hops, hop.rtnh_len);
    }
}

} // namespace

std::optional<DefaultRoute> defaultRoute(ByteSpan payload)
{
    rtmsg about{};
    if (payload.size() < sizeof about) {
        return std::nullopt;
    }
    std::memcpy(&about, payload.data(), sizeof about);
    quint32 table = about.rtm_table;
    bool hasObject = false;
    DefaultRoute route;
    forEachAttribute(payload.subspan(sizeof about), [&](int type, ByteSpan value) {
        if (type == RTA_TABLE) {
            table = hostNumber<quint32>(value).value_or(table);
        } else if (type == RTA_OIF && !(about.rtm_flags & deadFlags)) {
            if (const auto index = hostNumber<quint32>(value)) {
                route.interfaces.append(static_cast<int>(*index));
            }
        } else if (type == RTA_MULTIPATH) {
            addNextHops(route, value);
        } else if (type == RTA_NH_ID) {
            hasObject = true;
        }
    });
    if (about.rtm_dst_len != 0 || about.rtm_type != RTN_UNICAST || !isForOrdinaryTraffic(table)) {
        return std::nullopt;
    }
    route.leadsToObject = hasObject && route.interfaces.isEmpty() && !(about.rtm_flags & deadFlags);
    return route;
}

} // namespace quillon
