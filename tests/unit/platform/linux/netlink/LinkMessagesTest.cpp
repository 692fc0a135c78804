// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/netlink/LinkMessages.h"

#include "unit/netlink/NetlinkBytes.h"

#include <gtest/gtest.h>

#include <array>
#include <linux/if.h>
#include <linux/if_addr.h>
#include <linux/if_arp.h>
#include <linux/if_link.h>
#include <linux/rtnetlink.h>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

const QByteArray octets = QByteArray::fromHex("0200c0a8010a");

ifinfomsg ethernet(int index = 3)
{
    ifinfomsg header{};
    header.ifi_type = ARPHRD_ETHER;
    header.ifi_index = index;
    header.ifi_flags = IFF_UP | IFF_LOWER_UP;
    return header;
}

ifaddrmsg address(quint32 index)
{
    ifaddrmsg header{};
    header.ifa_family = AF_INET;
    header.ifa_index = index;
    return header;
}

QByteArray kind(const char *name)
{
    NetlinkBytes nested;
    return nested.text(IFLA_INFO_KIND, name).payload();
}

LinkMessages read(const NetlinkBytes &bytes)
{
    LinkMessages messages;
    forEachMessage(bytes.span(), [&](const nlmsghdr &message) { messages.add(message); });
    return messages;
}

} // namespace

TEST(LinkMessages, TellsEverythingOfALink)
{
    NetlinkBytes bytes;
    bytes.message(RTM_NEWLINK, ethernet())
        .text(IFLA_IFNAME, "enp3s0")
        .attribute(IFLA_ADDRESS, octets)
        .attribute(IFLA_PERM_ADDRESS, QByteArray::fromHex("00163e000001"))
        .attribute(IFLA_OPERSTATE, QByteArray(1, IF_OPER_UP))
        .attribute(IFLA_LINKINFO, kind("veth"))
        .text(IFLA_PARENT_DEV_BUS_NAME, "pci");

    const LinkMessages messages = read(bytes);

    ASSERT_EQ(messages.links.size(), 1);
    const LinkInfo &link = messages.links.first();
    EXPECT_EQ(link.index, 3);
    EXPECT_EQ(link.type, ARPHRD_ETHER);
    EXPECT_EQ(link.name, u"enp3s0"_s);
    EXPECT_EQ(link.address, u"02:00:c0:a8:01:0a"_s);
    EXPECT_EQ(link.permanentAddress, u"00:16:3e:00:00:01"_s);
    EXPECT_EQ(link.operationalState, IF_OPER_UP);
    EXPECT_EQ(link.kind, "veth");
    EXPECT_EQ(link.parentBus, "pci");
}

TEST(LinkMessages, KeepsTheKernelsOrder)
{
    NetlinkBytes bytes;
    bytes.message(RTM_NEWLINK, ethernet(9)).text(IFLA_IFNAME, "eth9");
    bytes.message(RTM_NEWLINK, ethernet(2)).text(IFLA_IFNAME, "eth2");
    const LinkMessages messages = read(bytes);
    ASSERT_EQ(messages.links.size(), 2);
    EXPECT_EQ(messages.links[0].name, u"eth9"_s);
    EXPECT_EQ(messages.links[1].name, u"eth2"_s);
}

TEST(LinkMessages, OurOwnAddressNotTheFarEnds)
{
    const QByteArray farEnd = QByteArray::fromHex("0a000001");
    const QByteArray ours = QByteArray::fromHex("0a000002");
    NetlinkBytes bytes;
    bytes.message(RTM_NEWADDR, address(4))
        .attribute(IFA_ADDRESS, farEnd)
        .attribute(IFA_LOCAL, ours);
    bytes.message(RTM_NEWADDR, address(5)).attribute(IFA_ADDRESS, ours);

    const QList<AddressInfo> expected{{4, u"10.0.0.2"_s}, {5, u"10.0.0.2"_s}};
    EXPECT_EQ(read(bytes).addresses, expected);
}

