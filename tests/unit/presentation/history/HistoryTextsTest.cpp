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

TEST_F(HistoryTextsTest, ASentenceStaysOneHoweverLongItsNamesAre)
{
    Connection record = insert(1);
    record.setInterface(QString(5000, u'i'));
    record.setDevice(QString(5000, u'd'));
    record.setSsid(QString(5000, u's'));
    EXPECT_LT(sentenceOf(record, QString(5000, u'a')).size(), 280);
    EXPECT_EQ(shortened(QString(60, u'x')), QString(60, u'x'));
    EXPECT_EQ(shortened(QString(61, u'x')), QString(59, u'x') + u'…');
    // A character of two units is not cut in its middle.
    EXPECT_EQ(shortened(QString(58, u'x') + u"\U0001F3E0 and more"_s), QString(58, u'x') + u'…');
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
