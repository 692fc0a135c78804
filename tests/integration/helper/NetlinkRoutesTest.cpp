// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/NetlinkKernelLink.h"
#include "integration/helper/TwoCards.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::HasSubstr;
using testing::Not;

using NetlinkRoutesTest = TwoCards;

TEST_F(NetlinkRoutesTest, ofADestinationAndMetricThatAnotherInterfaceSharesComeBack)
{
    outputOf("ip route add default via 10.1.0.254 dev right0 metric 7;"
             "ip route append default via 10.0.0.254 dev left0 metric 7;"
             "ip route add 10.70.0.0/16 dev right0; ip route append 10.70.0.0/16 dev left0;"
             "ip -6 route add fd00:60::/48 dev right0 metric 50;"
             "ip -6 route append fd00:60::/48 dev left0 metric 50;"
             // One the kernel makes one of several hops, unasked.
             "ip -6 route add fd00:61::/48 via fd00:2::fe dev right0 metric 50;"
             "ip -6 route append fd00:61::/48 via fd00:1::fe dev left0 metric 50");
    ASSERT_THAT(routes(), HasSubstr("default via 10.0.0.254 dev left0 metric 7"));
    expectRoutesKept();
}

TEST_F(NetlinkRoutesTest, thatStoodBeforeThoseOfAnotherInterfaceDoSoAgain)
{
    outputOf("ip route add default via 10.0.0.254 dev left0 metric 7;"
             "ip route append default via 10.0.0.253 dev left0 metric 7;"
             "ip route append default via 10.1.0.254 dev right0 metric 7;"
             "ip route append default via 10.0.0.252 dev left0 metric 7;"
             "ip route add 10.70.0.0/16 dev left0; ip route append 10.70.0.0/16 dev right0;"
             "ip nexthop add id 10 via 10.0.0.254 dev left0; ip route add 10.71.0.0/16 nhid 10;"
             "ip route append 10.71.0.0/16 dev right0;"
             "ip route add 10.72.0.0/16 via 10.0.0.254 dev left0;"
             "ip route append 10.72.0.0/16 nexthop via 10.0.0.253 dev left0"
             "  nexthop via 10.1.0.254 dev right0");
    expectRoutesKept();
}

TEST_F(NetlinkRoutesTest, thatHaveStayedOrAreBackAlreadyAreThereOnce)
{
    outputOf("ip route add 10.50.0.0/16 nexthop via 10.0.0.254 dev left0"
             "  nexthop via 10.1.0.254 dev right0;"
             "ip route add 10.51.0.0/16 nexthop via 10.0.0.253 dev left0"
             "  nexthop via 10.0.0.254 dev left0 weight 3;"
             "ip route add 10.52.0.0/16 via 10.0.0.254 dev left0 tos 0x10 metric 5 mtu 1300"
             "  src 10.0.0.1 table 77;"
             "ip route add 10.53.0.0/16 via 172.16.0.1 dev left0 onlink;"
             "ip route add local 10.61.0.0/24 dev left0;"
             "ip -6 route add fd00:50::/48 nexthop via fd00:1::fe dev left0"
             "  nexthop via fd00:2::fe dev right0;"
             "ip -6 route add fd00:51::/48 nexthop via fd00:1::fe dev left0"
             "  nexthop via fd00:1::fd dev left0;"
             "ip -6 route add fd00:62::/48 via fd00:1::fe dev left0 metric 9");
    const auto before = routes();
    ASSERT_THAT(before, HasSubstr("local 10.61.0.0/24"));
    expectRoutesKept();
    // Again, with everything in place.
    EXPECT_EQ(quillon.change("left0", "02:11:22:33:44:66", true), BusClient::done);
    EXPECT_TRUE(waitUntil([&] { return routes() == before; })) << before << routes();
}

TEST_F(NetlinkRoutesTest, ofEveryTypeComeBack)
{
    outputOf("ip route add multicast 239.1.0.0/16 dev left0;"
             "ip route add broadcast 10.60.0.255 dev left0 table 88;"
             "ip -6 route add local fd00:f::/48 dev left0;"
             "ip -6 route add anycast fd00:fa::1 dev left0;"
             "ip -6 route add multicast ff05::/16 dev left0 table local");
    ASSERT_THAT(routes(), HasSubstr("anycast fd00:fa::1"));
    expectRoutesKept();
}

