// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/owner/InterfaceTraces.h"

#include "netlink/NetlinkAttributes.h"
#include "netlink/NetlinkSocket.h"
#include "platform/linux/netlink/LinkMessages.h"
#include "platform/linux/netlink/RouteSocket.h"

#include <algorithm>
#include <cerrno>
#include <linux/if_addr.h>
#include <linux/rtnetlink.h>
#include <sys/socket.h>

namespace quillon {

namespace {

using Outcome = AddressOwner::Outcome;

constexpr qsizetype linkOctets = 6;
constexpr qsizetype ipv6Octets = 16;
constexpr quint32 forever = 0xffffffff; // INFINITY_LIFE_TIME of the kernel

QByteArray octetsOf(ByteSpan bytes)
{
    return {reinterpret_cast<const char *>(bytes.data()), static_cast<qsizetype>(bytes.size())};
}

void addAddress(InterfaceTraces &traces, const nlmsghdr &message)
{
    const auto about = headerOf<ifaddrmsg>(message);
    const NetlinkAttributes<IFA_MAX> attributes(attributesOf<ifaddrmsg>(message));
    if (message.nlmsg_type != RTM_NEWADDR || !about) {
        return;
    }
    // IFA_ADDRESS is the far end on a point-to-point link; IFA_LOCAL is always ours.
    const QByteArray ours =
        octetsOf(attributes.bytes(attributes.has(IFA_LOCAL) ? IFA_LOCAL : IFA_ADDRESS));
    const auto times = attributes.value<ifa_cacheinfo>(IFA_CACHEINFO);
    if (about->ifa_family == AF_INET6) {
        traces.ipv6.append(ours);
    } else if (about->ifa_family == AF_INET && times && times->ifa_valid != forever) {
        traces.leases.append({ours, times->tstamp});
    }
}

/// 0 or the kernel's errno.
int readAddresses(int index, InterfaceTraces &traces)
{
    // Strict: for the index.
    NetlinkSocket socket({.protocol = NETLINK_ROUTE, .strict = true});
    ifaddrmsg header{};
    header.ifa_index = static_cast<unsigned int>(index);
    const InterfaceTraces none = traces;
    return socket
        .readTable(
            netlinkMessage(RTM_GETADDR, NLM_F_DUMP, header), [&] { traces = none; },
            [&](const nlmsghdr &part) { addAddress(traces, part); })
        .error;
}

/// RFC 4291, appendix A: the interface identifier of an EUI-48.
QByteArray identifierOf(const QByteArray &linkAddress)
{
    QByteArray identifier = linkAddress.left(3) + QByteArray("\xff\xfe", 2) + linkAddress.mid(3);
    identifier[0] = static_cast<char>(identifier[0] ^ 2);
    return identifier;
}

bool isKept(const InterfaceTraces::Lease &before, const InterfaceTraces &now)
{
    return now.leases.contains(before);
}

} // namespace

std::optional<InterfaceTraces> readTraces(const QString &device)
{
    RouteSocket socket;
    const LinkMessages found = socket.link(device.toUtf8());
    if (found.error == ENODEV) {
        return InterfaceTraces();
    }
    if (found.error != 0 || found.links.isEmpty()) {
        return std::nullopt;
    }
    const LinkInfo &link = found.links.first();
    InterfaceTraces traces;
    traces.isThere = true;
    traces.isRunning = isActive(link);
    traces.linkAddress = QByteArray::fromHex(link.address.toLatin1());
    return readAddresses(link.index, traces) == 0 ? std::optional(traces) : std::nullopt;
}

AddressOwner::Outcomes lacking(const InterfaceTraces &before, const InterfaceTraces &now)
{
    AddressOwner::Outcomes outcomes = Outcome::Settled;
    if (!now.isThere) {
        return before.isRunning ? Outcome::NotBack : Outcome::Settled;
    }
    if (now.linkAddress == before.linkAddress || before.linkAddress.size() != linkOctets) {
        return outcomes;
    }
    const bool hasLostLease = !before.leases.isEmpty() && now.leases.isEmpty();
    outcomes.setFlag(Outcome::NotBack, before.isRunning && (!now.isRunning || hasLostLease));
    outcomes.setFlag(Outcome::KeepsIPAddress,
        std::ranges::any_of(before.leases, [&](const auto &lease) { return isKept(lease, now); }));
    const QByteArray identifier = identifierOf(before.linkAddress);
    outcomes.setFlag(
        Outcome::KeepsIPv6Address, std::ranges::any_of(now.ipv6, [&](const QByteArray &address) {
            return address.size() == ipv6Octets && address.endsWith(identifier);
        }));
    return outcomes;
}

} // namespace quillon
