// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/PutBack.h"

#include "helper/MessageBody.h"
#include "netlink/NetlinkAttributes.h"

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
    Message body;
    append(body, &*header, sizeof *header);
    appendAttribute(body, attributes.find(IFA_ADDRESS));
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

} // namespace quillon
