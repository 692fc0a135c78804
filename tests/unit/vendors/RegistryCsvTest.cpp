// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vendors/RegistryCsv.h"

#include "VendorFolder.h"
#include "fakes/QtPrinting.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using ::testing::ElementsAre;

/// The four texts of a row, "-" for a missing one.
QByteArray described(const RegistryRow &row)
{
    QByteArray text;
    for (std::size_t index = 0; index < registryFieldCount; ++index) {
        const auto *const field = row.field(static_cast<RegistryField>(index));
        text += field != nullptr ? '[' + QByteArray::fromStdString(*field) + ']' : "-";
    }
    return text;
}

struct Reading
{
    QList<QByteArray> rows;
    bool whole = true;
};

Reading read(const QByteArray &text, qsizetype piece = 1 << 20)
{
    Reading reading;
    RegistryCsv csv([&](const RegistryRow &row) {
        reading.rows.append(described(row));
        return true;
    });
    for (qsizetype from = 0; reading.whole && from < text.size(); from += piece) {
        const QByteArray part = text.mid(from, piece);
        reading.whole = csv.feed({part.constData(), static_cast<std::size_t>(part.size())});
    }
    reading.whole = reading.whole && csv.finish();
    return reading;
}

QList<QByteArray> rowsOf(const QByteArray &text)
{
    const Reading reading = read(text);
    EXPECT_TRUE(reading.whole);
    return reading.rows;
}

TEST(RegistryCsv, FindsItsColumnsByTheirNamesWhateverTheirOrder)
{
    EXPECT_THAT(rowsOf("Organization Name,Other,Registry,Assignment,Organization Address\n"
                       "Maker,x,MA-L,001A2B,Road\n"),
        ElementsAre("[001A2B][Road][Maker][MA-L]"));
}

TEST(RegistryCsv, ComparesColumnNamesExactly)
{
    EXPECT_THAT(rowsOf("assignment, Registry,Organization_Name\na,b,c\n"), ElementsAre("----"));
}

TEST(RegistryCsv, UndoesQuotesAndKeepsCommas)
{
    EXPECT_THAT(rowsOf("Assignment,Organization Name\n001A2B,\"Some \"\"Good\"\" Maker, Inc.\"\n"),
        ElementsAre("[001A2B]-[Some \"Good\" Maker, Inc.]-"));
}

TEST(RegistryCsv, KeepsLineBreaksInsideQuotes)
{
    EXPECT_THAT(rowsOf("Assignment,Registry\n\"a\r\nb\nc\rd\",\"\n\"\r\n"),
        ElementsAre("[a\r\nb\nc\rd]--[\n]"));
}

TEST(RegistryCsv, KeepsWhiteSpace)
{
    EXPECT_THAT(rowsOf("Assignment,Registry\n \t001A2B ,\" MA-L \"\n"),
        ElementsAre("[ \t001A2B ]--[ MA-L ]"));
}

TEST(RegistryCsv, TakesBackslashesAndHashesForLetters)
{
    EXPECT_THAT(rowsOf("Assignment,Registry\n#a\\,b\\\n"), ElementsAre("[#a\\]--[b\\]"));
}

TEST(RegistryCsv, TellsMissingFromEmpty)
{
    EXPECT_THAT(rowsOf("Assignment,Registry\n\"\",\n,\n001A2B\n"),
        ElementsAre("[]--[]", "[]--[]", "[001A2B]---"));
}

TEST(RegistryCsv, IgnoresFieldsBeyondTheHeader)
{
    EXPECT_THAT(rowsOf("Assignment\n001A2B,x,y\n"), ElementsAre("[001A2B]---"));
}

TEST(RegistryCsv, TakesTheLastOfTwoColumnsOfOneName)
{
    EXPECT_THAT(rowsOf("Assignment,Assignment\n1,2\n"), ElementsAre("[2]---"));
}

TEST(RegistryCsv, EndsLinesWithAnyLineEndAndSkipsEmptyLines)
{
    EXPECT_THAT(rowsOf("\r\nAssignment\r\n1\n\n2\r3\r\n\r\n4"),
        ElementsAre("[1]---", "[2]---", "[3]---", "[4]---"));
}

TEST(RegistryCsv, SkipsAByteOrderMarkHoweverTheFileIsCut)
{
    const QByteArray text = "\xEF\xBB\xBF\"Assignment\",Registry\n001A2B,MA-L\n";
    for (qsizetype piece = 1; piece < 8; ++piece) {
        const Reading reading = read(text, piece);
        EXPECT_TRUE(reading.whole);
        EXPECT_THAT(reading.rows, ElementsAre("[001A2B]--[MA-L]")) << "pieces of " << piece;
    }
}

