// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/DateStamp.h"

#include "fakes/QtPrinting.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

/// With a plain blank before "PM": newer locale data have a narrow one that does not break there.
QString stampIn(const char *locale)
{
    const QDateTime moment(QDate(2026, 11, 5), QTime(14, 7, 59), Qt::UTC);
    return mediumDateShortTime(moment, QLocale(QString::fromLatin1(locale)))
        .replace(QChar(0x202f), u' ');
}

TEST(DateStamp, HasAShortMonthNoWeekdayAndNoSeconds)
{
    EXPECT_EQ(stampIn("en_US"), "Nov 5, 2026, 2:07 PM"_L1);
    EXPECT_EQ(stampIn("en_GB"), "5 Nov 2026, 14:07"_L1);
    EXPECT_EQ(stampIn("de_DE"), "5. Nov. 2026, 14:07"_L1);
    EXPECT_EQ(stampIn("fr_FR"), "5 nov. 2026, 14:07"_L1);
    EXPECT_EQ(stampIn("C"), "5 Nov 2026, 14:07"_L1);
}

TEST(DateStamp, HoursMayBeCountedAsElsewhere)
{
    const QDateTime moment(QDate(2026, 10, 5), QTime(14, 7, 59), Qt::UTC);
    EXPECT_EQ(mediumDateShortTime(moment, QLocale(u"en_US"_s), QLocale(u"de_DE"_s)),
        u"Oct 5, 2026, 14:07"_s);
}

TEST(DateStamp, NamesNoWeekdayInAnyLanguage)
{
    for (const QLocale &locale :
        QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory)) {
        const QDateTime moment(QDate(2026, 11, 5), QTime(14, 7), Qt::UTC);
        const QString stamp = mediumDateShortTime(moment, locale);
        EXPECT_FALSE(stamp.isEmpty()) << locale.name().toStdString();
        EXPECT_FALSE(stamp.contains(locale.dayName(4, QLocale::LongFormat)))
            << locale.name().toStdString() << ": " << stamp.toStdString();
    }
}

} // namespace
} // namespace quillon::test
