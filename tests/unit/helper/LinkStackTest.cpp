// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/LinkStack.h"

#include <gmock/gmock.h>

namespace quillon {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

LinkState link(int index, int lower = 0, int master = 0)
{
    LinkState state;
    state.index = index;
    state.lower = lower;
    state.master = master;
    return state;
}

std::vector<int> indexesOnTop(const LinkState &of, const std::vector<LinkState> &all)
{
    std::vector<int> indexes;
    for (const auto &state : linksOnTop(of, all)) {
        indexes.push_back(state.index);
    }
    return indexes;
}

TEST(LinkStackTest, findsVlansAndWhatStandsOnThem)
{
    const std::vector<LinkState> all{
        link(7, 5), link(5, 2), link(2), link(6, 2), link(3), link(8, 3)};
    EXPECT_THAT(indexesOnTop(link(2), all), ElementsAre(5, 6, 7));
}

TEST(LinkStackTest, findsTheBridgeAndTheVlanOnTheBridge)
{
    const std::vector<LinkState> all{link(2, 0, 4), link(3, 0, 4), link(4), link(9, 4)};
    EXPECT_THAT(indexesOnTop(link(2, 0, 4), all), ElementsAre(4, 9));
    EXPECT_THAT(indexesOnTop(link(4), all), ElementsAre(9));
}

TEST(LinkStackTest, takesTheOtherEndOfAWireForNothing)
{
    const std::vector<LinkState> all{link(2, 3), link(3, 2), link(4, 2)};
    EXPECT_THAT(indexesOnTop(link(2, 3), all), ElementsAre(4));
}

TEST(LinkStackTest, endsWhereLinksGoRoundInACircle)
{
    const std::vector<LinkState> all{link(2, 4), link(3, 2), link(4, 3)};
    EXPECT_THAT(indexesOnTop(link(2, 4), all), ElementsAre(3, 4));
    EXPECT_THAT(indexesOnTop(link(1), {link(1, 1)}), IsEmpty());
}

} // namespace
} // namespace quillon
