// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "contract/Names.h"
#include "integration/helper/BigEndianCaller.h"
#include "integration/helper/BusClient.h"
#include "integration/helper/Sandbox.h"
#include "integration/helper/Waiting.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

/// Everything of the configuration that a person gave, without what the kernel makes of the
/// address.
std::string configuration()
{
    return outputOf(
        "ip -o addr show dev enp1s0 | grep -v ' fe80::.*:fe' | "
        "sed 's/valid_lft [0-9]*sec/valid_lft some/; s/preferred_lft [0-9]*sec/preferred_lft "
        "some/';"
        "ip -4 route show table all dev enp1s0;"
        "ip -6 route show table all dev enp1s0 | grep -v -e ' fe80::' -e '^fe80::' -e '^anycast' | "
        "sed 's/expires [0-9]*sec/expires some/' | sort");
}

class ChangeTest : public testing::Test
{
protected:
    BusClient quillon{"quillon"};
};

TEST_F(ChangeTest, reachesTheKernel)
{
    ASSERT_NE(kernelAddress("enp1s0"), newAddress);
    EXPECT_EQ(quillon.change("enp1s0", newAddress), BusClient::done);
    EXPECT_EQ(kernelAddress("enp1s0"), newAddress);
}

TEST_F(ChangeTest, isDoneForCallersOfTheOtherByteOrder)
{
    const auto before = kernelAddress("enp1s0");
    BigEndianCaller caller{"quillon"};
    caller.change("enp1s0", newAddress, 31);
    caller.change("enp1s0", newAddress, 33);
    caller.change("enp2s0", newAddress, 32);
    EXPECT_TRUE(waitUntil([] { return kernelAddress("enp2s0") == newAddress; }));
    EXPECT_EQ(kernelAddress("enp1s0"), before);
}

TEST_F(ChangeTest, takesOneDigitOctets)
{
    EXPECT_EQ(quillon.change("enp1s0", "2:1:a:B:0:f"), BusClient::done);
    EXPECT_EQ(kernelAddress("enp1s0"), "02:01:0a:0b:00:0f");
}

TEST_F(ChangeTest, worksOnABridgeAndOnAnInterfaceWithoutAddresses)
{
    EXPECT_EQ(quillon.change("br0", newAddress), BusClient::done);
    EXPECT_EQ(kernelAddress("br0"), newAddress);
    EXPECT_EQ(quillon.change("enp2s0", "02:11:22:33:44:56"), BusClient::done);
    EXPECT_EQ(kernelAddress("enp2s0"), "02:11:22:33:44:56");
}

TEST_F(ChangeTest, throughTheEndpointWorksLikeThroughTheName)
{
    const auto endpoint = quillon.endpoint();
    EXPECT_EQ(quillon.call(endpoint, contract::helper::path, contract::helper::interface,
                  contract::helper::getVersion.name),
        "2.0");
}

