// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The way back from a refresh, as it is used in the pane.
#include "RegistryRefresh.h"
#include "fakes/LogCapture.h"
#include "fakes/SyncedPaths.h"

#include <QDateTime>

#include <sys/stat.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using ::testing::ElementsAre;

class PreviousDatabase : public RegistryRefresh
{
protected:
    ~PreviousDatabase() override { beforeSync() = {}; }

    void restore()
    {
        pane.pressRestoreButton();
        scheduler.runPending();
    }
    /// What happens when the disk is waited for, in place of `path`.
    static void atSyncOf(const QString &path, const std::function<void()> &interlude)
    {
        beforeSync() = [path, interlude] {
            if (syncedPaths().last() == path) {
                interlude();
            }
        };
    }
    void setLiveTime(const QDateTime &time)
    {
        QFile live(files.liveDatabase());
        ASSERT_TRUE(live.open(QIODevice::ReadWrite | QIODevice::ExistingOnly));
        ASSERT_TRUE(live.setFileTime(time, QFileDevice::FileModificationTime));
    }
};

TEST_F(PreviousDatabase, IsNotThereBeforeTheFirstRefresh)
{
    EXPECT_FALSE(pane.state().canRestore);
    restore();
    EXPECT_THAT(takeLabels(), ElementsAre());
    refresh("Not Found");
    EXPECT_FALSE(pane.state().canRestore) << "a refresh that failed changed nothing";
}

