// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "unit/updates/UpdaterFixture.h"
#include "updates/Updater.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr auto day = 24h;

/// When it looks by itself.
class UpdaterScheduleTest : public UpdaterFixture
{
protected:
    void optIn() { settings.setBool(keys::SUEnableAutomaticChecks, true); }
};

TEST_F(UpdaterScheduleTest, NotAtAllUnlessTheUserWantsIt)
{
    start();
    scheduler.advance(day * 100);
    EXPECT_EQ(requests(), 0);
    EXPECT_EQ(scheduler.wakeUps(), 0);
    EXPECT_EQ(reachability.questions, 0);
}

TEST_F(UpdaterScheduleTest, OnceEachIntervalWithOneWakeUp)
{
    optIn();
    serve("4.0.0");
    start();
    scheduler.runPending();
    EXPECT_EQ(requests(), 0) << "while the program starts";
    scheduler.advance(1min);
    EXPECT_EQ(requests(), 1);
    scheduler.advance(day * 7 - 2min);
    EXPECT_EQ(requests(), 1);
    const int before = scheduler.wakeUps();
    scheduler.advance(3min);
    EXPECT_EQ(requests(), 2);
    // The alarm, the answer.
    EXPECT_LE(scheduler.wakeUps() - before, 2);
    scheduler.advance(day * 70);
    EXPECT_EQ(requests(), 12);
}

TEST_F(UpdaterScheduleTest, NoSoonerAfterARestart)
{
    optIn();
    serve("4.0.0");
    start();
    scheduler.advance(2min);
    EXPECT_EQ(requests(), 1);
    for (int run = 0; run < 6; ++run) {
        restart();
        scheduler.advance(day);
    }
    EXPECT_EQ(requests(), 1);
    restart();
    scheduler.advance(day);
    EXPECT_EQ(requests(), 2);
}

TEST_F(UpdaterScheduleTest, AsSoonAsTheUserWantsIt)
{
    start();
    scheduler.advance(1h);
    serve("4.1");
    optIn();
    scheduler.runPending();
    EXPECT_EQ(requests(), 1);
    EXPECT_EQ(offered(), u"4.1"_s);
}

TEST_F(UpdaterScheduleTest, NoMoreOnceTheUserOptsOut)
{
    optIn();
    start();
    settings.setBool(keys::SUEnableAutomaticChecks, false);
    EXPECT_FALSE(scheduler.hasTimers());
    scheduler.advance(day * 30);
    EXPECT_EQ(requests(), 0);
}

TEST_F(UpdaterScheduleTest, OptingOutEndsALookThatIsUnderWay)
{
    optIn();
    start();
    scheduler.advance(1min);
    ASSERT_TRUE(updater->isChecking());
    settings.setBool(keys::SUEnableAutomaticChecks, false);
    EXPECT_FALSE(updater->isChecking());
    EXPECT_EQ(http.cancelled().size(), 1);
    // But not one that the user asked for.
    updater->checkForUpdates();
    optIn();
    settings.setBool(keys::SUEnableAutomaticChecks, false);
    EXPECT_TRUE(updater->isChecking());
}

TEST_F(UpdaterScheduleTest, SwitchingItOnAndOffBringsNoMoreThanOneAnHour)
{
    start();
    scheduler.advance(1h);
    serve("4.0.0");
    for (int turn = 0; turn < 11; ++turn) {
        optIn();
        settings.set(keys::SUScheduledCheckInterval, turn % 2 == 0 ? 1 : 604800);
        settings.set(keys::updateCheckDate, QVariant());
        scheduler.advance(5min);
        settings.setBool(keys::SUEnableAutomaticChecks, false);
    }
    EXPECT_EQ(requests(), 1);
}

TEST_F(UpdaterScheduleTest, AnotherIntervalCountsFromTheLastLook)
{
    optIn();
    serve("4.0.0");
    start();
    scheduler.advance(day * 3);
    EXPECT_EQ(requests(), 1);
    settings.set(keys::SUScheduledCheckInterval, 86400);
    scheduler.runPending();
    EXPECT_EQ(requests(), 2);
    settings.set(keys::SUScheduledCheckInterval, 2592000);
    scheduler.advance(day * 29);
    EXPECT_EQ(requests(), 2);
    scheduler.advance(day);
    EXPECT_EQ(requests(), 3);
}

TEST_F(UpdaterScheduleTest, TheClockThatIsSetBringsNoneWithinTheHour)
{
    optIn();
    serve("4.0.0");
    start();
    scheduler.advance(2min);
    ASSERT_EQ(requests(), 1);
    for (int turn = 0; turn < 5; ++turn) {
        scheduler.setClock(turn % 2 == 0 ? day * 365 : -day * 365);
        scheduler.advance(10min);
        updater->networkChanged();
        scheduler.runPending();
        EXPECT_EQ(requests(), 1);
    }
    scheduler.advance(15min);
    EXPECT_EQ(requests(), 2);
}

TEST_F(UpdaterScheduleTest, AClockThatWasFarAheadDoesNotSilenceItForEver)
{
    optIn();
    scheduler.setClock(day * 3650);
    serve("4.0.0");
    start();
    scheduler.advance(2min);
    ASSERT_EQ(requests(), 1);
    scheduler.setClock(-day * 3650);
    scheduler.advance(day);
    updater->networkChanged();
    scheduler.advance(1h);
    EXPECT_EQ(requests(), 2);
    // Nor after a restart.
    scheduler.setClock(-day * 365);
    restart();
    scheduler.advance(61min);
    EXPECT_EQ(requests(), 3);
}

