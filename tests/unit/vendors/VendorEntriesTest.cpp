// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vendors/VendorEntries.h"

#include "base/FoldedText.h"
#include "fakes/QtPrinting.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

TEST(VendorEntries, AnswerLikeTheFilterOfRecords)
{
    const QStringList texts = {u"Zed"_s, QString::fromUtf8("e\xCC\x81lan"),
        QString::fromUtf8("\xC3\x89LAN"), u"el"_s, u"Elan"_s};
    const VendorEntries entries(texts);
    for (const char *const text : {"", "e", "\xC3\xA9", "EL", "e\xCC\x81", "elan", "z", "elanx"}) {
        const QString wanted = QString::fromUtf8(text);
        QStringList expected;
        for (const QString &entry : entries.texts()) {
            if (foldedText(entry).startsWith(foldedText(wanted))) {
                expected << entry;
            }
        }
        QStringList found;
        for (const qsizetype index : entries.beginningWith(wanted)) {
            found << entries.texts().at(index);
        }
        EXPECT_EQ(found, expected) << text;
    }
}

TEST(VendorEntries, AreFoundByAnotherSpellingOfTheSameLetters)
{
    const VendorEntries entries({u"Straße & Söhne (A1B2C3)"_s, u"STRASSER (000001)"_s});
    for (const QString &wanted : {u"strasse"_s, u"Straß"_s, u"STRASS"_s, u"stra\u1E9E"_s}) {
        EXPECT_EQ(entries.beginningWith(wanted).size(), 2U) << wanted.toStdString();
    }
    EXPECT_EQ(entries.beginningWith(u"strasse & sohne"_s), std::vector<qsizetype>{1});
}

} // namespace
} // namespace quillon::test
