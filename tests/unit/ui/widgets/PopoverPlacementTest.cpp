// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/PopoverPlacement.h"

#include "fakes/QtPrinting.h"

#include <gmock/gmock.h>

namespace quillon::test {

namespace {

using Edge = PopoverPlacement::Edge;
using Side = PopoverPlacement::Side;

constexpr QRect screen(0, 0, 1000, 600);
constexpr QSize body(300, 200);

PopoverPlacement rightOf(const QRect &anchor, Qt::LayoutDirection direction = Qt::LeftToRight)
{
    return PopoverPlacement::find(anchor, body, screen, Side::Right, direction);
}

TEST(PopoverPlacement, LiesRightOfItsAnchorWithTheTipAtItsMiddle)
{
    const auto placement = rightOf(QRect(100, 280, 200, 40));
    EXPECT_EQ(placement.edge, Edge::Left);
    EXPECT_EQ(placement.position.x(), 300 + PopoverPlacement::arrowHeight);
    ASSERT_TRUE(placement.arrow);
    EXPECT_EQ(placement.position.y() + *placement.arrow, QRect(100, 280, 200, 40).center().y());
}

TEST(PopoverPlacement, FlipsToTheLeftWhereThereIsNoRoom)
{
    const auto placement = rightOf(QRect(600, 280, 200, 40));
    EXPECT_EQ(placement.edge, Edge::Right);
    EXPECT_EQ(placement.position.x() + body.width() + PopoverPlacement::arrowHeight, 600);
    EXPECT_TRUE(placement.arrow);
}

TEST(PopoverPlacement, BeginsOnTheLeftWhereTextRunsFromRightToLeft)
{
    EXPECT_EQ(rightOf(QRect(400, 280, 100, 40), Qt::RightToLeft).edge, Edge::Right);
    EXPECT_EQ(rightOf(QRect(100, 280, 100, 40), Qt::RightToLeft).edge, Edge::Left);
}

TEST(PopoverPlacement, SlidesOntoTheScreenAndTheArrowFollows)
{
    const QRect low(100, 560, 200, 40);
    const auto placement = rightOf(low);
    EXPECT_EQ(placement.position.y() + body.height(), screen.height());
    ASSERT_TRUE(placement.arrow);
    EXPECT_GT(*placement.arrow, body.height() / 2);
    const QRect high(100, 0, 200, 40);
    EXPECT_EQ(rightOf(high).position.y(), 0);
    EXPECT_LT(*rightOf(high).arrow, body.height() / 2);
}

TEST(PopoverPlacement, TheArrowKeepsOffTheRoundCorners)
{
    const auto placement = rightOf(QRect(100, 598, 200, 2));
    ASSERT_TRUE(placement.arrow);
    EXPECT_LE(*placement.arrow, body.height() - 12 - PopoverPlacement::arrowWidth / 2);
}

TEST(PopoverPlacement, GoesBelowAnAnchorAsWideAsTheScreen)
{
    const auto placement = rightOf(QRect(0, 100, 1000, 40));
    EXPECT_EQ(placement.edge, Edge::Top);
    EXPECT_EQ(placement.position.y(), 140 + PopoverPlacement::arrowHeight);
}

TEST(PopoverPlacement, BelowFlipsAbove)
{
    const auto below = PopoverPlacement::find(
        QRect(400, 100, 100, 40), body, screen, Side::Below, Qt::LeftToRight);
    EXPECT_EQ(below.edge, Edge::Top);
    const auto above = PopoverPlacement::find(
        QRect(400, 500, 100, 40), body, screen, Side::Below, Qt::LeftToRight);
    EXPECT_EQ(above.edge, Edge::Bottom);
    EXPECT_EQ(above.position.y() + body.height() + PopoverPlacement::arrowHeight, 500);
}

TEST(PopoverPlacement, HasNoArrowWhereItMustLieOverItsAnchor)
{
    const auto placement = PopoverPlacement::find(
        QRect(0, 100, 1000, 400), body, screen, Side::Right, Qt::LeftToRight);
    EXPECT_FALSE(placement.arrow);
    EXPECT_TRUE(screen.contains(QRect(placement.position, body)));
}

TEST(PopoverPlacement, ShowsItsBeginningWhereItIsLargerThanTheScreen)
{
    const auto placement = PopoverPlacement::find(
        QRect(100, 100, 50, 40), QSize(300, 900), screen, Side::Right, Qt::LeftToRight);
    EXPECT_EQ(placement.position.y(), 0);
}

} // namespace
} // namespace quillon::test
