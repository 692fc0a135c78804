// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vendors/VendorDatabase.h"

#include "VendorFolder.h"
#include "fakes/LogCapture.h"
#include "fakes/QtPrinting.h"

#include <gmock/gmock.h>

#include <SQLiteCpp/SQLiteCpp.h>
#include <sys/stat.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Rewriting = VendorDatabase::Rewriting;

class VendorDatabaseFile : public VendorFolder
{
protected:
    void expectEmptyAnswers() const
    {
        EXPECT_EQ(database.count(), 0);
        EXPECT_FALSE(database.lookup(u"001A2B"_s));
        EXPECT_THAT(database.displayStrings(), IsEmpty());
    }

    VendorDatabase database{files.liveDatabase()};
};

TEST_F(VendorDatabaseFile, CountsItsRows)
{
    makeLive(registryOf(321));
    EXPECT_EQ(database.count(), 321);
}

TEST_F(VendorDatabaseFile, FindsTheLastOfSeveralRows)
{
    makeLive(
        registryOf({{"080030", "One"}, {"001A2B", "Two"}, {"080030", "Three"}, {"1", "Four"}}));
    const auto found = database.lookup(u"080030"_s);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->organizationName, u"Three"_s);
    EXPECT_EQ(found->organizationAddress, u"1 Long Road, Town"_s);
    EXPECT_EQ(found->assignment, u"080030"_s);
    EXPECT_EQ(found->registry, u"MA-L"_s);
    EXPECT_FALSE(database.lookup(u"08003"_s));
}

TEST_F(VendorDatabaseFile, ComparesIdentifiersExactly)
{
    makeLive(registryOf({{"00aa2b", "Lower"}}));
    EXPECT_FALSE(database.lookup(u"00AA2B"_s));
    EXPECT_FALSE(database.lookup(u"' or ''='"_s));
    EXPECT_TRUE(database.lookup(u"00aa2b"_s));
}

TEST_F(VendorDatabaseFile, ListsDisplayStringsInTheOrderOfTheTable)
{
    makeLive(registryOf({{"080030", "Zeta"}, {"001A2B", " \t Alpha \r\n"}, {"080030", "Zeta"}}));
    EXPECT_THAT(database.displayStrings(),
        ElementsAre("Zeta (080030)", "Alpha \r\n (001A2B)", "Zeta (080030)"));
}

TEST_F(VendorDatabaseFile, ShowsTheNullMarkerForWhatIsMissing)
{
    makeLive("Assignment\n001A2B\n");
    EXPECT_THAT(database.displayStrings(), ElementsAre("(null) (001A2B)"));
    EXPECT_EQ(vendorDisplayString({}, {}), u"(null) ((null))"_s);
}

TEST_F(VendorDatabaseFile, ReadsBytesThatAreNoTextAsReplacementCharacters)
{
    makeLive("Assignment,Organization Name\n001A2B,M\xFCller\n");
    EXPECT_THAT(
        database.displayStrings(), ElementsAre(QString::fromUtf8("M\xEF\xBF\xBDller (001A2B)")));
}

