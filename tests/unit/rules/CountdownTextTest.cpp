// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/CountdownText.h"

#include "fakes/QtPrinting.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

const QDateTime start = QDateTime::fromMSecsSinceEpoch(1'750'000'000'000, Qt::UTC);

qint64 remainingAfter(int interval, qint64 milliseconds)
{
    return generateTimerCountdownStringForStartDateAndInterval(
        start, interval, start.addMSecs(milliseconds))
        .remaining;
}

TEST(CountdownTextTest, TellsHoursMinutesAndSeconds)
{
    EXPECT_EQ(countdownTime(3725), u"01:02:05"_s);
    EXPECT_EQ(countdownTime(0), u"00:00:00"_s);
    EXPECT_EQ(countdownTime(59), u"00:00:59"_s);
    EXPECT_EQ(countdownTime(60), u"00:01:00"_s);
    EXPECT_EQ(countdownTime(3600), u"01:00:00"_s);
}

TEST(CountdownTextTest, HundredHoursAndMoreTakeMoreDigits)
{
    EXPECT_EQ(countdownTime(360'000), u"100:00:00"_s);
    EXPECT_EQ(countdownTime(32767 * 60), u"546:07:00"_s);
    EXPECT_EQ(countdownTime(36'000'001), u"10000:00:01"_s);
}

TEST(CountdownTextTest, EveryPartOfANegativeTimeIsNegative)
{
    EXPECT_EQ(countdownTime(-5), u"00:00:-5"_s);
    EXPECT_EQ(countdownTime(-60), u"00:-1:00"_s);
    EXPECT_EQ(countdownTime(-3725), u"-1:-2:-5"_s);
}

TEST(CountdownTextTest, FractionsAreCutOffTowardsZeroOnBothSides)
{
    EXPECT_EQ(remainingAfter(2, 0), 120);
    EXPECT_EQ(remainingAfter(2, 1), 119) << "a fraction of a second has passed";
    EXPECT_EQ(remainingAfter(2, 1000), 119);
    EXPECT_EQ(remainingAfter(2, 119'000), 1);
    EXPECT_EQ(remainingAfter(2, 119'001), 0);
    EXPECT_EQ(remainingAfter(2, 120'000), 0);
    EXPECT_EQ(remainingAfter(2, 120'999), 0) << "less than a second late is not late";
    EXPECT_EQ(remainingAfter(2, 121'000), -1);
    EXPECT_EQ(remainingAfter(2, 180'500), -60);
}

TEST(CountdownTextTest, AClockThatWasSetBackGivesMoreThanTheInterval)
{
    EXPECT_EQ(remainingAfter(1, -3'600'000), 3660);
}

TEST(CountdownTextTest, WithoutLengthTheTimePassedIsMissing)
{
    EXPECT_EQ(remainingAfter(0, 0), 0);
    EXPECT_EQ(remainingAfter(0, 999), 0);
    EXPECT_EQ(remainingAfter(0, 1000), -1);
    EXPECT_EQ(remainingAfter(-3, 0), -180);
}

TEST(CountdownTextTest, TheLongestAndTheMostDistantDoNotOverflow)
{
    EXPECT_EQ(remainingAfter(2'147'483'647, 0), 128'849'018'820);
    const CountdownText text = generateTimerCountdownStringForStartDateAndInterval(
        QDateTime(QDate(1, 1, 1), QTime(0, 0), Qt::UTC), 1,
        QDateTime(QDate(9999, 12, 31), QTime(0, 0), Qt::UTC));
    EXPECT_EQ(text.remaining, 60 - 315'537'811'200);
}

TEST(CountdownTextTest, IsShownInASentence)
{
    const CountdownText text =
        generateTimerCountdownStringForStartDateAndInterval(start, 2, start.addMSecs(3));
    EXPECT_EQ(text.displayString, u"...changing MAC Address in 00:01:59"_s);
    EXPECT_EQ(text, (CountdownText{119, text.displayString}));
}

} // namespace
} // namespace quillon::test
