// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/PutBack.h"

#include "netlink/NetlinkAttributes.h"
#include "netlink/NextHops.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <linux/if_addr.h>
#include <linux/neighbour.h>
#include <linux/rtnetlink.h>
#include <sys/socket.h>
#include <unistd.h>

namespace quillon {

namespace {

using Message = LinkConfiguration::Message;
using AddressAttributes = NetlinkAttributes<IFA_MAX>;
using RouteAttributes = NetlinkAttributes<RTA_MAX>;
using NeighborAttributes = NetlinkAttributes<NDA_MAX>;

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

bool isFormedFromLinkAddress(ByteSpan address, const contract::LinkLayerAddress &link)
{
    // RFC 4291, appendix A: the interface identifier of an EUI-48.
    const std::array<std::uint8_t, 8> identifier{static_cast<std::uint8_t>(link[0] ^ 2U), link[1],
        link[2], 0xff, 0xfe, link[3], link[4], link[5]};
    return address.size() == 16 &&
           std::memcmp(address.data() + 8, identifier.data(), identifier.size()) == 0;
}

bool kernelMakesAddress(const ifaddrmsg &header, const AddressAttributes &attributes,
    std::uint32_t flags, const LinkState &link)
{
    if (header.ifa_family != AF_INET6) {
        return false;
    }
    // Kernels since 5.18 say which are their own, also those of an earlier link-layer address.
    const auto origin = attributes.value<std::uint8_t>(IFA_PROTO).value_or(IFAPROT_UNSPEC);
    const bool declared = origin == IFAPROT_KERNEL_RA || origin == IFAPROT_KERNEL_LL;
    const bool derived = (flags & (IFA_F_TEMPORARY | IFA_F_STABLE_PRIVACY)) != 0;
    return declared || derived ||
           isFormedFromLinkAddress(attributes.bytes(IFA_ADDRESS), link.address);
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

bool isGivenWithoutResolution(const NeighborAttributes &attributes, const LinkState &link)
{
    // Without resolution (NUD_NOARP) the kernel makes entries for groups, whose link addresses are
    // groups too, and on links without ARP, with the link's own address: one that would betray it.
    const ByteSpan address = attributes.bytes(NDA_LLADDR);
    const bool isGroup = !address.empty() && (address[0] & std::byte{1}) != std::byte{0};
    const bool isOwn = address.size() == link.address.size() &&
                       std::memcmp(address.data(), link.address.data(), address.size()) == 0;
    return !isGroup && !isOwn;
}

bool isManaged(const NeighborAttributes &attributes)
{
    return (attributes.value<std::uint32_t>(NDA_FLAGS_EXT).value_or(0) & NTF_EXT_MANAGED) != 0;
}

bool othersMakeNeighbor(
    const ndmsg &header, const NeighborAttributes &attributes, const LinkState &link)
{
    if ((header.ndm_flags & NTF_PROXY) != 0 || (header.ndm_state & NUD_PERMANENT) != 0 ||
        isManaged(attributes)) {
        return false;
    }
    if ((header.ndm_state & NUD_NOARP) != 0) {
        return !isGivenWithoutResolution(attributes, link);
    }
    // Learned by a program that watches the network for the kernel.
    return (header.ndm_flags & NTF_EXT_LEARNED) == 0 || !attributes.has(NDA_LLADDR);
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
    auto header = headerOf<ifaddrmsg>(*message);
    if (message->nlmsg_type != RTM_NEWADDR || !header ||
        static_cast<int>(header->ifa_index) != link.index) {
        return std::nullopt;
    }
    const AddressAttributes attributes(attributesOf<ifaddrmsg>(*message));
    const auto flags = attributes.value<std::uint32_t>(IFA_FLAGS).value_or(header->ifa_flags);
    if (kernelMakesAddress(*header, attributes, flags, link)) {
        return std::nullopt;
    }
    header->ifa_flags = static_cast<std::uint8_t>(flags & settableAddressFlags);
    Message body;
    append(body, &*header, sizeof *header);
    // The lifetimes (IFA_CACHEINFO) are what is left of them.
    for (int type : {IFA_ADDRESS, IFA_LOCAL, IFA_LABEL, IFA_BROADCAST, IFA_CACHEINFO,
             IFA_RT_PRIORITY, IFA_PROTO}) {
        if (attributes.has(type)) {
            appendAttribute(body, attributes.find(type));
        }
    }
    appendNumber(body, IFA_FLAGS, flags & settableAddressFlags);
    return body;
}

std::optional<Message> routeToPutBack(const nlmsghdr *message, const LinkState &link)
{
    auto header = headerOf<rtmsg>(*message);
    if (message->nlmsg_type != RTM_NEWROUTE || !header) {
        return std::nullopt;
    }
    const RouteAttributes attributes(attributesOf<rtmsg>(*message));
    if (!goesThrough(attributes, link.index) || othersMakeRoute(*header, attributes)) {
        return std::nullopt;
    }
    header->rtm_flags &= RTNH_F_ONLINK;
    Message body;
    append(body, &*header, sizeof *header);
    for (int type = 1; type <= RTA_MAX; ++type) {
        // A nexthop object goes down with its interface; the route carries the hop itself as well.
        if (!attributes.has(type) || type == RTA_CACHEINFO || type == RTA_NH_ID) {
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

std::optional<Message> neighborToPutBack(const nlmsghdr *message, const LinkState &link)
{
    auto header = headerOf<ndmsg>(*message);
    if (message->nlmsg_type != RTM_NEWNEIGH || !header || header->ndm_ifindex != link.index ||
        (header->ndm_family != AF_INET && header->ndm_family != AF_INET6)) {
        return std::nullopt;
    }
    const NeighborAttributes attributes(attributesOf<ndmsg>(*message));
    if (!attributes.has(NDA_DST) || othersMakeNeighbor(*header, attributes, link)) {
        return std::nullopt;
    }
    const bool managed = isManaged(attributes);
    if (managed) {
        header->ndm_state = NUD_NONE;
    }
    Message body;
    append(body, &*header, sizeof *header);
    for (int type : {NDA_DST, NDA_LLADDR, NDA_PROTOCOL, NDA_FLAGS_EXT}) {
        // The kernel itself finds, and keeps finding, the link address of a managed one.
        if (attributes.has(type) && !(managed && type == NDA_LLADDR)) {
            appendAttribute(body, attributes.find(type));
        }
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
