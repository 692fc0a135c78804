// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vendors/VendorCount.h"

#include "VendorFolder.h"
#include "base/Languages.h"
#include "base/SettingsKeys.h"
#include "fakes/FakeScheduler.h"
#include "fakes/FakeSettingsStore.h"
#include "fakes/QtPrinting.h"

#include <gmock/gmock.h>

#include <SQLiteCpp/SQLiteCpp.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class VendorCountTest : public VendorFolder
{
protected:
    VendorCountTest()
    {
        QObject::connect(&count, &VendorCount::firstCountBegun, [this] { said << "begun"; });
        QObject::connect(&count, &VendorCount::additionNoted,
            [this](const QString &note) { said << "note: " + note; });
        QObject::connect(&count, &VendorCount::counted,
            [this](qlonglong value) { said << "count: " + QString::number(value); });
    }

    QString date() const { return settings.getString(keys::vendorIDUpdatedDate); }
    void setDate(const QString &text) { settings.set(keys::vendorIDUpdatedDate, text); }

    FakeScheduler scheduler;
    FakeSettingsStore settings{scheduler};
    VendorDatabase database{files.liveDatabase()};
    VendorCount count{settings, scheduler, files, database};
    QStringList said;
};

TEST_F(VendorCountTest, InstallsTheSeedAndCountsIt)
{
    QDir(root.filePath(u"share"_s)).removeRecursively();
    makeDatabase(files.seed, registryOf(12));
    count.createSupportFolderAndVendorDatabase();
    EXPECT_TRUE(readFile(files.liveDatabase()) == readFile(files.seed));
    EXPECT_EQ(settings.getInteger(keys::vendorCountValue), 12);
    EXPECT_THAT(said, ElementsAre("begun", "note: (null) (added 12 new Identifiers)", "count: 12"));
}

