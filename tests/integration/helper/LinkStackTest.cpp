// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Interfaces on top go down with a change and come back. A macvlan stands for the VLAN, which not
// every kernel has; since it does not follow its lower interface by itself, the test moves it as
// the kernel moves a VLAN.
#include "helper/NetlinkKernelLink.h"
#include "integration/helper/Sandbox.h"

#include <gmock/gmock.h>

#include <linux/rtnetlink.h>
#include <net/if.h>

namespace quillon::test {
namespace {

using testing::HasSubstr;

class LinkStackTestOnTop : public testing::Test
{
protected:
    void SetUp() override
    {
        outputOf(
            "ip link add link enp1s0 name top0 type macvlan mode bridge;"
            "ip link add link enp1s0 name top1 type macvlan mode bridge;"
            "ip link set top0 address 02:00:00:00:55:01 up;"
            "ip addr add 198.51.100.1/24 dev top0; ip addr add fd00:db8:7::1/64 dev top0 nodad;"
            "ip route add 198.18.0.0/24 via 198.51.100.2 dev top0;"
            "ip -6 route add fd00:db8:8::/64 via fd00:db8:7::2 dev top0;"
            "ip neigh add 198.51.100.2 lladdr 02:00:00:00:00:66 nud permanent dev top0;"
            "ip neigh add 198.51.100.3 lladdr 02:00:00:00:00:67 nud permanent dev top1");
        ASSERT_EQ(kernel.findByName("enp1s0", link), 0);
    }
    static std::string shown()
    {
        return outputOf(
            "ip -o addr show dev top0 | grep -v ' fe80'; ip route show dev top0;"
            "ip -6 route show dev top0 | grep -v fe80; ip neigh show nud permanent dev top0");
    }
    /// Of the one that is down.
    static std::string neighborsOfTop1()
    {
        return outputOf("ip neigh show nud permanent dev top1");
    }

    NetlinkKernelLink kernel;
    LinkState link;
};

TEST_F(LinkStackTestOnTop, getAddressesRoutesNeighborsAndTheirStateBack)
{
    const auto before = shown();
    ASSERT_THAT(before, HasSubstr("fd00:db8:8::/64 via fd00:db8:7::2"));
    const auto neighborsBefore = neighborsOfTop1();
    ASSERT_THAT(neighborsBefore, HasSubstr("198.51.100.3 lladdr 02:00:00:00:00:67"));
    LinkConfiguration configuration;
    ASSERT_EQ(kernel.readConfiguration(link, configuration), 0);
    // All that were up go down with the lower one, and all come up with it.
    outputOf("ip link set top0 down; ip link set top1 up; ip link set top0 up");
    ASSERT_NE(shown(), before);
    EXPECT_EQ(kernel.putNeighborsBack(configuration), 0);
    EXPECT_EQ(kernel.putBack(configuration), 0);
    EXPECT_EQ(shown(), before);
    LinkState top1;
    ASSERT_EQ(kernel.findByName("top1", top1), 0);
    EXPECT_EQ(top1.flags & IFF_UP, 0U);
    EXPECT_EQ(neighborsOfTop1(), neighborsBefore);
    // One that stayed down, as loosely bound ones may, comes up again.
    outputOf("ip link set top0 down");
    EXPECT_EQ(kernel.putNeighborsBack(configuration), 0);
    EXPECT_EQ(kernel.putBack(configuration), 0);
    EXPECT_EQ(shown(), before);
}

TEST_F(LinkStackTestOnTop, loseNothingToOneThatHasGone)
{
    LinkConfiguration configuration;
    ASSERT_EQ(kernel.readConfiguration(link, configuration), 0);
    ASSERT_EQ(configuration.linksOnTop.size(), 2U);
    outputOf("ip link del top1; ip link set top0 down");
    EXPECT_EQ(kernel.putNeighborsBack(configuration), 0);
    EXPECT_EQ(kernel.putBack(configuration), 0);
    EXPECT_THAT(shown(), HasSubstr("198.18.0.0/24 via 198.51.100.2"));
}

TEST(LinkStackTestOfOneLink, GivesNoIPv4AddressBackThatItsOwnerTookAwayMeanwhile)
{
    // As iwd does, which leaves its network when the interface goes down.
    outputOf("ip addr add 198.51.100.7/24 dev enp2s0 valid_lft 4000 preferred_lft 3000;"
             "ip addr add 203.0.113.7/24 dev enp2s0; ip link set enp2s0 up;"
             "ip -6 addr add fd00:db8:5::5/64 dev enp2s0 nodad;"
             "ip route add 198.18.0.0/24 via 198.51.100.1 dev enp2s0;"
             "ip route add 198.18.1.0/24 dev enp2s0 scope link src 198.51.100.7;"
             "ip route add 198.18.2.0/24 via 203.0.113.1 dev enp2s0");
    NetlinkKernelLink kernel;
    LinkState link;
    ASSERT_EQ(kernel.findByName("enp2s0", link), 0);
    LinkConfiguration configuration;
    ASSERT_EQ(kernel.readConfiguration(link, configuration), 0);
    outputOf("ip link set enp2s0 down; ip addr del 198.51.100.7/24 dev enp2s0; ip link set enp2s0 "
             "up");
    EXPECT_EQ(kernel.putBack(configuration), 0) << "what goes with the address is no failure";
    const auto addresses = outputOf("ip addr show dev enp2s0");
    EXPECT_THAT(addresses, testing::Not(HasSubstr("198.51.100.7")));
    EXPECT_THAT(addresses, HasSubstr("203.0.113.7/24"));
    EXPECT_THAT(addresses, HasSubstr("fd00:db8:5::5/64"));
    const auto routes = outputOf("ip route show dev enp2s0");
    EXPECT_THAT(routes, testing::Not(HasSubstr("198.18.0.0/24")));
    EXPECT_THAT(routes, HasSubstr("198.18.2.0/24 via 203.0.113.1"));
}

TEST(LinkStackTestOfOneLink, LosesNothingToAnOwnerWhoTakesTheRoutesFirst)
{
    // The subnet's route goes, then the gateway's cannot come back, then the address goes.
    outputOf("ip addr add 198.51.100.7/24 dev enp2s0 noprefixroute; ip link set enp2s0 up;"
             "ip route add 198.51.100.0/24 dev enp2s0 scope link;"
             "ip route add 198.18.0.0/24 via 198.51.100.1 dev enp2s0");
    NetlinkKernelLink kernel;
    LinkState link;
    ASSERT_EQ(kernel.findByName("enp2s0", link), 0);
    LinkConfiguration configuration;
    ASSERT_EQ(kernel.readConfiguration(link, configuration), 0);
    std::erase_if(configuration.routes, [](const LinkConfiguration::Route &route) {
        return reinterpret_cast<const rtmsg *>(route.body.data())->rtm_scope == RT_SCOPE_LINK;
    });
    outputOf("ip link set enp2s0 down; ip link set enp2s0 up;"
             "(sleep 0.1; ip addr del 198.51.100.7/24 dev enp2s0) >/dev/null 2>&1 &");
    EXPECT_EQ(kernel.putBack(configuration), 0);
    EXPECT_THAT(outputOf("ip addr show dev enp2s0"), testing::Not(HasSubstr("198.51.100.7")));
}

} // namespace
} // namespace quillon::test
