// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/netlink/LinkMessages.h"

#include <netlink/attr.h>
#include <netlink/msg.h>

#include <arpa/inet.h>
#include <array>
#include <cerrno>
#include <cstring>
#include <linux/if.h>
#include <linux/if_addr.h>
#include <linux/if_link.h>
#include <linux/rtnetlink.h>

namespace quillon {

namespace {

// A hardware address is at most MAX_ADDR_LEN octets (32 in the kernel).
constexpr int longestHardwareAddress = 32;

template <std::size_t Count>
using Attributes = std::array<nlattr *, Count>;

nla_policy text(unsigned short longest)
{
    return {.type = NLA_STRING, .minlen = 1, .maxlen = longest};
}

QString hardwareAddress(nlattr *attribute)
{
    return attribute ? addressText({static_cast<const unsigned char *>(nla_data(attribute)),
                           static_cast<std::size_t>(nla_len(attribute))})
                     : QString();
}

std::string string(nlattr *attribute)
{
    // The policy has seen to the terminating zero.
    return attribute ? std::string(nla_get_string(attribute)) : std::string();
}

const std::array<nla_policy, IFLA_MAX + 1> &linkPolicy()
{
    static const auto policy = [] {
        std::array<nla_policy, IFLA_MAX + 1> table{};
        table[IFLA_IFNAME] = text(IFNAMSIZ);
        table[IFLA_PARENT_DEV_BUS_NAME] = text(64);
        table[IFLA_OPERSTATE] = {.type = NLA_U8, .minlen = 0, .maxlen = 0};
        table[IFLA_ADDRESS] = {.type = NLA_UNSPEC, .minlen = 0, .maxlen = longestHardwareAddress};
        table[IFLA_PERM_ADDRESS] = {
            .type = NLA_UNSPEC, .minlen = 0, .maxlen = longestHardwareAddress};
        return table;
    }();
    return policy;
}

std::string linkKind(nlattr *linkInfo)
{
    if (!linkInfo) {
        return {};
    }
    Attributes<IFLA_INFO_MAX + 1> nested{};
    std::array<nla_policy, IFLA_INFO_MAX + 1> policy{};
    policy[IFLA_INFO_KIND] = text(64);
    if (nla_parse_nested(nested.data(), IFLA_INFO_MAX, linkInfo, policy.data()) < 0) {
        return {};
    }
    return string(nested[IFLA_INFO_KIND]);
}

bool parseLink(nlmsghdr *header, Attributes<IFLA_MAX + 1> &attributes)
{
    return nlmsg_parse(
               header, sizeof(ifinfomsg), attributes.data(), IFLA_MAX, linkPolicy().data()) >= 0;
}

std::optional<LinkFacts> linkFacts(nlmsghdr *header)
{
    Attributes<IFLA_MAX + 1> attributes{};
    if (!parseLink(header, attributes) || !attributes[IFLA_IFNAME]) {
        return std::nullopt;
    }
    const auto *about = static_cast<const ifinfomsg *>(nlmsg_data(header));
    LinkFacts link;
    link.index = about->ifi_index;
    link.type = about->ifi_type;
    link.flags = about->ifi_flags;
    link.name = QString::fromUtf8(nla_get_string(attributes[IFLA_IFNAME]));
    link.address = hardwareAddress(attributes[IFLA_ADDRESS]);
    link.permanentAddress = hardwareAddress(attributes[IFLA_PERM_ADDRESS]);
    link.kind = linkKind(attributes[IFLA_LINKINFO]);
    link.parentBus = string(attributes[IFLA_PARENT_DEV_BUS_NAME]);
    if (attributes[IFLA_OPERSTATE]) {
        link.operationalState = nla_get_u8(attributes[IFLA_OPERSTATE]);
    }
    return link;
}

std::optional<AddressFacts> addressFacts(nlmsghdr *header)
{
    Attributes<IFA_MAX + 1> attributes{};
    if (nlmsg_parse(header, sizeof(ifaddrmsg), attributes.data(), IFA_MAX, nullptr) < 0) {
        return std::nullopt;
    }
    const auto *about = static_cast<const ifaddrmsg *>(nlmsg_data(header));
    // IFA_ADDRESS is the far end on a point-to-point link; IFA_LOCAL is always ours.
    nlattr *ours = attributes[IFA_LOCAL] ? attributes[IFA_LOCAL] : attributes[IFA_ADDRESS];
    if (about->ifa_family != AF_INET || !ours || nla_len(ours) != sizeof(in_addr)) {
        return std::nullopt;
    }
    std::array<char, INET_ADDRSTRLEN> dotted{};
    if (!inet_ntop(AF_INET, nla_data(ours), dotted.data(), dotted.size())) {
        return std::nullopt;
    }
    return AddressFacts{static_cast<int>(about->ifa_index), QString::fromLatin1(dotted.data())};
}

std::optional<DefaultRoute> routeFacts(nlmsghdr *header)
{
    return defaultRoute({static_cast<const std::byte *>(nlmsg_data(header)),
        static_cast<std::size_t>(nlmsg_datalen(header))});
}

// The kernel tells an errno by its negative value, and has none above MAX_ERRNO.
int errnoOf(int status)
{
    constexpr int highestErrno = 4095;
    return status <= 0 && status >= -highestErrno ? -status : EBADMSG;
}

int refusal(nlmsghdr *header)
{
    if (nlmsg_datalen(header) < static_cast<int>(sizeof(nlmsgerr))) {
        return EBADMSG;
    }
    return errnoOf(static_cast<const nlmsgerr *>(nlmsg_data(header))->error);
}

// What the end of a table says of the whole: a dump that failed half-way ends with its errno.
int failureOfTable(nlmsghdr *header)
{
    int status = 0;
    if (nlmsg_datalen(header) >= static_cast<int>(sizeof status)) {
        std::memcpy(&status, nlmsg_data(header), sizeof status);
    }
    return errnoOf(status);
}

// Calls `visit` with each complete message; false when bytes were left that are none.
template <typename Visit>
bool forEachHeader(std::span<const std::byte> datagram, Visit visit)
{
    // libnl reads through pointers to non-const; it does not write.
    auto *header = reinterpret_cast<nlmsghdr *>(const_cast<std::byte *>(datagram.data()));
    int remaining = static_cast<int>(datagram.size());
    while (nlmsg_ok(header, remaining)) {
        visit(header);
        header = nlmsg_next(header, &remaining);
    }
    return remaining <= 0;
}

bool isWirelessEvent(nlmsghdr *header)
{
    Attributes<IFLA_MAX + 1> attributes{};
    return header->nlmsg_type == RTM_NEWLINK && parseLink(header, attributes) &&
           attributes[IFLA_WIRELESS];
}

} // namespace

void LinkMessages::add(std::span<const std::byte> datagram, quint32 sequence)
{
    forEachHeader(datagram, [&](nlmsghdr *header) {
        if (header->nlmsg_seq != sequence || finished) {
            return;
        }
        interrupted = interrupted || (header->nlmsg_flags & NLM_F_DUMP_INTR);
        if (header->nlmsg_type == RTM_NEWLINK) {
            if (auto link = linkFacts(header)) {
                links.append(*std::move(link));
            }
        } else if (header->nlmsg_type == RTM_NEWADDR) {
            if (auto address = addressFacts(header)) {
                addresses.append(*std::move(address));
            }
        } else if (header->nlmsg_type == RTM_NEWROUTE) {
            if (auto route = routeFacts(header)) {
                routes.append(*std::move(route));
            }
        } else if (header->nlmsg_type == NLMSG_ERROR) {
            error = refusal(header);
        } else if (header->nlmsg_type == NLMSG_DONE) {
            error = failureOfTable(header);
        }
        finished = header->nlmsg_type == NLMSG_DONE || header->nlmsg_type == NLMSG_ERROR ||
                   !(header->nlmsg_flags & NLM_F_MULTI);
    });
}

bool tellsOfChange(std::span<const std::byte> datagram)
{
    bool changed = false;
    const bool readable = forEachHeader(
        datagram, [&](nlmsghdr *header) { changed = changed || !isWirelessEvent(header); });
    return changed || !readable;
}

bool isActive(const LinkFacts &link)
{
    const bool carrier = (link.flags & IFF_UP) && (link.flags & IFF_LOWER_UP);
    return link.operationalState == IF_OPER_UP ||
           (link.operationalState == IF_OPER_UNKNOWN && carrier);
}

QString statusText(const LinkFacts &link)
{
    return isActive(link) ? QStringLiteral("active") : QStringLiteral("inactive");
}

QString addressText(std::span<const unsigned char> octets)
{
    constexpr std::size_t ethernetOctets = 6;
    constexpr char digits[] = "0123456789abcdef";
    if (octets.size() != ethernetOctets) {
        return {};
    }
    std::array<char, ethernetOctets * 3> text{};
    for (std::size_t i = 0; i < ethernetOctets; ++i) {
        text[3 * i] = digits[octets[i] >> 4];
        text[3 * i + 1] = digits[octets[i] & 0xf];
        text[3 * i + 2] = ':';
    }
    return QString::fromLatin1(text.data(), text.size() - 1);
}

} // namespace quillon
