// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/PutBackNexthops.h"

#include "unit/helper/KernelMessage.h"

#include <gmock/gmock.h>

#include <linux/nexthop.h>
#include <linux/rtnetlink.h>

namespace quillon {
namespace {

using namespace test;
using testing::ElementsAre;
using testing::IsEmpty;

nhmsg headerOfNexthop(int family = AF_INET)
{
    nhmsg header{};
    header.nh_family = static_cast<std::uint8_t>(family);
    header.nh_scope = RT_SCOPE_LINK;
    header.nh_protocol = RTPROT_STATIC;
    header.nh_flags = RTNH_F_ONLINK | RTNH_F_LINKDOWN | RTNH_F_DEAD;
    return header;
}

KernelMessage<nhmsg> nexthop(std::uint32_t id, int index = ourIndex)
{
    KernelMessage<nhmsg> message(RTM_NEWNEXTHOP, headerOfNexthop());
    message.with(NHA_ID, id).with(NHA_OIF, static_cast<unsigned>(index)).with(NHA_GATEWAY, gateway);
    return message;
}

KernelMessage<nhmsg> group(std::uint32_t id, const std::vector<std::uint32_t> &members,
    std::uint16_t type = NEXTHOP_GRP_TYPE_MPATH)
{
    Bytes bytes(members.size() * sizeof(nexthop_grp));
    for (std::size_t i = 0; i < members.size(); ++i) {
        nexthop_grp member{};
        member.id = members[i];
        member.weight = 3;
        std::memcpy(bytes.data() + i * sizeof member, &member, sizeof member);
    }
    KernelMessage<nhmsg> message(RTM_NEWNEXTHOP, headerOfNexthop(AF_UNSPEC));
    message.with(NHA_ID, id)
        .with(NHA_GROUP, bytes)
        .with(NHA_GROUP_TYPE, Bytes{static_cast<std::uint8_t>(type), 0});
    return message;
}

TEST(PutBackNexthops, keepsEverythingButWhatTheKernelFound)
{
    const auto body = nexthopToPutBack(nexthop(10).header(), ourLink());
    ASSERT_TRUE(body);
    const auto *header = reinterpret_cast<const nhmsg *>(body->data());
    EXPECT_EQ(header->nh_family, AF_INET);
    EXPECT_EQ(header->nh_scope, 0);
    EXPECT_EQ(header->nh_protocol, RTPROT_STATIC);
    EXPECT_EQ(header->nh_flags, unsigned{RTNH_F_ONLINK});
    EXPECT_EQ(numberOf(attributeOf<nhmsg>(*body, NHA_ID)), 10U);
    EXPECT_EQ(numberOf(attributeOf<nhmsg>(*body, NHA_OIF)), unsigned{ourIndex});
    EXPECT_EQ(attributeOf<nhmsg>(*body, NHA_GATEWAY), gateway);
    EXPECT_THAT(membersOf(*body), IsEmpty());
}

TEST(PutBackNexthops, leavesOthersAlone)
{
    EXPECT_FALSE(nexthopToPutBack(nexthop(10, ourIndex + 1).header(), ourLink()));
    EXPECT_FALSE(nexthopToPutBack(group(20, {10}, NEXTHOP_GRP_TYPE_RES).header(), ourLink()));
    KernelMessage<nhmsg> blackhole(RTM_NEWNEXTHOP, headerOfNexthop());
    blackhole.with(NHA_ID, 11).with(NHA_BLACKHOLE, Bytes{});
    EXPECT_FALSE(nexthopToPutBack(blackhole.header(), ourLink()));
    KernelMessage<rtmsg> route(RTM_NEWROUTE, rtmsg{});
    EXPECT_FALSE(nexthopToPutBack(route.header(), ourLink()));
}

TEST(PutBackNexthops, ofTheirGroupsComeBeforeThem)
{
    std::vector<LinkConfiguration::Message> nexthops;
    for (const auto &message :
        {group(5, {30, 10}), group(6, {31}), nexthop(10), group(7, {12}), nexthop(12)}) {
        nexthops.push_back(*nexthopToPutBack(message.header(), ourLink()));
    }
    EXPECT_THAT(keepConcerned(nexthops), ElementsAre(5, 7, 10, 12));
    ASSERT_EQ(nexthops.size(), 4U);
    EXPECT_THAT(membersOf(nexthops[0]), IsEmpty());
    EXPECT_THAT(membersOf(nexthops[1]), IsEmpty());
    EXPECT_THAT(membersOf(nexthops[2]), ElementsAre(30, 10));
    EXPECT_THAT(membersOf(nexthops[3]), ElementsAre(12));
}

} // namespace
} // namespace quillon
