// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/NetlinkRoutes.h"

#include "helper/MessageBody.h"
#include "helper/PutBackRoutes.h"
#include "netlink/NetlinkAttributes.h"
#include "netlink/NetlinkSocket.h"

#include <algorithm>
#include <cerrno>
#include <linux/if.h>
#include <linux/if_addr.h>
#include <linux/rtnetlink.h>
#include <utility>

namespace quillon {

namespace {

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

int NetlinkRoutes::putBack(const LinkConfiguration::Message &route)
{
    int error = putBackPatiently(route);
    if (error == EINVAL && namesSourceIPv6(route)) {
        // As the kernel leaves a route whose source address goes.
        error = create(m_socket, RTM_NEWROUTE, NLM_F_APPEND, withoutSource(route));
        m_sourcesLost += error == 0 ? 1 : 0;
    }
    return error;
}

int NetlinkRoutes::putBackPatiently(const LinkConfiguration::Message &route)
{
    // Other interfaces may have routes of this destination and metric. Appended, it is refused only
    // when the very same route is there already.
    const auto add = [&] { return create(m_socket, RTM_NEWROUTE, NLM_F_APPEND, route); };
    int error = add();
    while (error == EINVAL && namesSourceIPv6(route)) {
        // Looked at before the next attempt: the address may be usable between the two.
        const bool canStillCome = m_pausesLeft > 0 && isSourceBeingChecked(route);
        if (canStillCome) {
            --m_pausesLeft;
            m_pause();
        }
        error = add();
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
