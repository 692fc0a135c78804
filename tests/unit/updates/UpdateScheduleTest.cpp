// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "updates/UpdateSchedule.h"

#include "base/SettingsKeys.h"
#include "fakes/FakeScheduler.h"
#include "fakes/FakeSettingsStore.h"
#include "fakes/QtPrinting.h"

#include <gtest/gtest.h>

#include <limits>

namespace quillon::test {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
namespace {

constexpr qint64 minute = 60;
constexpr qint64 hour = 60 * minute;
constexpr qint64 day = 24 * hour;

class UpdateScheduleTest : public ::testing::Test
{
protected:
    UpdateScheduleTest() { settings.set(keys::SUScheduledCheckInterval, 7 * day); }

    /// Seconds from now.
    qint64 due() { return scheduler.now().secsTo(schedule.due()); }
    void lastRequestWas(qint64 secondsAgo)
    {
        settings.set(keys::updateCheckDate, scheduler.now().addSecs(-secondsAgo));
    }

    FakeScheduler scheduler;
    FakeSettingsStore settings{scheduler};
    UpdateSchedule schedule{settings, scheduler};
};

TEST_F(UpdateScheduleTest, TheFirstComesOnceTheProgramHasStarted)
{
    EXPECT_FALSE(schedule.lastRequest().isValid());
    schedule.begin();
    EXPECT_EQ(due(), minute);
    scheduler.advance(50s);
    EXPECT_EQ(due(), 10);
}

TEST_F(UpdateScheduleTest, TheNextComesOneIntervalLater)
{
    schedule.begin();
    scheduler.advance(2min);
    schedule.noteRequest();
    schedule.noteAnswer();
    EXPECT_EQ(schedule.lastRequest(), scheduler.now());
    EXPECT_EQ(due(), 7 * day);
    settings.set(keys::SUScheduledCheckInterval, day);
    EXPECT_EQ(due(), day);
    scheduler.advance(23h);
    EXPECT_EQ(due(), hour);
}

TEST_F(UpdateScheduleTest, GoesOnWhereAnEarlierRunEnded)
{
    lastRequestWas(6 * day);
    schedule.begin();
    EXPECT_EQ(due(), day);
    lastRequestWas(8 * day);
    EXPECT_EQ(due(), minute);
}

TEST_F(UpdateScheduleTest, ComesWithinADayAfterAFailure)
{
    schedule.noteRequest();
    EXPECT_EQ(due(), day);
    settings.set(keys::SUScheduledCheckInterval, 2 * hour);
    EXPECT_EQ(due(), 2 * hour);
    settings.set(keys::SUScheduledCheckInterval, 7 * day);
    schedule.noteAnswer();
    EXPECT_EQ(due(), 7 * day);
}

TEST_F(UpdateScheduleTest, AFailureOfAnEarlierRunIsOneStill)
{
    schedule.noteRequest();
    scheduler.advance(10h);
    UpdateSchedule next(settings, scheduler);
    next.begin();
    EXPECT_EQ(scheduler.now().secsTo(next.due()), 14 * hour);
    settings.set(keys::updateCheckFailed, u"no"_s);
    EXPECT_EQ(scheduler.now().secsTo(next.due()), 7 * day - 10 * hour) << "of another type";
}

TEST_F(UpdateScheduleTest, NorTwiceWithinAnHourAfterARestart)
{
    settings.set(keys::SUScheduledCheckInterval, 1);
    schedule.noteRequest();
    for (int run = 1; run < 6; ++run) {
        scheduler.advance(10min);
        UpdateSchedule next(settings, scheduler);
        next.begin();
        EXPECT_EQ(scheduler.now().secsTo(next.due()), hour - run * 10 * minute);
    }
}

TEST_F(UpdateScheduleTest, NorWhereTheClockWasSetBackBetweenTwoRuns)
{
    settings.set(keys::SUScheduledCheckInterval, 1);
    for (const std::chrono::minutes back : {5min, 50min, std::chrono::minutes(24h * 365)}) {
        schedule.noteRequest();
        scheduler.advance(10min);
        scheduler.setClock(-back);
        UpdateSchedule next(settings, scheduler);
        next.begin();
        EXPECT_GE(scheduler.now().secsTo(next.due()), 50 * minute);
        EXPECT_LE(scheduler.now().secsTo(next.due()), hour);
    }
}

TEST_F(UpdateScheduleTest, NeverComesTwiceWithinAnHourWhateverTheSettingsSay)
{
    schedule.begin();
    schedule.noteRequest();
    for (const qlonglong interval : {1LL, 59LL, 3599LL, 3600LL}) {
        settings.set(keys::SUScheduledCheckInterval, interval);
        EXPECT_EQ(due(), hour);
    }
    settings.set(keys::updateCheckDate, QVariant());
    EXPECT_EQ(due(), hour);
    lastRequestWas(30 * day);
    EXPECT_EQ(due(), hour);
    scheduler.advance(59min);
    EXPECT_EQ(due(), minute);
}

TEST_F(UpdateScheduleTest, WhatIsNoIntervalIsTheUsualOne)
{
    schedule.noteRequest();
    schedule.noteAnswer();
    for (const QVariant &interval : QVariantList{0, -1, std::numeric_limits<qlonglong>::min(),
             u"daily"_s, QVariant(), QVariantMap(), true, 0.5}) {
        settings.set(keys::SUScheduledCheckInterval, interval);
        EXPECT_GE(due(), hour);
        EXPECT_LE(due(), 7 * day);
    }
    settings.set(keys::SUScheduledCheckInterval, std::numeric_limits<qlonglong>::max());
    EXPECT_EQ(due(), 3650 * day);
    EXPECT_TRUE(schedule.due().isValid());
}

TEST_F(UpdateScheduleTest, AClockThatIsSetForwardBringsNoneWithinTheHour)
{
    schedule.noteRequest();
    scheduler.advance(10min);
    scheduler.setClock(24h * 365);
    EXPECT_EQ(due(), 50 * minute);
    scheduler.advance(50min);
    EXPECT_LE(due(), 0);
}

TEST_F(UpdateScheduleTest, AClockThatIsSetBackDelaysTheNextByAnHourAtMost)
{
    schedule.noteRequest();
    scheduler.advance(24h);
    EXPECT_FALSE(schedule.isClockBehind());
    scheduler.setClock(-24h * 365);
    EXPECT_TRUE(schedule.isClockBehind());
    EXPECT_EQ(due(), hour);
    scheduler.advance(40min);
    // However often one looks.
    EXPECT_EQ(due(), 20 * minute);
    scheduler.advance(20min);
    EXPECT_EQ(due(), 0);
    schedule.noteRequest();
    schedule.noteAnswer();
    EXPECT_FALSE(schedule.isClockBehind());
    EXPECT_EQ(due(), 7 * day);
}

TEST_F(UpdateScheduleTest, AClockThatGoesToAndFroBringsNoneWithinTheHour)
{
    schedule.noteRequest();
    for (int turn = 0; turn < 5; ++turn) {
        scheduler.advance(10min);
        scheduler.setClock(turn % 2 == 0 ? -24h * 30 : 24h * 60);
        EXPECT_GE(due(), (50 - 10 * turn) * minute);
    }
}

TEST_F(UpdateScheduleTest, ASettingFromTheFutureIsNotWaitedFor)
{
    lastRequestWas(-365 * day);
    schedule.begin();
    EXPECT_EQ(due(), hour);
}

TEST_F(UpdateScheduleTest, WhatIsNoMomentIsNone)
{
    schedule.begin();
    for (const QVariant &moment : QVariantList{7, u"2025-06-15T00:00:00Z"_s, QVariantMap(), true}) {
        settings.set(keys::updateCheckDate, moment);
        EXPECT_FALSE(schedule.lastRequest().isValid());
        EXPECT_EQ(due(), minute);
    }
}

} // namespace
} // namespace quillon::test
