// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vendors/VendorFileWriting.h"

#include "FileSizeLimit.h"
#include "VendorFolder.h"
#include "fakes/LogCapture.h"
#include "fakes/QtPrinting.h"

#include <QDateTime>

#include <SQLiteCpp/SQLiteCpp.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using Rewriting = VendorDatabase::Rewriting;

/// What programs leave beside a database when they die.
class VendorFileWritingTest : public VendorFolder
{
protected:
    VendorFileWritingTest() { makeDatabase(files.newDatabase(), registryOf(7)); }

    static std::string sqlitePath(const QString &path)
    {
        return QFile::encodeName(path).toStdString();
    }
    /// The database of a program that dies in the middle of its work, with everything beside it,
    /// under the name `path`: the copy is taken while it still works.
    void leave(const QString &path, const char *mode)
    {
        const QString elsewhere = root.filePath(u"elsewhere.db"_s);
        makeDatabase(elsewhere, registryOf(5));
        SQLite::Database dying(sqlitePath(elsewhere), SQLite::OPEN_READWRITE);
        dying.exec(std::string("PRAGMA journal_mode = ") + mode);
        // Nothing stays in memory alone, so that the journal is as it is needed.
        dying.exec("PRAGMA cache_size = 1; PRAGMA cache_spill = 1");
        dying.exec("BEGIN; UPDATE vendor SET Organization_Name = 'Stale'");
        dying.exec("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 300) "
                   "INSERT INTO vendor (Assignment, Organization_Name) "
                   "SELECT 'F' || i, hex(zeroblob(300)) FROM n");
        if (QByteArray(mode) == "WAL") {
            dying.exec("COMMIT");
        }
        for (const char *const part : {"", "-wal", "-shm", "-journal"}) {
            const QString from = elsewhere + QLatin1String(part);
            const QString to = path + QLatin1String(part);
            QFile::remove(to);
            if (QFile::exists(from)) {
                ASSERT_TRUE(QFile::copy(from, to));
            }
        }
    }
    void expectNewVendors()
    {
        EXPECT_EQ(database.count(), 7);
        const auto first = database.lookup(u"000000"_s);
        ASSERT_TRUE(first);
        EXPECT_EQ(first->organizationName, u"Maker 000000"_s);
        EXPECT_TRUE(readFile(database.path()) == readFile(files.newDatabase()));
        EXPECT_EQ(
            QDir(files.folder).entryList({u"oui.db*"_s}, QDir::Files), QStringList(u"oui.db"_s));
    }

    VendorDatabase database{files.liveDatabase()};
};

TEST_F(VendorFileWritingTest, MakesAnEndOfTheLogOfAProgramThatDied)
{
    leave(database.path(), "WAL");
    ASSERT_TRUE(QFile::exists(database.path() + u"-wal"_s));
    ASSERT_EQ(database.count(), 305);
    EXPECT_EQ(database.rewriteFrom(files.newDatabase(), files.previousDatabase()), Rewriting::Done);
    expectNewVendors();
    EXPECT_EQ(VendorDatabase(files.previousDatabase()).count(), 305) << "what was in the log too";
}

TEST_F(VendorFileWritingTest, MakesAnEndOfTheJournalOfAProgramThatDied)
{
    leave(database.path(), "DELETE");
    ASSERT_GT(QFileInfo(database.path() + u"-journal"_s).size(), 0);
    EXPECT_EQ(database.rewriteFrom(files.newDatabase(), files.previousDatabase()), Rewriting::Done);
    expectNewVendors();
    const VendorDatabase previous(files.previousDatabase());
    EXPECT_EQ(previous.count(), 5) << "what the program had not finished is undone";
    EXPECT_EQ(previous.lookup(u"000000"_s)->organizationName, u"Maker 000000"_s);
}

