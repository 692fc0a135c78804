// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CountdownFixture.h"

using namespace std::chrono_literals;

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

const QString in = u"...changing MAC Address in "_s;

class CountdownPauseTest : public CountdownFixture
{
protected:
    /// Two minutes, paused when 90 seconds are left.
    CountdownPauseTest()
    {
        timers->startCountDownTimer(en0);
        pass(30s);
        timers->pauseCountdownTimer(en0);
    }
    QVariant pausedRemaining() const
    {
        return timer(en0).value(u"isPaused"_s).toMap().value(u"remaining"_s);
    }
};

TEST_F(CountdownPauseTest, RemembersWhatIsLeft)
{
    EXPECT_EQ(pausedRemaining(), QVariant(90));
    EXPECT_EQ(timer(en0).value(u"isPaused"_s).toMap().size(), 1);
    EXPECT_EQ(reset, 1);
}

TEST_F(CountdownPauseTest, FreezesTheTextMarkedOnce)
{
    for (int second = 0; second < 5; ++second) {
        pass(1s);
        EXPECT_EQ(display(en0), in + u"00:01:30 (paused)"_s);
        EXPECT_TRUE(shownAsPaused);
    }
}

TEST_F(CountdownPauseTest, GoesOnFromWhereItWasGiveOrTakeASecond)
{
    pass(10min);
    timers->resumeCountdownTimer(en0);
    EXPECT_FALSE(timer(en0).contains(u"isPaused"_s));
    EXPECT_EQ(reset, 2);
    pass(1s);
    EXPECT_EQ(display(en0), in + u"00:01:30"_s);
    EXPECT_FALSE(shownAsPaused);
    pass(89s);
    EXPECT_TRUE(changes().isEmpty());
    pass(1s);
    EXPECT_EQ(changes().size(), 1);
    EXPECT_EQ(started(), 2);
}

TEST_F(CountdownPauseTest, MovesItsStartWithEveryTick)
{
    pass(1s);
    const QDateTime moved = timer(en0).value(u"startDate"_s).toDateTime();
    EXPECT_EQ(scheduler.now().secsTo(moved), 90 - 120 + 1);
    pass(1s);
    EXPECT_EQ(moved.secsTo(timer(en0).value(u"startDate"_s).toDateTime()), 1);
}

TEST_F(CountdownPauseTest, NeitherChangesNorStartsAnewHoweverLong)
{
    pass(24h);
    EXPECT_TRUE(changes().isEmpty());
    EXPECT_EQ(started(), 1);
    EXPECT_EQ(pausedRemaining(), QVariant(90));
}

TEST_F(CountdownPauseTest, StaysPausedThroughASuspension)
{
    pass(1s);
    scheduler.setClock(8h);
    pass(1s);
    EXPECT_EQ(display(en0), in + u"00:01:30 (paused)"_s);
    EXPECT_TRUE(changes().isEmpty());
    timers->resumeCountdownTimer(en0);
    pass(1s);
    EXPECT_EQ(display(en0), in + u"00:01:30"_s);
}

TEST_F(CountdownPauseTest, StaysPausedWhenTheClockIsSetBack)
{
    scheduler.setClock(-8h);
    pass(2s);
    timers->resumeCountdownTimer(en0);
    pass(1s);
    EXPECT_EQ(display(en0), in + u"00:01:30"_s);
}

TEST_F(CountdownPauseTest, ResumedBeforeATickGoesOnByTheClock)
{
    pass(400ms);
    timers->resumeCountdownTimer(en0);
    pass(600ms);
    EXPECT_EQ(display(en0), in + u"00:01:29"_s);
}

TEST_F(CountdownPauseTest, PausedTwiceTellsTheLatterTime)
{
    pass(10s);
    timers->resumeCountdownTimer(en0);
    pass(30s);
    timers->pauseCountdownTimer(en0);
    pass(1s);
    EXPECT_EQ(display(en0), in + u"00:01:01 (paused)"_s);
}

TEST_F(CountdownPauseTest, IsNotPausedAnyMoreWhenItIsStartedAnew)
{
    timers->startCountDownTimer(en0);
    pass(1s);
    EXPECT_EQ(display(en0), in + u"00:01:59"_s);
    EXPECT_FALSE(shownAsPaused);
}

TEST_F(CountdownPauseTest, InItsLastSecondWaitsToBeResumed)
{
    timers->startCountDownTimer(en0);
    pass(119'500ms);
    timers->pauseCountdownTimer(en0);
    EXPECT_EQ(pausedRemaining(), QVariant(0));
    pass(1min);
    EXPECT_TRUE(changes().isEmpty());
    timers->resumeCountdownTimer(en0);
    pass(2s);
    EXPECT_EQ(changes().size(), 1);
}

TEST_F(CountdownPauseTest, BetweenItsZeroAndTheChangeMakesNone)
{
    timers->startCountDownTimer(en0);
    QObject::connect(
        timers.get(), &CountdownTimers::ticked, [this](const QString &, const QString &text) {
            if (text.endsWith(u"00:00:00"_s)) {
                scheduler.onMain([this] { timers->pauseCountdownTimer(en0); });
            }
        });
    pass(130s);
    EXPECT_TRUE(changes().isEmpty());
    EXPECT_EQ(pausedRemaining(), QVariant(0));
}

TEST_F(CountdownPauseTest, BeforeItsFirstTickShowsTheTime)
{
    timers->startCountDownTimer(en0);
    timers->pauseCountdownTimer(en0);
    pass(2s);
    EXPECT_EQ(display(en0), in + u"00:01:59 (paused)"_s);
}

TEST_F(CountdownPauseTest, OfOneMinuteDoesNotWarnWhileItWaits)
{
    ruleSays(en0, 1);
    timers->startCountDownTimer(en0);
    timers->pauseCountdownTimer(en0);
    pass(1min);
    EXPECT_EQ(warnings(), 0);
    timers->resumeCountdownTimer(en0);
    pass(1s);
    EXPECT_EQ(warnings(), 1);
}

TEST_F(CountdownPauseTest, OfAnInterfaceWithoutOneOnlyResetsTheButtons)
{
    timers->pauseCountdownTimer(en1);
    timers->resumeCountdownTimer(en1);
    EXPECT_EQ(reset, 3);
    EXPECT_EQ(timers->timers().keys(), QStringList{en0});
}

} // namespace
} // namespace quillon::test
