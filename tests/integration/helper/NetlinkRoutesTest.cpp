// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/NetlinkRoutes.h"

#include "helper/NetlinkKernelLink.h"
#include "helper/PutBackRoutes.h"
#include "integration/helper/BusClient.h"
#include "integration/helper/Sandbox.h"
#include "integration/helper/Waiting.h"

#include <gmock/gmock.h>

#include <linux/netlink.h>

namespace quillon::test {
namespace {

using testing::HasSubstr;
using testing::Not;

/// Changes the address of one of two cards, left0, in a way that takes it down.
class NetlinkRoutesTest : public testing::Test
{
protected:
    void SetUp() override
    {
        // Without duplicate address detection nothing has to be waited for.
        outputOf(
            "for side in left right; do"
            "  ip link add ${side}0 type veth peer name ${side}1;"
            "  echo 0 > /proc/sys/net/ipv6/conf/${side}0/accept_dad;"
            "  ip link set ${side}1 up; ip link set ${side}0 up;"
            "done;"
            "ip addr add 10.0.0.1/24 dev left0; ip -6 addr add fd00:1::1/64 dev left0 nodad;"
            "ip addr add 10.1.0.1/24 dev right0; ip -6 addr add fd00:2::1/64 dev right0 nodad");
    }
    /// Each on one line. Of one destination and metric the kernel takes the first IPv4 route, so
    /// that their order counts.
    static std::string routes()
    {
        return outputOf("ip -o -4 route show table all | grep -e left0 -e right0;"
                        "ip -o -6 route show table all | grep -e left0 -e right0 | grep -v fe80 |"
                        "sort");
    }
    void expectRoutesKept()
    {
        const auto before = routes();
        EXPECT_EQ(quillon.change("left0", newAddress, true), BusClient::done);
        EXPECT_EQ(kernelAddress("left0"), newAddress);
        // The kernel's own routes of an IPv6 address come a moment after it.
        EXPECT_TRUE(waitUntil([&] { return routes() == before; })) << before << routes();
    }

    BusClient quillon{"quillon"};
};

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

/// Puts three routes back that name the source address fd00:3::1.
class NetlinkRoutesSource : public NetlinkRoutesTest
{
protected:
    void SetUp() override
    {
        NetlinkRoutesTest::SetUp();
        outputOf("ip -6 addr add fd00:3::1/64 dev left0 nodad;"
                 "for i in 1 2 3; do"
                 "  ip -6 route add fd00:6$i::/48 via fd00:1::fe dev left0 src fd00:3::1;"
                 "done");
        NetlinkKernelLink kernel;
        LinkState link;
        LinkConfiguration configuration;
        ASSERT_EQ(kernel.findByName("left0", link), 0);
        ASSERT_EQ(kernel.readConfiguration(link, configuration), 0);
        for (const auto &route : configuration.routes) {
            if (namesSourceIPv6(route)) {
                m_routes.push_back(route);
            }
        }
        ASSERT_EQ(m_routes.size(), 3U);
        outputOf("for i in 1 2 3; do ip -6 route del fd00:6$i::/48 dev left0; done;"
                 "ip -6 addr del fd00:3::1/64 dev left0");
    }
    /// The kernel asks around for it, a second each time, and nobody answers.
    static void addAddressThatIsCheckedForLong()
    {
        outputOf("echo 1 > /proc/sys/net/ipv6/conf/left0/accept_dad;"
                 "echo 10000 > /proc/sys/net/ipv6/conf/left0/dad_transmits;"
                 "ip -6 addr add fd00:3::1/64 dev left0");
        ASSERT_THAT(
            outputOf("ip -6 addr show dev left0"), HasSubstr("fd00:3::1/64 scope global t"));
    }
    /// How many of the routes then name their source address.
    int putBack(const std::function<void()> &pause = [] {})
    {
        NetlinkRoutes routes{m_socket, [&] {
                                 ++pauses;
                                 pause();
                             }};
        for (const auto &route : m_routes) {
            EXPECT_EQ(routes.putBack(route), 0);
        }
        EXPECT_EQ(outputOf("ip -6 route show | grep -c '^fd00:6'"), "3\n");
        return 3 - routes.sourcesLost();
    }

