// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/PutBackRoutes.h"

#include "helper/MessageBody.h"
#include "netlink/NetlinkAttributes.h"
#include "netlink/NextHops.h"

#include <linux/rtnetlink.h>
#include <sys/socket.h>
#include <unistd.h>

namespace quillon {

namespace {

using Message = LinkConfiguration::Message;
using RouteAttributes = NetlinkAttributes<RTA_MAX>;

RouteAttributes attributesOfRoute(const Message &route)
{
    return RouteAttributes(attributesOf(route, sizeof(rtmsg)));
}

/// Where the route goes out by `index`, alone or among several.
bool goesThrough(const RouteAttributes &attributes, int index)
{
    if (const auto interface = attributes.value<int>(RTA_OIF)) {
        return *interface == index;
    }
    bool found = false;
    if (nlattr *const hops = attributes.find(RTA_MULTIPATH)) {
        forEachNextHop(
            hops, [&](const rtnexthop &hop) { found = found || hop.rtnh_ifindex == index; });
    }
    return found;
}

bool isLinkLocal(ByteSpan destination)
{
    return destination.size() == 16 && destination[0] == std::byte{0xfe} &&
           (destination[1] & std::byte{0xc0}) == std::byte{0x80};
}

std::uint32_t expiry(const RouteAttributes &attributes)
{
    const auto info = attributes.value<rta_cacheinfo>(RTA_CACHEINFO).value_or(rta_cacheinfo{});
    const auto ticks = static_cast<std::uint32_t>(sysconf(_SC_CLK_TCK));
    return info.rta_expires <= 0 ? 0 : static_cast<std::uint32_t>(info.rta_expires) / ticks + 1;
}

bool othersMakeRoute(const rtmsg &header, const RouteAttributes &attributes)
{
    if ((header.rtm_flags & RTM_F_CLONED) != 0 || header.rtm_protocol == RTPROT_REDIRECT ||
        header.rtm_protocol == RTPROT_RA) {
        return true;
    }
    if (header.rtm_protocol != RTPROT_KERNEL) {
        return false;
    }
    // Prefix routes: managers add them under the kernel's name too, so only those stay away that
    // depend on an address which the kernel forms anew.
    return header.rtm_type != RTN_UNICAST ||
           (header.rtm_family == AF_INET6 &&
               (isLinkLocal(attributes.bytes(RTA_DST)) || expiry(attributes) != 0));
}

/// The hops' states are the kernel's findings, and it refuses to take them back.
void clearHopStates(Message &body, std::size_t from)
{
    forEachNextHop(reinterpret_cast<nlattr *>(body.data() + from),
        [](rtnexthop &hop) { hop.rtnh_flags &= RTNH_F_ONLINK; });
}

} // namespace

std::optional<Message> routeToPutBack(
    const nlmsghdr *message, const LinkState &link, const std::set<std::uint32_t> &nexthops)
{
    auto header = headerOf<rtmsg>(*message);
    if (message->nlmsg_type != RTM_NEWROUTE || !header) {
        return std::nullopt;
    }
    const RouteAttributes attributes(attributesOf<rtmsg>(*message));
    const auto nexthop = attributes.value<std::uint32_t>(RTA_NH_ID);
    const bool isAffected =
        goesThrough(attributes, link.index) || (nexthop && nexthops.contains(*nexthop));
    if (!isAffected || othersMakeRoute(*header, attributes)) {
        return std::nullopt;
    }
    header->rtm_flags &= RTNH_F_ONLINK;
    Message body;
    append(body, &*header, sizeof *header);
    for (int type = 1; type <= RTA_MAX; ++type) {
        if (!attributes.has(type) || type == RTA_CACHEINFO) {
            continue;
        }
        const auto start = body.size();
        appendAttribute(body, attributes.find(type));
        if (type == RTA_MULTIPATH) {
            clearHopStates(body, start);
        }
    }
    if (const auto seconds = expiry(attributes); seconds != 0) {
        appendNumber(body, RTA_EXPIRES, seconds);
    }
    return body;
}

int orderOf(const Message &route)
{
    const auto attributes = attributesOfRoute(route);
    if (attributes.has(RTA_GATEWAY) || attributes.has(RTA_VIA) || attributes.has(RTA_MULTIPATH)) {
        return 2;
    }
    return attributes.has(RTA_NH_ID) ? 1 : 0;
}

std::optional<std::uint32_t> nexthopOf(const Message &route)
{
    return attributesOfRoute(route).value<std::uint32_t>(RTA_NH_ID);
}

Message withoutHops(const Message &route)
{
    return without(route, sizeof(rtmsg),
        {RTA_OIF, RTA_GATEWAY, RTA_VIA, RTA_MULTIPATH, RTA_ENCAP_TYPE, RTA_ENCAP});
}

Message withoutNexthop(const Message &route)
{
    return without(route, sizeof(rtmsg), {RTA_NH_ID});
}

bool hasHops(const Message &route)
{
    const auto attributes = attributesOfRoute(route);
    return attributes.has(RTA_OIF) || attributes.has(RTA_MULTIPATH);
}

ByteSpan sourceOf(const Message &route)
{
    return attributesOfRoute(route).bytes(RTA_PREFSRC);
}

bool namesSourceIPv6(const Message &route)
{
    return !route.empty() && route.front() == AF_INET6 && !sourceOf(route).empty();
}

Message withoutSource(const Message &route)
{
    return without(route, sizeof(rtmsg), {RTA_PREFSRC});
}

} // namespace quillon
