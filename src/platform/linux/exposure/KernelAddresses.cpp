// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/exposure/KernelAddresses.h"

#include "netlink/NetlinkAttributes.h"
#include "netlink/NetlinkSocket.h"

#include <algorithm>
#include <linux/if_addr.h>
#include <linux/rtnetlink.h>
#include <sys/socket.h>

namespace quillon {

namespace {

using Address = ExposureFacts::Ipv6Address;
using namespace std::chrono_literals;

constexpr quint32 forever = 0xffffffff; // INFINITY_LIFE_TIME of the kernel
constexpr auto tick = 10ms;             // of ifa_cacheinfo
constexpr unsigned char wholeAddress = 128;
constexpr qsizetype ipv6Size = 16;

} // namespace

std::optional<Address> ipv6AddressIn(const nlmsghdr &message, std::chrono::milliseconds now)
{
    const auto about = headerOf<ifaddrmsg>(message);
    if (message.nlmsg_type != RTM_NEWADDR || !about || about->ifa_family != AF_INET6) {
        return std::nullopt;
    }
    const NetlinkAttributes<IFA_MAX> attributes(attributesOf<ifaddrmsg>(message));
    const ByteSpan octets = attributes.bytes(attributes.has(IFA_LOCAL) ? IFA_LOCAL : IFA_ADDRESS);
    const quint32 flags = attributes.value<quint32>(IFA_FLAGS).value_or(about->ifa_flags);
    if (octets.size() != ipv6Size || (flags & IFA_F_DADFAILED) != 0) {
        return std::nullopt;
    }
    Address address;
    address.octets = {reinterpret_cast<const char *>(octets.data()), ipv6Size};
    address.isLinkLocal = about->ifa_scope == RT_SCOPE_LINK;
    address.isTemporary = (flags & IFA_F_TEMPORARY) != 0;
    if (const auto times = attributes.value<ifa_cacheinfo>(IFA_CACHEINFO)) {
        address.hasEnd = times->ifa_valid != forever;
        // DHCP gives single addresses, routers whole networks.
        address.isLeased = address.hasEnd && about->ifa_prefixlen == wholeAddress;
        // Both wrap around alike.
        const auto ticks = static_cast<quint32>(now / tick) - times->cstamp;
        address.age = std::chrono::duration_cast<std::chrono::seconds>(ticks * tick);
    }
    return address;
}

std::optional<QList<Address>> kernelIpv6Addresses(int index)
{
    const auto now = std::chrono::duration_cast<std::chrono::milliseconds>(
        std::chrono::steady_clock::now().time_since_epoch());
    // Strict: for the index.
    NetlinkSocket socket({.protocol = NETLINK_ROUTE, .strict = true});
    ifaddrmsg header{};
    header.ifa_family = AF_INET6;
    header.ifa_index = static_cast<unsigned int>(index);
    QList<Address> found;
    const NetlinkAnswer answer = socket.readTable(
        netlinkMessage(RTM_GETADDR, NLM_F_DUMP, header), [&] { found.clear(); },
        [&](const nlmsghdr &part) {
            if (const auto address = ipv6AddressIn(part, now)) {
                found.append(*address);
            }
        });
    std::ranges::stable_partition(found, [](const Address &one) { return !one.isLinkLocal; });
    return answer.error == 0 ? std::optional(found) : std::nullopt;
}

} // namespace quillon