/// Objects lead out of left0, but 11 out of right0.
class NetlinkRoutesNexthop : public TwoCards
{
protected:
    void SetUp() override
    {
        TwoCards::SetUp();
        outputOf("ip nexthop add id 10 via 10.0.0.254 dev left0;"
                 "ip nexthop add id 11 via 10.1.0.254 dev right0;"
                 "ip nexthop add id 12 via 10.9.0.1 dev left0 onlink;"
                 "ip nexthop add id 13 dev left0;"
                 "ip nexthop add id 14 via fd00:1::fe dev left0;"
                 "ip nexthop add id 20 group 10,2/11; ip nexthop add id 21 group 10/12,5;"
                 "ip nexthop add id 22 group 11;"
                 "ip route add 10.80.0.0/16 nhid 20; ip route add 10.81.0.0/16 nhid 10;"
                 "ip route add 10.82.0.0/16 nhid 21; ip route add 10.83.0.0/16 nhid 13;"
                 "ip route add 10.84.0.0/16 nhid 22; ip -6 route add fd00:80::/48 nhid 14");
        ASSERT_THAT(shown(), HasSubstr("id 21 group 10/12,5"));
    }
    /// Also those of no interface: the hops of some are told only by their object.
    static std::string shown()
    {
        return outputOf("ip nexthop; ip -o -4 route show; ip -o -6 route show | grep nhid");
    }
    void expectKept()
    {
        const auto before = shown();
        EXPECT_EQ(quillon.change("left0", newAddress, true), BusClient::done);
        EXPECT_EQ(kernelAddress("left0"), newAddress);
        EXPECT_EQ(shown(), before);
    }
};

TEST_F(NetlinkRoutesNexthop, objectsAndGroupsComeBack)
{
    expectKept();
}

TEST_F(NetlinkRoutesNexthop, objectsAndGroupsComeBackThatTheKernelTellsWithoutHops)
{
    outputOf("echo 0 > /proc/sys/net/ipv4/nexthop_compat_mode");
    ASSERT_THAT(shown(), HasSubstr("10.81.0.0/16 nhid 10 \n"));
    expectKept();
}

TEST_F(NetlinkRoutesNexthop, objectsAreReplacedByTheirHopsWithoutACarrier)
{
    NetlinkKernelLink kernel;
    LinkState link;
    LinkConfiguration configuration;
    ASSERT_EQ(kernel.findByName("left0", link), 0);
    ASSERT_EQ(kernel.readConfiguration(link, configuration), 0);
    // As a Wi-Fi interface, which has none until it has joined its network again.
    outputOf("ip link set left0 down; ip link set left1 down; ip link set left0 up");
    testing::internal::CaptureStderr();
    EXPECT_EQ(kernel.putBack(configuration), 0);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
        "device=\"left0\": nexthop objects and groups that cannot be put back now: 6\n");
    const auto after =
        outputOf("(ip nexthop; ip -o -4 route show; ip -o -6 route show) | sed 's/ linkdown//g'");
    EXPECT_THAT(after, Not(HasSubstr("id 10 ")));
    EXPECT_THAT(after, HasSubstr("\nid 20 group 11 \n"));
    EXPECT_THAT(after, HasSubstr("10.80.0.0/16 nhid 20 via 10.1.0.254 dev right0"));
    EXPECT_THAT(after, HasSubstr("10.81.0.0/16 via 10.0.0.254 dev left0"));
    EXPECT_THAT(after, HasSubstr("10.82.0.0/16 \\\tnexthop via 10.0.0.254 dev left0 weight 1 "
                                 "\\\tnexthop via 10.9.0.1 dev left0 weight 5 onlink"));
    EXPECT_THAT(after, HasSubstr("10.83.0.0/16 dev left0"));
    EXPECT_THAT(after, HasSubstr("fd00:80::/48 via fd00:1::fe dev left0"));
}

} // namespace
} // namespace quillon::test
