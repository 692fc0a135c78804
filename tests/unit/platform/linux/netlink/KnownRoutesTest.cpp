// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/netlink/KnownRoutes.h"

#include "unit/platform/linux/netlink/Repetition.h"

#include <gtest/gtest.h>

#include <linux/nexthop.h>
#include <linux/rtnetlink.h>
#include <sys/socket.h>

namespace quillon::test {

namespace {

struct Route
{
    quint16 type = RTM_NEWROUTE;
    quint8 family = AF_INET6;
    quint8 prefix = 64;
    quint32 table = RT_TABLE_MAIN;
    quint32 flags = 0;
    quint32 metric = 1024;
    quint32 interface = 4;
    quint32 object = 0;
    quint32 expires = 0;
    QByteArray destination = QByteArray(16, '\1');
    QByteArray gateway = QByteArray(16, '\2');
    QByteArray hops = {};
};

QByteArray number(const quint32 &value)
{
    return {reinterpret_cast<const char *>(&value), sizeof value};
}

bool isRepeated(KnownRoutes &known, const Route &route)
{
    rtmsg header{};
    header.rtm_family = route.family;
    header.rtm_dst_len = route.prefix;
    header.rtm_flags = route.flags;
    NetlinkBytes bytes;
    bytes.message(route.type, header)
        .attribute(RTA_TABLE, number(route.table))
        .attribute(RTA_DST, route.destination)
        .attribute(RTA_PRIORITY, number(route.metric))
        .attribute(RTA_GATEWAY, route.gateway)
        .attribute(RTA_OIF, number(route.interface))
        .attribute(RTA_NH_ID, number(route.object))
        .attribute(RTA_MULTIPATH, route.hops)
        .attribute(RTA_CACHEINFO, QByteArray(28, static_cast<char>(route.expires)));
    return lastIsRepeated(known, bytes);
}

void tell(KnownRoutes &known, quint16 type)
{
    NetlinkBytes bytes;
    bytes.message(type, ifinfomsg{});
    EXPECT_FALSE(lastIsRepeated(known, bytes)) << type;
}

} // namespace

TEST(KnownRoutes, AreToldOnceHoweverOftenTheyAreRenewed)
{
    KnownRoutes known;
    EXPECT_FALSE(isRepeated(known, {.expires = 60}));
    EXPECT_TRUE(isRepeated(known, {.expires = 59}));
    EXPECT_TRUE(isRepeated(known, {}));
}

TEST(KnownRoutes, DifferByWhereTheyAreAndWhereTheyLead)
{
    for (const Route &other : {Route{.prefix = 48}, Route{.table = RT_TABLE_DEFAULT},
             Route{.flags = RTNH_F_DEAD}, Route{.metric = 100}, Route{.interface = 5},
             Route{.object = 3}, Route{.destination = QByteArray(16, '\3')},
             Route{.destination = {}}, Route{.gateway = QByteArray(16, '\3')}, Route{.gateway = {}},
             Route{.hops = QByteArray(8, '\3')}}) {
        KnownRoutes known;
        isRepeated(known, {});
        EXPECT_FALSE(isRepeated(known, other));
        EXPECT_TRUE(isRepeated(known, other));
    }
}

TEST(KnownRoutes, AreNewAgainWhenTheyHaveLedElsewhere)
{
    KnownRoutes known;
    isRepeated(known, {});
    EXPECT_FALSE(isRepeated(known, {.interface = 5}));
    EXPECT_FALSE(isRepeated(known, {}));
}

TEST(KnownRoutes, AreNewAgainAfterTheyWereTakenAway)
{
    KnownRoutes known;
    isRepeated(known, {});
    EXPECT_FALSE(isRepeated(known, {.type = RTM_DELROUTE, .flags = RTNH_F_DEAD}));
    EXPECT_FALSE(isRepeated(known, {}));
}

TEST(KnownRoutes, AreNewAfterWhatMayTakeThemAwayUntold)
{
    for (const quint16 type : {RTM_NEWLINK, RTM_DELLINK, RTM_NEWNEXTHOP, RTM_DELNEXTHOP}) {
        KnownRoutes known;
        isRepeated(known, {});
        tell(known, RTM_NEWADDR);
        EXPECT_TRUE(isRepeated(known, {}));
        tell(known, type);
        EXPECT_FALSE(isRepeated(known, {})) << type;
    }
    KnownRoutes known;
    isRepeated(known, {});
    known.forget();
    EXPECT_FALSE(isRepeated(known, {})) << "messages were lost";
}

TEST(KnownRoutes, AreNeverThoseOfIpv4)
{
    KnownRoutes known;
    const Route route{
        .family = AF_INET, .destination = QByteArray(4, '\1'), .gateway = QByteArray(4, '\2')};
    EXPECT_FALSE(isRepeated(known, route));
    EXPECT_FALSE(isRepeated(known, route));
}

TEST(KnownRoutes, AreNotKeptWithoutEnd)
{
    KnownRoutes known;
    isRepeated(known, {});
    for (quint32 metric = 1; metric <= 1000; ++metric) {
        EXPECT_FALSE(isRepeated(known, {.metric = metric + 5000}));
    }
    EXPECT_FALSE(isRepeated(known, {}));
    EXPECT_TRUE(isRepeated(known, {.metric = 6000}));
}

} // namespace quillon::test