TEST_F(PreviousDatabase, ComesBackWithItsCountAndDateAfterAPageThatIsNoRegistry)
{
    const QDateTime before = QDateTime::fromSecsSinceEpoch(1'700'000'000);
    setLiveTime(before);
    refresh("<html>\n<body>Log in,\nhere, please\n", 511);
    EXPECT_EQ(pane.state().vendorCount, "2 Vendor Identifiers"_L1) << "parsed as it is";
    ASSERT_TRUE(pane.state().canRestore);
    takeLabels();
    restore();
    const QString date = mediumDateShortTime(before.toLocalTime(), QLocale());
    EXPECT_THAT(takeLabels(),
        ElementsAre("Restoring the previous database...", u"Last Updated: "_s + date));
    EXPECT_EQ(settings.getString(keys::vendorIDUpdatedDate), date) << "nothing was added";
    EXPECT_EQ(settings.getInteger(keys::vendorCountValue), 10);
    EXPECT_EQ(pane.state().vendorCount, "10 Vendor Identifiers"_L1);
    EXPECT_EQ(database.count(), 10);
    EXPECT_THAT(filesInFolder(), ElementsAre("oui.db"));
    expectIdle();
}

TEST_F(PreviousDatabase, ChangesPlacesWithWhatItReplaces)
{
    refresh(registryOf(15));
    EXPECT_EQ(database.count(), 15);
    restore();
    EXPECT_EQ(database.count(), 10);
    ASSERT_TRUE(pane.state().canRestore);
    restore();
    EXPECT_EQ(database.count(), 15);
    EXPECT_EQ(pane.state().vendorCount, "15 Vendor Identifiers"_L1);
}

TEST_F(PreviousDatabase, IsTheOneFromBeforeTheLastRefresh)
{
    refresh(registryOf(15));
    refresh(registryOf(20));
    restore();
    EXPECT_EQ(database.count(), 15);
}

TEST_F(PreviousDatabase, SurvivesOneBadRefreshAfterTheOther)
{
    refresh("Assignment\nLog in\n", 511);
    ASSERT_EQ(database.count(), 1);
    refresh(registryOf(3));
    refresh(registryOf(2));
    restore();
    EXPECT_EQ(database.count(), 10);
    restore();
    EXPECT_EQ(database.count(), 2) << "they change places whatever they hold";
}

TEST_F(PreviousDatabase, CannotBeRestoredDuringARefresh)
{
    refresh(registryOf(15));
    http.forget(registry);
    pane.pressButton();
    EXPECT_FALSE(pane.state().canRestore);
    restore();
    EXPECT_EQ(database.count(), 15);
    pane.pressButton();
    EXPECT_TRUE(pane.state().canRestore) << "cancelled";
}

TEST_F(PreviousDatabase, IsNotOfferedWhenAnEarlierRefreshEndsDuringTheNext)
{
    refresh(registryOf(15));
    http.forget(registry);
    pane.pressButton();
    pane.resetDownloadButton();
    EXPECT_FALSE(pane.state().canRestore);
    EXPECT_TRUE(pane.state().isUpdating);
    download.cancelDownload();
    EXPECT_TRUE(pane.state().canRestore);
    EXPECT_FALSE(pane.state().isUpdating);
}

TEST_F(PreviousDatabase, IsNotOfferedWhileARefreshThatWasCancelledIsStillImported)
{
    refresh(registryOf(1));
    http.forget(registry);
    downloadUpToImport(registryOf(30));
    QObject::connect(&import, &RegistryImport::processingBegun, [&] {
        // Behind the import's end the previous database would be another one.
        pane.pressButton();
        EXPECT_EQ(pane.state().updatedLabel, "Download cancelled..."_L1);
        EXPECT_FALSE(pane.state().canRestore);
        EXPECT_TRUE(pane.state().isUpdating);
        pane.showStoredTexts();
        pane.pressRestoreButton();
        import.restorePrevious();
    });
    scheduler.runPending();
    EXPECT_EQ(database.count(), 30);
    EXPECT_TRUE(pane.state().canRestore) << "it has ended";
    EXPECT_FALSE(pane.state().isUpdating);
    restore();
    EXPECT_LT(database.count(), 30);
}

TEST_F(PreviousDatabase, IsOfferedOnlyWhenTheLastOfSeveralImportsHasEnded)
{
    refresh(registryOf(15));
    int ends = 0;
    QObject::connect(&import, &RegistryImport::ended,
        [&] { EXPECT_EQ(import.canRestorePrevious(), ++ends == 2) << ends; });
    for (const int rows : {16, 17}) {
        const QString path = root.filePath(QString::number(rows));
        writeFile(path, registryOf(rows));
        import.parseDownloadedCSV(path);
        EXPECT_FALSE(import.canRestorePrevious());
    }
    scheduler.runPending();
    EXPECT_EQ(ends, 2);
    EXPECT_TRUE(pane.state().canRestore);
}

TEST_F(PreviousDatabase, IsNotDisturbedWhileItComesBack)
{
    refresh(registryOf(15));
    const auto requests = http.requests().size();
    pane.pressRestoreButton();
    for (const bool anEarlierRefreshEnds : {false, true}) {
        if (anEarlierRefreshEnds) {
            pane.resetDownloadButton();
        }
        EXPECT_EQ(pane.state().action, VendorPaneModel::Action::None);
        EXPECT_FALSE(pane.state().canRestore);
        pane.pressButton();
        pane.pressRestoreButton();
    }
    scheduler.runPending();
    EXPECT_EQ(http.requests().size(), requests);
    EXPECT_EQ(database.count(), 10) << "once";
    EXPECT_TRUE(pane.state().canRestore);
    expectIdle();
    writeFile(files.previousDatabase(), "scribble");
    const LogCapture log;
    restore();
    expectIdle();
}

TEST_F(PreviousDatabase, KeepsItsCountWhenNobodyCanReadItAsItComesBack)
{
    refresh(registryOf(15));
    const QString live = files.liveDatabase();
    atSyncOf(QFileInfo(files.previousDatabase()).path(), [&] {
        beforeSync() = {};
        ASSERT_TRUE(QFile::rename(live, live + u".away"_s) && QDir().mkdir(live));
    });
    restore();
    ASSERT_TRUE(QFileInfo(live).isDir());
    EXPECT_EQ(settings.getInteger(keys::vendorCountValue), 10);
    EXPECT_EQ(pane.state().vendorCount, "10 Vendor Identifiers"_L1);
    ASSERT_TRUE(QDir().rmdir(live) && QFile::rename(live + u".away"_s, live));
    count.updateVendorCount();
    EXPECT_FALSE(settings.getString(keys::vendorIDUpdatedDate).contains(u"added"_s));
}

TEST_F(PreviousDatabase, HasComeBackAlsoWhenWhatItReplacedCannotBeNamed)
{
    const LogCapture log;
    refresh(registryOf(15));
    atSyncOf(files.liveDatabase(), [this] { QFile::remove(files.previousDatabase() + u".new"_s); });
    takeLabels();
    restore();
    EXPECT_EQ(database.count(), 10);
    EXPECT_FALSE(takeLabels().contains(u"Restoring failed..."_s));
    EXPECT_EQ(LogCapture::taken().size(), 1);
    EXPECT_EQ(VendorDatabase(files.previousDatabase()).count(), 10);
    expectIdle();
}

TEST_F(PreviousDatabase, ComesBackToTheDiskWithItsTimeWhereThereIsNone)
{
    const QDateTime before = QDateTime::fromSecsSinceEpoch(1'700'000'000);
    setLiveTime(before);
    refresh(registryOf(15));
    ASSERT_TRUE(QFile::remove(files.liveDatabase()));
    syncedPaths().clear();
    bool isNamed = true;
    beforeSync() = [&] { isNamed = QFile::exists(files.liveDatabase()) && isNamed; };
    restore();
    beforeSync() = {};
    EXPECT_EQ(database.count(), 10);
    EXPECT_EQ(QFileInfo(files.liveDatabase()).lastModified(), before);
    EXPECT_EQ(settings.getString(keys::vendorIDUpdatedDate),
        mediumDateShortTime(before.toLocalTime(), QLocale()));
    EXPECT_EQ(syncedPaths(), QStringList({files.liveDatabase() + u".new"_s, files.folder}));
    EXPECT_FALSE(isNamed) << "it has no name before it is whole";
}

TEST_F(PreviousDatabase, IsNotOfferedWhereThereIsAPipe)
{
    QDir().mkpath(QFileInfo(files.previousDatabase()).path());
    ASSERT_EQ(mkfifo(QFile::encodeName(files.previousDatabase()).constData(), 0600), 0);
    pane.resetDownloadButton();
    EXPECT_FALSE(pane.state().canRestore);
    refresh(registryOf(15));
    EXPECT_TRUE(pane.state().canRestore) << "it has made way";
}

TEST_F(PreviousDatabase, IsOfferedAfterARestart)
{
    refresh(registryOf(15));
    QuillonAppDelegate another{[this] {
        Platform platform = machine.platform();
        platform.places.supportFolder = files.folder;
        return platform;
    }()};
    EXPECT_FALSE(another.features().vendors.pane.state().canRestore);
    another.features().vendors.pane.showStoredTexts();
    EXPECT_TRUE(another.features().vendors.pane.state().canRestore);
}

TEST_F(PreviousDatabase, ThatIsDamagedIsNotPutInPlace)
{
    const LogCapture log;
    refresh(registryOf(15));
    writeFile(files.previousDatabase(), "scribble");
    restore();
    EXPECT_EQ(takeLabels().last(), "Restoring failed..."_L1);
    EXPECT_EQ(database.count(), 15);
    expectIdle();
}

TEST_F(PreviousDatabase, ComesBackWhereTheLiveOneIsCutShortOrGone)
{
    const LogCapture log;
    refresh(registryOf(15));
    writeFile(files.liveDatabase(), QByteArray(100, 'x'));
    restore();
    EXPECT_EQ(database.count(), 10);
    ASSERT_TRUE(QFile::remove(files.liveDatabase()));
    restore();
    EXPECT_EQ(database.count(), 10);
    EXPECT_EQ(pane.state().vendorCount, "10 Vendor Identifiers"_L1);
}

TEST_F(PreviousDatabase, ARefreshThatCannotKeepItFailsAndChangesNothing)
{
    const LogCapture log;
    writeFile(files.folder + u"/previous"_s, "in the way");
    refresh(registryOf(15));
    EXPECT_EQ(takeLabels().last(), "Parsing file failed..."_L1);
    EXPECT_EQ(database.count(), 10);
    EXPECT_EQ(settings.getString(keys::vendorIDUpdatedDate), "Yesterday"_L1);
    EXPECT_THAT(filesInFolder(), ElementsAre("oui.csv", "oui.db", "previous"));
    expectIdle();
}

} // namespace
} // namespace quillon::test
