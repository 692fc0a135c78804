// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/PutBackRoutes.h"

#include "unit/helper/KernelMessage.h"

#include <gtest/gtest.h>

#include <cstring>
#include <linux/rtnetlink.h>
#include <unistd.h>

namespace quillon {
namespace {

using namespace test;

rtmsg routeHeader(int family)
{
    rtmsg header{};
    header.rtm_family = static_cast<std::uint8_t>(family);
    header.rtm_type = RTN_UNICAST;
    header.rtm_protocol = RTPROT_STATIC;
    header.rtm_table = RT_TABLE_MAIN;
    return header;
}

KernelMessage<rtmsg> route(rtmsg header = routeHeader(AF_INET))
{
    return {RTM_NEWROUTE, header};
}

TEST(PutBackRoutes, keepsEverythingButWhatTheKernelFound)
{
    auto header = routeHeader(AF_INET);
    header.rtm_flags = RTNH_F_LINKDOWN | RTNH_F_DEAD | RTNH_F_ONLINK;
    auto message = route(header);
    message.with(RTA_OIF, unsigned{ourIndex})
        .with(RTA_GATEWAY, gateway)
        .with(RTA_PRIORITY, 100)
        .with(RTA_TABLE, 1234);
    const auto body = routeToPutBack(message.header(), ourLink(), {});
    ASSERT_TRUE(body);
    EXPECT_EQ(reinterpret_cast<const rtmsg *>(body->data())->rtm_flags, unsigned{RTNH_F_ONLINK});
    EXPECT_EQ(attributeOf<rtmsg>(*body, RTA_GATEWAY), gateway);
    EXPECT_EQ(numberOf(attributeOf<rtmsg>(*body, RTA_PRIORITY)), 100U);
    EXPECT_EQ(numberOf(attributeOf<rtmsg>(*body, RTA_TABLE)), 1234U);
    EXPECT_EQ(orderOf(*body), 2);
    EXPECT_TRUE(sourceOf(*body).empty());
}

TEST(PutBackRoutes, turnsWhatIsLeftOfItsTimeIntoANewTime)
{
    rta_cacheinfo info{};
    info.rta_expires = static_cast<int>(60 * sysconf(_SC_CLK_TCK));
    Bytes bytes(sizeof info);
    std::memcpy(bytes.data(), &info, sizeof info);
    auto message = route(routeHeader(AF_INET6));
    message.with(RTA_OIF, unsigned{ourIndex}).with(RTA_CACHEINFO, bytes);
    const auto body = routeToPutBack(message.header(), ourLink(), {});
    ASSERT_TRUE(body);
    EXPECT_EQ(numberOf(attributeOf<rtmsg>(*body, RTA_EXPIRES)), 61U);
    EXPECT_TRUE(attributeOf<rtmsg>(*body, RTA_CACHEINFO).empty());
}

TEST(PutBackRoutes, leavesOtherInterfacesAlone)
{
    auto message = route();
    message.with(RTA_OIF, unsigned{ourIndex + 1});
    EXPECT_FALSE(routeToPutBack(message.header(), ourLink(), {}));
    EXPECT_FALSE(routeToPutBack(route().header(), ourLink(), {}));
}

TEST(PutBackRoutes, findsTheInterfaceAmongSeveralHopsAndClearsTheirStates)
{
    Bytes hops;
    for (int index : {ourIndex + 1, ourIndex}) {
        rtnexthop hop{};
        hop.rtnh_len = sizeof hop;
        hop.rtnh_flags = RTNH_F_DEAD | RTNH_F_LINKDOWN;
        hop.rtnh_ifindex = index;
        const auto *bytes = reinterpret_cast<const std::uint8_t *>(&hop);
        hops.insert(hops.end(), bytes, bytes + sizeof hop);
    }
    auto message = route();
    message.with(RTA_MULTIPATH, hops);
    const auto body = routeToPutBack(message.header(), ourLink(), {});
    ASSERT_TRUE(body);
    const auto kept = attributeOf<rtmsg>(*body, RTA_MULTIPATH);
    ASSERT_EQ(kept.size(), hops.size());
    EXPECT_EQ(reinterpret_cast<const rtnexthop *>(kept.data())->rtnh_flags, 0);
    EXPECT_EQ(orderOf(*body), 2);
}

TEST(PutBackRoutes, withHopsOfImpossibleLengthIsNotFollowed)
{
    rtnexthop hop{};
    hop.rtnh_ifindex = ourIndex;
    for (std::uint16_t length : {std::uint16_t{0}, std::uint16_t{4}, std::uint16_t{200}}) {
        hop.rtnh_len = length;
        Bytes bytes(sizeof hop);
        std::memcpy(bytes.data(), &hop, sizeof hop);
        auto message = route();
        message.with(RTA_MULTIPATH, bytes);
        EXPECT_FALSE(routeToPutBack(message.header(), ourLink(), {})) << length;
    }
}

TEST(PutBackRoutes, leavesToOthersWhatOthersMake)
{
    auto cloned = routeHeader(AF_INET6);
    cloned.rtm_flags = RTM_F_CLONED;
    auto advertised = routeHeader(AF_INET6);
    advertised.rtm_protocol = RTPROT_RA;
    auto redirected = routeHeader(AF_INET6);
    redirected.rtm_protocol = RTPROT_REDIRECT;
    for (const auto &header : {cloned, advertised, redirected}) {
        auto message = route(header);
        message.with(RTA_OIF, unsigned{ourIndex});
        EXPECT_FALSE(routeToPutBack(message.header(), ourLink(), {}));
    }
    auto kernels = routeHeader(AF_INET6);
    kernels.rtm_protocol = RTPROT_KERNEL;
    auto message = route(kernels);
    message.with(RTA_OIF, unsigned{ourIndex}).with(RTA_DST, linkLocal);
    EXPECT_FALSE(routeToPutBack(message.header(), ourLink(), {}));
}

TEST(PutBackRoutes, ofAnyTypeIsKeptUnlessTheKernelMadeIt)
{
    for (int family : {AF_INET, AF_INET6}) {
        for (std::uint8_t type : {RTN_LOCAL, RTN_BROADCAST, RTN_ANYCAST, RTN_MULTICAST}) {
            auto header = routeHeader(family);
            header.rtm_type = type;
            auto given = route(header);
            given.with(RTA_OIF, unsigned{ourIndex});
            const auto body = routeToPutBack(given.header(), ourLink(), {});
            ASSERT_TRUE(body) << int{type};
            EXPECT_EQ(reinterpret_cast<const rtmsg *>(body->data())->rtm_type, type);
            header.rtm_protocol = RTPROT_KERNEL;
            auto kernels = route(header);
            kernels.with(RTA_OIF, unsigned{ourIndex});
            EXPECT_FALSE(routeToPutBack(kernels.header(), ourLink(), {})) << int{type};
        }
    }
}

TEST(PutBackRoutes, keepsPrefixRoutesThatAManagerAddedUnderTheKernelsName)
{
    auto header = routeHeader(AF_INET);
    header.rtm_protocol = RTPROT_KERNEL;
    auto message = route(header);
    message.with(RTA_OIF, unsigned{ourIndex}).with(RTA_PREFSRC, ourIPv4);
    const auto body = routeToPutBack(message.header(), ourLink(), {});
    ASSERT_TRUE(body);
    EXPECT_EQ(sourceOf(*body).size(), ourIPv4.size());
    EXPECT_FALSE(namesSourceIPv6(*body));
}

TEST(PutBackRoutes, canBeWithoutTheirSourceAddress)
{
    auto message = route(routeHeader(AF_INET6));
    message.with(RTA_OIF, unsigned{ourIndex})
        .with(RTA_PREFSRC, otherIPv6)
        .with(RTA_PRIORITY, 100)
        .with(RTA_PREF, Bytes{1});
    const auto body = routeToPutBack(message.header(), ourLink(), {});
    ASSERT_TRUE(body);
    EXPECT_TRUE(namesSourceIPv6(*body));
    const auto bare = withoutSource(*body);
    EXPECT_FALSE(namesSourceIPv6(bare));
    EXPECT_EQ(bare.size(), body->size() - sizeof(nlattr) - otherIPv6.size());
    EXPECT_EQ(numberOf(attributeOf<rtmsg>(bare, RTA_OIF)), unsigned{ourIndex});
    EXPECT_EQ(numberOf(attributeOf<rtmsg>(bare, RTA_PRIORITY)), 100U);
    EXPECT_EQ(attributeOf<rtmsg>(bare, RTA_PREF), Bytes{1});
    EXPECT_EQ(withoutSource(bare), bare);
}

TEST(PutBackRoutes, throughANexthopObjectNameItAndItsHops)
{
    auto message = route();
    message.with(RTA_OIF, unsigned{ourIndex})
        .with(RTA_GATEWAY, gateway)
        .with(RTA_PRIORITY, 100)
        .with(RTA_NH_ID, 5);
    const auto body = routeToPutBack(message.header(), ourLink(), {});
    ASSERT_TRUE(body);
    EXPECT_EQ(nexthopOf(*body), 5U);
    const auto bare = withoutHops(*body);
    EXPECT_EQ(nexthopOf(bare), 5U);
    EXPECT_TRUE(attributeOf<rtmsg>(bare, RTA_OIF).empty());
    EXPECT_TRUE(attributeOf<rtmsg>(bare, RTA_GATEWAY).empty());
    EXPECT_EQ(numberOf(attributeOf<rtmsg>(bare, RTA_PRIORITY)), 100U);
    EXPECT_FALSE(hasHops(bare));
    EXPECT_EQ(orderOf(bare), 1);
    const auto written = withoutNexthop(*body);
    EXPECT_FALSE(nexthopOf(written));
    EXPECT_TRUE(hasHops(written));
    EXPECT_EQ(attributeOf<rtmsg>(written, RTA_GATEWAY), gateway);
}

TEST(PutBackRoutes, throughANexthopObjectAreFoundByItAlone)
{
    auto message = route();
    message.with(RTA_NH_ID, 5);
    EXPECT_TRUE(routeToPutBack(message.header(), ourLink(), {4, 5}));
    EXPECT_FALSE(routeToPutBack(message.header(), ourLink(), {4}));
}

TEST(PutBackRoutes, withoutAnythingBetweenComeFirst)
{
    auto direct = route();
    direct.with(RTA_OIF, unsigned{ourIndex});
    EXPECT_EQ(orderOf(*routeToPutBack(direct.header(), ourLink(), {})), 0);
}

} // namespace
} // namespace quillon