TEST_F(ChangeTest, ofAWiFiInterfacePutsAddressesAndRoutesBack)
{
    outputOf(
        "ip addr add 198.51.100.7/24 dev enp1s0 label enp1s0:1 valid_lft 4000 preferred_lft 3000;"
        "ip addr add 203.0.113.1 peer 203.0.113.2/32 dev enp1s0;"
        "ip -6 addr add fd00:db8:1::5/64 dev enp1s0 valid_lft 4000 preferred_lft 0;"
        "ip -6 addr add fd00:db8:2::5/64 dev enp1s0 noprefixroute nodad;"
        "ip -6 addr add fe80::1234/64 dev enp1s0 nodad;"
        "ip route add 198.18.0.0/24 via 192.0.2.1 dev enp1s0 metric 77 mtu 1400;"
        "ip route add 198.18.1.0/24 dev enp1s0 scope link src 198.51.100.7;"
        "ip route add default via 192.0.2.1 dev enp1s0 table 100;"
        "ip route add 198.18.2.0/24 via 10.9.9.9 dev enp1s0 onlink;"
        "ip route add blackhole 198.18.3.0/24;"
        "ip -6 route add fd00:db8:3::/64 via fd00:db8::1 dev enp1s0 metric 300 pref high;"
        "ip -6 route add fd00:db8:4::/64 dev enp1s0 expires 4000;"
        "ip -6 route add default via fd00:db8::1 dev enp1s0 table 100");
    // Duplicate address detection of the sandbox's own address must be over: its state is shown.
    ASSERT_TRUE(waitUntil([] {
        return outputOf("ip -6 addr show dev enp1s0").find("tentative") == std::string::npos;
    }));
    const auto before = configuration();
    ASSERT_THAT(before, HasSubstr("198.18.2.0/24"));

    EXPECT_EQ(quillon.change("enp1s0", newAddress, true), BusClient::done);

    EXPECT_EQ(kernelAddress("enp1s0"), newAddress);
    ASSERT_TRUE(waitUntil([] {
        return outputOf("ip -6 addr show dev enp1s0").find("tentative") == std::string::npos;
    }));
    EXPECT_EQ(configuration(), before);
    EXPECT_THAT(outputOf("ip -6 addr show dev enp1s0"), HasSubstr("fe80::11:22ff:fe33:4455"));
}

TEST_F(ChangeTest, waitsForASourceAddressThatIsStillBeingChecked)
{
    outputOf(
        "ip -6 route add fd00:db8:5::/64 via fd00:db8::1 dev enp1s0 src fd00:db8::10 2>/dev/null ||"
        "(sleep 2; ip -6 route add fd00:db8:5::/64 via fd00:db8::1 dev enp1s0 src fd00:db8::10)");
    EXPECT_EQ(quillon.change("enp1s0", newAddress, true), BusClient::done);
    EXPECT_THAT(outputOf("ip -6 route show dev enp1s0"),
        HasSubstr("fd00:db8:5::/64 via fd00:db8::1 src fd00:db8::10"));
}

TEST_F(ChangeTest, ofAWiFiInterfaceForgetsTheKernelsAddressOfBefore)
{
    const auto old = outputOf("ip -6 addr show dev enp1s0 scope link");
    ASSERT_THAT(old, HasSubstr("fe80::200:5eff:fe00:5301"));
    EXPECT_EQ(quillon.change("enp1s0", "02:00:00:00:00:77"), BusClient::done);
    EXPECT_EQ(quillon.change("enp1s0", newAddress, true), BusClient::done);
    EXPECT_THAT(outputOf("ip -6 addr show dev enp1s0"), Not(HasSubstr("fe80::200:5eff:fe00:5301")));
}

std::string ipv6Of(const std::string &device)
{
    return outputOf("ip -o -6 addr show dev " + device);
}

TEST_F(ChangeTest, leavesNoIPv6AddressThatTheKernelFormedFromTheAddressOfBefore)
{
    outputOf("ip -6 addr add fd00:db8:1::5/64 dev enp1s0 nodad;"
             "ip -6 route add fd00:db8:3::/64 via fd00:db8::1 dev enp1s0 metric 300");
    const auto routes = outputOf("ip route show dev enp1s0");
    for (const auto &[address, identifier] : {std::pair{newAddress, "fe80::11:22ff:fe33:4455"},
             std::pair{"02:00:00:00:00:77", "fe80::ff:fe00:77"}}) {
        const auto before = outputOf(
            "ip -o -6 addr show dev enp1s0 scope link | sed 's/.* \\(fe80[^/]*\\).*/\\1/'");
        EXPECT_EQ(quillon.change("enp1s0", address), BusClient::done);
        EXPECT_EQ(kernelAddress("enp1s0"), address);
        EXPECT_TRUE(waitUntil([&, wanted = identifier] {
            return ipv6Of("enp1s0").find(wanted) != std::string::npos;
        })) << ipv6Of("enp1s0");
        EXPECT_THAT(ipv6Of("enp1s0"), Not(HasSubstr(before.substr(0, before.find('\n')))));
    }
    EXPECT_THAT(ipv6Of("enp1s0"), HasSubstr("fd00:db8:1::5/64"));
    EXPECT_EQ(outputOf("ip route show dev enp1s0"), routes);
    EXPECT_THAT(outputOf("ip -6 route show dev enp1s0"), HasSubstr("fd00:db8:3::/64"));
}

