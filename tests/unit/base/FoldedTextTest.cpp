// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/FoldedText.h"

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;
namespace {

void expectAlike(const QString &one, const QString &other)
{
    EXPECT_EQ(foldedText(one).toStdString(), foldedText(other).toStdString())
        << one.toStdString() << " and " << other.toStdString();
}

TEST(FoldedText, HasNeitherCaseNorDiacritics)
{
    expectAlike(u"Éclair"_s, u"eclair"_s);
    expectAlike(u"E\u0301clair"_s, u"ECLAIR"_s);
    expectAlike(u"Ångström"_s, u"angstrom"_s);
    expectAlike(u"\u212B"_s, u"a"_s); // the sign of the unit
    expectAlike(u"İstanbul"_s, u"istanbul"_s);
}

TEST(FoldedText, FoldsCaseInFull)
{
    expectAlike(u"Straße"_s, u"strasse"_s);
    expectAlike(u"STRAßE"_s, u"STRASSE"_s);
    expectAlike(u"STRA\u1E9EE"_s, u"straße"_s); // the capital sharp s
    expectAlike(u"\uFB01eld \uFB04"_s, u"FIELD FFL"_s);
    expectAlike(u"\u0149"_s, u"\u02BCN"_s);
    expectAlike(u"ΟΔΥΣΣΕΎΣ"_s, u"οδυσσευς"_s);
}

TEST(FoldedText, KeepsLettersApartThatAreNotAlike)
{
    EXPECT_EQ(foldedText(u"Zürich & Søn"_s), u"zurich & søn"_s);
    EXPECT_NE(foldedText(u"s"_s), foldedText(u"ß"_s));
    EXPECT_EQ(foldedText(QString()), QString());
}

TEST(FoldedText, OfAFoldedTextIsThatText)
{
    for (char32_t letter = 1; letter < 0x30000; ++letter) {
        if (QChar::isSurrogate(letter)) {
            continue;
        }
        const QString once = foldedText(QString::fromUcs4(&letter, 1));
        EXPECT_EQ(foldedText(once), once) << std::hex << static_cast<unsigned>(letter);
    }
}

} // namespace
} // namespace quillon
