// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/SyncSchedule.h"

#include "fakes/FakeScheduler.h"
#include "platform/RandomSource.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace std::chrono_literals;
namespace {

using Look = SyncRound::Look;

/// In the middle of all bytes: nothing is longer or shorter than it says.
class Even : public RandomSource
{
public:
    QByteArray bytes(int count) override { return QByteArray(count, value); }

    char value = char(128);
};

class SyncScheduleTest : public ::testing::Test
{
protected:
    SyncScheduleTest() { schedule.start(); }

    /// Lets the round that runs end so.
    void end(const SyncOutcome &outcome = {})
    {
        ASSERT_TRUE(done);
        std::exchange(done, {})(outcome);
    }
    void endAfterListing(bool wantsListing = false)
    {
        SyncOutcome outcome;
        outcome.hasListed = true;
        outcome.wantsListing = wantsListing;
        end(outcome);
    }
    void fail(CloudProblem problem = CloudProblem::Unreachable)
    {
        SyncOutcome outcome;
        outcome.error = CloudError{problem, {}};
        end(outcome);
    }
    bool isRunning() const { return bool(done); }
    /// The first round is over.
    void settle()
    {
        scheduler.runPending();
        endAfterListing();
    }

    FakeScheduler scheduler;
    Even random;
    QList<Look> looks;
    SyncRound::Done done;
    SyncSchedule schedule{scheduler, random, [this](Look look, SyncRound::Done whenDone) {
                              EXPECT_FALSE(done); // one at a time
                              looks.append(look);
                              done = std::move(whenDone);
                          }};
};

TEST_F(SyncScheduleTest, LooksAtEverythingAtTheStartAndPollsThen)
{
    scheduler.runPending();
    EXPECT_EQ(looks, QList<Look>{Look::Listing});
    endAfterListing();
    scheduler.advance(3min - 1ms);
    EXPECT_EQ(looks.size(), 1);
    scheduler.advance(1ms);
    EXPECT_EQ(looks, (QList<Look>{Look::Listing, Look::Head}));
}

TEST_F(SyncScheduleTest, EveryTenthPollLists)
{
    settle();
    for (int i = 0; i < 20; ++i) {
        scheduler.advance(3min);
        if (looks.last() == Look::Listing) {
            endAfterListing();
        } else {
            end();
        }
    }
    EXPECT_EQ(looks.count(Look::Listing), 3);
    EXPECT_EQ(looks[10], Look::Listing);
    EXPECT_EQ(looks[20], Look::Listing);
}

TEST_F(SyncScheduleTest, EditsAreGatheredForAShortTime)
{
    settle();
    schedule.edited();
    scheduler.advance(1s);
    schedule.edited();
    scheduler.advance(1999ms);
    EXPECT_FALSE(isRunning());
    scheduler.advance(1ms);
    EXPECT_TRUE(isRunning());
}

TEST_F(SyncScheduleTest, WhoEditsWithoutPauseIsSentAllTheSame)
{
    settle();
    for (int i = 0; i < 10; ++i) {
        schedule.edited();
        scheduler.advance(1s);
    }
    EXPECT_TRUE(isRunning());
}

TEST_F(SyncScheduleTest, EditDuringARoundIsSentByTheNext)
{
    settle();
    schedule.edited();
    scheduler.advance(2s);
    schedule.edited();
    scheduler.advance(1min);
    EXPECT_EQ(looks.size(), 2);
    end();
    scheduler.runPending();
    EXPECT_EQ(looks.size(), 3);
}

TEST_F(SyncScheduleTest, FailuresAreTriedAgainEverMoreRarely)
{
    scheduler.runPending();
    fail();
    for (const auto wait : {30s, 60s, 120s, 240s}) {
        scheduler.advance(wait - 1ms);
        EXPECT_FALSE(isRunning());
        schedule.edited(); // no reason to ask more often
        scheduler.advance(1ms);
        ASSERT_TRUE(isRunning());
        EXPECT_EQ(looks.last(), Look::Listing);
        fail();
    }
    for (int i = 0; i < 20; ++i) {
        scheduler.advance(1h);
        ASSERT_TRUE(isRunning());
        fail();
    }
    scheduler.advance(1h);
    endAfterListing();
    scheduler.advance(3min);
    EXPECT_TRUE(isRunning());
}

TEST_F(SyncScheduleTest, TimesAreVaried)
{
    scheduler.runPending();
    random.value = 0;
    endAfterListing();
    scheduler.advance(163s);
    EXPECT_TRUE(isRunning());
    random.value = char(255);
    end();
    scheduler.advance(197s);
    EXPECT_FALSE(isRunning());
    scheduler.advance(1s);
    EXPECT_TRUE(isRunning());
}

TEST_F(SyncScheduleTest, NothingIsAskedWhileOffline)
{
    settle();
    schedule.setOnline(false);
    schedule.edited();
    scheduler.advance(24h);
    EXPECT_EQ(looks.size(), 1);
    EXPECT_FALSE(scheduler.hasTimers());
    schedule.setOnline(true);
    scheduler.runPending();
    EXPECT_TRUE(isRunning());
}

TEST_F(SyncScheduleTest, BeingOnlineAgainForgetsFailures)
{
    scheduler.runPending();
    fail();
    schedule.setOnline(false);
    schedule.setOnline(true);
    scheduler.runPending();
    EXPECT_TRUE(isRunning());
}

TEST_F(SyncScheduleTest, OnlyEditsAreSentWhileTheBatteryIsSaved)
{
    settle();
    schedule.setSavingBattery(true);
    scheduler.advance(24h);
    EXPECT_EQ(looks.size(), 1);
    schedule.edited();
    scheduler.advance(2s);
    EXPECT_EQ(looks.size(), 2);
    fail();
    scheduler.advance(30s);
    EXPECT_EQ(looks.size(), 3);
    end();
    scheduler.advance(24h);
    EXPECT_EQ(looks.size(), 3);
    schedule.setSavingBattery(false);
    scheduler.runPending();
    EXPECT_EQ(looks.size(), 4);
}

TEST_F(SyncScheduleTest, WrongPasswordWaitsForAPerson)
{
    scheduler.runPending();
    fail(CloudProblem::WrongPassword);
    schedule.edited();
    scheduler.advance(24h);
    EXPECT_EQ(looks.size(), 1);
    schedule.lookNow();
    scheduler.runPending();
    EXPECT_EQ(looks.size(), 2);
    EXPECT_EQ(looks.last(), Look::Listing);
}

TEST_F(SyncScheduleTest, ListingThatIsWantedComesSoon)
{
    scheduler.runPending();
    endAfterListing(true);
    scheduler.advance(30s);
    EXPECT_EQ(looks.last(), Look::Listing);
    EXPECT_EQ(looks.size(), 2);
}

TEST_F(SyncScheduleTest, NothingRunsBeforeTheStart)
{
    SyncSchedule other(scheduler, random, [](Look, const SyncRound::Done &) { FAIL(); });
    other.edited();
    settle();
    scheduler.advance(1min);
    EXPECT_FALSE(isRunning());
}

} // namespace
} // namespace quillon::test
