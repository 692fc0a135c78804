// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/PutBack.h"

#include <netlink/attr.h>
#include <netlink/msg.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <linux/if_addr.h>
#include <linux/rtnetlink.h>
#include <sys/socket.h>
#include <unistd.h>

namespace quillon {

namespace {

using Message = LinkConfiguration::Message;

// Of all address flags these are requests; the others are the kernel's findings.
constexpr std::uint32_t settableAddressFlags =
    IFA_F_NODAD | IFA_F_HOMEADDRESS | IFA_F_MANAGETEMPADDR | IFA_F_NOPREFIXROUTE | IFA_F_MCAUTOJOIN;

constexpr std::size_t aligned(std::size_t size)
{
    constexpr std::size_t boundary = NLMSG_ALIGNTO;
    return (size + boundary - 1) / boundary * boundary;
}

void append(Message &body, const void *data, std::size_t size)
{
    const auto *bytes = static_cast<const std::uint8_t *>(data);
    body.insert(body.end(), bytes, bytes + size);
    body.resize(aligned(body.size()));
}

void appendAttribute(Message &body, const nlattr *attribute)
{
    append(body, attribute, attribute->nla_len);
}

void appendNumber(Message &body, int type, std::uint32_t value)
{
    nlattr header{};
    header.nla_len = static_cast<std::uint16_t>(sizeof header + sizeof value);
    header.nla_type = static_cast<std::uint16_t>(type);
    append(body, &header, sizeof header);
    append(body, &value, sizeof value);
}

bool isFormedFromLinkAddress(const nlattr *address, const contract::LinkLayerAddress &link)
{
    // RFC 4291, appendix A: the interface identifier of an EUI-48.
    const std::array<std::uint8_t, 8> identifier{static_cast<std::uint8_t>(link[0] ^ 2U), link[1],
        link[2], 0xff, 0xfe, link[3], link[4], link[5]};
    return address != nullptr && nla_len(address) == 16 &&
           std::memcmp(static_cast<const std::uint8_t *>(nla_data(address)) + 8, identifier.data(),
               identifier.size()) == 0;
}

bool kernelMakesAddress(
    const ifaddrmsg *header, nlattr *const *attributes, std::uint32_t flags, const LinkState &link)
{
    if (header->ifa_family != AF_INET6) {
        return false;
    }
    // Kernels since 5.18 say which are their own, also those of an earlier link-layer address.
    const unsigned origin = attributes[IFA_PROTO] != nullptr ? nla_get_u8(attributes[IFA_PROTO])
                                                             : unsigned{IFAPROT_UNSPEC};
    const bool declared = origin == IFAPROT_KERNEL_RA || origin == IFAPROT_KERNEL_LL;
    const bool derived = (flags & (IFA_F_TEMPORARY | IFA_F_STABLE_PRIVACY)) != 0;
    return declared || derived || isFormedFromLinkAddress(attributes[IFA_ADDRESS], link.address);
}

/// Where the route goes out by `index`, alone or among several.
bool goesThrough(nlattr *const *attributes, int index)
{
    if (attributes[RTA_OIF] != nullptr) {
        return static_cast<int>(nla_get_u32(attributes[RTA_OIF])) == index;
    }
    if (attributes[RTA_MULTIPATH] == nullptr) {
        return false;
    }
    const auto *hop = static_cast<const rtnexthop *>(nla_data(attributes[RTA_MULTIPATH]));
    int left = nla_len(attributes[RTA_MULTIPATH]);
    while (left >= static_cast<int>(sizeof *hop) && hop->rtnh_len >= sizeof *hop &&
           hop->rtnh_len <= left) {
        if (hop->rtnh_ifindex == index) {
            return true;
        }
        left -= static_cast<int>(NLMSG_ALIGN(hop->rtnh_len));
        hop = RTNH_NEXT(hop);
    }
    return false;
}

bool isLinkLocal(const nlattr *destination)
{
    if (destination == nullptr || nla_len(destination) != 16) {
        return false;
    }
    const auto *bytes = static_cast<const std::uint8_t *>(nla_data(destination));
    return bytes[0] == 0xfe && (bytes[1] & 0xc0U) == 0x80;
}

std::uint32_t expiry(nlattr *const *attributes)
{
    const nlattr *attribute = attributes[RTA_CACHEINFO];
    if (attribute == nullptr || nla_len(attribute) < static_cast<int>(sizeof(rta_cacheinfo))) {
        return 0;
    }
    rta_cacheinfo info{};
    std::memcpy(&info, nla_data(attribute), sizeof info);
    const auto ticks = static_cast<std::uint32_t>(sysconf(_SC_CLK_TCK));
    return info.rta_expires <= 0 ? 0 : static_cast<std::uint32_t>(info.rta_expires) / ticks + 1;
}

bool othersMakeRoute(const rtmsg *header, nlattr *const *attributes)
{
    if (header->rtm_type != RTN_UNICAST || (header->rtm_flags & RTM_F_CLONED) != 0 ||
        header->rtm_protocol == RTPROT_REDIRECT || header->rtm_protocol == RTPROT_RA) {
        return true;
    }
    // Prefix routes: managers add them under the kernel's name too, so only those stay away that
    // depend on an address which the kernel forms anew.
    return header->rtm_family == AF_INET6 && header->rtm_protocol == RTPROT_KERNEL &&
           (isLinkLocal(attributes[RTA_DST]) || expiry(attributes) != 0);
}

/// The hops' states are the kernel's findings, and it refuses to take them back.
void clearHopStates(Message &body, std::size_t from)
{
    auto *attribute = reinterpret_cast<nlattr *>(body.data() + from);
    auto *hop = static_cast<rtnexthop *>(nla_data(attribute));
    int left = nla_len(attribute);
    while (left >= static_cast<int>(sizeof *hop) && hop->rtnh_len >= sizeof *hop &&
           hop->rtnh_len <= left) {
        hop->rtnh_flags &= RTNH_F_ONLINK;
        left -= static_cast<int>(NLMSG_ALIGN(hop->rtnh_len));
        hop = RTNH_NEXT(hop);
    }
}

bool hasAttribute(const Message &route, int type)
{
    auto *attributes = reinterpret_cast<nlattr *>(
        const_cast<std::uint8_t *>(route.data() + aligned(sizeof(rtmsg))));
    const auto length = static_cast<int>(route.size() - aligned(sizeof(rtmsg)));
    return nla_find(attributes, length, type) != nullptr;
}

} // namespace

std::optional<Message> addressToPutBack(const nlmsghdr *message, const LinkState &link)
{
    nlattr *attributes[IFA_MAX + 1];
    if (message->nlmsg_type != RTM_NEWADDR ||
        nlmsg_parse(
            const_cast<nlmsghdr *>(message), sizeof(ifaddrmsg), attributes, IFA_MAX, nullptr) < 0) {
        return std::nullopt;
    }
    ifaddrmsg header = *static_cast<const ifaddrmsg *>(nlmsg_data(message));
    const std::uint32_t flags =
        attributes[IFA_FLAGS] != nullptr ? nla_get_u32(attributes[IFA_FLAGS]) : header.ifa_flags;
    if (static_cast<int>(header.ifa_index) != link.index ||
        kernelMakesAddress(&header, attributes, flags, link)) {
        return std::nullopt;
    }
    header.ifa_flags = static_cast<std::uint8_t>(flags & settableAddressFlags);
    Message body;
    append(body, &header, sizeof header);
    // The lifetimes (IFA_CACHEINFO) are what is left of them.
    for (int type : {IFA_ADDRESS, IFA_LOCAL, IFA_LABEL, IFA_BROADCAST, IFA_CACHEINFO,
             IFA_RT_PRIORITY, IFA_PROTO}) {
        if (attributes[type] != nullptr) {
            appendAttribute(body, attributes[type]);
        }
    }
    appendNumber(body, IFA_FLAGS, flags & settableAddressFlags);
    return body;
}

std::optional<Message> routeToPutBack(const nlmsghdr *message, const LinkState &link)
{
    nlattr *attributes[RTA_MAX + 1];
    if (message->nlmsg_type != RTM_NEWROUTE ||
        nlmsg_parse(const_cast<nlmsghdr *>(message), sizeof(rtmsg), attributes, RTA_MAX, nullptr) <
            0) {
        return std::nullopt;
    }
    rtmsg header = *static_cast<const rtmsg *>(nlmsg_data(message));
    if (!goesThrough(attributes, link.index) || othersMakeRoute(&header, attributes)) {
        return std::nullopt;
    }
    header.rtm_flags &= RTNH_F_ONLINK;
    Message body;
    append(body, &header, sizeof header);
    for (int type = 1; type <= RTA_MAX; ++type) {
        // A nexthop object goes down with its interface; the route carries the hop itself as well.
        if (attributes[type] == nullptr || type == RTA_CACHEINFO || type == RTA_NH_ID) {
            continue;
        }
        const auto start = body.size();
        appendAttribute(body, attributes[type]);
        if (type == RTA_MULTIPATH) {
            clearHopStates(body, start);
        }
    }
    if (const auto seconds = expiry(attributes); seconds != 0) {
        appendNumber(body, RTA_EXPIRES, seconds);
    }
    return body;
}

bool hasGateway(const Message &route)
{
    return hasAttribute(route, RTA_GATEWAY) || hasAttribute(route, RTA_VIA) ||
           hasAttribute(route, RTA_MULTIPATH);
}

bool hasSourceAddress(const Message &route)
{
    return hasAttribute(route, RTA_PREFSRC);
}

} // namespace quillon