TEST_F(UpdaterScheduleTest, WaitsForTheInternetWithoutWakingUp)
{
    optIn();
    serve("4.0.0");
    reachability.reachable = false;
    start();
    scheduler.advance(2min);
    EXPECT_EQ(requests(), 0);
    const int before = scheduler.wakeUps();
    scheduler.advance(day * 30);
    updater->networkChanged();
    EXPECT_EQ(requests(), 0);
    EXPECT_EQ(scheduler.wakeUps(), before);
    reachability.reachable = true;
    updater->networkChanged();
    EXPECT_EQ(requests(), 1);
    updater->networkChanged();
    scheduler.runPending();
    updater->networkChanged();
    EXPECT_EQ(requests(), 1);
}

TEST_F(UpdaterScheduleTest, OptingOutMeanwhileEndsTheWait)
{
    optIn();
    reachability.reachable = false;
    start();
    scheduler.advance(2min);
    settings.setBool(keys::SUEnableAutomaticChecks, false);
    reachability.reachable = true;
    updater->networkChanged();
    scheduler.advance(day);
    EXPECT_EQ(requests(), 0);
}

TEST_F(UpdaterScheduleTest, TriesAgainTheNextDayAfterAFailure)
{
    optIn();
    http.refuse(source.feed, {httpErrorDomain, 3, u"no such host"_s});
    start();
    scheduler.advance(2min);
    EXPECT_EQ(requests(), 1);
    serve("4.1");
    scheduler.advance(day);
    EXPECT_EQ(requests(), 2);
    EXPECT_EQ(offered(), u"4.1"_s);
    scheduler.advance(day * 6);
    EXPECT_EQ(requests(), 2);
}

TEST_F(UpdaterScheduleTest, AFailureIsTriedAgainTheNextDayAfterARestartToo)
{
    optIn();
    http.refuse(source.feed, {httpErrorDomain, 3, u"no such host"_s});
    start();
    scheduler.advance(2min);
    EXPECT_EQ(requests(), 1);
    // A machine that is used for an hour each morning, and whose network comes late.
    for (int morning = 2; morning < 5; ++morning) {
        updater.reset();
        scheduler.advance(day);
        start();
        scheduler.advance(2min);
        EXPECT_EQ(requests(), morning);
    }
    serve("4.1");
    updater.reset();
    scheduler.advance(day);
    start();
    scheduler.advance(2min);
    EXPECT_EQ(offered(), u"4.1"_s);
    restart();
    scheduler.advance(day * 6);
    EXPECT_EQ(requests(), 5);
}

TEST_F(UpdaterScheduleTest, NoMoreThanOneAnHourHoweverOftenItIsStarted)
{
    optIn();
    settings.set(keys::SUScheduledCheckInterval, 1);
    serve("4.0.0");
    start();
    scheduler.advance(2min);
    ASSERT_EQ(requests(), 1);
    for (int run = 0; run < 11; ++run) {
        restart();
        scheduler.advance(5min);
    }
    EXPECT_EQ(requests(), 1);
    // Nor where the clock is set back meanwhile.
    updater.reset();
    scheduler.setClock(-24h);
    start();
    scheduler.advance(59min);
    EXPECT_EQ(requests(), 1);
    scheduler.advance(2min);
    EXPECT_EQ(requests(), 2);
}

TEST_F(UpdaterScheduleTest, ALookByHandCountsToo)
{
    optIn();
    serve("4.0.0");
    start();
    checkByHand();
    EXPECT_EQ(requests(), 1);
    scheduler.advance(day * 7 - 1min);
    EXPECT_EQ(requests(), 1);
    scheduler.advance(1min);
    EXPECT_EQ(requests(), 2);
}

TEST_F(UpdaterScheduleTest, TellsOfANewVersionOnceAndNotEachDay)
{
    optIn();
    settings.set(keys::SUScheduledCheckInterval, 86400);
    serve("4.1");
    start();
    scheduler.advance(day * 10);
    EXPECT_GE(requests(), 10);
    EXPECT_EQ(notifier.questionsEver, 1);
    restart();
    scheduler.advance(day * 2);
    EXPECT_EQ(notifier.questionsEver, 1);
    serve("4.2", "2025-06-02T12:00:00Z");
    scheduler.advance(day);
    EXPECT_EQ(notifier.questionsEver, 2);
    EXPECT_THAT(center.opened, IsEmpty());
}

TEST_F(UpdaterScheduleTest, OpensThePageOnceWhereTheUserWantsThat)
{
    optIn();
    settings.setBool(keys::SUAutomaticallyUpdate, true);
    serve("4.1");
    start();
    scheduler.advance(day * 30);
    EXPECT_THAT(center.opened, ElementsAre(QUrl(u"https://pages.example/new"_s)));
}

TEST_F(UpdaterScheduleTest, NothingHappensBeforeTheStartHasEnded)
{
    optIn();
    create(source);
    updater->networkChanged();
    updater->settingsChanged();
    scheduler.advance(day);
    EXPECT_EQ(requests(), 0);
}

} // namespace
} // namespace quillon::test
