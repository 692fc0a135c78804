// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Localized.h"

#include <QLocale>
#include <QStringList>
#include <gtest/gtest.h>

#include <limits>

namespace quillon {

using namespace Qt::StringLiterals;
namespace {

TEST(Localized, AnUnknownTextComesBackAsItIs)
{
    EXPECT_EQ(localized("Unknown..."), u"Unknown..."_s);
    EXPECT_EQ(localized(QString::fromUtf8("Größe “%@”")), QString::fromUtf8("Größe “%@”"));
}

TEST(LocalizedByNumber, EnglishHasAFormForOneAndOneForAllOthers)
{
    const auto deleted = [](qint64 count) {
        return localized("Record deleted", "%Ln records deleted", count);
    };
    EXPECT_EQ(deleted(1), u"Record deleted"_s);
    EXPECT_EQ(deleted(0), u"0 records deleted"_s);
    EXPECT_EQ(deleted(12), u"12 records deleted"_s);
    EXPECT_EQ(localized("%n net of %@", "%n nets of %@", 1), u"1 net of %@"_s);
    EXPECT_EQ(localized("%n net of %@", "%n nets of %@", 2), u"2 nets of %@"_s);
}

TEST(LocalizedByNumber, NumbersBeyondThoseThatCountThingsAreTheNearestThatDo)
{
    EXPECT_EQ(localized("%n net", "%n nets", -5), u"0 nets"_s);
    EXPECT_EQ(localized("%n net", "%n nets", std::numeric_limits<qint64>::max()),
        u"%1 nets"_s.arg(std::numeric_limits<int>::max()));
}

TEST(LocalizedByNumber, OnlyWhatIsMarkedForItIsWrittenAsTheLocaleDoes)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(localized("%Ln net", "%Ln nets", 10'000), u"10.000 nets"_s);
    EXPECT_EQ(localized("%n net", "%n nets", 10'000), u"10000 nets"_s);
    QLocale::setDefault(before);
}

TEST(LocalizedFilled, PlaceholdersAreFilledInOrder)
{
    EXPECT_EQ(filled(u"%@ now has %@."_s, {u"en0"_s, u"00:11"_s}), u"en0 now has 00:11."_s);
    EXPECT_EQ(filled(u"%d of %@%"_s, {u"1"_s, u"2"_s}), u"1 of 2%"_s);
}

TEST(LocalizedFilled, AValueIsNotFilledAgain)
{
    EXPECT_EQ(filled(u"%@ and %@"_s, {u"%@%d"_s, u"b"_s}), u"%@%d and b"_s);
}

TEST(LocalizedFilled, MissingValuesLeaveThePlaceholderAndExtraOnesAreIgnored)
{
    EXPECT_EQ(filled(u"%@ and %@"_s, {u"a"_s}), u"a and %@"_s);
    EXPECT_EQ(filled(u"plain %s %"_s, {u"a"_s}), u"plain %s %"_s);
    EXPECT_EQ(filled(QString(), {}), QString());
}

} // namespace
} // namespace quillon
