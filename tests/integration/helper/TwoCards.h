// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "integration/helper/BusClient.h"
#include "integration/helper/Sandbox.h"
#include "integration/helper/Waiting.h"

#include <gtest/gtest.h>

namespace quillon::test {

/// Changes the address of one of two cards, left0, in a way that takes it down.
class TwoCards : public testing::Test
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
        // The kernel looks at carriers in its own time, and makes more routes then.
        ASSERT_TRUE(waitUntil([] { return isConfigured("left0") && isConfigured("right0"); }));
    }
    static bool isConfigured(const std::string &device)
    {
        return outputOf("ip -o link show dev " + device).find("state UP") != std::string::npos &&
               outputOf("ip -o addr show dev " + device).find("fe80::") != std::string::npos;
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

} // namespace quillon::test