TEST_F(VendorFileWritingTest, IsNotMisledByTheLogOfAnotherDatabase)
{
    leave(root.filePath(u"stale.db"_s), "WAL");
    makeLive(registryOf(20));
    for (const char *const part : {"-wal", "-shm"}) {
        ASSERT_TRUE(QFile::copy(root.filePath(u"stale.db"_s + QLatin1String(part)),
            database.path() + QLatin1String(part)));
    }
    EXPECT_EQ(database.rewriteFrom(files.newDatabase(), files.previousDatabase()), Rewriting::Done);
    expectNewVendors();
    EXPECT_EQ(VendorDatabase(files.previousDatabase()).count(), 20);
}

TEST_F(VendorFileWritingTest, LeavesADatabaseAloneOfWhichAnotherProgramUsesTheLog)
{
    const LogCapture log;
    makeLive(registryOf(20));
    SQLite::Database other(sqlitePath(database.path()), SQLite::OPEN_READWRITE);
    other.exec("PRAGMA journal_mode = WAL; UPDATE vendor SET Registry = 'MA-X' WHERE id = 1");
    EXPECT_EQ(
        database.rewriteFrom(files.newDatabase(), files.previousDatabase()), Rewriting::Failed);
    EXPECT_EQ(other.execAndGet("SELECT count(*) FROM vendor WHERE Registry = 'MA-X'").getInt(), 1);
    EXPECT_FALSE(QFile::exists(files.previousDatabase()));
}

