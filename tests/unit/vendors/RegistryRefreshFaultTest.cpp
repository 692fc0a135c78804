// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "FileSizeLimit.h"
#include "RegistryRefresh.h"
#include "fakes/LogCapture.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <sys/stat.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using RegistryRefreshFault = RegistryRefresh;

TEST_F(RegistryRefreshFault, FailsOfATextWithoutRecords)
{
    for (const QByteArray &text : {QByteArray(), registryHeader, QByteArray("Not Found")}) {
        refresh(text);
        expectParsingFailed();
    }
}

TEST_F(RegistryRefreshFault, FailsOfATextWithAParseErrorWhereverItIs)
{
    refresh("MA-L,\"00\"1A2B\n" + registryOf(20));
    expectParsingFailed();
    refresh(registryOf(20) + "MA-L,\"001A2B");
    expectParsingFailed();
    refresh(QByteArray(500'000, '\"'));
    expectParsingFailed();
    EXPECT_EQ(readFile(files.registryText()), QByteArray(500'000, '\"'));
}

TEST_F(RegistryRefreshFault, ThatCannotBeTransferredWaitsToBeCancelled)
{
    const LogCapture log;
    http.refuse(registry, {posixErrorDomain, 111, u"refused"_s});
    pane.pressButton();
    scheduler.advance(std::chrono::hours(1));
    EXPECT_EQ(
        LogCapture::taken(), QStringList("quillon.vendors: Registry not downloaded: refused"));
    expectDownloading();
    EXPECT_EQ(pane.state().updatedLabel, "Getting download information..."_L1);
    pane.pressButton();
    expectIdle();
    EXPECT_EQ(pane.state().updatedLabel, "Download cancelled..."_L1);
    EXPECT_EQ(pane.state().vendorCount, "10 Vendor Identifiers"_L1);
    refresh(registryOf(11));
    EXPECT_EQ(database.count(), 11);
}

TEST_F(RegistryRefreshFault, ThatBreaksInTheMiddleKeepsItsLastProgress)
{
    const LogCapture log;
    pane.pressButton();
    http.deliver(http.last(), QByteArray(500'000, 'x'), 1'000'000);
    http.fail(http.last(), {posixErrorDomain, 104, u"reset"_s});
    scheduler.runPending();
    expectDownloading();
    EXPECT_EQ(pane.state().updatedLabel, "Downloading... 50.000% of 1.0MB"_L1);
    EXPECT_EQ(database.count(), 10);
    EXPECT_THAT(filesInFolder(), ElementsAre("oui.db"));
}

TEST_F(RegistryRefreshFault, OfWhichABadStatusCameAndThenNotTheWholeBodyWaitsToBeCancelled)
{
    const LogCapture log;
    pane.pressButton();
    http.deliver(http.last(), "<html>\n<body>Too,\nbusy,\n", 1'000'000);
    http.finish(http.last(), 503);
    scheduler.runPending();
    expectDownloading();
    EXPECT_EQ(database.count(), 10);
    EXPECT_THAT(filesInFolder(), ElementsAre("oui.db"));
}

TEST_F(RegistryRefreshFault, WithoutALiveDatabaseWritesNothingAndReportsCompletion)
{
    QFile::remove(files.liveDatabase());
    refresh(registryOf(15));
    EXPECT_EQ(pane.state().updatedLabel, lastUpdated());
    EXPECT_EQ(pane.state().vendorCount, "0 Vendor Identifiers"_L1);
    EXPECT_THAT(filesInFolder(), IsEmpty());
}

TEST_F(RegistryRefreshFault, ThatCannotWriteTheLiveDatabaseFailsAndCompletes)
{
    const LogCapture log;
    QFile::remove(files.liveDatabase());
    ASSERT_TRUE(QFile::link(u"/dev/full"_s, files.liveDatabase()));
    refresh(registryOf(15));
    EXPECT_THAT(takeLabels(),
        ElementsAre("Getting download information...", "Downloading... 100.000% of 0.0MB",
            "Processing data...", "Parsing file failed...", lastUpdated()));
    EXPECT_THAT(filesInFolder(), ElementsAre("oui.db"));
    EXPECT_EQ(settings.getString(keys::vendorIDUpdatedDate), stamp);
    EXPECT_FALSE(import.isAtWork()) << "both reports are of one import";
    expectIdle();
}

TEST_F(RegistryRefreshFault, ThatFindsTheLiveDatabaseLockedFailsAndCompletes)
{
    const LogCapture log;
    SQLite::Database other(
        QFile::encodeName(files.liveDatabase()).constData(), SQLite::OPEN_READWRITE);
    other.exec("begin immediate");
    refresh(registryOf(15));
    const QStringList said = takeLabels();
    EXPECT_EQ(said.at(said.size() - 2), "Parsing file failed..."_L1);
    EXPECT_EQ(said.last(), lastUpdated());
    other.exec("rollback");
    EXPECT_EQ(database.count(), 10);
    EXPECT_THAT(filesInFolder(), ElementsAre("oui.db"));
}

TEST_F(RegistryRefreshFault, ThatCannotSaveTheTextFails)
{
    const LogCapture log;
    const QString downloaded = root.filePath(u"downloaded"_s);
    writeFile(downloaded, registryOf(15));
    auto body = std::make_shared<QFile>(downloaded);
    ASSERT_TRUE(body->open(QIODevice::ReadOnly | QIODevice::Unbuffered));
    import.importDownload(body);
    {
        const FileSizeLimit limit(0);
        scheduler.runPending();
    }
    EXPECT_THAT(LogCapture::taken().join(u'\n').toStdString(),
        ::testing::HasSubstr("Registry not saved: File too large"));
    EXPECT_EQ(takeLabels().last(), "Parsing file failed..."_L1);
    EXPECT_EQ(database.count(), 10);
    expectIdle();
}

TEST_F(RegistryRefreshFault, ThatFindsAPipeInPlaceOfTheTextFails)
{
    const LogCapture log;
    ASSERT_EQ(mkfifo(QFile::encodeName(files.registryText()).constData(), 0600), 0);
    refresh(registryOf(15));
    EXPECT_EQ(takeLabels().last(), "Parsing file failed..."_L1);
    EXPECT_EQ(database.count(), 10);
    expectIdle();
}

TEST_F(RegistryRefreshFault, ThatCannotReadWhatItDownloadedSaysWhy)
{
    const LogCapture log;
    // Opens, but has nothing at its beginning that could be read.
    auto body = std::make_shared<QFile>(u"/proc/self/mem"_s);
    ASSERT_TRUE(body->open(QIODevice::ReadOnly | QIODevice::Unbuffered));
    import.importDownload(body);
    scheduler.runPending();
    EXPECT_EQ(takeLabels().last(), "Parsing file failed..."_L1);
    EXPECT_EQ(
        LogCapture::taken(), QStringList("quillon.vendors: Registry not read: Input/output error"));
}

TEST_F(RegistryRefreshFault, FailsWithoutItsFolder)
{
    const LogCapture log;
    QDir(files.folder).removeRecursively();
    refresh(registryOf(15));
    EXPECT_EQ(takeLabels().last(), "Parsing file failed..."_L1);
    EXPECT_EQ(pane.state().vendorCount, "0 Vendor Identifiers"_L1);
    EXPECT_FALSE(QDir(files.folder).exists());
    expectIdle();
}

TEST_F(RegistryRefreshFault, FailsWhereTheNewDatabaseCannotBeMade)
{
    const LogCapture log;
    // Not empty, so that it is not removed for the new one.
    QDir().mkpath(files.newDatabase() + u"/in the way"_s);
    refresh(registryOf(15));
    EXPECT_EQ(takeLabels().last(), "Parsing file failed..."_L1);
    EXPECT_EQ(database.count(), 10);
    EXPECT_TRUE(QFile::exists(files.registryText()));
    expectIdle();
}

TEST_F(RegistryRefreshFault, StopsAtTheInsertForWhichThereIsNoRoom)
{
    const LogCapture log;
    const QByteArray text = registryOf(5000);
    downloadUpToImport(text);
    {
        // Room for the text, not for the database, which is larger.
        const FileSizeLimit limit(static_cast<rlim_t>(text.size()) + 4096);
        scheduler.runPending();
    }
    EXPECT_THAT(LogCapture::taken().join(u'\n').toStdString(),
        ::testing::HasSubstr("quillon.vendors: Vendor not stored: "));
    expectParsingFailed();
}

} // namespace
} // namespace quillon::test