TEST_F(VendorDatabaseFile, CutsTextsThatAreTooLongAtACharacter)
{
    const QByteArray smiley = "\xF0\x9F\x98\x80"; // a surrogate pair in UTF-16
    const QByteArray sharp = "\xC3\x9F";
    makeLive(registryOf({{"000001", QByteArray(4096, 'x')}, {"000002", QByteArray(4097, 'x')},
        {"000003", QByteArray(4095, 'x') + smiley.repeated(100'000)},
        {"000004", QByteArray(4094, 'x') + smiley}, {"000005", smiley.repeated(100'000)},
        {"000006", sharp.repeated(5000)}, {"000007", QByteArray(4095, 'x') + sharp}}));
    const auto name = [this](const char *assignment) {
        return database.lookup(QString::fromLatin1(assignment))->organizationName.value();
    };
    EXPECT_EQ(name("000001"), QString(4096, u'x'));
    EXPECT_EQ(name("000002"), QString(4096, u'x'));
    EXPECT_EQ(name("000003"), QString(4095, u'x'));
    EXPECT_EQ(name("000004"), QString(4094, u'x') + QString::fromUtf8(smiley));
    EXPECT_EQ(name("000005"), QString::fromUtf8(smiley).repeated(2048));
    EXPECT_EQ(name("000006"), QString::fromUtf8(sharp).repeated(4096));
    EXPECT_EQ(name("000007"), QString(4095, u'x') + QString::fromUtf8(sharp));
    EXPECT_EQ(database.displayStrings().at(1), name("000001") + " (000002)"_L1);
}

TEST_F(VendorDatabaseFile, TellsACountOfNothingFromNoAnswer)
{
    bool wasRead = false;
    EXPECT_EQ(database.count(&wasRead), 0);
    EXPECT_TRUE(wasRead) << "missing";
    for (const QByteArray &content : {QByteArray(), QByteArray(100'000, 'x')}) {
        writeFile(database.path(), content);
        EXPECT_EQ(database.count(&wasRead), 0);
        EXPECT_TRUE(wasRead) << "no database, of bytes: " << content.size();
    }
    makeLive(registryOf(5000));
    EXPECT_EQ(database.count(&wasRead), 5000);
    EXPECT_TRUE(wasRead);
    {
        SQLite::Database other(
            QFile::encodeName(database.path()).constData(), SQLite::OPEN_READWRITE);
        other.exec("begin exclusive");
        EXPECT_EQ(database.count(&wasRead), 0);
        EXPECT_FALSE(wasRead) << "locked";
    }
    QFile file(database.path());
    ASSERT_TRUE(file.resize(file.size() / 2));
    EXPECT_EQ(database.count(&wasRead), 0);
    EXPECT_TRUE(wasRead) << "cut short";
    file.remove();
    QDir().mkdir(database.path());
    EXPECT_EQ(database.count(&wasRead), 0);
    EXPECT_FALSE(wasRead) << "cannot be opened";
}

TEST_F(VendorDatabaseFile, IsNotMadeByAQuestion)
{
    expectEmptyAnswers();
    EXPECT_THAT(QDir(files.folder).entryList(QDir::Files | QDir::Hidden), IsEmpty());
    QDir(files.folder).removeRecursively();
    expectEmptyAnswers();
}

TEST_F(VendorDatabaseFile, AnswersNothingWhenItIsEmptyJunkOrAFolder)
{
    writeFile(database.path(), {});
    expectEmptyAnswers();
    writeFile(database.path(), QByteArray(100'000, 'x'));
    expectEmptyAnswers();
    QFile::remove(database.path());
    QDir().mkdir(database.path());
    expectEmptyAnswers();
}

TEST_F(VendorDatabaseFile, AnswersNothingWhenItIsCutShort)
{
    makeLive(registryOf(5000));
    QFile file(database.path());
    ASSERT_TRUE(file.resize(file.size() / 2));
    EXPECT_EQ(database.count(), 0);
    EXPECT_THAT(database.displayStrings(), IsEmpty());
}

TEST_F(VendorDatabaseFile, AnswersNothingWithoutItsTable)
{
    SQLite::Database(QFile::encodeName(database.path()).constData(),
        SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE)
        .exec("create table other (id integer)");
    expectEmptyAnswers();
}

TEST_F(VendorDatabaseFile, AnswersNothingWhileSomebodyWritesToIt)
{
    makeLive(registryOf(5));
    SQLite::Database other(QFile::encodeName(database.path()).constData(), SQLite::OPEN_READWRITE);
    other.exec("begin exclusive");
    EXPECT_EQ(database.count(), 0);
    other.exec("rollback");
    EXPECT_EQ(database.count(), 5);
}

TEST_F(VendorDatabaseFile, WaitsForNoPipe)
{
    const LogCapture log;
    makeDatabase(files.newDatabase(), registryOf(7));
    for (const char *const part : {"-journal", "-wal", "-shm", ""}) {
        makeLive(registryOf(5));
        const QString pipe = database.path() + QLatin1String(part);
        QFile::remove(pipe);
        ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        bool wasRead = true;
        EXPECT_EQ(database.count(&wasRead), 0);
        EXPECT_FALSE(wasRead) << part;
        EXPECT_FALSE(database.lookup(u"000001"_s));
        EXPECT_NE(
            database.rewriteFrom(files.newDatabase(), files.previousDatabase()), Rewriting::Done);
        EXPECT_FALSE(QFile::exists(files.previousDatabase())) << part;
        ASSERT_TRUE(QFile::remove(pipe));
    }
    makeLive(registryOf(5));
    const QString pipe = root.filePath(u"pipe"_s);
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_EQ(database.rewriteFrom(pipe), Rewriting::Failed);
    // The kept one, and a copy of it that nobody finished.
    QDir().mkpath(QFileInfo(files.previousDatabase()).path());
    for (const char *const part : {"", ".new"}) {
        const QString kept = files.previousDatabase() + QLatin1String(part);
        QFile::remove(kept);
        ASSERT_EQ(mkfifo(QFile::encodeName(kept).constData(), 0600), 0);
        makeLive(registryOf(5));
        EXPECT_EQ(
            database.rewriteFrom(files.newDatabase(), files.previousDatabase()), Rewriting::Done);
        EXPECT_EQ(VendorDatabase(files.previousDatabase()).count(), 5);
    }
}

} // namespace
} // namespace quillon::test
