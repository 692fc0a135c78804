// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/networks/TokenFieldLayout.h"

#include <gtest/gtest.h>

namespace quillon::test {
namespace {

const QRectF field(10, 200, 300, 60);

void expectLayout(
    const TokenFieldLayout &layout, const QRectF &frame, std::optional<qreal> documentHeight)
{
    EXPECT_EQ(layout.frame.x(), frame.x());
    EXPECT_EQ(layout.frame.y(), frame.y());
    EXPECT_EQ(layout.frame.width(), frame.width());
    EXPECT_EQ(layout.frame.height(), frame.height());
    EXPECT_EQ(layout.documentHeight, documentHeight);
}

TEST(TokenFieldLayout, StaysAsItIsWithoutTokens)
{
    expectLayout(fixScrollForTokenField(field, 90, 0), field, std::nullopt);
}

TEST(TokenFieldLayout, HasALeastHeight)
{
    expectLayout(fixScrollForTokenField(field, 20, 1), QRectF(10, 200, 300, 73), 25);
    expectLayout(fixScrollForTokenField(field, 72.9, 3), QRectF(10, 200, 300, 73), 77.9);
    const QRectF tall(10, 200, 300, 400);
    expectLayout(fixScrollForTokenField(tall, 20, 1), QRectF(10, 200, 300, 73), 25);
}

TEST(TokenFieldLayout, GrowsDownwardsByTheLinesThatDoNotFit)
{
    // 73 / 17 is four whole lines, one more than fit.
    expectLayout(fixScrollForTokenField(field, 73, 1), QRectF(10, 183, 300, 77), 78);
    // 84.9 / 17 is still four, 85 / 17 is five.
    expectLayout(fixScrollForTokenField(field, 84.5, 1), QRectF(10, 183, 300, 77), 89.5);
    expectLayout(fixScrollForTokenField(field, 85, 1), QRectF(10, 166, 300, 94), 90);
    expectLayout(fixScrollForTokenField(field, 170, 1), QRectF(10, 81, 300, 179), 175);
}

TEST(TokenFieldLayout, KeepsItsUpperEdgeWhileItGrows)
{
    const TokenFieldLayout layout = fixScrollForTokenField(field, 170, 1);
    EXPECT_EQ(layout.frame.y() + layout.frame.height(), field.y() + field.height());
}

TEST(TokenFieldLayout, IsAdjustedOnceForEachToken)
{
    expectLayout(fixScrollForTokenField(field, 85, 3), QRectF(10, 98, 300, 162), 90);
}

} // namespace
} // namespace quillon::test
