// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/NetlinkKernelLink.h"
#include "helper/NetlinkRoutes.h"
#include "helper/PutBackRoutes.h"
#include "integration/helper/TwoCards.h"

#include <gmock/gmock.h>

#include <linux/netlink.h>

namespace quillon::test {
namespace {

using testing::HasSubstr;
using testing::Not;

/// Puts three routes back that name the source address fd00:3::1.
class NetlinkRoutesSource : public TwoCards
{
protected:
    void SetUp() override
    {
        TwoCards::SetUp();
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
            if (namesSourceIPv6(route.body)) {
                m_named.routes.push_back(route);
            }
        }
        ASSERT_EQ(m_named.routes.size(), 3U);
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
        EXPECT_EQ(routes.putBack(m_named), 0);
        EXPECT_EQ(outputOf("ip -6 route show | grep -c '^fd00:6'"), "3\n");
        return 3 - routes.sourcesLost();
    }

    int pauses = 0;

private:
    NetlinkSocket m_socket{{.protocol = NETLINK_ROUTE}};
    LinkConfiguration m_named;
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

using NetlinkRoutesSourceTest = TwoCards;

TEST_F(NetlinkRoutesSourceTest, isAllThatIsLostWithoutACarrierAndIsLogged)
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
