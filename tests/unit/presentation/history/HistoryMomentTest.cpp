// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/history/HistoryMoment.h"

#include "base/Languages.h"
#include "fakes/QtPrinting.h"

#include <QLocale>
#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;

class HistoryMomentTest : public ::testing::Test
{
protected:
    HistoryMomentTest() { live("UTC"); }
    ~HistoryMomentTest() override
    {
        wasSet ? qputenv("TZ", before) : qunsetenv("TZ");
        tzset();
        QLocale::setDefault(locale);
    }
    static void live(const char *zone)
    {
        qputenv("TZ", zone);
        tzset();
    }
    static QDateTime at(const QString &iso) { return QDateTime::fromString(iso, Qt::ISODate); }

    const bool wasSet = qEnvironmentVariableIsSet("TZ");
    const QByteArray before = qgetenv("TZ");
    const QLocale locale;
    const QDateTime now = at(u"2026-11-23T15:00:00Z"_s);
};

TEST_F(HistoryMomentTest, SaysTodayYesterdayAndElseTheDay)
{
    EXPECT_EQ(momentText(at(u"2026-11-23T14:02:59Z"_s), now), u"Today 14:02"_s);
    EXPECT_EQ(momentText(at(u"2026-11-23T00:00:00Z"_s), now), u"Today 00:00"_s);
    EXPECT_EQ(momentText(at(u"2026-11-22T18:47:00Z"_s), now), u"Yesterday 18:47"_s);
    EXPECT_EQ(momentText(at(u"2026-11-22T00:00:00Z"_s), now), u"Yesterday 00:00"_s);
    EXPECT_EQ(momentText(at(u"2026-11-21T23:59:59Z"_s), now), u"Nov 21, 2026 23:59"_s);
    EXPECT_EQ(momentText(at(u"2026-11-24T08:01:00Z"_s), now), u"Nov 24, 2026 08:01"_s)
        << "the clock was set back since";
}

TEST_F(HistoryMomentTest, DaysAreThoseOfTheUsersZone)
{
    live("Asia/Tokyo");
    // Half past midnight of the 24th there.
    const QDateTime night = at(u"2026-11-23T15:30:00Z"_s);
    EXPECT_EQ(momentText(at(u"2026-11-23T15:10:00Z"_s), night), u"Today 00:10"_s);
    EXPECT_EQ(momentText(at(u"2026-11-23T14:50:00Z"_s), night), u"Yesterday 23:50"_s);
    EXPECT_EQ(nextMidnight(night), at(u"2026-11-24T15:00:00Z"_s));
}

TEST_F(HistoryMomentTest, MidnightIsLocalAlsoWhereClocksChange)
{
    EXPECT_EQ(nextMidnight(now), at(u"2026-11-24T00:00:00Z"_s));
    EXPECT_EQ(nextMidnight(at(u"2026-11-24T00:00:00Z"_s)), at(u"2026-11-25T00:00:00Z"_s));
    live("Europe/Berlin");
    // A day of 25 hours.
    EXPECT_EQ(nextMidnight(at(u"2026-10-24T22:30:00Z"_s)), at(u"2026-10-25T23:00:00Z"_s));
}

TEST_F(HistoryMomentTest, TheLocaleSaysHowHoursAreCounted)
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_EQ(momentText(at(u"2026-11-23T14:02:00Z"_s), now), u"Today 2:02 PM"_s);
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(momentText(at(u"2026-11-23T14:02:00Z"_s), now), u"Today 14:02"_s);
    QLocale::setDefault(QLocale(QLocale::Finnish, QLocale::Finland));
    EXPECT_EQ(momentText(at(u"2026-11-23T08:02:00Z"_s), now), u"Today 8.02"_s);
    QLocale::setDefault(QLocale::c());
    EXPECT_EQ(momentText(at(u"2026-11-23T08:02:00Z"_s), now), u"Today 08:02"_s)
        << "its short form has seconds";
}

TEST_F(HistoryMomentTest, ASentenceHasTheMonthNamesOfItsLanguage)
{
    const QDateTime october = at(u"2026-10-21T14:02:00Z"_s);
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(momentText(october, now), u"Oct 21, 2026 14:02"_s) << "English texts, German formats";
    EXPECT_TRUE(momentInFull(october).startsWith(u"Wednesday, October 21, 2026 14:02:00"_s))
        << momentInFull(october).toStdString();
    const UserLanguage german({u"de"_s});
    EXPECT_EQ(momentText(october, now), u"21. Okt. 2026 14:02"_s);
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Austria));
    EXPECT_EQ(momentText(at(u"2026-01-05T08:01:00Z"_s), now), u"5. Jän. 2026 08:01"_s)
        << "the language as it is written there";
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_EQ(momentText(october, now), u"21. Okt. 2026 2:02 PM"_s);
    EXPECT_EQ(momentText(at(u"2026-11-23T14:02:00Z"_s), now), u"Heute 2:02 PM"_s);
    EXPECT_TRUE(momentInFull(october).startsWith(u"Mittwoch, 21. Oktober 2026 2:02:00"_s))
        << momentInFull(october).toStdString();
}

TEST_F(HistoryMomentTest, InFullItHasDayAndSeconds)
{
    const QString full = momentInFull(at(u"2026-11-23T14:02:59Z"_s));
    EXPECT_TRUE(full.contains(u"2026"_s)) << full.toStdString();
    EXPECT_TRUE(full.contains(u"14:02:59"_s)) << full.toStdString();
}

TEST_F(HistoryMomentTest, NoMomentIsNoText)
{
    EXPECT_EQ(momentText({}, now), QString());
    EXPECT_EQ(momentInFull({}), QString());
}

} // namespace quillon::test