TEST(LinkMessages, AnAddressOfAnotherFamilyOrSizeIsLeftOut)
{
    ifaddrmsg version6 = address(4);
    version6.ifa_family = AF_INET6;
    NetlinkBytes bytes;
    bytes.message(RTM_NEWADDR, version6).attribute(IFA_ADDRESS, QByteArray(16, '\1'));
    bytes.message(RTM_NEWADDR, address(4)).attribute(IFA_LOCAL, QByteArray(3, '\1'));
    bytes.message(RTM_NEWADDR, address(4));
    EXPECT_TRUE(read(bytes).addresses.isEmpty());
}

TEST(LinkMessages, MalformedLinksAreLeftOutAndTheOthersStay)
{
    NetlinkBytes bytes;
    bytes.message(RTM_NEWLINK, ethernet(1)).attribute(IFLA_IFNAME, "unterminated"); // no zero
    bytes.message(RTM_NEWLINK, ethernet(2)).attribute(IFLA_IFNAME, "");
    bytes.message(RTM_NEWLINK, ethernet(3)).text(IFLA_IFNAME, "sixteen-or-longer-name");
    bytes.message(RTM_NEWLINK, ethernet(4)); // no name
    bytes.message(RTM_NEWLINK, ethernet(5))
        .text(IFLA_IFNAME, "eth5")
        .attribute(IFLA_ADDRESS, QByteArray(200, '\1'));
    bytes.message(RTM_NEWLINK, ethernet(6)).text(IFLA_IFNAME, "eth6").attribute(IFLA_OPERSTATE, "");
    bytes.message(RTM_NEWLINK, char{}); // shorter than its header
    bytes.cutTo((bytes.size() + 3) & ~std::size_t{3});
    bytes.message(RTM_NEWLINK, ethernet(7)).text(IFLA_IFNAME, "eth7");

    const LinkMessages messages = read(bytes);
    ASSERT_EQ(messages.links.size(), 1);
    EXPECT_EQ(messages.links.first().name, u"eth7"_s);
}

TEST(LinkMessages, AMessageLongerThanItsDatagramIsNotRead)
{
    NetlinkBytes bytes;
    bytes.message(RTM_NEWLINK, ethernet()).text(IFLA_IFNAME, "eth0").setMessageLength(4000);
    EXPECT_TRUE(read(bytes).links.isEmpty());
}

// Every cut of a valid datagram, in memory of exactly that size: the sanitizers see a byte too far.
TEST(LinkMessages, NeverReadsBeyondATruncatedDatagram)
{
    NetlinkBytes whole;
    whole.message(RTM_NEWLINK, ethernet())
        .text(IFLA_IFNAME, "eth0")
        .attribute(IFLA_ADDRESS, octets)
        .attribute(IFLA_LINKINFO, kind("veth"));
    for (std::size_t size = 0; size < whole.size(); ++size) {
        NetlinkBytes cut = whole;
        cut.cutTo(size);
        const std::vector<std::byte> exact(cut.span().begin(), cut.span().end());
        LinkMessages messages;
        forEachMessage(exact, [&](const nlmsghdr &message) { messages.add(message); });
        EXPECT_TRUE(messages.links.isEmpty()) << size;
    }
}

TEST(LinkMessagesOfChanges, LinksAddressesAndRoutesAreChanges)
{
    KnownAddresses known;
    KnownRoutes routes;
    for (const quint16 type : {RTM_NEWLINK, RTM_DELLINK, RTM_NEWADDR, RTM_DELADDR, RTM_NEWROUTE}) {
        NetlinkBytes bytes;
        bytes.message(type, ethernet()).text(IFLA_IFNAME, "eth0");
        EXPECT_TRUE(tellsOfChange(bytes.span(), known, routes)) << type;
    }
}

TEST(LinkMessagesOfChanges, WirelessEventsAreNone)
{
    KnownAddresses known;
    KnownRoutes routes;
    NetlinkBytes bytes;
    bytes.message(RTM_NEWLINK, ethernet())
        .text(IFLA_IFNAME, "wlp2s0")
        .attribute(IFLA_WIRELESS, QByteArray(8, '\1'));
    EXPECT_FALSE(tellsOfChange(bytes.span(), known, routes));
    bytes.message(RTM_NEWLINK, ethernet()).text(IFLA_IFNAME, "wlp2s0");
    EXPECT_TRUE(tellsOfChange(bytes.span(), known, routes)) << "with another message beside it";
}

