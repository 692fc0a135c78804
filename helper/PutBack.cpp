// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/PutBack.h"

#include "helper/MessageBody.h"
#include "netlink/NetlinkAttributes.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <linux/if_addr.h>
#include <linux/neighbour.h>
#include <linux/rtnetlink.h>
#include <sys/socket.h>

namespace quillon {

namespace {

using Message = LinkConfiguration::Message;
using AddressAttributes = NetlinkAttributes<IFA_MAX>;
using NeighborAttributes = NetlinkAttributes<NDA_MAX>;

// Of all address flags these are requests; the others are the kernel's findings.
constexpr std::uint32_t settableAddressFlags =
    IFA_F_NODAD | IFA_F_HOMEADDRESS | IFA_F_MANAGETEMPADDR | IFA_F_NOPREFIXROUTE | IFA_F_MCAUTOJOIN;

bool kernelDeclaresIts(const AddressAttributes &attributes)
{
    // Kernels since 5.18 say which are their own, also those of an earlier link-layer address.
    const auto origin = attributes.value<std::uint8_t>(IFA_PROTO).value_or(IFAPROT_UNSPEC);
    return origin == IFAPROT_KERNEL_RA || origin == IFAPROT_KERNEL_LL;
}

/// What the identifier of an EUI-48 has in its middle; few others do.
bool isFormedFromSomeLinkAddress(ByteSpan address)
{
    return address.size() == 16 && address[11] == std::byte{0xff} && address[12] == std::byte{0xfe};
}

constexpr std::size_t ipv6Octets = 16;
constexpr std::size_t identifierOffset = 8;
using Identifier = std::array<std::uint8_t, ipv6Octets - identifierOffset>;

// RFC 4291, appendix A: the interface identifier of an EUI-48.
Identifier identifierOf(const contract::LinkLayerAddress &link)
{
    return {static_cast<std::uint8_t>(link[0] ^ 2U), link[1], link[2], 0xff, 0xfe, link[3], link[4],
        link[5]};
}

bool isFormedFromLinkAddress(ByteSpan address, const contract::LinkLayerAddress &link)
{
    const Identifier identifier = identifierOf(link);
    return address.size() == ipv6Octets && std::memcmp(address.data() + identifierOffset,
                                               identifier.data(), identifier.size()) == 0;
}

/// Header and what can be set of an address. The lifetimes (IFA_CACHEINFO) are what is left of
/// them.
Message addressBody(
    ifaddrmsg header, const AddressAttributes &attributes, std::uint32_t flags, auto... more)
{
    header.ifa_flags = static_cast<std::uint8_t>(flags & settableAddressFlags);
    Message body;
    append(body, &header, sizeof header);
    for (int type : {IFA_ADDRESS, IFA_LOCAL, IFA_CACHEINFO, IFA_RT_PRIORITY, more...}) {
        if (attributes.has(type)) {
            appendAttribute(body, attributes.find(type));
        }
    }
    appendNumber(body, IFA_FLAGS, flags & settableAddressFlags);
    return body;
}

bool kernelMakesAddress(const ifaddrmsg &header, const AddressAttributes &attributes,
    std::uint32_t flags, const LinkState &link)
{
    if (header.ifa_family != AF_INET6) {
        return false;
    }
    const bool derived = (flags & (IFA_F_TEMPORARY | IFA_F_STABLE_PRIVACY)) != 0;
    return kernelDeclaresIts(attributes) || derived ||
           isFormedFromLinkAddress(attributes.bytes(IFA_ADDRESS), link.address);
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
    return addressBody(*header, attributes, flags, IFA_LABEL, IFA_BROADCAST, IFA_PROTO);
}

std::optional<Message> formedAddress(const nlmsghdr *message, const LinkState &link)
{
    const auto header = headerOf<ifaddrmsg>(*message);
    if (message->nlmsg_type != RTM_NEWADDR || !header || header->ifa_family != AF_INET6 ||
        static_cast<int>(header->ifa_index) != link.index) {
        return std::nullopt;
    }
    const AddressAttributes attributes(attributesOf<ifaddrmsg>(*message));
    const ByteSpan address = attributes.bytes(IFA_ADDRESS);
    if (!isFormedFromLinkAddress(address, link.address) &&
        !(kernelDeclaresIts(attributes) && isFormedFromSomeLinkAddress(address))) {
        return std::nullopt;
    }
    const auto flags = attributes.value<std::uint32_t>(IFA_FLAGS).value_or(header->ifa_flags);
    return addressBody(*header, attributes, flags);
}

Message formedAnew(const Message &formed, const contract::LinkLayerAddress &link)
{
    const AddressAttributes attributes(attributesOf(formed, sizeof(ifaddrmsg)));
    const ByteSpan address = attributes.bytes(IFA_ADDRESS);
    Message anew = formed;
    if (address.size() == ipv6Octets) {
        const Identifier identifier = identifierOf(link);
        const auto *begin = reinterpret_cast<const std::uint8_t *>(address.data());
        const auto offset = (begin - formed.data()) + std::ptrdiff_t{identifierOffset};
        std::copy(identifier.begin(), identifier.end(), anew.begin() + offset);
    }
    return anew;
}

int linkOfAddress(const Message &address)
{
    ifaddrmsg header{};
    if (address.size() >= sizeof header) {
        std::memcpy(&header, address.data(), sizeof header);
    }
    return static_cast<int>(header.ifa_index);
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

} // namespace quillon
