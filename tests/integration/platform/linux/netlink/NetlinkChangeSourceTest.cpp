// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/netlink/NetlinkChangeSource.h"

#include "fakes/FakeScheduler.h"
#include "integration/platform/linux/Commands.h"
#include "integration/platform/linux/Waiting.h"
#include "platform/linux/netlink/NetlinkHost.h"
#include "platform/qt/QtScheduler.h"

#include <gtest/gtest.h>

#include <ctime>

namespace quillon::test {

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;

class NetlinkChangeSourceTest : public ::testing::Test
{
protected:
    // Far longer than a burst may last: whatever is still to be told has been told then.
    void letItSettle()
    {
        int before = -1;
        while (before != told) {
            before = told;
            eventually([&] { return told != before; }, 400ms);
        }
    }

    QtScheduler scheduler;
    NetlinkChangeSource source{scheduler};
    int told = 0;
};

/// The same with a clock that the test turns: a busy machine makes no burst end early.
class NetlinkChangeSourceBurst : public ::testing::Test
{
protected:
    void happens(const QString &change)
    {
        command(change);
        // The kernel has queued its messages by now.
        QCoreApplication::processEvents();
    }

    FakeScheduler scheduler;
    NetlinkChangeSource source{scheduler};
    int told = 0;
};

TEST_F(NetlinkChangeSourceBurst, OneActionWithManyMessagesIsOneChange)
{
    source.start([this] { ++told; });
    // Address, subnet route, local and broadcast routes, link state: a dozen messages.
    for (const QString &step :
        {u"ip link set enp1s0 down"_s, u"ip link set enp1s0 address 02:00:00:00:00:77"_s,
            u"ip link set enp1s0 up"_s, u"ip addr add 198.51.100.7/24 dev enp1s0"_s,
            u"ip route add 203.0.113.0/24 dev enp1s0"_s}) {
        happens(step);
        scheduler.advance(99ms);
    }
    EXPECT_EQ(told, 0);
    scheduler.advance(1ms);
    EXPECT_EQ(told, 1);
    scheduler.advance(10min);
    EXPECT_EQ(told, 1);
}

TEST_F(NetlinkChangeSourceBurst, WithoutEndIsToldMeanwhile)
{
    source.start([this] { ++told; });
    for (int step = 0; step < 10; ++step) {
        EXPECT_EQ(told, 0) << step;
        happens(u"ip link set enp2s0 mtu %1"_s.arg(1300 + step));
        scheduler.advance(50ms);
    }
    EXPECT_EQ(told, 1);
}

TEST_F(NetlinkChangeSourceTest, LinkAddressAndRouteAreEachAChange)
{
    source.start([this] { ++told; });
    for (const QString &change :
        {u"ip link set enp2s0 mtu 1400"_s, u"ip addr add 198.51.100.7/24 dev enp1s0"_s,
            u"ip route add 203.0.113.0/24 dev enp1s0"_s, u"ip route del 203.0.113.0/24"_s,
            u"ip -6 addr add 2001:db8::7/64 dev enp1s0 nodad"_s,
            u"ip -6 route add default via 2001:db8::1 dev enp1s0"_s,
            u"ip -6 route del default via 2001:db8::1 dev enp1s0"_s,
            u"ip nexthop add id 7 via 192.0.2.1 dev enp1s0"_s, u"ip nexthop del id 7"_s,
            u"ip link add eth5 type veth peer name far5"_s, u"ip link del eth5"_s}) {
        letItSettle();
        told = 0;
        command(change);
        EXPECT_TRUE(eventually([this] { return told == 1; })) << qPrintable(change);
    }
}

TEST_F(NetlinkChangeSourceTest, WhatHappensBetweenConstructionAndStartIsToldToo)
{
    command(u"ip link set enp2s0 mtu 1400"_s);
    source.start([this] { ++told; });
    EXPECT_TRUE(eventually([this] { return told == 1; }));
}

TEST_F(NetlinkChangeSourceTest, AnAddressWhoseLifetimeIsRenewedIsNoChange)
{
    source.start([this] { ++told; });
    command(u"ip -6 addr add 2001:db8::7/64 dev enp1s0 nodad valid_lft 1800 preferred_lft 900"_s);
    EXPECT_TRUE(eventually([this] { return told > 0; }));
    letItSettle();
    told = 0;
    // As at each announcement of a router.
    for (const char *lifetime : {"1801", "1802", "1803"}) {
        command(u"ip -6 addr change 2001:db8::7/64 dev enp1s0 valid_lft %1 preferred_lft 900"_s.arg(
            QLatin1String(lifetime)));
    }
    // The next change is told, and before it nothing was.
    command(u"ip link set enp2s0 mtu 1400"_s);
    EXPECT_TRUE(eventually([this] { return told > 0; }));
    letItSettle();
    EXPECT_EQ(told, 1);
}

TEST_F(NetlinkChangeSourceTest, TheChangeIsVisibleWhenItIsTold)
{
    NetlinkHost host;
    QString seen;
    source.start([&] { seen = host.info(u"enp2s0"_s).macAddress; });
    command(u"ip link set enp2s0 address 02:00:00:00:00:42"_s);
    EXPECT_TRUE(eventually([&] { return seen == "02:00:00:00:00:42"_L1; }));
}

TEST_F(NetlinkChangeSourceTest, AnOverrunIsAChangeAndTheSourceGoesOn)
{
    source.start([this] { ++told; });
    letItSettle();
    told = 0;
    // More than the socket holds while the main thread does not look.
    QByteArray batch;
    for (int i = 0; i < 3000; ++i) {
        batch += "link set enp2s0 mtu " + QByteArray::number(1300 + i % 100) + "\n";
    }
    command(u"ip -batch -"_s, batch);
    EXPECT_TRUE(eventually([this] { return told == 1; }));
    letItSettle();
    told = 0;
    command(u"ip link set enp2s0 mtu 1250"_s);
    EXPECT_TRUE(eventually([this] { return told == 1; }));
}

TEST_F(NetlinkChangeSourceTest, NothingIsToldWhenNothingHappens)
{
    source.start([this] { ++told; });
    letItSettle();
    told = 0;
    EXPECT_FALSE(eventually([this] { return told > 0; }, 1500ms));
}

} // namespace quillon::test
