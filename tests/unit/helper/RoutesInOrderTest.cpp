// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/RoutesInOrder.h"

#include "helper/PutBackRoutes.h"
#include "unit/helper/KernelMessage.h"

#include <gmock/gmock.h>

#include <linux/rtnetlink.h>

namespace quillon {
namespace {

using namespace test;
using testing::ElementsAre;
using testing::Pair;

constexpr int otherIndex = ourIndex + 1;

class RoutesInOrderTest : public testing::Test
{
protected:
    /// Routes to `destination` are told apart by `mark`, which stands in for what differs.
    void add(int index, std::uint32_t mark, const Bytes &destination = {10, 0, 0, 0},
        std::uint32_t metric = 7, int family = AF_INET)
    {
        auto message = route(destination, metric, mark, family);
        message.with(RTA_OIF, static_cast<unsigned>(index));
        give(message);
    }
    void addThrough(const std::vector<int> &indexes, std::uint32_t mark)
    {
        Bytes bytes;
        for (int index : indexes) {
            rtnexthop hop{};
            hop.rtnh_len = sizeof hop;
            hop.rtnh_ifindex = index;
            const auto *start = reinterpret_cast<const std::uint8_t *>(&hop);
            bytes.insert(bytes.end(), start, start + sizeof hop);
        }
        auto message = route({10, 0, 0, 0}, 7, mark, AF_INET);
        message.with(RTA_MULTIPATH, bytes);
        give(message);
    }
    /// Marks, and whether the route comes ahead.
    std::vector<std::pair<std::uint32_t, bool>> taken()
    {
        std::vector<std::pair<std::uint32_t, bool>> result;
        for (const auto &route : order.take()) {
            result.emplace_back(numberOf(attributeOf<rtmsg>(route.body, RTA_FLOW)), route.isAhead);
        }
        return result;
    }

    std::vector<LinkState> links{ourLink()};
    RoutesInOrder order{links};

private:
    static KernelMessage<rtmsg> route(
        const Bytes &destination, std::uint32_t metric, std::uint32_t mark, int family)
    {
        rtmsg header{};
        header.rtm_family = static_cast<std::uint8_t>(family);
        header.rtm_type = RTN_UNICAST;
        header.rtm_protocol = RTPROT_STATIC;
        header.rtm_table = RT_TABLE_MAIN;
        KernelMessage<rtmsg> message(RTM_NEWROUTE, header);
        message.with(RTA_DST, destination).with(RTA_PRIORITY, metric).with(RTA_FLOW, mark);
        return message;
    }
    void give(const KernelMessage<rtmsg> &message)
    {
        order.add(*message.header(), routeToPutBack(message.header(), ourLink(), {}));
    }
};

TEST_F(RoutesInOrderTest, areThoseOfTheTableWhereNobodyElseHasOne)
{
    add(ourIndex, 1);
    add(ourIndex, 2);
    add(ourIndex, 3, {10, 1, 0, 0});
    add(otherIndex, 4, {10, 2, 0, 0});
    EXPECT_THAT(taken(), ElementsAre(Pair(1, false), Pair(2, false), Pair(3, false)));
}

TEST_F(RoutesInOrderTest, comeAheadOfAnotherInterfacesTheLastOneFirst)
{
    add(ourIndex, 1);
    add(ourIndex, 2);
    add(otherIndex, 3);
    add(ourIndex, 4);
    EXPECT_THAT(taken(), ElementsAre(Pair(4, false), Pair(2, true), Pair(1, true)));
}

TEST_F(RoutesInOrderTest, comeAheadOfOneThatStaysWithTheHopsOfOthers)
{
    add(ourIndex, 1);
    addThrough({ourIndex, otherIndex}, 2);
    EXPECT_THAT(taken(), ElementsAre(Pair(1, true), Pair(2, false)));
    order.clear();
    add(ourIndex, 1);
    addThrough({ourIndex, ourIndex}, 2);
    EXPECT_THAT(taken(), ElementsAre(Pair(1, false), Pair(2, false)));
}

TEST_F(RoutesInOrderTest, areComparedOnlyWithTheirLike)
{
    add(ourIndex, 1);
    add(otherIndex, 2, {10, 0, 0, 0}, 8);
    add(ourIndex, 3, otherIPv6, 7, AF_INET6);
    add(otherIndex, 4, otherIPv6, 7, AF_INET6);
    EXPECT_THAT(taken(), ElementsAre(Pair(1, false), Pair(3, false)));
}

TEST_F(RoutesInOrderTest, beginAnewWithNothing)
{
    add(ourIndex, 1);
    order.clear();
    add(ourIndex, 2, {10, 1, 0, 0});
    add(otherIndex, 3, {10, 1, 0, 0});
    EXPECT_THAT(taken(), ElementsAre(Pair(2, true)));
}

} // namespace
} // namespace quillon
