// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/netlink/RouteReachability.h"

#include "integration/platform/linux/Commands.h"
#include "integration/platform/linux/Waiting.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

bool isReachable()
{
    return RouteReachability().isReachable();
}

// The kernel looks at carriers in its own time, up to a second later.
bool becomesReachable()
{
    return eventually([] { return isReachable(); });
}

bool becomesUnreachable()
{
    return eventually([] { return !isReachable(); });
}

void ip(const char *arguments)
{
    command(u"ip "_s + QLatin1String(arguments));
}

/// The sandbox has enp1s0 with 192.0.2.10 and a default route by 192.0.2.1; here it begins without.
class WithoutDefaultRoute : public ::testing::Test
{
protected:
    WithoutDefaultRoute()
    {
        ip("route del default");
        EXPECT_FALSE(isReachable());
    }
};

using RouteReachabilityWays = WithoutDefaultRoute;

} // namespace

TEST(RouteReachability, ADefaultRouteThroughAnInterfaceThatIsUp)
{
    EXPECT_TRUE(isReachable());
    ip("route del default");
    EXPECT_FALSE(isReachable()) << "the network next door is not the internet";
    ip("route add default via 192.0.2.1");
    EXPECT_TRUE(isReachable());
}

TEST(RouteReachability, NotThroughAnInterfaceThatIsDownOrHasNoCarrier)
{
    ip("link add far0 type veth peer name eth7");
    ip("link set eth7 up");
    ip("link set far0 up");
    ip("addr add 198.51.100.2/24 dev eth7");
    ip("route replace default via 198.51.100.1 dev eth7");
    EXPECT_TRUE(becomesReachable());
    ip("link set far0 down");
    EXPECT_TRUE(becomesUnreachable()) << "no carrier, although the route is still there";
    EXPECT_TRUE(command(u"ip route show default"_s).contains("eth7"));
    ip("link set far0 up");
    EXPECT_TRUE(becomesReachable());
    ip("link set eth7 down");
    EXPECT_TRUE(becomesUnreachable());
}

TEST(RouteReachability, NotThroughAnInterfaceThatStillWaitsForItsPermission)
{
    EXPECT_TRUE(isReachable());
    ip("link set enp1s0 state dormant mode dormant"); // as before authentication by 802.1X
    EXPECT_TRUE(becomesUnreachable());
    ip("link set enp1s0 state up mode default");
    EXPECT_TRUE(becomesReachable());
}

TEST_F(RouteReachabilityWays, IPv6Alone)
{
    ip("-6 addr add 2001:db8::2/64 dev enp1s0 nodad");
    EXPECT_FALSE(isReachable()) << "an address is no way out";
    ip("-6 route add default via 2001:db8::1 dev enp1s0");
    EXPECT_TRUE(isReachable());
    ip("-6 route del default");
    EXPECT_FALSE(isReachable());
}

TEST_F(RouteReachabilityWays, RoutesThatRefuseLeadNowhere)
{
    ip("route add unreachable default metric 10");
    ip("route add blackhole default metric 20");
    ip("route add prohibit default metric 30");
    ip("-6 route add unreachable default metric 40");
    EXPECT_FALSE(isReachable());
}

TEST_F(RouteReachabilityWays, AnObjectLeadsOutWhereItsHopDoes)
{
    ip("link add far0 type veth peer name eth7");
    ip("link set eth7 up");
    ip("link set far0 up");
    ip("addr add 198.51.100.2/24 dev eth7");
    EXPECT_TRUE(eventually([] { return command(u"ip link show eth7"_s).contains("state UP"); }));
    command(u"sysctl -qw net.ipv4.nexthop_compat_mode=0"_s);
    ip("nexthop add id 7 via 198.51.100.1 dev eth7");
    ip("route add default nhid 7");
    EXPECT_TRUE(becomesReachable());
    ip("link set eth7 state dormant mode dormant"); // as before authentication by 802.1X
    EXPECT_TRUE(becomesUnreachable());
}

TEST_F(RouteReachabilityWays, OneOfSeveralHopsSuffices)
{
    ip("link add far0 type veth peer name eth7");
    ip("link set eth7 up");
    ip("link set far0 up");
    ip("addr add 198.51.100.2/24 dev eth7");
    ip("route add default nexthop via 192.0.2.1 dev enp1s0 nexthop via 198.51.100.1 dev eth7");
    EXPECT_TRUE(becomesReachable());
    ip("link set far0 down");
    EXPECT_TRUE(isReachable()) << "by enp1s0";
    ip("link set far0 up");
    ip("link set enp1s0 down");
    EXPECT_TRUE(becomesReachable()) << "by eth7";
    ip("link set far0 down");
    EXPECT_TRUE(becomesUnreachable());
}

TEST_F(RouteReachabilityWays, OtherTablesAndTheLoopbackDoNotCount)
{
    ip("route add default via 192.0.2.1 table 51820");
    ip("route add default dev lo metric 10");
    ip("route add 198.51.100.0/24 via 192.0.2.1");
    EXPECT_FALSE(isReachable());
    ip("route add default via 192.0.2.1 table default");
    EXPECT_TRUE(isReachable());
}

TEST_F(RouteReachabilityWays, ThroughATunnelWhoseDriverKnowsNoState)
{
    ip("tuntap add tun0 mode tun");
    ip("addr add 198.51.100.2/24 dev tun0");
    ip("link set tun0 up");
    ip("route add default dev tun0");
    EXPECT_FALSE(isReachable()) << "no program is at its other end";
    command(u"ip route del default"_s);
    ip("link add ifb7 type ifb");
    ip("link set ifb7 up");
    ip("route add default dev ifb7");
    EXPECT_TRUE(becomesReachable()) << "operational state unknown, carrier there";
}

TEST_F(RouteReachabilityWays, IsNotFoundAmongManyOtherRoutes)
{
    QByteArray batch;
    for (int i = 0; i < 20'000; ++i) {
        batch += "route add 10." + QByteArray::number(i / 200) + '.' + QByteArray::number(i % 200) +
                 ".0/24 via 192.0.2.1\n";
    }
    command(u"ip -batch -"_s, batch);
    EXPECT_FALSE(isReachable());
    ip("route add default via 192.0.2.1");
    EXPECT_TRUE(becomesReachable());
}

} // namespace quillon::test
