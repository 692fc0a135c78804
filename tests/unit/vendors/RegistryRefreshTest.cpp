// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// A refresh as the user sees it.
#include "RegistryRefresh.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST_F(RegistryRefresh, SaysWhatItDoesInOrder)
{
    const QByteArray text = registryOf(10);
    refresh(text);
    EXPECT_EQ(http.requests(), QList<QUrl>{registry});
    EXPECT_THAT(
        takeLabels(), ElementsAre("Getting download information...",
                          "Downloading... 100.000% of 0.0MB", "Processing data...", lastUpdated()));
    EXPECT_THAT(
        takeCounts(), ElementsAre("Updating Vendor Identifier count...", "10 Vendor Identifiers"));
    expectIdle();
}

TEST_F(RegistryRefresh, ThatAddsNothingLeavesThePlainDate)
{
    refresh(registryOf(10));
    EXPECT_EQ(settings.getString(keys::vendorIDUpdatedDate), stamp);
    EXPECT_EQ(pane.state().updatedLabel, lastUpdated());
}

TEST_F(RegistryRefresh, ThatAddsFiveNotesThemWithTheNewDate)
{
    refresh(registryOf(15));
    const QString note = stamp + u" (added 5 new Identifiers)"_s;
    EXPECT_EQ(settings.getString(keys::vendorIDUpdatedDate), note);
    const QStringList said = takeLabels();
    EXPECT_EQ(said.last(), note);
    EXPECT_EQ(said.at(said.size() - 2), lastUpdated());
    EXPECT_EQ(pane.state().vendorCount, "15 Vendor Identifiers"_L1);
    EXPECT_EQ(settings.getInteger(keys::vendorCountValue), 15);
}

TEST_F(RegistryRefresh, ThatTakesSomeAwayOnlyCounts)
{
    refresh(registryOf(4));
    EXPECT_EQ(settings.getString(keys::vendorIDUpdatedDate), stamp);
    EXPECT_EQ(settings.getInteger(keys::vendorCountValue), 4);
}

TEST_F(RegistryRefresh, ReplacesTheDatabaseAndCleansUp)
{
    refresh(registryOf({{"ABCDEF", "Only One"}}));
    EXPECT_THAT(database.displayStrings(), ElementsAre("Only One (ABCDEF)"));
    EXPECT_THAT(filesInFolder(), ElementsAre("oui.db"));
}

TEST_F(RegistryRefresh, RebuildsTheListAtEveryEnd)
{
    openList();
    refresh(registryOf({{"ABCDEF", "Only One"}}));
    EXPECT_THAT(shown(), ElementsAre("Only One (ABCDEF)", "Random Address"));
}

TEST_F(RegistryRefresh, ShowsHowFarTheDownloadIs)
{
    pane.pressButton();
    expectDownloading();
    EXPECT_FALSE(pane.state().progressShown);
    http.deliver(http.last(), QByteArray(1'000'000, 'x'), 3'018'430);
    scheduler.runPending();
    expectDownloading();
    EXPECT_TRUE(pane.state().progressShown);
    EXPECT_EQ(pane.state().progress, 1'000'000.0F / 3'018'430.0F);
    EXPECT_EQ(pane.state().updatedLabel, "Downloading... 33.130% of 3.0MB"_L1);
    http.deliver(http.last(), QByteArray(16384, 'x'), 3'018'430);
    scheduler.runPending();
    EXPECT_EQ(pane.state().updatedLabel, "Downloading... 33.673% of 3.0MB"_L1);
}

TEST_F(RegistryRefresh, ShowsTheLatestChunkWhileTheSizeIsUnknown)
{
    pane.pressButton();
    http.deliver(http.last(), QByteArray(2'560'000, 'x'));
    scheduler.runPending();
    EXPECT_EQ(pane.state().updatedLabel, "Downloading... 2.6MB"_L1);
    http.deliver(http.last(), QByteArray(16384, 'x'));
    scheduler.runPending();
    EXPECT_EQ(pane.state().updatedLabel, "Downloading... 0.0MB"_L1);
    EXPECT_TRUE(pane.state().progressShown);
    EXPECT_EQ(pane.state().progress, -2'576'384.0F);
}

TEST_F(RegistryRefresh, OfAnEmptyDownloadHasNoShareToShow)
{
    pane.showProgress(0, 0, 0);
    EXPECT_EQ(pane.state().progress, 0.0F);
    EXPECT_EQ(pane.state().updatedLabel, "Downloading... 0.000% of 0.0MB"_L1);
}

