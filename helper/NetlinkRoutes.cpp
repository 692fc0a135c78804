// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/NetlinkRoutes.h"

#include "helper/MessageBody.h"
#include "helper/PutBackNexthops.h"
#include "helper/PutBackRoutes.h"
#include "netlink/NetlinkAttributes.h"
#include "netlink/NetlinkSocket.h"

#include <algorithm>
#include <cerrno>
#include <linux/if.h>
#include <linux/if_addr.h>
#include <linux/nexthop.h>
#include <linux/rtnetlink.h>
#include <sys/socket.h>
#include <utility>

namespace quillon {

namespace {

/// Whether the kernel refused a route for want of its source or of a way to its gateway.
bool needsAddress(int error)
{
    return error == EINVAL || error == ENETUNREACH || error == EHOSTUNREACH;
}

/// The interface of an IPv6 address message when the address is this one and duplicate address
/// detection has it in hand.
std::optional<int> holderWhileChecked(const nlmsghdr &message, ByteSpan address)
{
    const auto header = headerOf<ifaddrmsg>(message);
    if (message.nlmsg_type != RTM_NEWADDR || !header) {
        return std::nullopt;
    }
    const NetlinkAttributes<IFA_MAX> attributes(attributesOf<ifaddrmsg>(message));
    // Of a pair of addresses, the one that is not the peer's.
    const ByteSpan own = attributes.bytes(attributes.has(IFA_LOCAL) ? IFA_LOCAL : IFA_ADDRESS);
    const auto flags = attributes.value<std::uint32_t>(IFA_FLAGS).value_or(header->ifa_flags);
    const bool checked = (flags & IFA_F_TENTATIVE) != 0 && (flags & IFA_F_DADFAILED) == 0;
    return checked && std::ranges::equal(own, address)
               ? std::optional(static_cast<int>(header->ifa_index))
               : std::nullopt;
}

} // namespace

NetlinkRoutes::NetlinkRoutes(NetlinkSocket &socket, Pause pause)
    : m_socket{socket}
    , m_pause{std::move(pause)}
{
}

int NetlinkRoutes::putBack(const LinkConfiguration &configuration)
{
    int first = 0;
    const auto note = [&](const LinkConfiguration::Message &body, const auto &attempt) {
        const int error = unlessTaken(body.front(), attempt);
        first = first == 0 ? error : first;
    };
    const auto &routes = configuration.routes;
    auto route = routes.begin();
    for (; route != routes.end() && orderOf(route->body) == 0; ++route) {
        note(route->body, [&] { return putRouteBack(*route); });
    }
    for (const auto &nexthop : configuration.nexthops) {
        note(nexthop, [&] { return putNexthopBack(nexthop); });
    }
    for (; route != routes.end(); ++route) {
        note(route->body, [&] { return putRouteBack(*route); });
    }
    return first;
}

int NetlinkRoutes::unlessTaken(int family, const std::function<int()> &attempt)
{
    constexpr int mostPauses = 10;
    int error = attempt();
    for (int pauses = 0; needsAddress(error) && family == AF_INET && m_isAddressTaken; ++pauses) {
        if (m_isAddressTaken()) {
            ++m_takenWithAddress;
            return 0;
        }
        if (pauses == mostPauses || m_pausesLeft == 0) {
            break;
        }
        --m_pausesLeft;
        m_pause();
        error = attempt();
    }
    return error;
}

int NetlinkRoutes::putNexthopBack(const LinkConfiguration::Message &nexthop)
{
    const auto members = membersOf(nexthop);
    if (!std::all_of(members.begin(), members.end(),
            [this](std::uint32_t id) { return nexthopExists(id); })) {
        ++m_nexthopsLost;
        return 0;
    }
    // A group with other hops has stayed, with these alone.
    const int flags = members.empty() ? NLM_F_EXCL : NLM_F_REPLACE;
    const int error = create(m_socket, RTM_NEWNEXTHOP, flags, nexthop);
    if (error == ENETDOWN) {
        ++m_nexthopsLost;
        return 0;
    }
    return error;
}

bool NetlinkRoutes::nexthopExists(std::uint32_t id)
{
    const auto message = netlinkMessage(RTM_GETNEXTHOP, 0, nhmsg{});
    return message && nla_put_u32(message.get(), NHA_ID, id) == 0 &&
           m_socket.request(message).error == 0;
}

int NetlinkRoutes::putRouteBack(const LinkConfiguration::Route &route)
{
    // Other interfaces may have routes of this destination and metric. Asked neither to leave nor
    // to replace them, the kernel refuses only the very same route; unasked, it adds it in front.
    const int flags = route.isAhead ? 0 : NLM_F_APPEND;
    const auto nexthop = nexthopOf(route.body);
    if (!nexthop) {
        return add(route.body, flags);
    }
    if (nexthopExists(*nexthop)) {
        return add(withoutHops(route.body), flags);
    }
    // The kernel may be told not to say the hops (net.ipv4.nexthop_compat_mode).
    return hasHops(route.body) ? add(withoutNexthop(route.body), flags) : ENETUNREACH;
}

int NetlinkRoutes::add(const LinkConfiguration::Message &route, int flags)
{
    int error = addPatiently(route, flags);
    if (error == EINVAL && namesSourceIPv6(route)) {
        // As the kernel leaves a route whose source address goes.
        error = create(m_socket, RTM_NEWROUTE, flags, withoutSource(route));
        m_sourcesLost += error == 0 ? 1 : 0;
    }
    return error;
}

int NetlinkRoutes::addPatiently(const LinkConfiguration::Message &route, int flags)
{
    const auto attempt = [&] { return create(m_socket, RTM_NEWROUTE, flags, route); };
    int error = attempt();
    while (error == EINVAL && namesSourceIPv6(route)) {
        // Looked at before the next attempt: the address may be usable between the two.
        const bool canStillCome = m_pausesLeft > 0 && isSourceBeingChecked(route);
        if (canStillCome) {
            --m_pausesLeft;
            m_pause();
        }
        error = attempt();
        if (!canStillCome) {
            break;
        }
    }
    return error;
}

bool NetlinkRoutes::isSourceBeingChecked(const LinkConfiguration::Message &route)
{
    ifaddrmsg header{};
    header.ifa_family = AF_INET6;
    std::vector<int> holders;
    m_socket.readTable(
        netlinkMessage(RTM_GETADDR, NLM_F_DUMP, header), [&] { holders.clear(); },
        [&](const nlmsghdr &message) {
            if (const auto holder = holderWhileChecked(message, sourceOf(route))) {
                holders.push_back(*holder);
            }
        });
    // Without a carrier the check does not even begin.
    return std::any_of(
        holders.begin(), holders.end(), [this](int index) { return hasCarrier(index); });
}

bool NetlinkRoutes::hasCarrier(int index)
{
    ifinfomsg header{};
    header.ifi_index = index;
    unsigned flags = 0;
    m_socket.request(netlinkMessage(RTM_GETLINK, 0, header), [&](const nlmsghdr &message) {
        const auto link = headerOf<ifinfomsg>(message);
        flags = message.nlmsg_type == RTM_NEWLINK && link ? link->ifi_flags : flags;
    });
    return (flags & unsigned{IFF_LOWER_UP}) != 0;
}

} // namespace quillon
