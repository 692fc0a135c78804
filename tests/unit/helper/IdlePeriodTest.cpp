// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/IdlePeriod.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

using namespace std::chrono_literals;

class IdlePeriodTest : public testing::Test
{
protected:
    IdlePeriod::Time start{1000s};
    IdlePeriod idle{30s, start};
};

TEST_F(IdlePeriodTest, isOverAfterItsLength)
{
    EXPECT_FALSE(idle.isOver(start));
    EXPECT_FALSE(idle.isOver(start + 29s));
    EXPECT_EQ(idle.left(start + 29s), 1s);
    EXPECT_TRUE(idle.isOver(start + 30s));
}

TEST_F(IdlePeriodTest, beginsAnewWithEveryUse)
{
    idle.used(start + 29s);
    EXPECT_FALSE(idle.isOver(start + 58s));
    EXPECT_TRUE(idle.isOver(start + 59s));
}

TEST_F(IdlePeriodTest, neverHasLessThanNothingLeft)
{
    EXPECT_EQ(idle.left(start + 1h), 0s);
}

} // namespace
} // namespace quillon
