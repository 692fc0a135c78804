// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "integration/app/FastScheduler.h"

#include "fakes/FakeScheduler.h"

#include <QList>
#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;

namespace {

/// Its clock goes on while its main thread is held up.
class StallingScheduler : public FakeScheduler
{
public:
    QDateTime now() const override { return FakeScheduler::now().addMSecs(stalled.count()); }

    std::chrono::milliseconds stalled{0};
};

} // namespace

class FastSchedulerTest : public ::testing::Test
{
protected:
    qint64 secondsPassed() const { return start.secsTo(fast.now()); }

    StallingScheduler real;
    FastScheduler fast{real, 60};
    const QDateTime start = real.now();
};

TEST_F(FastSchedulerTest, AMinutePassesInASecond)
{
    real.advance(1s);
    EXPECT_EQ(fast.now(), start.addSecs(60));
    EXPECT_EQ(real.now(), start.addSecs(1));
}

TEST_F(FastSchedulerTest, ATaskRunsAtItsMomentByTheFastClock)
{
    QList<QDateTime> ran;
    fast.onMainAfter(90s, [&] { ran << fast.now(); });
    real.advance(1499ms);
    EXPECT_TRUE(ran.isEmpty());
    real.advance(1ms);
    EXPECT_EQ(ran, (QList<QDateTime>{start.addSecs(90)}));
    real.advance(10s);
    EXPECT_EQ(ran.size(), 1);
}

TEST_F(FastSchedulerTest, NoTickIsLostOrLateHoweverBusyTheMachineIs)
{
    QList<qint64> ticks;
    fast.repeat(1s, [&] { ticks << secondsPassed(); });
    // The main thread comes back only after a hundred seconds of the fast clock.
    real.stalled = 1700ms;
    real.advance(20ms);
    ASSERT_GE(ticks.size(), 100);
    for (qsizetype i = 0; i < ticks.size(); ++i) {
        EXPECT_EQ(ticks.at(i), i + 1);
    }
}

TEST_F(FastSchedulerTest, TheClockWaitsForWhatIsDue)
{
    fast.onMainAfter(5s, [] {});
    real.stalled = 1s;
    EXPECT_EQ(secondsPassed(), 5);
    real.advance(100ms);
    EXPECT_GE(secondsPassed(), 60);
}

TEST_F(FastSchedulerTest, WhatATaskPostsRunsBeforeTheNextTask)
{
    QStringList order;
    fast.onMainAfter(1s, [&] {
        order << u"first"_s;
        fast.onMain([&] { order << u"posted by the first"_s; });
    });
    fast.onMainAfter(1s, [&] { order << u"second"_s; });
    real.advance(1s);
    EXPECT_EQ(order, (QStringList{u"first"_s, u"posted by the first"_s, u"second"_s}));
}

TEST_F(FastSchedulerTest, CancelledTasksDoNotRun)
{
    int ran = 0;
    const auto once = fast.onMainAfter(1s, [&] { ++ran; });
    Scheduler::Token ticking = 0;
    ticking = fast.repeat(1s, [&] {
        if (++ran == 3) {
            fast.cancel(ticking);
        }
    });
    fast.cancel(once);
    fast.cancel(4711);
    real.advance(10s);
    EXPECT_EQ(ran, 3);
    EXPECT_FALSE(real.hasTimers()) << "nobody is woken when nothing is left to do";
}

TEST_F(FastSchedulerTest, ATaskMayAddAnother)
{
    QList<qint64> ran;
    fast.onMainAfter(30s, [&] {
        ran << secondsPassed();
        fast.onMainAfter(30s, [&] { ran << secondsPassed(); });
    });
    real.advance(1s);
    EXPECT_EQ(ran, (QList<qint64>{30, 60}));
}

TEST_F(FastSchedulerTest, NothingRunsOnceItIsGone)
{
    int ran = 0;
    {
        FastScheduler gone(real, 60);
        gone.repeat(1s, [&] { ++ran; });
    }
    real.advance(5s);
    EXPECT_EQ(ran, 0);
}

} // namespace quillon::test
