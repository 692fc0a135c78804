// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/NetlinkKernelLink.h"

#include <gtest/gtest.h>
#include <netlink/attr.h>
#include <netlink/msg.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <linux/rtnetlink.h>

namespace quillon::test {
namespace {

using namespace std::chrono_literals;
using IPv6 = std::array<std::uint8_t, 16>;

/// A route whose source address no interface has, nor ever will.
LinkConfiguration::Message hopelessRoute(int index, std::uint8_t number)
{
    IPv6 destination{0xfd, 0, 0x0d, 0xb8, 0, number};
    IPv6 source{0xfd, 0, 0x0d, 0xb8, 0xde, 0xad, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1};
    rtmsg header{};
    header.rtm_family = AF_INET6;
    header.rtm_dst_len = 64;
    header.rtm_table = RT_TABLE_MAIN;
    header.rtm_protocol = RTPROT_STATIC;
    header.rtm_type = RTN_UNICAST;
    const NetlinkMessage message{nlmsg_alloc()};
    nlmsghdr *start = nlmsg_put(message.get(), 0, 0, RTM_NEWROUTE, 0, 0);
    nlmsg_append(message.get(), &header, sizeof header, NLMSG_ALIGNTO);
    nla_put(message.get(), RTA_DST, destination.size(), destination.data());
    nla_put(message.get(), RTA_PREFSRC, source.size(), source.data());
    nla_put_u32(message.get(), RTA_OIF, static_cast<std::uint32_t>(index));
    const auto *body = static_cast<const std::uint8_t *>(nlmsg_data(start));
    return {body, body + nlmsg_datalen(start)};
}

TEST(PutBackPatienceTest, waitsThreeSecondsForAllRoutesTogether)
{
    NetlinkKernelLink kernel;
    LinkState link;
    ASSERT_EQ(kernel.findByName("enp1s0", link), 0);
    LinkConfiguration configuration;
    for (std::uint8_t number = 1; number <= 20; ++number) {
        configuration.routes.push_back(hopelessRoute(link.index, number));
    }
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(kernel.putBack(configuration), EINVAL);
    const auto taken = std::chrono::steady_clock::now() - start;
    EXPECT_GE(taken, 3s);
    EXPECT_LT(taken, 30s) << "each route waited by itself";
}

} // namespace
} // namespace quillon::test
