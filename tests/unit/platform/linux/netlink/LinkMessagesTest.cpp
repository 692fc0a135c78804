// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/netlink/LinkMessages.h"

#include "unit/platform/linux/netlink/NetlinkBytes.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <climits>
#include <linux/if.h>
#include <linux/if_addr.h>
#include <linux/if_arp.h>
#include <linux/if_link.h>
#include <linux/rtnetlink.h>

namespace quillon::test {

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
    messages.add(bytes.span(), NetlinkBytes::sequence);
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
    const LinkFacts &link = messages.links.first();
    EXPECT_EQ(link.index, 3);
    EXPECT_EQ(link.type, ARPHRD_ETHER);
    EXPECT_EQ(link.name, QStringLiteral("enp3s0"));
    EXPECT_EQ(link.address, QStringLiteral("02:00:c0:a8:01:0a"));
    EXPECT_EQ(link.permanentAddress, QStringLiteral("00:16:3e:00:00:01"));
    EXPECT_EQ(link.operationalState, IF_OPER_UP);
    EXPECT_EQ(link.kind, "veth");
    EXPECT_EQ(link.parentBus, "pci");
    EXPECT_FALSE(messages.finished);
}

TEST(LinkMessages, KeepsTheKernelsOrderAcrossDatagramsUntilDone)
{
    LinkMessages messages;
    NetlinkBytes first;
    first.message(RTM_NEWLINK, ethernet(9)).text(IFLA_IFNAME, "eth9");
    first.message(RTM_NEWLINK, ethernet(2)).text(IFLA_IFNAME, "eth2");
    NetlinkBytes last;
    last.message(NLMSG_DONE, int{0});
    last.message(RTM_NEWLINK, ethernet(4)).text(IFLA_IFNAME, "late");
    messages.add(first.span(), NetlinkBytes::sequence);
    messages.add(last.span(), NetlinkBytes::sequence);

    ASSERT_EQ(messages.links.size(), 2);
    EXPECT_EQ(messages.links[0].name, QStringLiteral("eth9"));
    EXPECT_EQ(messages.links[1].name, QStringLiteral("eth2"));
    EXPECT_TRUE(messages.finished);
}

TEST(LinkMessages, ASingleAnswerIsCompleteByItself)
{
    NetlinkBytes bytes;
    bytes.message(RTM_NEWLINK, ethernet(), 0).text(IFLA_IFNAME, "eth0");
    EXPECT_TRUE(read(bytes).finished);
}

TEST(LinkMessages, AnswersToAnotherQuestionAreNotOurs)
{
    NetlinkBytes bytes;
    bytes.message(RTM_NEWLINK, ethernet(), NLM_F_MULTI, 8).text(IFLA_IFNAME, "eth0");
    EXPECT_TRUE(read(bytes).links.isEmpty());
}

TEST(LinkMessages, SeesThatTheTableChangedMeanwhile)
{
    NetlinkBytes bytes;
    bytes.message(RTM_NEWLINK, ethernet(), NLM_F_MULTI | NLM_F_DUMP_INTR).text(IFLA_IFNAME, "eth0");
    EXPECT_TRUE(read(bytes).interrupted);
}

TEST(LinkMessages, ARefusalEndsTheAnswerWithItsErrno)
{
    NetlinkBytes bytes;
    nlmsgerr refusal{};
    refusal.error = -ENODEV;
    bytes.message(NLMSG_ERROR, refusal, 0);
    const LinkMessages messages = read(bytes);
    EXPECT_EQ(messages.error, ENODEV);
    EXPECT_TRUE(messages.finished);
}

TEST(LinkMessages, ATableThatBreaksOffIsAnErrorAndNotAShorterTable)
{
    NetlinkBytes bytes;
    bytes.message(RTM_NEWLINK, ethernet()).text(IFLA_IFNAME, "eth0");
    bytes.message(NLMSG_DONE, int{-ENOBUFS});
    const LinkMessages messages = read(bytes);
    EXPECT_EQ(messages.error, ENOBUFS);
    EXPECT_TRUE(messages.finished);
}

TEST(LinkMessages, AStatusThatIsNoErrnoIsStillAnError)
{
    for (const int status : {1, -4096, INT_MIN}) {
        NetlinkBytes end;
        end.message(NLMSG_DONE, status);
        EXPECT_EQ(read(end).error, EBADMSG) << status;
        nlmsgerr refusal{};
        refusal.error = status;
        NetlinkBytes bytes;
        bytes.message(NLMSG_ERROR, refusal, 0);
        EXPECT_EQ(read(bytes).error, EBADMSG) << status;
    }
}

TEST(LinkMessages, AnEndWithoutAStatusIsAGoodEnd)
{
    NetlinkBytes bytes;
    bytes.message(NLMSG_DONE, int{-ENOBUFS}).setMessageLength(sizeof(nlmsghdr));
    EXPECT_EQ(read(bytes).error, 0);
    EXPECT_TRUE(read(bytes).finished);
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

    const QList<AddressFacts> expected{
        {4, QStringLiteral("10.0.0.2")}, {5, QStringLiteral("10.0.0.2")}};
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
    EXPECT_EQ(messages.links.first().name, QStringLiteral("eth7"));
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
        messages.add(exact, NetlinkBytes::sequence);
        EXPECT_TRUE(messages.links.isEmpty()) << size;
    }
}

TEST(ChangeMessages, LinksAddressesAndRoutesAreChanges)
{
    for (const quint16 type : {RTM_NEWLINK, RTM_DELLINK, RTM_NEWADDR, RTM_DELADDR, RTM_NEWROUTE}) {
        NetlinkBytes bytes;
        bytes.message(type, ethernet()).text(IFLA_IFNAME, "eth0");
        EXPECT_TRUE(tellsOfChange(bytes.span())) << type;
    }
}

TEST(ChangeMessages, WirelessEventsAreNone)
{
    NetlinkBytes bytes;
    bytes.message(RTM_NEWLINK, ethernet())
        .text(IFLA_IFNAME, "wlp2s0")
        .attribute(IFLA_WIRELESS, QByteArray(8, '\1'));
    EXPECT_FALSE(tellsOfChange(bytes.span()));
    bytes.message(RTM_NEWLINK, ethernet()).text(IFLA_IFNAME, "wlp2s0");
    EXPECT_TRUE(tellsOfChange(bytes.span())) << "with another message beside it";
}

TEST(ChangeMessages, WhatCannotBeReadCountsAsAChange)
{
    NetlinkBytes bytes;
    bytes.message(RTM_NEWLINK, ethernet()).setMessageLength(4000);
    EXPECT_TRUE(tellsOfChange(bytes.span()));
}

TEST(LinkStatus, ActiveWhenTheLinkCanCarryTraffic)
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
        LinkFacts link;
        link.operationalState = c.state;
        link.flags = c.flags;
        EXPECT_EQ(statusText(link), QLatin1String(c.status)) << int(c.state) << " " << c.flags;
    }
}

TEST(LinkAddress, OnlySixOctetsAreAnAddress)
{
    const std::array<unsigned char, 20> some{0xab, 0xcd, 0xef, 0x01, 0x23, 0x45};
    EXPECT_EQ(addressText(std::span(some).first(6)), QStringLiteral("ab:cd:ef:01:23:45"));
    EXPECT_EQ(addressText({}), QString());
    EXPECT_EQ(addressText(some), QString());
}

} // namespace quillon::test