TEST_F(RegistryRefresh, ProgressHasTheDecimalMarkOfTheLocale)
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    pane.showProgress(0, 1'234'567'890, 2'500'000'000);
    EXPECT_EQ(pane.state().updatedLabel, "Downloading... 49,383% of 2500,0MB"_L1);
    pane.showProgress(16'384, 16'384, -1);
    EXPECT_EQ(pane.state().updatedLabel, "Downloading... 0,0MB"_L1);
}

TEST_F(RegistryRefresh, DoesNotLookAtTheStatus)
{
    refresh("<html>\n<body>404 Not Found</body>\n</html>\n", 404);
    // Three lines: a header without any known column, and two rows of nothing.
    EXPECT_EQ(pane.state().updatedLabel, lastUpdated());
    EXPECT_EQ(database.count(), 2);
    EXPECT_THAT(database.displayStrings(), ElementsAre("(null) ((null))", "(null) ((null))"));
}

TEST_F(RegistryRefresh, IsCancelledBeforeTheFirstByte)
{
    pane.pressButton();
    const auto task = http.last();
    pane.pressButton();
    EXPECT_EQ(http.cancelled(), QList<HttpClient::Token>{task});
    EXPECT_THAT(
        takeLabels(), ElementsAre("Getting download information...", "Download cancelled..."));
    expectIdle();
    scheduler.runPending();
    EXPECT_THAT(takeLabels(), IsEmpty());
}

TEST_F(RegistryRefresh, IsCancelledInTheMiddle)
{
    pane.pressButton();
    http.deliver(http.last(), registryOf(50), 1'000'000);
    scheduler.runPending();
    pane.pressButton();
    expectIdle();
    scheduler.runPending();
    EXPECT_EQ(pane.state().updatedLabel, "Download cancelled..."_L1);
    EXPECT_EQ(database.count(), 10);
}

TEST_F(RegistryRefresh, CancelledDuringTheImportResetsNowAndOnceMoreLater)
{
    downloadUpToImport(registryOf(15));
    QObject::connect(&import, &RegistryImport::processingBegun, [this] { pane.pressButton(); });
    int resets = 0;
    QObject::connect(&download, &RegistryDownload::downloadButtonReset, [&resets] { ++resets; });
    scheduler.runPending();
    EXPECT_EQ(resets, 2);
    EXPECT_THAT(http.cancelled(), IsEmpty());
    const QStringList said = takeLabels();
    EXPECT_THAT(said, Contains("Processing data..."));
    EXPECT_THAT(said, Contains("Download cancelled..."));
    EXPECT_EQ(said.last(), stamp + u" (added 5 new Identifiers)"_s);
    EXPECT_EQ(database.count(), 15);
    expectIdle();
}

TEST_F(RegistryRefresh, StartedAgainDuringAnImportWaitsForIt)
{
    // Two texts, imported one after the other though both are there.
    writeFile(root.filePath(u"first"_s), registryOf(20));
    auto body = std::make_shared<QFile>(root.filePath(u"first"_s));
    ASSERT_TRUE(body->open(QIODevice::ReadOnly));
    this->import.importDownload(std::move(body));
    refresh(registryOf(30));
    EXPECT_EQ(database.count(), 30);
    EXPECT_THAT(filesInFolder(), ElementsAre("oui.db"));
    expectIdle();
}

TEST_F(RegistryRefresh, GoesOnWithoutThoseWhoStartedIt)
{
    const auto ownList = std::make_unique<VendorList>(scheduler, database);
    auto ownImport = std::make_unique<RegistryImport>(scheduler, settings, files, database);
    auto ownDownload =
        std::make_unique<RegistryDownload>(http, registry, *ownImport, count, *ownList);
    ownDownload->startDownload();
    const auto task = http.last();
    http.deliver(task, registryOf(15), -1);
    http.finish(task);
    QObject::connect(ownImport.get(), &RegistryImport::processingBegun, [&] {
        scheduler.onMain([&] {
            ownDownload.reset();
            ownImport.reset();
        });
    });
    scheduler.runPending();
    EXPECT_THAT(filesInFolder(), ElementsAre("oui.db"));
    EXPECT_EQ(settings.getString(keys::vendorIDUpdatedDate), "Yesterday"_L1);
}

TEST_F(RegistryRefresh, EndsItsTransferWhenItGoes)
{
    {
        RegistryDownload shortLived(http, registry, import, count, list);
        shortLived.startDownload();
    }
    EXPECT_THAT(http.running(), IsEmpty());
    scheduler.runPending();
}

TEST_F(RegistryRefresh, ImportsATextThatIsAlreadyThere)
{
    const QString path = root.filePath(u"another.csv"_s);
    writeFile(path, registryOf(15));
    this->import.parseDownloadedCSV(path);
    scheduler.runPending();
    EXPECT_EQ(database.count(), 15);
    EXPECT_TRUE(QFile::exists(path));
}

} // namespace
} // namespace quillon::test
