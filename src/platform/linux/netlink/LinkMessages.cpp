// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/netlink/LinkMessages.h"

#include "netlink/NetlinkAttributes.h"

#include <array>
#include <linux/if.h>
#include <linux/if_addr.h>
#include <linux/if_link.h>
#include <linux/rtnetlink.h>
#include <netinet/in.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

using LinkAttributes = NetlinkAttributes<IFLA_MAX>;

constexpr nla_policy text(unsigned short longest)
{
    return {.type = NLA_STRING, .minlen = 1, .maxlen = longest};
}

constexpr nla_policy hardwareAddressPolicy()
{
    // MAX_ADDR_LEN of the kernel.
    return {.type = NLA_UNSPEC, .minlen = 0, .maxlen = 32};
}

LinkAttributes linkAttributes(const nlmsghdr &message)
{
    static constexpr auto policy = [] {
        LinkAttributes::Policy table{};
        table[IFLA_IFNAME] = text(IFNAMSIZ);
        table[IFLA_PARENT_DEV_BUS_NAME] = text(64);
        table[IFLA_OPERSTATE] = {.type = NLA_U8, .minlen = 0, .maxlen = 0};
        table[IFLA_ADDRESS] = hardwareAddressPolicy();
        table[IFLA_PERM_ADDRESS] = hardwareAddressPolicy();
        return table;
    }();
    return LinkAttributes(attributesOf<ifinfomsg>(message), &policy);
}

std::string linkKind(ByteSpan linkInfo)
{
    using Nested = NetlinkAttributes<IFLA_INFO_MAX>;
    static constexpr auto policy = [] {
        Nested::Policy table{};
        table[IFLA_INFO_KIND] = text(64);
        return table;
    }();
    return std::string(Nested(linkInfo, &policy).text(IFLA_INFO_KIND));
}

std::optional<LinkInfo> linkInfo(const nlmsghdr &message)
{
    const auto about = headerOf<ifinfomsg>(message);
    const LinkAttributes attributes = linkAttributes(message);
    if (!about || !attributes.has(IFLA_IFNAME)) {
        return std::nullopt;
    }
    LinkInfo link;
    link.index = about->ifi_index;
    link.type = about->ifi_type;
    link.flags = about->ifi_flags;
    link.operationalState = attributes.value<unsigned char>(IFLA_OPERSTATE).value_or(0);
    link.name = QString::fromUtf8(attributes.text(IFLA_IFNAME));
    link.address = addressText(attributes.bytes(IFLA_ADDRESS));
    link.permanentAddress = addressText(attributes.bytes(IFLA_PERM_ADDRESS));
    link.kind = linkKind(attributes.bytes(IFLA_LINKINFO));
    link.parentBus = attributes.text(IFLA_PARENT_DEV_BUS_NAME);
    return link;
}

std::optional<AddressInfo> addressInfo(const nlmsghdr &message)
{
    const auto about = headerOf<ifaddrmsg>(message);
    const NetlinkAttributes<IFA_MAX> attributes(attributesOf<ifaddrmsg>(message));
    // IFA_ADDRESS is the far end on a point-to-point link; IFA_LOCAL is always ours.
    const ByteSpan ours = attributes.bytes(attributes.has(IFA_LOCAL) ? IFA_LOCAL : IFA_ADDRESS);
    if (!about || about->ifa_family != AF_INET || ours.size() != sizeof(in_addr)) {
        return std::nullopt;
    }
    return AddressInfo{static_cast<int>(about->ifa_index), internetAddressText(ours)};
}

template <typename Info>
void append(QList<Info> &list, std::optional<Info> info)
{
    if (info) {
        list.append(*std::move(info));
    }
}

bool isWirelessEvent(const nlmsghdr &message)
{
    return message.nlmsg_type == RTM_NEWLINK && linkAttributes(message).has(IFLA_WIRELESS);
}

} // namespace

void LinkMessages::add(const nlmsghdr &message)
{
    if (message.nlmsg_type == RTM_NEWLINK) {
        append(links, linkInfo(message));
    } else if (message.nlmsg_type == RTM_NEWADDR) {
        append(addresses, addressInfo(message));
    } else if (message.nlmsg_type == RTM_NEWROUTE) {
        append(routes, defaultRoute(message));
    } else if (message.nlmsg_type == RTM_NEWNEXTHOP) {
        if (const auto object = nextHopObject(message)) {
            nextHops.insert(object->id, *object);
        }
    }
}

bool tellsOfChange(ByteSpan datagram, KnownAddresses &addresses, KnownRoutes &routes)
{
    bool changed = false;
    const bool readable = forEachMessage(datagram, [&](const nlmsghdr &message) {
        if (isWirelessEvent(message)) {
            return;
        }
        const bool isRepeatedAddress = addresses.isRepeated(message);
        const bool isRepeatedRoute = routes.isRepeated(message);
        changed = changed || (!isRepeatedAddress && !isRepeatedRoute);
    });
    return changed || !readable;
}

bool isActive(const LinkInfo &link)
{
    const bool carrier = (link.flags & IFF_UP) && (link.flags & IFF_LOWER_UP);
    return link.operationalState == IF_OPER_UP ||
           (link.operationalState == IF_OPER_UNKNOWN && carrier);
}

QString statusText(const LinkInfo &link)
{
    return isActive(link) ? u"active"_s : u"inactive"_s;
}

QString addressText(ByteSpan octets)
{
    constexpr std::size_t ethernetOctets = 6;
    constexpr char digits[] = "0123456789abcdef";
    if (octets.size() != ethernetOctets) {
        return {};
    }
    std::array<char, ethernetOctets * 3> text{};
    for (std::size_t i = 0; i < ethernetOctets; ++i) {
        const auto octet = std::to_integer<std::size_t>(octets[i]);
        text[3 * i] = digits[octet >> 4];
        text[3 * i + 1] = digits[octet & 0xf];
        text[3 * i + 2] = ':';
    }
    return QString::fromLatin1(text.data(), text.size() - 1);
}

} // namespace quillon