TEST(LinkMessagesOfChanges, WhatCannotBeReadCountsAsAChange)
{
    KnownAddresses known;
    KnownRoutes routes;
    NetlinkBytes bytes;
    bytes.message(RTM_NEWLINK, ethernet()).setMessageLength(4000);
    EXPECT_TRUE(tellsOfChange(bytes.span(), known, routes));
}

TEST(LinkMessagesOfChanges, AnAddressThatIsToldAgainIsNone)
{
    KnownAddresses known;
    KnownRoutes routes;
    NetlinkBytes bytes;
    bytes.message(RTM_NEWADDR, address(4)).attribute(IFA_LOCAL, QByteArray(4, '\1'));
    EXPECT_TRUE(tellsOfChange(bytes.span(), known, routes));
    EXPECT_FALSE(tellsOfChange(bytes.span(), known, routes));
    bytes.message(RTM_NEWLINK, ethernet()).text(IFLA_IFNAME, "eth0");
    EXPECT_TRUE(tellsOfChange(bytes.span(), known, routes)) << "with another message beside it";
}

TEST(LinkMessagesOfChanges, ARouteThatIsToldAgainIsNone)
{
    KnownAddresses known;
    KnownRoutes routes;
    rtmsg header{};
    header.rtm_family = AF_INET6;
    NetlinkBytes bytes;
    bytes.message(RTM_NEWROUTE, header).attribute(RTA_GATEWAY, QByteArray(16, '\1'));
    EXPECT_TRUE(tellsOfChange(bytes.span(), known, routes));
    EXPECT_FALSE(tellsOfChange(bytes.span(), known, routes));
    NetlinkBytes scan;
    scan.message(RTM_NEWLINK, ethernet())
        .text(IFLA_IFNAME, "wlp2s0")
        .attribute(IFLA_WIRELESS, QByteArray(8, '\1'));
    EXPECT_FALSE(tellsOfChange(scan.span(), known, routes));
    EXPECT_FALSE(tellsOfChange(bytes.span(), known, routes)) << "a scan changes no route";
}

TEST(LinkMessagesStatus, ActiveWhenTheLinkCanCarryTraffic)
{
    struct Case
    {
        unsigned char state;
        unsigned int flags;
        const char *status;
    };
    for (const Case &c :
        {Case{IF_OPER_UP, IFF_UP | IFF_LOWER_UP, "active"}, Case{IF_OPER_DOWN, IFF_UP, "inactive"},
            Case{IF_OPER_LOWERLAYERDOWN, IFF_UP, "inactive"},
            Case{IF_OPER_DORMANT, IFF_UP | IFF_LOWER_UP, "inactive"},
            Case{IF_OPER_UNKNOWN, IFF_UP | IFF_LOWER_UP, "active"},
            Case{IF_OPER_UNKNOWN, IFF_UP, "inactive"},
            Case{IF_OPER_UNKNOWN, IFF_LOWER_UP, "inactive"}}) {
        LinkInfo link;
        link.operationalState = c.state;
        link.flags = c.flags;
        EXPECT_EQ(statusText(link), QLatin1String(c.status)) << int(c.state) << " " << c.flags;
    }
}

TEST(LinkMessagesAddress, OnlySixOctetsAreAnAddress)
{
    const std::array<unsigned char, 20> some{0xab, 0xcd, 0xef, 0x01, 0x23, 0x45};
    const ByteSpan bytes = std::as_bytes(std::span(some));
    EXPECT_EQ(addressText(bytes.first(6)), u"ab:cd:ef:01:23:45"_s);
    EXPECT_EQ(addressText({}), QString());
    EXPECT_EQ(addressText(bytes), QString());
}

} // namespace quillon::test