TEST_F(VendorCountTest, InstallsAReadOnlySeedSoThatItCanBeRefreshed)
{
    makeDatabase(files.seed, registryOf(12));
    QFile::setPermissions(files.seed, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
    count.createSupportFolderAndVendorDatabase();
    EXPECT_TRUE(QFile::permissions(files.liveDatabase()).testFlag(QFile::WriteOwner));
}

TEST_F(VendorCountTest, InstallsASeedThatBecomesTheLiveDatabaseNow)
{
    makeDatabase(files.seed, registryOf(12));
    QFile seed(files.seed);
    ASSERT_TRUE(seed.open(QIODevice::ReadWrite));
    ASSERT_TRUE(
        seed.setFileTime(QDateTime::fromSecsSinceEpoch(1), QFileDevice::FileModificationTime));
    seed.close();
    count.createSupportFolderAndVendorDatabase();
    EXPECT_GT(QFileInfo(files.liveDatabase()).lastModified(), QDateTime::fromSecsSinceEpoch(1));
}

TEST_F(VendorCountTest, InstallsTheSeedOverACopyThatWasCutShort)
{
    makeDatabase(files.seed, registryOf(12));
    writeFile(files.liveDatabase() + u".new"_s, "SQLite form");
    count.createSupportFolderAndVendorDatabase();
    EXPECT_EQ(settings.getInteger(keys::vendorCountValue), 12);
    EXPECT_FALSE(QFile::exists(files.liveDatabase() + u".new"_s));
}

TEST_F(VendorCountTest, AreThoseOfTheSeedThoughALogOfAnEarlierDatabaseIsLeft)
{
    makeDatabase(files.seed, registryOf(12));
    makeLive(registryOf(3));
    {
        SQLite::Database dying(files.liveDatabase().toStdString(), SQLite::OPEN_READWRITE);
        dying.exec("PRAGMA journal_mode = WAL; DELETE FROM vendor");
        ASSERT_TRUE(QFile::copy(files.liveDatabase() + u"-wal"_s, root.filePath(u"left"_s)));
    }
    ASSERT_TRUE(QFile::remove(files.liveDatabase()));
    ASSERT_TRUE(QFile::copy(root.filePath(u"left"_s), files.liveDatabase() + u"-wal"_s));
    count.createSupportFolderAndVendorDatabase();
    EXPECT_EQ(settings.getInteger(keys::vendorCountValue), 12);
    EXPECT_FALSE(QFile::exists(files.liveDatabase() + u"-wal"_s));
}

TEST_F(VendorCountTest, KeepADatabaseThatIsThereEvenIfItIsOlder)
{
    makeDatabase(files.seed, registryOf(12));
    makeLive(registryOf(3));
    count.createSupportFolderAndVendorDatabase();
    EXPECT_EQ(settings.getInteger(keys::vendorCountValue), 3);
}

TEST_F(VendorCountTest, AreNoneWhenNothingCanBeInstalled)
{
    count.createSupportFolderAndVendorDatabase();
    EXPECT_THAT(said, ElementsAre("begun", "count: 0"));
    EXPECT_FALSE(QFile::exists(files.liveDatabase()));

    // A file where the folder should be.
    QDir(files.folder).removeRecursively();
    writeFile(files.folder, "in the way");
    makeDatabase(files.seed, registryOf(12));
    count.createSupportFolderAndVendorDatabase();
    EXPECT_THAT(said, ElementsAre("begun", "count: 0", "begun", "count: 0"));
}

TEST_F(VendorCountTest, NoteTheFirstCountWithTheDateThatWasStored)
{
    makeLive(registryOf(3));
    setDate(u"Nov 21, 2026, 2:05 PM"_s);
    count.updateVendorCount();
    EXPECT_EQ(date(), "Nov 21, 2026, 2:05 PM (added 3 new Identifiers)"_L1);
    EXPECT_THAT(
        said, ElementsAre("note: Nov 21, 2026, 2:05 PM (added 3 new Identifiers)", "count: 3"));
}

TEST_F(VendorCountTest, ShowTwoBlanksBeforeASecondNote)
{
    makeLive(registryOf(8));
    settings.set(keys::vendorCountValue, 3);
    setDate(u"Yesterday (added 3 new Identifiers)"_s);
    count.updateVendorCount();
    EXPECT_EQ(date(), "Yesterday  (added 5 new Identifiers)"_L1);
}

TEST_F(VendorCountTest, NoteInARightToLeftLanguageWithoutMarks)
{
    const UserLanguage arabic({u"ar"_s});
    makeLive(registryOf(3));
    setDate(u"Yesterday"_s);
    count.updateVendorCount();
    EXPECT_EQ(date(), u"Yesterday (المعرّفات الجديدة: 3)"_s);
    EXPECT_EQ(said.first(), "note: "_L1 + date());
    makeLive(registryOf(5));
    count.updateVendorCount();
    EXPECT_EQ(date(), u"Yesterday  (المعرّفات الجديدة: 2)"_s);
}

TEST_F(VendorCountTest, LoseTheNullMarkerWithTheSecondNote)
{
    makeLive(registryOf(3));
    count.updateVendorCount();
    EXPECT_EQ(date(), "(null) (added 3 new Identifiers)"_L1);
    makeLive(registryOf(4));
    count.updateVendorCount();
    EXPECT_EQ(date(), " (added 1 new Identifiers)"_L1);
}

TEST_F(VendorCountTest, NoteNothingWhenTheyAreAsManyOrFewer)
{
    makeLive(registryOf(3));
    setDate(u"Yesterday"_s);
    for (const int before : {3, 9}) {
        settings.set(keys::vendorCountValue, before);
        count.updateVendorCount();
        EXPECT_EQ(settings.getInteger(keys::vendorCountValue), 3);
        EXPECT_EQ(date(), "Yesterday"_L1);
    }
    EXPECT_THAT(said, ElementsAre("count: 3", "count: 3"));
}

TEST_F(VendorCountTest, StayAsManyAsTheyWereWhileAnotherProgramHasLockedThem)
{
    makeLive(registryOf(8));
    settings.set(keys::vendorCountValue, 8);
    setDate(u"Yesterday"_s);
    {
        SQLite::Database other(
            QFile::encodeName(files.liveDatabase()).constData(), SQLite::OPEN_READWRITE);
        other.exec("begin exclusive");
        settings.clearJournal();
        count.updateVendorCount();
        scheduler.asBackground([this] { count.updateVendorCount(); });
        scheduler.runPending();
    }
    EXPECT_THAT(settings.journal(), IsEmpty());
    count.updateVendorCount();
    EXPECT_EQ(settings.getInteger(keys::vendorCountValue), 8);
    EXPECT_EQ(date(), "Yesterday"_L1) << "none was added";
    EXPECT_THAT(said, ElementsAre("count: 8", "count: 8", "count: 8"));
}

TEST_F(VendorCountTest, AreNoneWhenTheirFileHasGone)
{
    settings.set(keys::vendorCountValue, 8);
    count.updateVendorCount();
    EXPECT_EQ(settings.getInteger(keys::vendorCountValue), 0);
    EXPECT_THAT(said, ElementsAre("count: 0"));
}

TEST_F(VendorCountTest, AreFlushedBeforeTheyAreShown)
{
    makeLive(registryOf(1));
    setDate(u"x"_s);
    settings.clearJournal();
    count.updateVendorCount();
    EXPECT_THAT(settings.journal(),
        ElementsAre("set vendorCountValue", "set vendorIDUpdatedDate", "synchronize"));
}

TEST_F(VendorCountTest, AreReportedOnTheMainThreadWhoeverAsks)
{
    makeLive(registryOf(1));
    scheduler.asBackground([this] { count.updateVendorCount(); });
    EXPECT_THAT(said, IsEmpty());
    EXPECT_EQ(settings.getInteger(keys::vendorCountValue), 1);
    scheduler.runPending();
    EXPECT_THAT(said, ElementsAre("note: (null) (added 1 new Identifiers)", "count: 1"));
}

TEST_F(VendorCountTest, AreReportedToNobodyWhoIsGone)
{
    makeLive(registryOf(1));
    auto shortLived = std::make_unique<VendorCount>(settings, scheduler, files, database);
    scheduler.asBackground([&] { shortLived->updateVendorCount(); });
    shortLived.reset();
    scheduler.runPending();
    EXPECT_EQ(settings.getInteger(keys::vendorCountValue), 1);
}

TEST(VendorCountOfTheShippedDatabase, IsThatOfTheInstallationElseThatOfTheBuild)
{
    const QTemporaryDir root;
    const QString build = root.filePath(u"data/oui.db"_s);
    const QString installed = root.filePath(u"share/quillon4/oui.db"_s);
    const QString programs = root.filePath(u"bin"_s);
    QDir().mkpath(root.filePath(u"data"_s));
    QDir().mkpath(root.filePath(u"share/quillon4"_s));
    EXPECT_EQ(shippedVendorDatabase(programs), QString());
    writeFile(build, "x");
    EXPECT_EQ(shippedVendorDatabase(programs), build);
    writeFile(installed, "x");
    EXPECT_EQ(shippedVendorDatabase(programs), installed);
}

} // namespace
} // namespace quillon::test
