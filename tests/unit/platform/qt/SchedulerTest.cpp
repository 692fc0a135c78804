// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/FakeScheduler.h"
#include "platform/qt/QtScheduler.h"

#include <QEventLoop>
#include <QStringList>
#include <gtest/gtest.h>

#include <atomic>
#include <future>
#include <memory>
#include <thread>
#include <vector>

namespace quillon {

using namespace Qt::StringLiterals;
namespace {

using namespace std::chrono_literals;

/// What a scheduler promises, asked of the fake one with its hands and of the real one with its
/// loop.
struct FakeClock
{
    test::FakeScheduler scheduler;
    void pass(std::chrono::milliseconds time) { scheduler.advance(time); }
};

struct RealClock
{
    QtScheduler scheduler;
    void pass(std::chrono::milliseconds time)
    {
        QEventLoop loop;
        scheduler.onMainAfter(time, [&loop] { loop.quit(); });
        loop.exec();
    }
};

template <typename Clock>
class SchedulerConformance : public ::testing::Test
{
protected:
    Clock clock;
    Scheduler &scheduler = clock.scheduler;
};

using Clocks = ::testing::Types<FakeClock, RealClock>;
TYPED_TEST_SUITE(SchedulerConformance, Clocks);

TYPED_TEST(SchedulerConformance, AnAlarmComesAtItsMomentAndOnlyOnce)
{
    const QDateTime moment = this->scheduler.now().addMSecs(20);
    QList<QDateTime> rings;
    const auto alarm =
        this->scheduler.alarmAt(moment, [&] { rings.append(this->scheduler.now()); });
    this->clock.pass(60ms);
    ASSERT_EQ(rings.size(), 1);
    EXPECT_GE(rings.first(), moment);
}

TYPED_TEST(SchedulerConformance, AnAlarmThatIsDroppedNeverComes)
{
    bool rang = false;
    auto alarm = this->scheduler.alarmAt(this->scheduler.now(), [&rang] { rang = true; });
    alarm.reset();
    this->clock.pass(20ms);
    EXPECT_FALSE(rang);
}

TYPED_TEST(SchedulerConformance, TheClockIsUtc)
{
    const QDateTime before = this->scheduler.now();
    EXPECT_EQ(before.timeSpec(), Qt::UTC);
    this->clock.pass(30ms);
    EXPECT_GE(before.msecsTo(this->scheduler.now()), 30);
}

TYPED_TEST(SchedulerConformance, TheMonotonicClockGoesAsFastAsTheOther)
{
    const auto begin = this->scheduler.monotonic();
    this->clock.pass(30ms);
    const auto passed = this->scheduler.monotonic() - begin;
    EXPECT_GE(passed, 29ms) << "whole milliseconds";
    EXPECT_LT(passed, 10min);
}

TYPED_TEST(SchedulerConformance, TasksForTheMainThreadRunLaterAndInOrder)
{
    QStringList done;
    this->scheduler.onMain([&] {
        EXPECT_TRUE(this->scheduler.isMainThread());
        this->scheduler.onMain([&] { done << u"c"_s; });
        done << u"a"_s;
    });
    this->scheduler.onMain([&] { done << u"b"_s; });
    EXPECT_TRUE(done.isEmpty());
    this->clock.pass(20ms);
    EXPECT_EQ(done.join(u' '), u"a b c"_s);
}

TYPED_TEST(SchedulerConformance, BackgroundTasksAreOffTheMainThreadAndCanGoBackToIt)
{
    bool wentBack = false;
    std::atomic<bool> ranOnMain = true;
    this->scheduler.inBackground([&] {
        ranOnMain = this->scheduler.isMainThread();
        this->scheduler.onMain([&] { wentBack = this->scheduler.isMainThread(); });
    });
    for (int turn = 0; turn < 200 && !wentBack; ++turn) {
        this->clock.pass(10ms);
    }
    EXPECT_TRUE(wentBack);
    EXPECT_FALSE(ranOnMain);
}

TYPED_TEST(SchedulerConformance, ADelayedTaskRunsOnceAndNotBeforeItsTime)
{
    const QDateTime begin = this->scheduler.now();
    int runs = 0;
    this->scheduler.onMainAfter(60ms, [&] {
        ++runs;
        EXPECT_TRUE(this->scheduler.isMainThread());
        EXPECT_GE(begin.msecsTo(this->scheduler.now()), 59);
    });
    this->clock.pass(20ms);
    EXPECT_EQ(runs, 0);
    this->clock.pass(150ms);
    EXPECT_EQ(runs, 1);
}

TYPED_TEST(SchedulerConformance, AShorterDelayComesFirstWhicheverWasGivenFirst)
{
    QStringList done;
    this->scheduler.onMainAfter(80ms, [&] { done << u"long"_s; });
    this->scheduler.onMainAfter(5ms, [&] { done << u"short"_s; });
    this->clock.pass(150ms);
    EXPECT_EQ(done.join(u' '), u"short long"_s);
}

TYPED_TEST(SchedulerConformance, ACancelledTaskNeverRuns)
{
    int runs = 0;
    const auto delayed = this->scheduler.onMainAfter(10ms, [&] { ++runs; });
    const auto repeated = this->scheduler.repeat(10ms, [&] { ++runs; });
    EXPECT_NE(delayed, repeated);
    this->scheduler.cancel(delayed);
    this->scheduler.cancel(repeated);
    this->scheduler.cancel(delayed);
    this->scheduler.cancel(repeated + 1000);
    this->clock.pass(60ms);
    EXPECT_EQ(runs, 0);
}

TYPED_TEST(SchedulerConformance, ARepeatedTaskComesEveryIntervalFirstAfterOneUntilItCancelsItself)
{
    const QDateTime begin = this->scheduler.now();
    int runs = 0;
    Scheduler::Token token = 0;
    token = this->scheduler.repeat(20ms, [&] {
        ++runs;
        EXPECT_GE(begin.msecsTo(this->scheduler.now()), 20 * runs - 1);
        if (runs == 3) {
            this->scheduler.cancel(token);
        }
    });
    for (int turn = 0; turn < 100 && runs < 3; ++turn) {
        this->clock.pass(20ms);
    }
    this->clock.pass(60ms);
    EXPECT_EQ(runs, 3);
}

TYPED_TEST(SchedulerConformance, ATaskOfAnObjectRunsWhileTheObjectIsThere)
{
    QStringList done;
    const QObject context;
    this->scheduler.onMain([&] { done << u"a"_s; });
    this->scheduler.onMain(&context, [&] {
        EXPECT_TRUE(this->scheduler.isMainThread());
        done << u"b"_s;
    });
    this->scheduler.onMain([&] { done << u"c"_s; });
    this->scheduler.onMainAfter(200ms, &context, [&] { done << u"d"_s; });
    EXPECT_TRUE(done.isEmpty());
    this->clock.pass(10ms);
    EXPECT_EQ(done.join(u' '), u"a b c"_s);
    this->clock.pass(300ms);
    EXPECT_EQ(done.join(u' '), u"a b c d"_s);
}

TYPED_TEST(SchedulerConformance, ATaskOfAnObjectThatIsDestroyedBeforeItsTimeNeverRuns)
{
    int runs = 0;
    auto context = std::make_unique<QObject>();
    this->scheduler.onMain([&] { context.reset(); });
    this->scheduler.onMain(context.get(), [&] { ++runs; });
    this->scheduler.onMainAfter(10ms, context.get(), [&] { ++runs; });
    this->clock.pass(60ms);
    EXPECT_EQ(runs, 0);
}

TYPED_TEST(SchedulerConformance, ADelayedTaskOfAnObjectCanBeCancelled)
{
    int runs = 0;
    const QObject context;
    this->scheduler.cancel(this->scheduler.onMainAfter(10ms, &context, [&] { ++runs; }));
    this->clock.pass(60ms);
    EXPECT_EQ(runs, 0);
}

TYPED_TEST(SchedulerConformance, AReplyThatComesOnAnyThreadIsTakenOnTheMainOneInALaterTurn)
{
    QStringList taken;
    const QObject context;
    const std::function<void(QString, int)> callback =
        this->scheduler.template replyOnMain<QString, int>(
            &context, [&](const QString &text, int number) {
                EXPECT_TRUE(this->scheduler.isMainThread());
                taken << text + QString::number(number);
            });
    callback(u"main "_s, 1);
    EXPECT_TRUE(taken.isEmpty());
    this->clock.pass(10ms);
    EXPECT_EQ(taken.join(u','), u"main 1"_s);
    this->scheduler.inBackground([callback] { callback(u"background "_s, 2); });
    this->clock.pass(60ms);
    EXPECT_EQ(taken.join(u','), u"main 1,background 2"_s);
}

TYPED_TEST(SchedulerConformance, AReplyToAnObjectThatIsDestroyedIsTakenByNobody)
{
    int taken = 0;
    auto context = std::make_unique<QObject>();
    const std::function<void()> callback =
        this->scheduler.template replyOnMain<>(context.get(), [&] { ++taken; });
    callback();
    context.reset();
    callback();
    this->scheduler.inBackground(callback);
    this->clock.pass(60ms);
    EXPECT_EQ(taken, 0);
}

TYPED_TEST(SchedulerConformance, ATaskMayCancelAnotherThatIsDueAtTheSameTime)
{
    int runs = 0;
    Scheduler::Token first = 0;
    Scheduler::Token second = 0;
    first = this->scheduler.onMainAfter(10ms, [&] {
        ++runs;
        this->scheduler.cancel(second);
    });
    second = this->scheduler.onMainAfter(10ms, [&] {
        ++runs;
        this->scheduler.cancel(first);
    });
    this->clock.pass(60ms);
    EXPECT_EQ(runs, 1);
}

TEST(SchedulerOnQt, ARepeatedTaskAlsoComesWhileItsOwnCallHoldsALoopOpen)
{
    RealClock clock;
    int runs = 0;
    clock.scheduler.repeat(10ms, [&] {
        if (++runs == 1) {
            clock.pass(60ms);
        }
    });
    clock.pass(30ms);
    EXPECT_GE(runs, 3);
}

TEST(SchedulerOnQt, TokensCanBeCancelledFromAnotherThread)
{
    RealClock clock;
    int runs = 0;
    const auto token = clock.scheduler.repeat(20ms, [&] { ++runs; });
    std::thread([&] { clock.scheduler.cancel(token); }).join();
    clock.pass(80ms);
    EXPECT_EQ(runs, 0);
}

TEST(SchedulerOnQt, TheDelayCountsFromTheCallEvenWhenTheMainThreadIsBusy)
{
    RealClock clock;
    bool ran = false;
    clock.scheduler.onMainAfter(500ms, [&] { ran = true; });
    std::this_thread::sleep_for(520ms); // the real clock has no hands
    clock.pass(50ms);
    EXPECT_TRUE(ran);
}

TEST(SchedulerOnQt, ANegativeDelayIsNone)
{
    RealClock clock;
    bool ran = false;
    clock.scheduler.onMainAfter(-5ms, [&] { ran = true; });
    EXPECT_FALSE(ran);
    clock.pass(20ms);
    EXPECT_TRUE(ran);
}

TEST(SchedulerOnQt, ADelayOfMonthsIsNotCutShort)
{
    RealClock clock;
    int runs = 0;
    // In 32 bits this would be 5 milliseconds.
    constexpr std::chrono::milliseconds sevenWeeks(0x1'0000'0005);
    clock.scheduler.onMainAfter(sevenWeeks, [&] { ++runs; });
    clock.scheduler.repeat(sevenWeeks, [&] { ++runs; });
    clock.pass(50ms);
    EXPECT_EQ(runs, 0);
}

TEST(SchedulerOnQt, ShutDownWaitsForWhatHasBegunAndDropsWhatWaits)
{
    RealClock clock;
    std::atomic<bool> finished = false;
    std::promise<void> begun;
    std::atomic<int> dropped = 0;
    clock.scheduler.inBackground([&] {
        begun.set_value();
        std::this_thread::sleep_for(50ms);
        clock.scheduler.inBackground([&] { ++dropped; });
        clock.scheduler.onMain([&] { ++dropped; });
        finished = true;
    });
    begun.get_future().wait();
    clock.scheduler.onMain([&] { ++dropped; });
    clock.scheduler.onMainAfter(1ms, [&] { ++dropped; });
    clock.scheduler.repeat(1ms, [&] { ++dropped; });
    clock.scheduler.shutDown();
    EXPECT_TRUE(finished);

    clock.scheduler.shutDown();
    clock.scheduler.onMain([&] { ++dropped; });
    clock.scheduler.onMainAfter(0ms, [&] { ++dropped; });
    clock.scheduler.inBackground([&] { ++dropped; });
    RealClock other;
    other.pass(50ms);
    EXPECT_EQ(dropped, 0);
}

TEST(SchedulerOnQt, ManyThreadsMayGiveTasksAtOnce)
{
    RealClock clock;
    int onMain = 0;
    int delayed = 0;
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 4; ++thread) {
        threads.emplace_back([&] {
            for (int task = 0; task < 100; ++task) {
                clock.scheduler.onMain([&] { ++onMain; });
                clock.scheduler.onMainAfter(1ms, [&] { ++delayed; });
                clock.scheduler.cancel(clock.scheduler.onMainAfter(1ms, [&] { ++delayed; }));
            }
        });
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
    clock.pass(100ms);
    EXPECT_EQ(onMain, 400);
    EXPECT_EQ(delayed, 400);
}

TEST(SchedulerFake, KeepsTheMonotonicClockWhenTheOtherIsSet)
{
    test::FakeScheduler scheduler;
    const QDateTime now = scheduler.now();
    const auto monotonic = scheduler.monotonic();
    scheduler.setClock(1h);
    EXPECT_EQ(now.msecsTo(scheduler.now()), 3'600'000);
    EXPECT_EQ(scheduler.monotonic(), monotonic);
}

} // namespace
} // namespace quillon