TEST(RegistryCsv, TakesHalfAByteOrderMarkForText)
{
    EXPECT_THAT(rowsOf("\xEF\xBB"
                       "Assignment,Registry\n1,2\n"),
        ElementsAre("---[2]"));
    EXPECT_THAT(rowsOf("Assignment\n\xEF\xBB\xBF"
                       "1\n"),
        ElementsAre("[\xEF\xBB\xBF"
                    "1]---"));
}

TEST(RegistryCsv, ReadsTheSameHoweverTheFileIsCut)
{
    const QByteArray text = registryOf(
        {{"001A2B", "A \"\"good\"\" maker\r\nof things"}, {"080030", "M\xC3\xBCller"}, {"", ""}});
    const QList<QByteArray> rows = rowsOf(text);
    ASSERT_EQ(rows.size(), 3);
    for (qsizetype piece = 1; piece < text.size(); ++piece) {
        EXPECT_EQ(read(text, piece).rows, rows) << "pieces of " << piece;
    }
}

TEST(RegistryCsv, KeepsBytesThatAreNoText)
{
    const QByteArray row("\0\xFF,\"\0\"\n", 7);
    const QByteArray expected("[\0\xFF]--[\0]", 9);
    EXPECT_THAT(rowsOf("Assignment,Registry\n" + row), ElementsAre(expected));
}

TEST(RegistryCsv, EndsWithAnErrorAtAMisplacedQuote)
{
    for (const char *const line : {"a\"b\n", "\"a\" \n", "\"a\"b\n", "\"a", "\"a\"\"", "\""}) {
        const Reading reading = read(QByteArray("Assignment\n1\n") + line);
        EXPECT_FALSE(reading.whole) << line;
        EXPECT_THAT(reading.rows, ElementsAre("[1]---")) << line;
    }
}

TEST(RegistryCsv, ReadsNothingMoreAfterAnError)
{
    int rows = 0;
    RegistryCsv csv([&](const RegistryRow &) { return ++rows > 0; });
    EXPECT_FALSE(csv.feed("Assignment\na\"b\n"));
    EXPECT_FALSE(csv.feed("2\n3\n"));
    EXPECT_FALSE(csv.finish());
    EXPECT_EQ(rows, 0);
}

TEST(RegistryCsv, StopsWhenItIsTold)
{
    int rows = 0;
    RegistryCsv csv([&](const RegistryRow &) { return ++rows < 2; });
    EXPECT_FALSE(csv.feed("Assignment\n1\n2\n3\n4\n"));
    EXPECT_FALSE(csv.feed("5\n"));
    EXPECT_FALSE(csv.finish());
    EXPECT_EQ(rows, 2);
}

TEST(RegistryCsv, HasNoRowsWithoutText)
{
    EXPECT_TRUE(rowsOf("").isEmpty());
    EXPECT_TRUE(rowsOf("\r\n\n").isEmpty());
    EXPECT_TRUE(rowsOf("Assignment,Registry").isEmpty());
    EXPECT_TRUE(rowsOf(registryHeader).isEmpty());
}

TEST(RegistryCsv, ReadsAFieldOfTenMegabytes)
{
    const QByteArray field(10'000'000, 'x');
    const Reading reading =
        read("Assignment,Registry\n1,\"" + field + "\"\n2,MA-L\n", qsizetype{64} * 1024);
    EXPECT_TRUE(reading.whole);
    ASSERT_EQ(reading.rows.size(), 2);
    EXPECT_EQ(reading.rows.first(), "[1]--[" + field + ']');
    EXPECT_EQ(reading.rows.last(), "[2]--[MA-L]");
}

TEST(RegistryCsv, RefusesALongerFieldThanItsLimit)
{
    const auto limit = static_cast<qsizetype>(RegistryCsv::fieldLimit);
    EXPECT_TRUE(read("Assignment\n" + QByteArray(limit, 'x') + '\n').whole);
    EXPECT_FALSE(read("Assignment\n" + QByteArray(limit + 1, 'x') + '\n').whole);
    // A quote that is never closed must not take the memory of a whole file.
    EXPECT_FALSE(read("Assignment\n\"" + QByteArray(4 * limit, '\n')).whole);
}

TEST(RegistryCsv, CountsColumnsWithoutKeepingThem)
{
    EXPECT_THAT(rowsOf(QByteArray(1'000'000, ',') + "Assignment\n" + QByteArray(1'000'000, ',') +
                       "001A2B\n"),
        ElementsAre("[001A2B]---"));
}

} // namespace
} // namespace quillon::test
