// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/RoutesInOrder.h"

#include "helper/PutBackRoutes.h"
#include "netlink/NetlinkAttributes.h"
#include "netlink/NextHops.h"

#include <algorithm>
#include <linux/rtnetlink.h>
#include <sys/socket.h>
#include <utility>

namespace quillon {

namespace {

using RouteAttributes = NetlinkAttributes<RTA_MAX>;

} // namespace

RoutesInOrder::RoutesInOrder(const std::vector<LinkState> &links)
    : m_links{links}
{
}

void RoutesInOrder::add(const nlmsghdr &message, std::optional<LinkConfiguration::Message> body)
{
    const auto destination = destinationOf(message);
    if (destination != m_destination) {
        m_destination = destination;
        m_firstOfDestination = m_routes.size();
    }
    if (destination && staysMeanwhile(message)) {
        for (auto i = m_firstOfDestination; i < m_routes.size(); ++i) {
            m_routes[i].isAhead = true;
        }
    }
    if (body) {
        m_routes.push_back({std::move(*body)});
    }
}

void RoutesInOrder::clear()
{
    m_routes.clear();
    m_destination.reset();
    m_firstOfDestination = 0;
}

std::vector<LinkConfiguration::Route> RoutesInOrder::take()
{
    using Route = LinkConfiguration::Route;
    // Each is put ahead of all that are there, so that the last one of them has to come first.
    const auto firstAhead = std::stable_partition(
        m_routes.begin(), m_routes.end(), [](const Route &route) { return !route.isAhead; });
    std::reverse(firstAhead, m_routes.end());
    std::stable_sort(m_routes.begin(), m_routes.end(), [](const Route &first, const Route &second) {
        return orderOf(first.body) < orderOf(second.body);
    });
    return std::exchange(m_routes, {});
}

std::optional<RoutesInOrder::Destination> RoutesInOrder::destinationOf(const nlmsghdr &message)
{
    const auto header = headerOf<rtmsg>(message);
    // Among IPv6 routes the order decides nothing.
    if (message.nlmsg_type != RTM_NEWROUTE || !header || header->rtm_family != AF_INET) {
        return std::nullopt;
    }
    const RouteAttributes attributes(attributesOf<rtmsg>(message));
    const auto number = [&](int type, std::uint32_t none) {
        return attributes.value<std::uint32_t>(type).value_or(none);
    };
    return Destination{number(RTA_TABLE, header->rtm_table), number(RTA_DST, 0),
        header->rtm_dst_len, header->rtm_tos, number(RTA_PRIORITY, 0)};
}

bool RoutesInOrder::staysMeanwhile(const nlmsghdr &message) const
{
    const auto isOurs = [this](int index) {
        return std::any_of(m_links.begin(), m_links.end(),
            [index](const LinkState &link) { return link.index == index; });
    };
    const RouteAttributes attributes(attributesOf<rtmsg>(message));
    if (const auto interface = attributes.value<int>(RTA_OIF)) {
        return !isOurs(*interface);
    }
    // One with hops on other interfaces too stays with these.
    bool stays = !attributes.has(RTA_MULTIPATH);
    if (nlattr *const hops = attributes.find(RTA_MULTIPATH)) {
        forEachNextHop(
            hops, [&](const rtnexthop &hop) { stays = stays || !isOurs(hop.rtnh_ifindex); });
    }
    return stays;
}

} // namespace quillon
