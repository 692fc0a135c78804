// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/Countdown.h"

#include "fakes/QtPrinting.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using namespace std::chrono_literals;

class CountdownTest : public ::testing::Test
{
protected:
    CountdownTest()
    {
        countdown.startDate = start;
        countdown.interval = 5;
        countdown.number = 7;
    }

    QDateTime after(qint64 seconds) const { return start.addSecs(seconds); }

    const QDateTime start = QDateTime(QDate(2026, 11, 23), QTime(12, 0), Qt::UTC);
    Countdown countdown;
};

TEST_F(CountdownTest, UnseenItActsInTheMiddleOfItsLastSecond)
{
    EXPECT_EQ(countdown.nextAct(after(10), 1000ms), after(300).addMSecs(-500));
    EXPECT_EQ(countdown.nextAct(after(400), 1000ms), after(400).addMSecs(500)) << "it is late";
    countdown.pausedRemaining = 12;
    EXPECT_EQ(countdown.nextAct(after(10), 1000ms), std::nullopt);
}

TEST_F(CountdownTest, UnseenItActsAtTheNextTickWhereThereIsSomethingToSay)
{
    countdown.interval = 1;
    EXPECT_EQ(countdown.nextAct(after(10), 1000ms), after(11));
    countdown.minuteWarningGiven = true;
    EXPECT_EQ(countdown.nextAct(after(10), 1000ms), after(60).addMSecs(-500));
    countdown.interval = 0;
    EXPECT_EQ(countdown.nextAct(after(10), 1000ms), after(11));
}

TEST_F(CountdownTest, PausedItKeepsWhatItShowsAndWhatIsLeft)
{
    countdown.showTime(u"four"_s, after(60));
    countdown.pausedRemaining = countdown.textAt(after(60)).remaining;
    for (const qint64 later : {61, 100, 1000}) {
        countdown.showTime(u"less"_s, after(later));
        EXPECT_EQ(countdown.display, u"four (paused)"_s) << "marked once";
        EXPECT_EQ(countdown.textAt(after(later + 1)).remaining, 240);
    }
    EXPECT_NE(countdown.startDate, start);
}

TEST_F(CountdownTest, OnlyOneOfAMinuteWarnsAndOnce)
{
    EXPECT_FALSE(countdown.takeMinuteWarning(60));
    countdown.interval = 1;
    EXPECT_FALSE(countdown.takeMinuteWarning(61));
    EXPECT_FALSE(countdown.takeMinuteWarning(0));
    countdown.pausedRemaining = 59;
    EXPECT_FALSE(countdown.takeMinuteWarning(59));
    countdown.pausedRemaining.reset();
    EXPECT_TRUE(countdown.takeMinuteWarning(59));
    EXPECT_FALSE(countdown.takeMinuteWarning(58));
}

TEST_F(CountdownTest, AsAPropertyListItHasWhatThereIs)
{
    EXPECT_EQ(countdown.asPropertyList(),
        (QVariantMap{{u"startDate"_s, start}, {u"interval"_s, 5LL}, {u"timer"_s, 7LL}}));
    countdown.hasMenuItem = true;
    countdown.pausedRemaining = 240;
    countdown.display = u"four"_s;
    const QVariantMap list = countdown.asPropertyList();
    EXPECT_EQ(list.value(u"isPaused"_s).toMap(), (QVariantMap{{u"remaining"_s, 240LL}}));
    EXPECT_EQ(list.value(u"label"_s).toMap(),
        (QVariantMap{{u"display"_s, u"four"_s}, {u"menu"_s, countdownMenuTitle(u"four"_s)}}));
}

} // namespace
} // namespace quillon::test
