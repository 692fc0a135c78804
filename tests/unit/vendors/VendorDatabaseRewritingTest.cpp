// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "FileSizeLimit.h"
#include "VendorFolder.h"
#include "fakes/LogCapture.h"
#include "fakes/QtPrinting.h"
#include "fakes/SyncedPaths.h"
#include "vendors/VendorDatabase.h"

#include <gmock/gmock.h>

#include <SQLiteCpp/SQLiteCpp.h>
#include <atomic>
#include <future>
#include <sys/stat.h>
#include <thread>

namespace {

std::function<void()> inPause; ///< runs in each pause of a rewriting, which then takes no time

} // namespace

// Takes the place of SQLite's in this program.
extern "C" int sqlite3_sleep(int milliseconds)
{
    if (inPause) {
        inPause();
    } else {
        std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
    }
    return milliseconds;
}

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using ::testing::ElementsAre;
using Rewriting = VendorDatabase::Rewriting;

/// Another program in the midst of reading the database.
struct Reader
{
    explicit Reader(const QString &path)
        : database(QFile::encodeName(path).constData())
        , rows(database, "select * from vendor")
    {
        EXPECT_TRUE(rows.executeStep());
    }

    const SQLite::Database database;
    SQLite::Statement rows;
};

class VendorDatabaseRewriting : public VendorFolder
{
protected:
    VendorDatabase database{files.liveDatabase()};
};

TEST_F(VendorDatabaseRewriting, KeepsItsIdentityWhenItIsRewritten)
{
    makeLive(registryOf(5000));
    makeDatabase(files.newDatabase(), registryOf(7));
    struct stat before = {};
    ASSERT_EQ(stat(QFile::encodeName(database.path()).constData(), &before), 0);
    EXPECT_EQ(database.rewriteFrom(files.newDatabase()), Rewriting::Done);
    struct stat after = {};
    ASSERT_EQ(stat(QFile::encodeName(database.path()).constData(), &after), 0);
    EXPECT_EQ(before.st_ino, after.st_ino);
    EXPECT_TRUE(readFile(database.path()) == readFile(files.newDatabase()));
    EXPECT_EQ(database.count(), 7);
    EXPECT_THAT(
        QDir(files.folder).entryList(QDir::Files | QDir::Hidden), ElementsAre("oui.db", "temp.db"));
}

TEST_F(VendorDatabaseRewriting, IsRewrittenThoughItIsNoDatabase)
{
    makeDatabase(files.newDatabase(), registryOf(7));
    for (const QByteArray &before : {QByteArray(), QByteArray(9000, 'x')}) {
        writeFile(database.path(), before);
        EXPECT_EQ(database.rewriteFrom(files.newDatabase()), Rewriting::Done);
        EXPECT_EQ(database.count(), 7);
    }
}

TEST_F(VendorDatabaseRewriting, IsNotMadeByRewriting)
{
    makeDatabase(files.newDatabase(), registryOf(7));
    EXPECT_EQ(database.rewriteFrom(files.newDatabase()), Rewriting::FileMissing);
    EXPECT_FALSE(QFile::exists(database.path()));
}

TEST_F(VendorDatabaseRewriting, StaysAsItIsWithoutASource)
{
    makeLive(registryOf(5));
    EXPECT_EQ(database.rewriteFrom(files.newDatabase()), Rewriting::Failed);
    EXPECT_EQ(database.count(), 5);
}

TEST_F(VendorDatabaseRewriting, IsNotWrittenWhereThereIsNoRoom)
{
    const LogCapture log;
    makeDatabase(files.newDatabase(), registryOf(7));
    makeLive(registryOf(5));
    {
        const FileSizeLimit limit(0);
        EXPECT_EQ(database.rewriteFrom(files.newDatabase()), Rewriting::Failed);
    }
    EXPECT_THAT(LogCapture::taken().join(u'\n').toStdString(),
        ::testing::HasSubstr("Vendor database not written: File too large"));
}

TEST_F(VendorDatabaseRewriting, IsLeftAloneWhileSomebodyReadsIt)
{
    const LogCapture log;
    makeLive(registryOf(5));
    makeDatabase(files.newDatabase(), registryOf(7));
    {
        Reader other(database.path());
        EXPECT_EQ(database.rewriteFrom(files.newDatabase()), Rewriting::Failed);
        EXPECT_EQ(LogCapture::taken(),
            QStringList("quillon.vendors: Vendor database is locked by another program"));
    }
    EXPECT_EQ(database.count(), 5);
    EXPECT_EQ(database.rewriteFrom(files.newDatabase()), Rewriting::Done);
    EXPECT_EQ(database.count(), 7);
}