TEST_F(ChangeTest, keepsASubnetWithItsLifetimesUnderTheNewAddressWithoutALossOfTheLink)
{
    outputOf("sysctl -qw net.ipv6.conf.enp1s0.use_tempaddr=2;"
             "ip -6 addr add fd00:db8:9::200:5eff:fe00:5301/64 dev enp1s0 mngtmpaddr nodad"
             " valid_lft 4000 preferred_lft 3000");
    const auto temporary = [] { return outputOf("ip -o -6 addr show dev enp1s0 temporary"); };
    ASSERT_TRUE(waitUntil([&] { return !temporary().empty(); }));
    const auto ofBefore = temporary().substr(temporary().find("fd00:"), 30);
    // Seconds that the link was ever down.
    const auto losses = outputOf("cat /sys/class/net/enp1s0/carrier_changes");
    EXPECT_EQ(quillon.change("enp1s0", newAddress), BusClient::done);
    const auto now = ipv6Of("enp1s0");
    EXPECT_THAT(now, Not(HasSubstr("200:5eff:fe00:5301")));
    EXPECT_THAT(now, HasSubstr("fd00:db8:9:0:11:22ff:fe33:4455/64"));
    EXPECT_THAT(now, testing::ContainsRegex("mngtmpaddr.* valid_lft (39[0-9][0-9]|4000)sec "
                                            "preferred_lft (29[0-9][0-9]|3000)sec"));
    EXPECT_TRUE(waitUntil([&] { return !temporary().empty(); }));
    EXPECT_THAT(temporary(), Not(HasSubstr(ofBefore)));
    EXPECT_THAT(outputOf("ip -6 route show dev enp1s0"), HasSubstr("fd00:db8:9::/64"));
    EXPECT_EQ(outputOf("cat /sys/class/net/enp1s0/carrier_changes"), losses);
}

TEST_F(ChangeTest, leavesNoneAlsoWhereTheKernelKeepsAddressesWhileDown)
{
    outputOf("sysctl -qw net.ipv6.conf.enp1s0.keep_addr_on_down=1;"
             "ip -6 addr add fd00:db8:9::200:5eff:fe00:5301/64 dev enp1s0 nodad;"
             "ip -6 addr add fd00:db8:9::7/64 dev enp1s0 nodad");
    EXPECT_EQ(quillon.change("enp1s0", newAddress, true), BusClient::done);
    EXPECT_THAT(ipv6Of("enp1s0"),
        AllOf(Not(HasSubstr("200:5eff:fe00:5301")), HasSubstr("fd00:db8:9::7/64")));
}

TEST_F(ChangeTest, staysLiveWhereSomebodyElseFormsTheIPv6Addresses)
{
    // As a network manager has it. What it formed would be gone if the interface had been down.
    outputOf("ip link set enp1s0 addrgenmode none");
    const auto before = ipv6Of("enp1s0");
    ASSERT_THAT(before, HasSubstr("fe80::200:5eff:fe00:5301"));
    EXPECT_EQ(quillon.change("enp1s0", newAddress), BusClient::done);
    EXPECT_EQ(kernelAddress("enp1s0"), newAddress);
    EXPECT_THAT(ipv6Of("enp1s0"), HasSubstr("fe80::200:5eff:fe00:5301"));
}