TEST_F(VendorFileWritingTest, KeepsWhatWasThereWithItsTime)
{
    makeLive(registryOf(20));
    const QByteArray before = readFile(database.path());
    const QDateTime time = QDateTime::fromSecsSinceEpoch(1'700'000'000);
    {
        QFile live(database.path());
        ASSERT_TRUE(live.open(QIODevice::ReadWrite | QIODevice::ExistingOnly));
        ASSERT_TRUE(live.setFileTime(time, QFileDevice::FileModificationTime));
    }
    ASSERT_EQ(database.rewriteFrom(files.newDatabase(), files.previousDatabase()), Rewriting::Done);
    EXPECT_TRUE(readFile(files.previousDatabase()) == before);
    EXPECT_EQ(QFileInfo(files.previousDatabase()).lastModified(), time);

    ASSERT_EQ(
        database.rewriteFrom(files.previousDatabase(), files.previousDatabase()), Rewriting::Done);
    EXPECT_TRUE(readFile(database.path()) == before);
    EXPECT_EQ(QFileInfo(database.path()).lastModified(), time);
    EXPECT_EQ(VendorDatabase(files.previousDatabase()).count(), 7) << "they changed places";
    EXPECT_EQ(QDir(QFileInfo(files.previousDatabase()).path()).entryList(QDir::Files),
        QStringList(u"oui.db"_s));
}

TEST_F(VendorFileWritingTest, DoesNotKeepWhatIsOfNoUseInPlaceOfWhatIs)
{
    makeLive(registryOf(10));
    ASSERT_EQ(database.rewriteFrom(files.newDatabase(), files.previousDatabase()), Rewriting::Done);
    // A page of a captive portal makes rows without identifiers.
    makeDatabase(root.filePath(u"portal.db"_s), "<html>\n<body>Log in,\nhere, please\n");
    ASSERT_EQ(database.rewriteFrom(root.filePath(u"portal.db"_s), files.previousDatabase()),
        Rewriting::Done);
    ASSERT_EQ(VendorDatabase(files.previousDatabase()).count(), 7);
    ASSERT_EQ(database.rewriteFrom(root.filePath(u"portal.db"_s), files.previousDatabase()),
        Rewriting::Done);
    EXPECT_EQ(VendorDatabase(files.previousDatabase()).count(), 7) << "the portal again";
    const LogCapture log;
    writeFile(database.path(), QByteArray(9000, 'x'));
    ASSERT_EQ(database.rewriteFrom(files.newDatabase(), files.previousDatabase()), Rewriting::Done);
    EXPECT_EQ(VendorDatabase(files.previousDatabase()).count(), 7) << "no database";
}

TEST_F(VendorFileWritingTest, DoesNotKeepAPoorDatabaseInPlaceOfARichOne)
{
    const VendorDatabase previous(files.previousDatabase());
    makeLive(registryOf(20));
    const auto refreshWith = [&](int vendors) {
        makeDatabase(files.newDatabase(), registryOf(vendors));
        return database.rewriteFrom(files.newDatabase(), files.previousDatabase());
    };
    ASSERT_EQ(refreshWith(1), Rewriting::Done);
    ASSERT_EQ(refreshWith(9), Rewriting::Done);
    EXPECT_EQ(previous.count(), 20) << "not the one vendor";
    ASSERT_EQ(refreshWith(10), Rewriting::Done);
    EXPECT_EQ(previous.count(), 20) << "not half as many";
    ASSERT_EQ(refreshWith(30), Rewriting::Done);
    EXPECT_EQ(previous.count(), 10) << "half as many";
}

TEST_F(VendorFileWritingTest, KeepsWholeOnesInPlaceOfADamagedOne)
{
    const LogCapture log;
    makeLive(registryOf(4000));
    ASSERT_EQ(database.rewriteFrom(files.newDatabase(), files.previousDatabase()), Rewriting::Done);
    const QByteArray whole = readFile(files.previousDatabase());
    const qsizetype half = whole.size() / 2;
    for (const QByteArray &damaged :
        {QByteArray("scribble"), whole.left(half) + QByteArray(whole.size() - half, '\0')}) {
        writeFile(files.previousDatabase(), damaged);
        makeLive(registryOf(3));
        ASSERT_EQ(
            database.rewriteFrom(files.newDatabase(), files.previousDatabase()), Rewriting::Done);
        EXPECT_EQ(VendorDatabase(files.previousDatabase()).count(), 3);
    }
}

TEST_F(VendorFileWritingTest, TellsWhatTheKeptOneHoldsWhateverLiesBesideIt)
{
    for (const char *const mode : {"WAL", "DELETE"}) {
        ASSERT_TRUE(QDir().mkpath(QFileInfo(files.previousDatabase()).path()));
        leave(files.previousDatabase(), mode);
        makeDatabase(root.filePath(u"rich.db"_s), registryOf(20));
        ASSERT_TRUE(QFile::remove(files.previousDatabase()) &&
                    QFile::rename(root.filePath(u"rich.db"_s), files.previousDatabase()));
        for (const int vendors : {5, 10}) {
            makeLive(registryOf(vendors));
            ASSERT_EQ(database.rewriteFrom(files.newDatabase(), files.previousDatabase()),
                Rewriting::Done);
            EXPECT_EQ(
                VendorFileWriting::identifiersIn(files.previousDatabase()), vendors == 5 ? 20 : 10);
        }
    }
}

TEST_F(VendorFileWritingTest, DoesNotKeepATornDatabaseInPlaceOfAWholeOne)
{
    const LogCapture log;
    makeLive(registryOf(2000));
    const QByteArray whole = readFile(database.path());
    const qsizetype half = whole.size() / 2;
    ASSERT_EQ(database.rewriteFrom(files.newDatabase(), files.previousDatabase()), Rewriting::Done);
    for (const QByteArray &rest : {QByteArray(), QByteArray(whole.size() - half, '\0'),
             QByteArray(whole.size() - half, 'x')}) {
        writeFile(database.path(), whole.left(half) + rest);
        ASSERT_TRUE(rest.isEmpty() || database.lookup(u"000000"_s) || database.count() == 0);
        ASSERT_EQ(
            database.rewriteFrom(files.newDatabase(), files.previousDatabase()), Rewriting::Done);
        EXPECT_TRUE(readFile(files.previousDatabase()) == whole);
    }
}

TEST_F(VendorFileWritingTest, WritesNothingWhenWhatIsThereCannotBeKept)
{
    const LogCapture log;
    makeLive(registryOf(20));
    writeFile(files.folder + u"/previous"_s, "in the way");
    EXPECT_EQ(
        database.rewriteFrom(files.newDatabase(), files.previousDatabase()), Rewriting::NotKept);
    EXPECT_EQ(database.count(), 20);
}

TEST_F(VendorFileWritingTest, WritesNothingOverWhatDoesNotAnswerAtTheMoment)
{
    const LogCapture log;
    makeLive(registryOf(20));
    const QByteArray before = readFile(database.path());
    for (const char *const companion : {"-wal", "-shm", "-journal"}) {
        const QString inTheWay = database.path() + QLatin1String(companion);
        ASSERT_TRUE(QDir().mkpath(inTheWay + u"/full"_s));
        const auto outcome = database.rewriteFrom(files.newDatabase(), files.previousDatabase());
        EXPECT_TRUE(outcome == Rewriting::NotKept || outcome == Rewriting::Failed) << companion;
        EXPECT_TRUE(readFile(database.path()) == before) << companion;
        EXPECT_FALSE(QFile::exists(files.previousDatabase())) << companion;
        EXPECT_FALSE(LogCapture::taken().isEmpty()) << companion;
        ASSERT_TRUE(QDir(inTheWay).removeRecursively());
    }
    ASSERT_EQ(database.rewriteFrom(files.newDatabase(), files.previousDatabase()), Rewriting::Done);
    EXPECT_EQ(VendorDatabase(files.previousDatabase()).count(), 20);
}

TEST_F(VendorFileWritingTest, WritesNothingOverAJournalThatCannotBeBroughtIn)
{
    const LogCapture log;
    leave(database.path(), "DELETE");
    {
        // No room for what the journal brings back.
        const FileSizeLimit limit(512);
        EXPECT_EQ(database.rewriteFrom(files.newDatabase(), files.previousDatabase()),
            Rewriting::NotKept);
    }
    ASSERT_EQ(database.rewriteFrom(files.newDatabase(), files.previousDatabase()), Rewriting::Done);
    EXPECT_EQ(VendorDatabase(files.previousDatabase()).count(), 5);
}

TEST_F(VendorFileWritingTest, ALogThatStaysIsNotLeftBesideAnyDatabase)
{
    const LogCapture log;
    makeLive(registryOf(20));
    const QString place = files.previousDatabase();
    ASSERT_TRUE(QDir().mkpath(place + u"-wal/full"_s));
    EXPECT_EQ(database.rewriteFrom(files.newDatabase(), place), Rewriting::NotKept);
    EXPECT_EQ(database.count(), 20);
    EXPECT_FALSE(QFile::exists(place));
    ASSERT_TRUE(QDir().mkpath(files.newDatabase() + u"-journal/full"_s));
    EXPECT_FALSE(createTempDbFile(files.newDatabase()));
}

TEST_F(VendorFileWritingTest, AFolderInPlaceOfTheDatabaseStays)
{
    const LogCapture log;
    ASSERT_TRUE(QDir().mkpath(database.path() + u"/full"_s));
    EXPECT_EQ(
        database.rewriteFrom(files.newDatabase(), files.previousDatabase()), Rewriting::Failed);
    EXPECT_TRUE(QDir(database.path() + u"/full"_s).exists());
    EXPECT_FALSE(QFile::exists(files.previousDatabase()));
}

TEST_F(VendorFileWritingTest, AnUnfinishedCopyOfBeforeIsReplaced)
{
    makeLive(registryOf(20));
    QDir().mkpath(QFileInfo(files.previousDatabase()).path());
    writeFile(files.previousDatabase() + u".new"_s, QByteArray(1'000'000, 'x'));
    ASSERT_EQ(database.rewriteFrom(files.newDatabase(), files.previousDatabase()), Rewriting::Done);
    EXPECT_EQ(VendorDatabase(files.previousDatabase()).count(), 20);
    EXPECT_FALSE(QFile::exists(files.previousDatabase() + u".new"_s));
}

TEST_F(VendorFileWritingTest, ANewDatabaseIsNotReadThroughALogOfBefore)
{
    leave(files.newDatabase(), "WAL");
    QFile::remove(files.newDatabase());
    makeDatabase(files.newDatabase(), registryOf(3));
    EXPECT_EQ(VendorDatabase(files.newDatabase()).count(), 3);
    EXPECT_FALSE(QFile::exists(files.newDatabase() + u"-wal"_s));
}

} // namespace
} // namespace quillon::test
