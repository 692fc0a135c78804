// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "netlink/NetlinkAnswer.h"
#include "platform/linux/netlink/LinkMessages.h"
#include "unit/netlink/NetlinkBytes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <linux/if_addr.h>
#include <linux/if_arp.h>
#include <linux/if_link.h>
#include <linux/rtnetlink.h>
#include <random>
#include <utility>
#include <vector>

namespace quillon::test {

namespace {

using Bytes = std::vector<std::byte>;

Bytes bytesOf(const NetlinkBytes &datagram)
{
    return {datagram.span().begin(), datagram.span().end()};
}

Bytes linkTable()
{
    ifinfomsg header{};
    header.ifi_type = ARPHRD_ETHER;
    header.ifi_index = 3;
    NetlinkBytes kind;
    kind.text(IFLA_INFO_KIND, "veth");
    NetlinkBytes bytes;
    bytes.message(RTM_NEWLINK, header)
        .text(IFLA_IFNAME, "enp3s0")
        .attribute(IFLA_ADDRESS, QByteArray::fromHex("0200c0a8010a"))
        .attribute(IFLA_PERM_ADDRESS, QByteArray::fromHex("00163e000001"))
        .attribute(IFLA_OPERSTATE, QByteArray(1, IF_OPER_UP))
        .attribute(IFLA_LINKINFO, kind.payload())
        .text(IFLA_PARENT_DEV_BUS_NAME, "pci");
    bytes.message(RTM_NEWLINK, header)
        .text(IFLA_IFNAME, "wlp2s0")
        .attribute(IFLA_WIRELESS, QByteArray(8, '\1'));
    bytes.message(NLMSG_DONE, int{0});
    return bytesOf(bytes);
}

Bytes addressTable()
{
    ifaddrmsg header{};
    header.ifa_family = AF_INET;
    header.ifa_index = 3;
    NetlinkBytes bytes;
    for (int i = 0; i < 2; ++i) {
        bytes.message(RTM_NEWADDR, header)
            .attribute(IFA_ADDRESS, QByteArray::fromHex("0a000001"))
            .attribute(IFA_LOCAL, QByteArray::fromHex("0a000002"))
            .text(IFA_LABEL, "enp3s0");
    }
    bytes.message(NLMSG_DONE, int{0});
    return bytesOf(bytes);
}

Bytes refusal()
{
    nlmsgerr error{};
    error.error = -ENODEV;
    NetlinkBytes bytes;
    bytes.message(NLMSG_ERROR, error, 0);
    return bytesOf(bytes);
}

/// Damages datagrams, the same way at every run.
class Damage
{
public:
    Bytes to(Bytes bytes)
    {
        for (std::size_t count = 1 + below(4); count > 0 && !bytes.empty(); --count) {
            damage(bytes);
        }
        // In memory of exactly that size, so that the sanitizers see a byte too far.
        bytes.shrink_to_fit();
        return bytes;
    }

private:
    void damage(Bytes &bytes)
    {
        // What lengths, types and indexes are wrong with, at their edges.
        constexpr std::array<quint32, 12> edges{
            0, 1, 3, 4, 5, 15, 16, 17, 0x7fff, 0xffff, 0x7fffffff, 0xffffffff};
        const std::size_t place = below(bytes.size());
        const quint32 edge = edges[below(edges.size())];
        switch (below(5)) {
        case 0:
            bytes[place] ^= std::byte(1U << below(8));
            break;
        case 1:
            bytes[place] = std::byte(below(256));
            break;
        case 2: // a 16-bit field: an attribute's length or type
            write(bytes, place & ~std::size_t{1}, static_cast<quint16>(edge));
            break;
        case 3: // a 32-bit field: a message's length, an index
            write(bytes, place & ~std::size_t{3}, edge);
            break;
        case 4:
            bytes.resize(place);
            break;
        }
    }

    template <typename Value>
    static void write(Bytes &bytes, std::size_t place, Value value)
    {
        std::memcpy(bytes.data() + place, &value, std::min(sizeof value, bytes.size() - place));
    }

    std::size_t below(std::size_t limit) { return m_numbers() % limit; }

    std::mt19937 m_numbers{20260101};
};

bool isPlausible(const LinkInfo &link)
{
    const auto isAddress = [](const QString &text) { return text.isEmpty() || text.size() == 17; };
    return link.name.size() < 16 && isAddress(link.address) && isAddress(link.permanentAddress) &&
           link.kind.size() < 64 && link.parentBus.size() < 64;
}

} // namespace

TEST(LinkMessagesMutation, SurvivesAHundredThousandDamagedTables)
{
    const std::array tables{linkTable(), addressTable(), refusal()};
    Damage damage;
    int unharmed = 0;
    int implausible = 0;
    for (int i = 0; i < 100'000; ++i) {
        const Bytes damaged = damage.to(tables[static_cast<std::size_t>(i) % tables.size()]);
        LinkMessages messages;
        NetlinkAnswer answer{.sequence = NetlinkBytes::sequence};
        answer.add(damaged, [&](const nlmsghdr &message) { messages.add(message); });
        KnownAddresses known;
        KnownRoutes routes;
        tellsOfChange(damaged, known, routes);
        unharmed += messages.links.size() == 2 || messages.addresses.size() == 2;
        for (const LinkInfo &link : std::as_const(messages.links)) {
            implausible += !isPlausible(link);
        }
        // A message is at least its header, whatever it says of its length.
        ASSERT_LE(
            messages.links.size() + messages.addresses.size(), damaged.size() / sizeof(nlmsghdr));
    }
    EXPECT_EQ(implausible, 0);
    // The damage must leave enough to get past the first check, and must do harm.
    EXPECT_GT(unharmed, 10'000);
    EXPECT_LT(unharmed, 60'000);
}

} // namespace quillon::test
