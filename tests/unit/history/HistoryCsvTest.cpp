// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/HistoryCsv.h"

#include "fakes/QtPrinting.h"
#include "store/model/QuillonModel.h"

#include <QDateTime>
#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;

TEST(HistoryCsvTest, WhatNeedsNoQuotesHasNone)
{
    EXPECT_EQ(csvField(u""_s), "");
    EXPECT_EQ(csvField(u"Harbor Café; 1st floor"_s), "Harbor Café; 1st floor");
    EXPECT_EQ(csvField(u"62:68:66:48:DC:27"_s), "62:68:66:48:DC:27");
}

TEST(HistoryCsvTest, CommasQuotesAndLineBreaksAreQuoted)
{
    EXPECT_EQ(csvField(u"a,b"_s), "\"a,b\"");
    EXPECT_EQ(csvField(u"say \"hi\""_s), "\"say \"\"hi\"\"\"");
    EXPECT_EQ(csvField(u"two\nlines"_s), "\"two\nlines\"");
    EXPECT_EQ(csvField(u"two\r\nlines"_s), "\"two\r\nlines\"");
}

TEST(HistoryCsvTest, WhatWouldBeAFormulaBeginsWithAnApostrophe)
{
    EXPECT_EQ(csvField(u"=HYPERLINK(1)"_s), "'=HYPERLINK(1)");
    EXPECT_EQ(csvField(u"=cmd|' /C calc'!A0,1"_s), "\"'=cmd|' /C calc'!A0,1\"");
    EXPECT_EQ(csvField(u"+1"_s), "'+1");
    EXPECT_EQ(csvField(u"-1"_s), "'-1");
    EXPECT_EQ(csvField(u"@SUM(A1)"_s), "'@SUM(A1)");
    EXPECT_EQ(csvField(u"\tx"_s), "'\tx");
    EXPECT_EQ(csvField(u"\rx"_s), "\"'\rx\"");
    EXPECT_EQ(csvField(u"\nx"_s), "\"'\nx\"");
    EXPECT_EQ(csvField(u"a=b"_s), "a=b");
}

TEST(HistoryCsvTest, SpacesAndFullWidthAreNoWayAround)
{
    EXPECT_EQ(csvField(u"  =1"_s), "'  =1");
    EXPECT_EQ(csvField(u"\uFF1D1"_s), "'\uFF1D1");
    EXPECT_EQ(csvField(u"\uFF0B1"_s), "'\uFF0B1");
    EXPECT_EQ(csvField(u"\uFF0D1"_s), "'\uFF0D1");
    EXPECT_EQ(csvField(u"\uFF20A1"_s), "'\uFF20A1");
    EXPECT_EQ(csvField(u"   "_s), "   ");
    EXPECT_EQ(csvField(u" x"_s), " x");
}

TEST(HistoryCsvTest, WhereSemicolonsEndFieldsNothingIsAFormulaEither)
{
    EXPECT_EQ(csvField(u"x;=1"_s), "x;'=1");
    EXPECT_EQ(csvField(u"x; @A1"_s), "x;' @A1");
    EXPECT_EQ(csvField(u"x\t+1"_s), "x\t'+1");
    EXPECT_EQ(csvField(u"x\n-1"_s), "\"x\n'-1\"");
    EXPECT_EQ(csvField(u"x;'=1"_s), "x;''=1") << "so that it can be told apart";
    EXPECT_EQ(csvField(u"x;y"_s), "x;y");
}

TEST(HistoryCsvTest, WhatBeginsWithAnApostropheCanBeToldApart)
{
    EXPECT_EQ(csvField(u"'=1"_s), "''=1");
    EXPECT_EQ(csvField(u"'tis"_s), "''tis");
}

class HistoryCsvRowTest : public ::testing::Test
{
protected:
    void TearDown() override
    {
        wasSet ? qputenv("TZ", before) : qunsetenv("TZ");
        tzset();
    }
    static void live(const char *zone)
    {
        qputenv("TZ", zone);
        tzset();
    }

    const bool wasSet = qEnvironmentVariableIsSet("TZ");
    const QByteArray before = qgetenv("TZ");
    const Entity &entity = *quillonModel().entity(model::Connection);
    const QDateTime moment = QDateTime::fromMSecsSinceEpoch(1'600'000'000'007, Qt::UTC);
};

TEST_F(HistoryCsvRowTest, HasTheColumnsOfTheHeaderAndTheDateWithItsOffset)
{
    live("Europe/Berlin");
    EXPECT_EQ(csvHeader(), "Date,Interface,Device,Address,Network,BSSID,Notes\r\n");
    EXPECT_EQ(csvRow(entity, {moment, u"wlp2s0"_s, u"Wi-Fi"_s, u"62:68:66:48:DC:27"_s, u"Café"_s,
                                 u"a4:2b:b0:11:22:33"_s, u"=1+1"_s}),
        "2020-09-13T14:26:40.007+02:00,Wi-Fi,wlp2s0,62:68:66:48:DC:27,Café,a4:2b:b0:11:22:33,"
        "'=1+1\r\n");
    live("UTC");
    EXPECT_TRUE(
        csvRow(entity, {moment, {}, {}, {}, {}, {}, {}}).startsWith("2020-09-13T12:26:40.007"));
}

TEST_F(HistoryCsvRowTest, WhatIsMissingIsEmpty)
{
    EXPECT_EQ(csvRow(entity, {{}, {}, {}, {}, {}, {}, {}}), ",,,,,,\r\n");
}

} // namespace quillon::test
