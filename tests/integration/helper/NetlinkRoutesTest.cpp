// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "contract/Names.h"
#include "integration/helper/BusClient.h"
#include "integration/helper/Sandbox.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::HasSubstr;

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
        EXPECT_EQ(routes(), before);
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
    EXPECT_EQ(routes(), before);
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

} // namespace
} // namespace quillon::test
