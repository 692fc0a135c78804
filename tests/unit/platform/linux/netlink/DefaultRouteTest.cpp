// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/netlink/DefaultRoute.h"

#include "unit/netlink/NetlinkBytes.h"
#include "unit/platform/linux/wifi/ElementBytes.h"

#include <gtest/gtest.h>

#include <linux/rtnetlink.h>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

struct Route
{
    quint8 prefix = 0;
    quint8 type = RTN_UNICAST;
    quint8 table = RT_TABLE_MAIN;
    quint32 flags = 0;
};

QByteArray number(quint32 value)
{
    return {reinterpret_cast<const char *>(&value), sizeof value};
}

NetlinkBytes message(const Route &route, std::initializer_list<std::pair<int, QByteArray>> list)
{
    rtmsg header{};
    header.rtm_dst_len = route.prefix;
    header.rtm_type = route.type;
    header.rtm_table = route.table;
    header.rtm_flags = route.flags;
    NetlinkBytes bytes;
    bytes.message(RTM_NEWROUTE, header);
    for (const auto &[type, value] : list) {
        bytes.attribute(static_cast<quint16>(type), value);
    }
    return bytes;
}

std::optional<DefaultRoute> read(ByteSpan datagram)
{
    std::optional<DefaultRoute> route;
    forEachMessage(datagram, [&](const nlmsghdr &bytes) { route = defaultRoute(bytes); });
    return route;
}

std::optional<DefaultRoute> read(
    const Route &route, std::initializer_list<std::pair<int, QByteArray>> list)
{
    return read(message(route, list).span());
}

QList<int> interfacesOf(const std::optional<DefaultRoute> &route)
{
    QList<int> interfaces;
    for (const NextHop &hop : route.value_or(DefaultRoute{}).hops) {
        interfaces.append(hop.interface);
    }
    return interfaces;
}

const QByteArray router4 = QByteArray::fromHex("c0000201");
const QByteArray router6 = QByteArray::fromHex("fe800000000000000000000000000001");

QByteArray nextHop(int index, quint8 flags = 0, const QByteArray &router = router4)
{
    NetlinkBytes gateway;
    if (!router.isEmpty()) {
        gateway.attribute(RTA_GATEWAY, router);
    }
    rtnexthop hop{};
    hop.rtnh_len = static_cast<unsigned short>(sizeof hop + gateway.size());
    hop.rtnh_flags = flags;
    hop.rtnh_ifindex = index;
    return QByteArray(reinterpret_cast<const char *>(&hop), sizeof hop) + gateway.payload();
}

} // namespace

TEST(DefaultRoute, LeadsThroughAnInterface)
{
    EXPECT_EQ(interfacesOf(read({}, {{RTA_OIF, number(3)}})), QList<int>{3});
    EXPECT_EQ(read({}, {{RTA_OIF, number(3)}})->object, 0);
}

TEST(DefaultRoute, RoutesToSomewhereOnlyAreNone)
{
    EXPECT_FALSE(read({.prefix = 1}, {{RTA_OIF, number(3)}}));
    EXPECT_FALSE(read({.prefix = 24}, {{RTA_OIF, number(3)}}));
}

TEST(DefaultRoute, RoutesThatLeadNowhereAreNone)
{
    for (const quint8 type :
        {RTN_BLACKHOLE, RTN_UNREACHABLE, RTN_PROHIBIT, RTN_THROW, RTN_LOCAL, RTN_BROADCAST}) {
        EXPECT_FALSE(read({.type = type}, {{RTA_OIF, number(1)}})) << int(type);
    }
}

TEST(DefaultRoute, OnlyTheTablesOfOrdinaryTrafficCount)
{
    EXPECT_TRUE(read({.table = RT_TABLE_DEFAULT}, {{RTA_OIF, number(3)}}));
    EXPECT_FALSE(read({.table = RT_TABLE_LOCAL}, {{RTA_OIF, number(3)}}));
    EXPECT_FALSE(read({.table = RT_TABLE_UNSPEC}, {{RTA_OIF, number(3)}}));
    EXPECT_FALSE(
        read({.table = RT_TABLE_COMPAT}, {{RTA_OIF, number(3)}, {RTA_TABLE, number(51820)}}));
    EXPECT_TRUE(read(
        {.table = RT_TABLE_COMPAT}, {{RTA_TABLE, number(RT_TABLE_MAIN)}, {RTA_OIF, number(3)}}));
}

