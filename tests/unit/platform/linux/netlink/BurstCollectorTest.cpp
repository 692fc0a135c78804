// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/netlink/BurstCollector.h"

#include "fakes/FakeScheduler.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace std::chrono_literals;

class BurstCollectorTest : public ::testing::Test
{
protected:
    FakeScheduler scheduler;
    int told = 0;
    BurstCollector burst{scheduler, 100ms, 1000ms, [this] { ++told; }};
};

TEST_F(BurstCollectorTest, ABurstIsToldOnceWhenItIsQuiet)
{
    burst.happened();
    scheduler.advance(60ms);
    burst.happened();
    scheduler.advance(99ms);
    EXPECT_EQ(told, 0);
    scheduler.advance(1ms);
    EXPECT_EQ(told, 1);
    scheduler.advance(10s);
    EXPECT_EQ(told, 1);
}

TEST_F(BurstCollectorTest, ABurstWithoutEndIsToldEverySecond)
{
    for (int i = 0; i < 50; ++i) {
        burst.happened();
        scheduler.advance(50ms);
    }
    EXPECT_EQ(told, 2);
    scheduler.advance(1s);
    EXPECT_EQ(told, 3);
}

TEST_F(BurstCollectorTest, TwoBurstsAreTwoChanges)
{
    burst.happened();
    scheduler.advance(100ms);
    burst.happened();
    scheduler.advance(100ms);
    EXPECT_EQ(told, 2);
}

TEST_F(BurstCollectorTest, NoTimerRunsWhileNothingHappens)
{
    EXPECT_FALSE(scheduler.hasTimers());
    burst.happened();
    scheduler.advance(100ms);
    EXPECT_FALSE(scheduler.hasTimers());
}

TEST(BurstCollectorLife, NothingIsToldAfterItIsGone)
{
    FakeScheduler scheduler;
    int told = 0;
    {
        BurstCollector burst(scheduler, 100ms, 1000ms, [&told] { ++told; });
        burst.happened();
    }
    scheduler.advance(2s);
    EXPECT_EQ(told, 0);
}

} // namespace quillon::test