TEST_F(VendorDatabaseRewriting, AnswersWhileARewritingWaitsForSomebodyWhoReadsIt)
{
    const LogCapture log;
    makeLive(registryOf(5));
    makeDatabase(files.newDatabase(), registryOf(7));
    Reader other(database.path());
    auto rewriting =
        std::async(std::launch::async, [&] { return database.rewriteFrom(files.newDatabase()); });
    int answers = 0;
    while (rewriting.wait_for(std::chrono::milliseconds(5)) == std::future_status::timeout) {
        EXPECT_EQ(database.count(), 5);
        ++answers;
    }
    EXPECT_EQ(rewriting.get(), Rewriting::Failed);
    EXPECT_GT(answers, 1) << "questions waited together with the rewriting";
}

TEST_F(VendorDatabaseRewriting, IsRewrittenOnceSomebodyHasReadIt)
{
    makeLive(registryOf(5));
    makeDatabase(files.newDatabase(), registryOf(7));
    Reader other(database.path());
    int pauses = 0;
    inPause = [&] {
        if (++pauses == 2) {
            other.rows.reset();
        }
    };
    EXPECT_EQ(database.rewriteFrom(files.newDatabase()), Rewriting::Done);
    inPause = nullptr;
    EXPECT_EQ(pauses, 2);
    EXPECT_EQ(database.count(), 7);
}

TEST_F(VendorDatabaseRewriting, LetsQuestionsWaitForARewritingThatTakesItsTime)
{
    makeLive(registryOf(5));
    makeDatabase(root.filePath(u"large.db"_s), registryOf(3000));
    // The disk takes the time that the test lets it take.
    std::promise<void> begun;
    std::promise<void> goesOn;
    beforeSync() = [&] {
        if (syncedPaths().last() == database.path()) {
            begun.set_value();
            goesOn.get_future().wait();
        }
    };
    auto rewriting = std::async(
        std::launch::async, [&] { return database.rewriteFrom(root.filePath(u"large.db"_s)); });
    begun.get_future().wait();
    // Longer than SQLite would be patient for:
    auto asking = std::async(std::launch::async, [&] { return database.count(); });
    EXPECT_EQ(asking.wait_for(std::chrono::milliseconds(600)), std::future_status::timeout);
    goesOn.set_value();
    EXPECT_EQ(rewriting.get(), Rewriting::Done);
    beforeSync() = {};
    EXPECT_EQ(asking.get(), 3000);
}

TEST_F(VendorDatabaseRewriting, GivesWholeAnswersWhileItIsRewritten)
{
    // Copies of one handle, as the components have them.
    constexpr int fewer = 700;
    constexpr int more = 3000;
    const QString small = root.filePath(u"small.db"_s);
    const QString large = root.filePath(u"large.db"_s);
    makeDatabase(small, registryOf(fewer));
    makeDatabase(large, registryOf(more));
    makeLive(registryOf(fewer));

    std::atomic<bool> ending = false;
    std::atomic<int> answers = 0;
    std::atomic<int> broken = 0;
    const auto question = [&, copy = database] {
        while (!ending) {
            const qlonglong count = copy.count();
            const qsizetype listed = copy.displayStrings().size();
            const auto found = copy.lookup(u"000001"_s);
            const bool whole = (count == fewer || count == more) &&
                               (listed == fewer || listed == more) && found &&
                               found->organizationName == u"Maker 000001"_s;
            broken += whole ? 0 : 1;
            ++answers;
        }
    };
    std::thread first(question);
    std::thread second(question);
    int rewritten = 0;
    while (rewritten < 25 || answers < 50) {
        const QString &source = rewritten % 2 == 0 ? large : small;
        ASSERT_EQ(database.rewriteFrom(source), Rewriting::Done);
        ++rewritten;
    }
    ending = true;
    first.join();
    second.join();
    EXPECT_EQ(broken, 0) << "of " << answers << " answers";
}

} // namespace
} // namespace quillon::test
