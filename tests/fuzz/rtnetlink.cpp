// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/Require.h"
#include "netlink/NetlinkAnswer.h"
#include "platform/linux/netlink/LinkMessages.h"

#include <cstdint>
#include <linux/netlink.h>
#include <vector>

// The bytes are taken as the kernel's messages about links, addresses and routes.

namespace quillon::test {

namespace {

constexpr quint32 sequence = 1;

void requireAddress(const QString &address)
{
    require(address.isEmpty() || address.size() == 17, "a hardware address is six octets");
}

void read(std::span<const std::byte> bytes)
{
    LinkMessages messages;
    NetlinkAnswer answer{.sequence = sequence};
    answer.add(bytes, [&](const nlmsghdr &message) { messages.add(message); });
    KnownAddresses known;
    KnownRoutes routes;
    tellsOfChange(bytes, known, routes);
    const auto records = messages.links.size() + messages.addresses.size() + messages.routes.size();
    require(static_cast<std::size_t>(records) <= bytes.size() / sizeof(nlmsghdr),
        "every record is a message at least");
    require(answer.error >= 0 && answer.error < 4096, "an error is an errno");
    for (const LinkInfo &link : messages.links) {
        require(link.name.size() < 16, "a name fits its field");
        require(link.kind.size() < 64 && link.parentBus.size() < 64, "texts are bounded");
        requireAddress(link.address);
        requireAddress(link.permanentAddress);
    }
    for (const DefaultRoute &route : messages.routes) {
        require(static_cast<std::size_t>(route.hops.size()) <= bytes.size() / 8,
            "every next hop is an attribute at least");
        const QList<NextHop> hops = hopsOf(route, messages.nextHops);
        for (const NextHop &hop : hops) {
            require(hop.gateway.size() < 46, "a router's address is bounded");
        }
    }
}

} // namespace

} // namespace quillon::test

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    // In memory of its own, aligned as a socket's buffer is.
    const std::vector<std::uint8_t> copy(data, data + size);
    quillon::test::read(std::as_bytes(std::span(copy)));
    return 0;
}