TEST_F(ChangeTest, renewsTheIPv6AddressOfABridgeThatTakesItsPortsAddress)
{
    outputOf("ip link add brx type bridge; ip link set enp2s0 master brx; ip link set brx up;"
             "ip addr add 203.0.113.1/24 dev brx; ip route add 198.18.9.0/24 via 203.0.113.2");
    ASSERT_EQ(kernelAddress("brx"), kernelAddress("enp2s0"));
    ASSERT_TRUE(waitUntil([] { return ipv6Of("brx").find("fe80::") != std::string::npos; }));
    const auto before = ipv6Of("brx");
    const auto identifier =
        before.substr(before.find("fe80::"), before.find("/64") - before.find("fe80::"));
    EXPECT_EQ(quillon.change("enp2s0", newAddress), BusClient::done);
    EXPECT_EQ(kernelAddress("brx"), newAddress);
    EXPECT_TRUE(waitUntil([] {
        return ipv6Of("brx").find("fe80::11:22ff:fe33:4455") != std::string::npos;
    })) << ipv6Of("brx");
    EXPECT_THAT(ipv6Of("brx"), Not(HasSubstr(identifier + "/")));
    EXPECT_THAT(outputOf("ip route show dev brx"), HasSubstr("198.18.9.0/24 via 203.0.113.2"));
}

/// Neighbors of the interface that a person or a program gave, in the order of their addresses.
std::string neighborsOf(const std::string &device)
{
    return outputOf("(ip neigh show nud permanent dev " + device +
                    "; ip neigh show nud noarp dev " + device + "; ip neigh show proxy dev " +
                    device + "; ip -6 neigh show proxy dev " + device +
                    ") | grep -v -e '^ff' -e '^22[4-9]' | sort -u");
}

class ChangeTestNeighbors : public ChangeTest
{
protected:
    void SetUp() override
    {
        outputOf("ip neigh replace 192.0.2.1 lladdr 02:00:00:00:00:99 nud permanent dev enp1s0;"
                 "ip neigh replace 192.0.2.3 lladdr 02:00:00:00:00:98 nud noarp dev enp1s0;"
                 "ip neigh add 192.0.2.4 lladdr 02:00:00:00:00:97 nud reachable dev enp1s0;"
                 "ip -6 neigh replace fd00:db8::1 lladdr 02:00:00:00:00:99 nud permanent router "
                 "dev enp1s0;"
                 "ip neigh add proxy 192.0.2.5 dev enp1s0; ip -6 neigh add proxy fd00:db8::5 dev "
                 "enp1s0");
        before = neighborsOf("enp1s0");
        ASSERT_THAT(before,
            AllOf(HasSubstr("192.0.2.1 lladdr 02:00:00:00:00:99"), HasSubstr("192.0.2.3 lladdr"),
                HasSubstr("fd00:db8::1 lladdr 02:00:00:00:00:99 router"), HasSubstr("192.0.2.5"),
                HasSubstr("fd00:db8::5")));
    }

    std::string before;
};

TEST_F(ChangeTestNeighbors, thatAreStaticAreKeptByAChangeMadeLive)
{
    EXPECT_EQ(quillon.change("enp1s0", newAddress), BusClient::done);
    EXPECT_EQ(neighborsOf("enp1s0"), before);
    EXPECT_THAT(outputOf("ip neigh show nud all dev enp1s0"), Not(HasSubstr("192.0.2.4")));
}

TEST_F(ChangeTestNeighbors, thatAreStaticAreKeptByAChangeMadeDown)
{
    EXPECT_EQ(quillon.change("enp1s0", newAddress, true), BusClient::done);
    EXPECT_EQ(neighborsOf("enp1s0"), before);
}

TEST_F(ChangeTestNeighbors, ofAnInterfaceThatIsDownAreKept)
{
    outputOf("ip link set enp1s0 down;"
             "ip neigh replace 192.0.2.1 lladdr 02:00:00:00:00:99 nud permanent dev enp1s0");
    EXPECT_EQ(quillon.change("enp1s0", newAddress), BusClient::done);
    EXPECT_THAT(neighborsOf("enp1s0"), HasSubstr("192.0.2.1 lladdr 02:00:00:00:00:99"));
}

