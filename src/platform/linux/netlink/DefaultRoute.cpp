// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/netlink/DefaultRoute.h"

#include "netlink/NetlinkAttributes.h"
#include "netlink/NextHops.h"

#include <arpa/inet.h>
#include <array>
#include <cstddef>
#include <linux/rtnetlink.h>

namespace quillon {

namespace {

using RouteAttributes = NetlinkAttributes<RTA_MAX>;

bool isForOrdinaryTraffic(quint32 table)
{
    return table == RT_TABLE_MAIN || table == RT_TABLE_DEFAULT;
}

QString gatewayIn(const RouteAttributes &attributes)
{
    if (attributes.has(RTA_GATEWAY)) {
        return internetAddressText(attributes.bytes(RTA_GATEWAY));
    }
    // An IPv4 route whose router has an IPv6 address names the family before it (RFC 8950).
    constexpr std::size_t familySize = offsetof(rtvia, rtvia_addr);
    const ByteSpan via = attributes.bytes(RTA_VIA);
    return via.size() > familySize ? internetAddressText(via.subspan(familySize)) : QString();
}

QString gatewayOf(const rtnexthop &hop)
{
    // Its attributes follow it; forEachNextHop() has looked at the length.
    static_assert(sizeof hop % RTNH_ALIGNTO == 0);
    const auto *bytes = reinterpret_cast<const std::byte *>(&hop);
    return gatewayIn(RouteAttributes(ByteSpan(bytes, hop.rtnh_len).subspan(sizeof hop)));
}

} // namespace

std::optional<DefaultRoute> defaultRoute(const nlmsghdr &message)
{
    const auto about = headerOf<rtmsg>(message);
    if (!about || about->rtm_dst_len != 0 || about->rtm_type != RTN_UNICAST) {
        return std::nullopt;
    }
    const RouteAttributes attributes(attributesOf<rtmsg>(message));
    if (!isForOrdinaryTraffic(attributes.value<quint32>(RTA_TABLE).value_or(about->rtm_table))) {
        return std::nullopt;
    }
    DefaultRoute route;
    if (const auto index = attributes.value<int>(RTA_OIF); index && !isDeadHop(about->rtm_flags)) {
        route.hops.append({*index, gatewayIn(attributes)});
    }
    if (nlattr *const hops = attributes.find(RTA_MULTIPATH)) {
        forEachNextHop(hops, [&](const rtnexthop &hop) {
            if (!isDeadHop(hop.rtnh_flags)) {
                route.hops.append({hop.rtnh_ifindex, gatewayOf(hop)});
            }
        });
    }
    const bool isDescribed = attributes.has(RTA_OIF) || attributes.has(RTA_MULTIPATH);
    if (!isDescribed && !isDeadHop(about->rtm_flags)) {
        route.object = attributes.value<quint32>(RTA_NH_ID).value_or(0);
    }
    return route;
}

QString internetAddressText(ByteSpan octets)
{
    std::array<char, INET6_ADDRSTRLEN> text{};
    if (octets.size() == sizeof(in_addr)) {
        inet_ntop(AF_INET, octets.data(), text.data(), text.size());
    } else if (octets.size() == sizeof(in6_addr)) {
        inet_ntop(AF_INET6, octets.data(), text.data(), text.size());
    }
    return QString::fromLatin1(text.data());
}

bool isDeadHop(unsigned int flags)
{
    return (flags & (RTNH_F_DEAD | RTNH_F_LINKDOWN)) != 0;
}

} // namespace quillon