    int pauses = 0;

private:
    NetlinkSocket m_socket{{.protocol = NETLINK_ROUTE}};
    std::vector<LinkConfiguration::Message> m_routes;
};

TEST_F(NetlinkRoutesSource, isWaitedForWhileItIsChecked)
{
    addAddressThatIsCheckedForLong();
    const int kept = putBack([this] {
        if (pauses == 2) {
            outputOf("ip -6 addr del fd00:3::1/64 dev left0;"
                     "ip -6 addr add fd00:3::1/64 dev left0 nodad");
        }
    });
    EXPECT_EQ(kept, 3);
    EXPECT_EQ(pauses, 2);
    EXPECT_EQ(outputOf("ip -6 route show | grep -c 'src fd00:3::1'"), "3\n");
}

TEST_F(NetlinkRoutesSource, isGivenUpForAllTogether)
{
    addAddressThatIsCheckedForLong();
    EXPECT_EQ(putBack(), 0);
    EXPECT_EQ(pauses, NetlinkRoutes::maximalPauses);
}

TEST_F(NetlinkRoutesSource, isNotWaitedForWithoutACarrier)
{
    addAddressThatIsCheckedForLong();
    outputOf("ip link set left1 down");
    EXPECT_EQ(putBack(), 0);
    EXPECT_EQ(pauses, 0);
}

TEST_F(NetlinkRoutesSource, isNotWaitedForWhenTheCarrierGoes)
{
    addAddressThatIsCheckedForLong();
    EXPECT_EQ(putBack([this] {
        if (pauses == 2) {
            outputOf("ip link set left1 down");
        }
    }),
        0);
    EXPECT_EQ(pauses, 2);
}

TEST_F(NetlinkRoutesSource, isNotWaitedForWhenNobodyHasItOrAnotherMachineHas)
{
    EXPECT_EQ(putBack(), 0);
    outputOf("for i in 1 2 3; do ip -6 route del fd00:6$i::/48 dev left0; done;"
             "echo 1 > /proc/sys/net/ipv6/conf/left0/accept_dad;"
             "ip -6 addr add fd00:3::1/64 dev left1 nodad; ip -6 addr add fd00:3::1/64 dev left0");
    ASSERT_TRUE(waitUntil([] {
        return outputOf("ip -6 addr show dev left0").find("dadfailed") != std::string::npos;
    }));
    outputOf("ip -6 addr del fd00:3::1/64 dev left1");
    EXPECT_EQ(putBack(), 0);
    EXPECT_EQ(pauses, 0);
}

TEST_F(NetlinkRoutesTest, losesNothingButTheSourceAddressWithoutACarrierAndSaysSo)
{
    outputOf("ip -6 addr add fd00:3::1/64 dev left0");
    ASSERT_TRUE(waitUntil([] {
        return outputOf("ip -6 addr show dev left0").find("tentative") == std::string::npos;
    }));
    outputOf("echo 1 > /proc/sys/net/ipv6/conf/left0/accept_dad;"
             "ip -6 route add fd00:61::/48 via fd00:1::fe dev left0 src fd00:3::1;"
             "ip -6 route add fd00:62::/48 via fd00:1::fe dev left0;"
             "ip route add 10.52.0.0/16 via 10.0.0.254 dev left0 src 10.0.0.1");
    outputOf("ip link set left1 down");
    NetlinkKernelLink kernel;
    LinkState link;
    LinkConfiguration configuration;
    ASSERT_EQ(kernel.findByName("left0", link), 0);
    ASSERT_EQ(kernel.readConfiguration(link, configuration), 0);
    EXPECT_EQ(quillon.change("left0", newAddress, true), BusClient::done);
    EXPECT_EQ(kernelAddress("left0"), newAddress);
    const auto after = routes();
    EXPECT_THAT(after, HasSubstr("fd00:61::/48 via fd00:1::fe dev left0"));
    EXPECT_THAT(after, Not(HasSubstr("src fd00:3::1")));
    EXPECT_THAT(after, HasSubstr("fd00:62::/48 via fd00:1::fe dev left0"));
    EXPECT_THAT(after, HasSubstr("src 10.0.0.1"));
    outputOf("ip link set left0 down; ip link set left0 up");
    testing::internal::CaptureStderr();
    EXPECT_EQ(kernel.putBack(configuration), 0);
    EXPECT_THAT(testing::internal::GetCapturedStderr(),
        HasSubstr("device=\"left0\": routes put back without their source address, which cannot "
                  "be used now: 1\n"));
}

} // namespace
} // namespace quillon::test