TEST_F(ChangeTestNeighbors, ofABridgeThatTakesItsPortsAddressAreKept)
{
    // The bridge shows the lowest address of its ports, so its own changes with that of the port.
    outputOf("ip link add brx type bridge; ip link set enp2s0 master brx; ip link set brx up;"
             "ip addr add 203.0.113.1/24 dev brx;"
             "ip neigh add 203.0.113.9 lladdr 02:00:00:00:00:77 nud permanent dev brx");
    for (bool wifi : {false, true}) {
        const auto address = wifi ? "02:11:22:33:44:66" : newAddress;
        EXPECT_EQ(quillon.change("enp2s0", address, wifi), BusClient::done);
        EXPECT_EQ(kernelAddress("brx"), address);
        EXPECT_THAT(neighborsOf("brx"), HasSubstr("203.0.113.9 lladdr 02:00:00:00:00:77"));
    }
}

TEST_F(ChangeTest, thatTheDriverRefusesLeavesTheInterfaceAtWork)
{
    outputOf("ip link add ifb9 type ifb && ip addr add 198.51.100.9/24 dev ifb9 && ip link set "
             "ifb9 up &&"
             "ip route add 198.18.9.0/24 via 198.51.100.1 dev ifb9 &&"
             "ip neigh add 198.51.100.1 lladdr 02:00:00:00:00:99 nud permanent dev ifb9");
    const auto before = kernelAddress("ifb9");
    EXPECT_EQ(quillon.change("ifb9", newAddress), contract::error::changeFailed.name);
    EXPECT_EQ(kernelAddress("ifb9"), before);
    EXPECT_THAT(outputOf("ip addr show dev ifb9"), HasSubstr(",UP"));
    EXPECT_THAT(outputOf("ip addr show dev ifb9"), HasSubstr("198.51.100.9/24"));
    EXPECT_THAT(outputOf("ip route show dev ifb9"), HasSubstr("198.18.9.0/24 via 198.51.100.1"));
    EXPECT_THAT(neighborsOf("ifb9"), HasSubstr("198.51.100.1 lladdr 02:00:00:00:00:99"));
}

TEST_F(ChangeTest, needsAnInterfaceThatIsThereAndSuitable)
{
    outputOf("ip link add link enp2s0 name mv0 type macvlan 2>/dev/null; ip link property add dev "
             "enp1s0 altname lan0");
    EXPECT_EQ(quillon.change("enp9s0", newAddress), contract::error::noSuchDevice.name);
    EXPECT_EQ(quillon.change("lan0", newAddress), contract::error::noSuchDevice.name);
    EXPECT_EQ(quillon.change("lo", newAddress), contract::error::unsupportedDevice.name);
    EXPECT_NE(kernelAddress("enp1s0"), newAddress);
}

TEST_F(ChangeTest, ofManyAtOnceLeavesOneOfTheAddressesAndAllRoutes)
{
    const auto routes = outputOf("ip route show dev enp1s0");
    std::vector<std::unique_ptr<BusClient>> clients;
    for (int i = 0; i < 2; ++i) {
        clients.push_back(std::make_unique<BusClient>("quillon"));
        for (int j = 0; j < 4; ++j) {
            clients.back()->changeLater(
                "enp1s0", "02:00:00:00:0" + std::to_string(i) + ":0" + std::to_string(j));
        }
    }
    for (const auto &client : clients) {
        EXPECT_TRUE(waitUntil([&] { return client->answers()[BusClient::done] == 4; }));
    }
    EXPECT_THAT(kernelAddress("enp1s0"), HasSubstr("02:00:00:00:0"));
    EXPECT_EQ(outputOf("ip route show dev enp1s0"), routes);
}

} // namespace
} // namespace quillon::test
