// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/netlink/NetlinkChangeSource.h"

#include "integration/platform/linux/Commands.h"
#include "integration/platform/linux/Waiting.h"
#include "platform/linux/netlink/NetlinkHost.h"
#include "platform/qt/QtScheduler.h"

#include <QElapsedTimer>
#include <gtest/gtest.h>

#include <ctime>

namespace quillon::test {

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

TEST_F(NetlinkChangeSourceTest, OneActionWithManyMessagesIsOneChange)
{
    source.start([this] { ++told; });
    letItSettle();
    told = 0;
    // Address, subnet route, local and broadcast routes, link state: a dozen messages.
    // They arrive over several turns of the main loop.
    QProcess action;
    action.start(QStringLiteral("sh"),
        {QStringLiteral("-ec"),
            QStringLiteral("ip link set enp1s0 down; ip link set enp1s0 address 02:00:00:00:00:77;"
                           "ip link set enp1s0 up; ip addr add 198.51.100.7/24 dev enp1s0;"
                           "ip route add 203.0.113.0/24 dev enp1s0")});
    ASSERT_TRUE(eventually([&] { return action.state() == QProcess::NotRunning; }));
    EXPECT_EQ(action.exitCode(), 0) << action.readAllStandardError().toStdString();
    ASSERT_TRUE(eventually([this] { return told > 0; }));
    letItSettle();
    EXPECT_EQ(told, 1);
}

TEST_F(NetlinkChangeSourceTest, LinkAddressAndRouteAreEachAChange)
{
    source.start([this] { ++told; });
    for (const QString &change : {QStringLiteral("ip link set enp2s0 mtu 1400"),
             QStringLiteral("ip addr add 198.51.100.7/24 dev enp1s0"),
             QStringLiteral("ip route add 203.0.113.0/24 dev enp1s0"),
             QStringLiteral("ip route del 203.0.113.0/24"),
             QStringLiteral("ip link add eth5 type veth peer name far5"),
             QStringLiteral("ip link del eth5")}) {
        letItSettle();
        told = 0;
        command(change);
        EXPECT_TRUE(eventually([this] { return told == 1; })) << qPrintable(change);
    }
}

TEST_F(NetlinkChangeSourceTest, TheChangeIsVisibleWhenItIsTold)
{
    NetlinkHost host;
    QString seen;
    source.start([&] { seen = host.info(QStringLiteral("enp2s0")).macAddress; });
    command(QStringLiteral("ip link set enp2s0 address 02:00:00:00:00:42"));
    EXPECT_TRUE(eventually([&] { return seen == QLatin1String("02:00:00:00:00:42"); }));
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
    command(QStringLiteral("ip -batch -"), batch);
    EXPECT_TRUE(eventually([this] { return told == 1; }));
    letItSettle();
    told = 0;
    command(QStringLiteral("ip link set enp2s0 mtu 1250"));
    EXPECT_TRUE(eventually([this] { return told == 1; }));
}

TEST_F(NetlinkChangeSourceTest, ABurstWithoutEndIsToldMeanwhile)
{
    source.start([this] { ++told; });
    letItSettle();
    told = 0;
    QElapsedTimer time;
    time.start();
    int mtu = 1300;
    while (told == 0 && time.elapsed() < 10'000) {
        command(QStringLiteral("ip link set enp2s0 mtu %1").arg(mtu++));
        eventually([] { return false; }, 20ms);
    }
    EXPECT_EQ(told, 1);
    EXPECT_GE(time.elapsed(), 900);
}

TEST_F(NetlinkChangeSourceTest, NothingIsToldWhenNothingHappens)
{
    source.start([this] { ++told; });
    letItSettle();
    told = 0;
    EXPECT_FALSE(eventually([this] { return told > 0; }, 1500ms));
}

} // namespace quillon::test
