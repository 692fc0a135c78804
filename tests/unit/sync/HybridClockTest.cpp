// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/HybridClock.h"

#include <gtest/gtest.h>

#include <limits>

namespace quillon::test {
namespace {

TEST(HybridClockTest, FollowsTheTime)
{
    HybridClock clock(7, {});
    EXPECT_EQ(clock.next(1000), (Stamp{1000, 0, 7}));
    EXPECT_EQ(clock.next(1000), (Stamp{1000, 1, 7}));
    EXPECT_EQ(clock.next(2000), (Stamp{2000, 0, 7}));
}

TEST(HybridClockTest, IsLaterThanEverythingSeenHoweverWrongTheTimeIs)
{
    HybridClock clock(7, {});
    const Stamp yearAhead{1000 + 365LL * 86'400'000, 3, 9};
    clock.see(yearAhead);
    const Stamp first = clock.next(1000);
    EXPECT_GT(first, yearAhead);
    EXPECT_GT(clock.next(-5), first);
}

TEST(HybridClockTest, FullCountGoesOnInTheNextMillisecond)
{
    HybridClock clock(7, {1000, std::numeric_limits<quint32>::max(), 7});
    EXPECT_EQ(clock.next(1000), (Stamp{1001, 0, 7}));
}

TEST(HybridClockTest, ClockAtItsEndStillHasLaterStamps)
{
    HybridClock clock(7, {});
    const Stamp last = clock.next(std::numeric_limits<qint64>::max());
    EXPECT_LT(last.time, latestStampTime);
    EXPECT_GT(clock.next(std::numeric_limits<qint64>::max()), last);
}

TEST(HybridClockTest, GoesOnAfterARestart)
{
    HybridClock before(7, {});
    const Stamp last = before.next(5000);
    HybridClock after(7, before.last());
    EXPECT_GT(after.next(10), last);
}

} // namespace
} // namespace quillon::test
