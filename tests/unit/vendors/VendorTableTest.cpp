// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vendors/VendorTable.h"

#include "VendorFolder.h"
#include "fakes/LogCapture.h"
#include "fakes/QtPrinting.h"
#include "vendors/RegistryCsv.h"

#include <gmock/gmock.h>

#include <SQLiteCpp/SQLiteCpp.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using ::testing::ElementsAre;

class VendorTable : public VendorFolder
{
protected:
    bool fill(const QByteArray &registry)
    {
        writeFile(files.registryText(), registry);
        return fillVendorTable(files.registryText(), path);
    }
    /// All that the query gives, column by column, row by row.
    QStringList ask(const char *query) const
    {
        const SQLite::Database open(QFile::encodeName(path).constData());
        SQLite::Statement statement(open, query);
        QStringList texts;
        while (statement.executeStep()) {
            for (int i = 0; i < statement.getColumnCount(); ++i) {
                const auto column = statement.getColumn(i);
                texts << (column.isNull() ? u"NULL"_s
                                          : QString::fromUtf8(column.getText(), column.getBytes()));
            }
        }
        return texts;
    }

    const QString path = files.newDatabase();
};

TEST_F(VendorTable, HasExactlyItsColumnsAndNoIndex)
{
    ASSERT_TRUE(createTempDbFile(path));
    EXPECT_THAT(ask("select sql from sqlite_master where name = 'vendor'"),
        ElementsAre(
            u"CREATE TABLE vendor (id integer primary key autoincrement not null, Assignment text, "
            "Organization_Address text, Organization_Name text, Registry text)"_s));
    EXPECT_EQ(ask("select count(*) from sqlite_master where type = 'index'"), QStringList("0"));
    EXPECT_EQ(ask("select count(*) from vendor"), QStringList("0"));
}

TEST_F(VendorTable, TakesThePlaceOfAFileThatIsThere)
{
    for (const QByteArray &before : {QByteArray("junk"), QByteArray()}) {
        writeFile(path, before);
        EXPECT_TRUE(createTempDbFile(path));
        EXPECT_EQ(ask("select count(*) from vendor"), QStringList("0"));
    }
}

TEST_F(VendorTable, CannotBeMadeWithoutItsFolder)
{
    const LogCapture log;
    EXPECT_FALSE(createTempDbFile(root.filePath(u"nowhere/temp.db"_s)));
    EXPECT_FALSE(createTempDbFile(files.folder));
}

TEST_F(VendorTable, HoldsTheRowsInTheOrderOfTheFile)
{
    ASSERT_TRUE(fill(registryOf({{"001A2B", "One"}, {"080030", "Two"}, {"080030", "Three"}})));
    EXPECT_THAT(ask("select * from vendor order by id"),
        ElementsAre("1", "001A2B", "1 Long Road, Town", "One", "MA-L", //
            "2", "080030", "1 Long Road, Town", "Two", "MA-L",         //
            "3", "080030", "1 Long Road, Town", "Three", "MA-L"));
}

TEST_F(VendorTable, StoresQuotedFieldsWithCommasAndSingleQuotes)
{
    ASSERT_TRUE(fill(registryOf({{"001A2B", "Some \"\"Good\"\" Maker, Inc."}})));
    EXPECT_EQ(
        ask("select Organization_Name from vendor"), QStringList("Some \"Good\" Maker, Inc."));
}

TEST_F(VendorTable, HoldsNullForAMissingColumnAndEmptyForAnEmptyField)
{
    ASSERT_TRUE(fill("Assignment,Registry,Organization Name\n001A2B,,\"\"\n080030\n"));
    EXPECT_THAT(ask("select * from vendor order by id"),
        ElementsAre("1", "001A2B", "NULL", "", "", "2", "080030", "NULL", "NULL", "NULL"));
}

TEST_F(VendorTable, HoldsAFieldWithZeroBytesWhole)
{
    ASSERT_TRUE(fill("Assignment\n" + QByteArray("a\0b", 3) + '\n'));
    EXPECT_EQ(ask("select Assignment from vendor"), QStringList(QString::fromLatin1("a\0b", 3)));
    EXPECT_EQ(ask("select typeof(Assignment) from vendor"), QStringList("text"));
}

TEST_F(VendorTable, IsNotMadeOfATextWithoutRecords)
{
    for (const char *const text :
        {"", "\n", "Assignment,Registry\r\n", "Not Found", "\xEF\xBB\xBF"}) {
        EXPECT_FALSE(fill(text)) << text;
        EXPECT_FALSE(QFile::exists(path)) << text;
    }
    EXPECT_FALSE(fillVendorTable(root.filePath(u"nowhere.csv"_s), path));
    EXPECT_FALSE(fillVendorTable(files.folder, path));
}

TEST_F(VendorTable, IsOfNoUseAfterAParseErrorAtTheVeryEnd)
{
    EXPECT_FALSE(fill(registryOf(1000) + "MA-L,\"001A2B"));
}

TEST_F(VendorTable, SurvivesBinaryJunk)
{
    quint32 state = 1;
    for (int round = 0; round < 50; ++round) {
        QByteArray junk(100'000, Qt::Uninitialized);
        for (char &byte : junk) {
            state = state * 1664525 + 1013904223;
            byte = static_cast<char>(state >> 24);
        }
        // A quote is somewhere in it where none may be.
        EXPECT_FALSE(fill(junk)) << "round " << round;
    }
}

TEST_F(VendorTable, StopsAtTheFirstRowThatCannotBeStored)
{
    const LogCapture log;
    ASSERT_TRUE(createTempDbFile(path));
    {
        SQLite::Database open(QFile::encodeName(path).constData(), SQLite::OPEN_READWRITE);
        open.exec("create trigger full before insert on vendor when new.Assignment = '2' "
                  "begin select raise(abort, 'no room'); end");
    }
    RegistryRow row;
    row.present.fill(true);
    VendorRows rows(path);
    row.texts[0] = "1";
    EXPECT_TRUE(rows.insert(row));
    row.texts[0] = "2";
    EXPECT_FALSE(rows.insert(row));
    EXPECT_EQ(LogCapture::taken(), QStringList("quillon.vendors: Vendor not stored: no room"));
}

TEST_F(VendorTable, CannotBeFilledWithoutAFile)
{
    const LogCapture log;
    VendorRows rows(root.filePath(u"nowhere.db"_s));
    EXPECT_FALSE(rows.insert({}));
    EXPECT_FALSE(QFile::exists(root.filePath(u"nowhere.db"_s)));
}

TEST_F(VendorTable, GivesTheSameBytesForTheSameRegistry)
{
    ASSERT_TRUE(fill(registryOf(5000)));
    const QByteArray first = readFile(path);
    ASSERT_TRUE(fill(registryOf(5000)));
    EXPECT_TRUE(readFile(path) == first);
    EXPECT_FALSE(QFile::exists(path + u"-journal"_s));
}

} // namespace
} // namespace quillon::test
