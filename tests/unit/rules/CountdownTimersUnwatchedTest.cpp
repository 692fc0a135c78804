// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CountdownFixture.h"

using namespace std::chrono_literals;

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

const QString in = u"...changing MAC Address in "_s;

/// Nothing shows the countdown.
class CountdownTimersUnwatched : public CountdownFixture
{
protected:
    CountdownTimersUnwatched() { timers->setWatched(false); }

    int wakeUpsWithin(std::chrono::milliseconds time)
    {
        const int before = scheduler.wakeUps();
        pass(time);
        return scheduler.wakeUps() - before;
    }
};

TEST_F(CountdownTimersUnwatched, SleepUntilTheEnd)
{
    timers->startCountDownTimer(en0);
    EXPECT_EQ(wakeUpsWithin(119s), 0);
    EXPECT_TRUE(changes().isEmpty());
    pass(1s);
    EXPECT_EQ(changes().size(), 1);
    EXPECT_EQ(started(), 2);
    pass(120s);
    EXPECT_EQ(changes().size(), 2);
}

TEST_F(CountdownTimersUnwatched, HaveTheirTextForAMenuThatIsClosed)
{
    timers->startCountDownTimer(en0);
    EXPECT_EQ(display(en0), in + u"00:01:59"_s);
    pass(30s);
    timers->startCountDownTimer(en0);
    EXPECT_EQ(display(en0), in + u"00:01:59"_s) << "that of the new start";
}

TEST_F(CountdownTimersUnwatched, ThatHaveNotTickedYetGetTheirText)
{
    timers->setWatched(true);
    timers->startCountDownTimer(en0);
    EXPECT_EQ(display(en0), QString());
    timers->setWatched(false);
    EXPECT_EQ(display(en0), in + u"00:01:59"_s);
}

TEST_F(CountdownTimersUnwatched, OfOneMinuteStillWarn)
{
    ruleSays(en0, 1);
    timers->startCountDownTimer(en0);
    EXPECT_EQ(wakeUpsWithin(55s), 1);
    EXPECT_EQ(warnings(), 1);
    pass(5s);
    EXPECT_EQ(changes().size(), 1);
}

TEST_F(CountdownTimersUnwatched, TickAtOnceWhenSomebodyLooks)
{
    timers->startCountDownTimer(en0);
    pass(30s);
    EXPECT_EQ(ticks, 0);
    timers->setWatched(true);
    EXPECT_EQ(shown, en0 + u": "_s + in + u"00:01:30"_s);
    pass(10s);
    EXPECT_EQ(ticks, 11);
    EXPECT_EQ(display(en0), in + u"00:01:20"_s);
    timers->setWatched(false);
    EXPECT_EQ(wakeUpsWithin(79s), 0);
    pass(1s);
    EXPECT_EQ(changes().size(), 1);
}

TEST_F(CountdownTimersUnwatched, FollowAClockThatIsSet)
{
    timers->startCountDownTimer(en0);
    pass(10s);
    scheduler.setClock(100s);
    pass(9s);
    EXPECT_TRUE(changes().isEmpty());
    pass(1s);
    EXPECT_EQ(changes().size(), 1);
    scheduler.setClock(-60s);
    pass(178s);
    EXPECT_EQ(changes().size(), 1);
    pass(2s);
    EXPECT_EQ(changes().size(), 2);
}

TEST_F(CountdownTimersUnwatched, StartAgainWithoutAChangeAfterASuspensionBeyondTheEnd)
{
    timers->startCountDownTimer(en0);
    pass(10s);
    scheduler.setClock(8h);
    pass(0s);
    EXPECT_EQ(started(), 2);
    pass(119s);
    EXPECT_TRUE(changes().isEmpty());
    pass(1s);
    EXPECT_EQ(changes().size(), 1);
}

TEST_F(CountdownTimersUnwatched, PausedShowWhatWasLeftAndGoOnFromThere)
{
    timers->startCountDownTimer(en0);
    pass(30s);
    timers->pauseCountdownTimer(en0);
    EXPECT_EQ(wakeUpsWithin(1h), 0);
    EXPECT_TRUE(changes().isEmpty());
    timers->setWatched(true);
    EXPECT_EQ(display(en0), in + u"00:01:30 (paused)"_s);
    timers->setWatched(false);

    timers->resumeCountdownTimer(en0);
    pass(89s);
    EXPECT_TRUE(changes().isEmpty());
    pass(2s);
    EXPECT_EQ(changes().size(), 1) << "give or take a second";
}

TEST_F(CountdownTimersUnwatched, OfNoLengthStartAgainEverySecond)
{
    ruleSays(en0, 0);
    timers->startCountDownTimer(en0);
    pass(3s);
    EXPECT_EQ(started(), 4);
    EXPECT_TRUE(changes().isEmpty());
}

TEST_F(CountdownTimersUnwatched, LeftJustBeforeTheEndStillChange)
{
    timers->startCountDownTimer(en0);
    timers->setWatched(true);
    pass(119s + 700ms);
    timers->setWatched(false);
    pass(1s);
    EXPECT_EQ(changes().size(), 1);
}

TEST_F(CountdownTimersUnwatched, StoppedLeaveNothingToWait)
{
    timers->startCountDownTimer(en0);
    timers->stopCountdownTimer(en0);
    EXPECT_FALSE(scheduler.hasTimers());
    timers->startCountDownTimer(en0);
    timers.reset();
    EXPECT_FALSE(scheduler.hasTimers());
}

} // namespace
} // namespace quillon::test
