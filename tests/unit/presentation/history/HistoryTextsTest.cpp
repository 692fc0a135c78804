// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/history/HistoryTexts.h"

#include "unit/presentation/history/HistoryFixture.h"

#include <QLocale>

namespace quillon::test {

class HistoryTextsTest : public HistoryWindowFixture
{
};

TEST_F(HistoryTextsTest, ASentenceSaysAsMuchAsIsKnown)
{
    Connection record = insert(1);
    EXPECT_EQ(sentenceOf(record, u"02:AA"_s), u"Wi-Fi (wlp2s0) was given 02:AA on Harbor."_s);
    record.setSsid(u""_s);
    EXPECT_EQ(sentenceOf(record, u"02:AA"_s), u"Wi-Fi (wlp2s0) was given 02:AA."_s);
    record.setInterface(u""_s);
    EXPECT_EQ(sentenceOf(record, u"02:AA"_s), u"wlp2s0 was given 02:AA."_s);
}

TEST_F(HistoryTextsTest, APlaceholderInANameIsNotFilled)
{
    Connection record = insert(1);
    record.setSsid(u"%@ %d"_s);
    EXPECT_EQ(sentenceOf(record, u"02:AA"_s), u"Wi-Fi (wlp2s0) was given 02:AA on %@ %d."_s);
}

TEST_F(HistoryTextsTest, CountsAreWordsOfTheLocale)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_EQ(recordsText(0), u"0 records"_s);
    EXPECT_EQ(recordsText(1), u"1 record"_s);
    EXPECT_EQ(recordsText(1'000'000), u"1,000,000 records"_s);
    EXPECT_EQ(recordsText(6, 212), u"6 of 212 records"_s);
    EXPECT_EQ(recordsText(0, 1), u"0 of 1 record"_s);
    QLocale::setDefault(before);
}

} // namespace quillon::test