TEST(DefaultRoute, DeadHopsAreNoHops)
{
    EXPECT_TRUE(read({.flags = RTNH_F_LINKDOWN}, {{RTA_OIF, number(3)}})->hops.isEmpty());
    EXPECT_TRUE(read({.flags = RTNH_F_DEAD}, {{RTA_OIF, number(3)}})->hops.isEmpty());
    EXPECT_EQ(interfacesOf(read({.flags = RTNH_F_ONLINK}, {{RTA_OIF, number(3)}})), QList<int>{3});
    EXPECT_EQ(interfacesOf(
                  read({}, {{RTA_MULTIPATH, nextHop(3) + nextHop(4, RTNH_F_DEAD) + nextHop(5)}})),
        (QList<int>{3, 5}));
}

TEST(DefaultRoute, LeadsToAnObjectOnlyWhereItTellsNoHopsItself)
{
    EXPECT_EQ(read({}, {{RTA_NH_ID, number(7)}})->object, 7);
    EXPECT_EQ(read({}, {{RTA_NH_ID, number(7)}, {RTA_OIF, number(3)}})->object, 0);
    EXPECT_EQ(
        read({}, {{RTA_NH_ID, number(7)}, {RTA_MULTIPATH, nextHop(3, RTNH_F_DEAD)}})->object, 0);
    EXPECT_EQ(read({.flags = RTNH_F_DEAD}, {{RTA_NH_ID, number(7)}})->object, 0);
    EXPECT_EQ(read({}, {})->object, 0);
}

TEST(DefaultRoute, NamesItsRoutersOfEitherFamily)
{
    const auto gateways = [](const std::optional<DefaultRoute> &route) {
        QStringList texts;
        for (const NextHop &hop : route->hops) {
            texts << hop.gateway;
        }
        return texts;
    };
    EXPECT_EQ(gateways(read({}, {{RTA_OIF, number(3)}, {RTA_GATEWAY, router4}})),
        QStringList(u"192.0.2.1"_s));
    EXPECT_EQ(gateways(read({}, {{RTA_OIF, number(3)}, {RTA_GATEWAY, router6}})),
        QStringList(u"fe80::1"_s));
    EXPECT_EQ(gateways(read({}, {{RTA_OIF, number(3)}})), QStringList(QString()));
    EXPECT_EQ(gateways(read({}, {{RTA_OIF, number(3)}, {RTA_GATEWAY, QByteArray(5, '\1')}})),
        QStringList(QString()))
        << "of no family";
    // An IPv6 router of an IPv4 route.
    EXPECT_EQ(
        gateways(read({}, {{RTA_OIF, number(3)}, {RTA_VIA, littleEndian(AF_INET6) + router6}})),
        QStringList(u"fe80::1"_s));
    EXPECT_EQ(gateways(read({}, {{RTA_OIF, number(3)}, {RTA_VIA, QByteArray(1, '\2')}})),
        QStringList(QString()));
    EXPECT_EQ(gateways(read({}, {{RTA_MULTIPATH, nextHop(3) + nextHop(4, 0, router6) +
                                                     nextHop(5, 0, QByteArray())}})),
        (QStringList{u"192.0.2.1"_s, u"fe80::1"_s, QString()}));
}

TEST(DefaultRoute, CutShortAnywhereItHasNoHopOfItsOwnMaking)
{
    const NetlinkBytes whole =
        message({}, {{RTA_MULTIPATH, nextHop(3) + nextHop(5)}, {RTA_OIF, number(9)}});
    for (std::size_t size = sizeof(nlmsghdr); size < whole.size(); ++size) {
        NetlinkBytes cut = whole;
        cut.setMessageLength(size).cutTo(size);
        // In memory of exactly that size, so that the sanitizers see a byte too far.
        const std::vector<std::byte> exact(cut.span().begin(), cut.span().end());
        const auto route = read(exact);
        EXPECT_EQ(route.has_value(), size >= sizeof(nlmsghdr) + sizeof(rtmsg)) << size;
        for (const int index : interfacesOf(route)) {
            EXPECT_TRUE(index == 3 || index == 5) << size;
        }
    }
    for (const int lie : {0, 7, 9, 0xffff}) {
        QByteArray hops = nextHop(3);
        hops.replace(0, 2, littleEndian(lie));
        const auto route = read({}, {{RTA_MULTIPATH, hops}});
        EXPECT_LE(route->hops.size(), 2) << lie;
    }
}

} // namespace quillon::test
