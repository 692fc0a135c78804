// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Refreshing over HTTPS, as the ordinary user.
#include "integration/vendors/RefreshingUser.h"

#include <atomic>
#include <thread>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using ::testing::Contains;
using ::testing::HasSubstr;

class Refresh : public RefreshTest
{
protected:
    Refresh() { makeLive(10); }
    /// It waits, whatever happened, until it is cancelled.
    void expectWaitsForCancel(const QString &label, const char *why)
    {
        RefreshingUser user(files);
        {
            const LogCapture log;
            QStringList lines;
            user.pane.pressButton();
            EXPECT_TRUE(eventually([&] {
                lines += LogCapture::taken();
                return !lines.isEmpty();
            }));
            EXPECT_THAT(lines.first().toStdString(), HasSubstr("Registry not downloaded: ")) << why;
        }
        EXPECT_FALSE(user.isIdle()) << why;
        EXPECT_TRUE(user.pane.state().updatedLabel.startsWith(label))
            << why << ": " << user.pane.state().updatedLabel.toStdString();
        user.pane.pressButton();
        EXPECT_TRUE(user.isIdle()) << why;
        EXPECT_EQ(user.pane.state().updatedLabel, "Download cancelled..."_L1) << why;
        EXPECT_EQ(user.database.count(), 10) << why;
        expectFiles({u"oui.db"_s});
    }
};

TEST_F(Refresh, BringsTheRealRegistry)
{
    RefreshingUser user(files);
    serveRealFile();
    user.refresh();
    // More than were ever assigned in one go, and the same however they are counted.
    const qlonglong count = user.database.count();
    EXPECT_GT(count, 30'000);
    EXPECT_EQ(user.settings.getInteger(keys::vendorCountValue), count);
    EXPECT_EQ(user.pane.state().vendorCount, u"%1 Vendor Identifiers"_s.arg(count));
    const QString note = user.settings.getString(keys::vendorIDUpdatedDate);
    EXPECT_TRUE(note.endsWith(u" (added %1 new Identifiers)"_s.arg(count - 10)));
    EXPECT_EQ(user.labels.first(), "Getting download information..."_L1);
    EXPECT_THAT(user.labels, Contains("Processing data..."));
    EXPECT_EQ(user.labels.last(), note);
    EXPECT_TRUE(user.labels.filter(u"% of "_s).last().startsWith(u"Downloading... 100.000% of "_s));
    expectFiles({u"oui.db"_s});
    user.lookup.updateVendor(u"08:00:30:00:00:01"_s);
    EXPECT_EQ(user.settings.getDictionary(keys::currentVendorData)
                  .value(vendordata::vendorCurrentString)
                  .toString(),
        "CERN"_L1);
    user.list.open();
    EXPECT_TRUE(eventually([&] { return user.list.rowCount() == count + 1; }));
    user.refresh();
    EXPECT_TRUE(user.labels.last().startsWith(u"Last Updated: "_s)) << "nothing new";
}

TEST_F(Refresh, ShowsASlowDownloadAsItGrows)
{
    RefreshingUser user(files);
    const QByteArray text = registryOf(50);
    // Pieces that come while nobody looks are one.
    serve({{u"piece"_s, 200}, {u"pause"_s, 0.3}}, text);
    float progress = 0;
    bool grows = true;
    QObject::connect(&user.pane, &VendorPaneModel::changed, [&] {
        const auto &state = user.pane.state();
        grows = grows && (!state.progressShown || state.progress >= progress);
        progress = state.progressShown ? state.progress : progress;
    });
    user.refresh();
    EXPECT_TRUE(grows);
    EXPECT_EQ(progress, 1.0F);
    EXPECT_GT(user.labels.filter(u"% of 0.0MB"_s).size(), 5);
    EXPECT_EQ(user.database.count(), 50);
}

TEST_F(Refresh, OfUnknownSizeShowsTheLatestPieces)
{
    RefreshingUser user(files);
    serve({{u"framing"_s, u"chunked"_s}}, registryOf(50));
    float progress = 0;
    QObject::connect(&user.pane, &VendorPaneModel::changed,
        [&] { progress = std::min(progress, user.pane.state().progress); });
    user.refresh();
    EXPECT_THAT(user.labels, Contains("Downloading... 0.0MB"));
    EXPECT_LT(progress, 0.0F);
    EXPECT_EQ(user.database.count(), 50);
}

TEST_F(Refresh, ThatFailsOnTheWayWaitsToBeCancelled)
{
    const QByteArray text = registryOf(1000);
    const QString progress = u"Downloading... "_s;
    for (const char *const how : {"close", "reset", "stall"}) {
        // What is sent just before a reset may be lost: something has come before that.
        serve({{u"piece"_s, static_cast<int>(text.size() / 4)}, {u"pause"_s, 1},
                  {u"cut"_s, text.size() / 2}, {u"then"_s, QString::fromLatin1(how)}},
            text);
        expectWaitsForCancel(progress, how);
    }
    serve({{u"length"_s, text.size() * 2}}, text);
    expectWaitsForCancel(progress + u"50.000% of 0.1MB"_s, "wrong length");
    web.stop();
    expectWaitsForCancel(u"Getting download information..."_s, "no server");
}

TEST_F(Refresh, FromAServerThatIsNotTrustedWaitsToBeCancelled)
{
    RefreshingUser user(files);
    const LogCapture log;
    RegistryDownload untrusted(user.http, WebServer::secure("/oui/oui.csv", "untrusted.test"),
        user.import, user.count, user.list);
    untrusted.startDownload();
    QStringList lines;
    EXPECT_TRUE(eventually([&] {
        lines += LogCapture::taken();
        return !lines.isEmpty();
    }));
    EXPECT_EQ(user.database.count(), 10);
}

TEST_F(Refresh, ReadsWhateverBodyArrivesWithWhateverStatus)
{
    RefreshingUser user(files);
    serve({{u"status"_s, 404}}, "There is no such page.\n");
    user.refresh();
    EXPECT_EQ(user.labels.last(), "Parsing file failed..."_L1);
    EXPECT_EQ(user.database.count(), 10);
    expectFiles({u"oui.csv"_s, u"oui.db"_s});
    serve({{u"status"_s, 404}}, registryOf(3));
    user.refresh();
    EXPECT_EQ(user.database.count(), 3);
}

TEST_F(Refresh, FollowsARedirect)
{
    RefreshingUser user(files);
    web.serve("/oui/oui.csv", {{u"redirect"_s, u"/elsewhere.csv"_s}});
    web.serve("/elsewhere.csv", {{u"body"_s, QString::fromUtf8(registryOf(7))}});
    user.refresh();
    EXPECT_EQ(user.database.count(), 7);
}

TEST_F(Refresh, CancelledWhenFirstBytesAreThereCanBeStartedAgain)
{
    RefreshingUser user(files);
    serve({{u"piece"_s, 100}, {u"pause"_s, 0.05}}, registryOf(500));
    user.pane.pressButton();
    EXPECT_TRUE(eventually([&] { return user.pane.state().progressShown; }));
    user.pane.pressButton();
    EXPECT_TRUE(user.isIdle());
    EXPECT_EQ(user.labels.last(), "Download cancelled..."_L1);
    serve({}, registryOf(500));
    user.refresh();
    EXPECT_EQ(user.database.count(), 500);
}

TEST_F(Refresh, CancelledDuringTheImportIsCarriedOut)
{
    RefreshingUser user(files);
    serveRealFile();
    user.refreshUntil(u"Processing data..."_s, [&user] { user.pane.pressButton(); });
    EXPECT_TRUE(user.isIdle());
    EXPECT_TRUE(eventually([&] { return user.database.count() > 30'000; }));
    EXPECT_TRUE(eventually([&] { return user.labels.last() != "Download cancelled..."_L1; }));
    expectFiles({u"oui.db"_s});
}

TEST_F(Refresh, StartedTwiceAtOnceIsOneImportAfterTheOther)
{
    RefreshingUser user(files);
    int ended = 0;
    QObject::connect(&user.import, &RegistryImport::ended, [&ended] { ++ended; });
    int completed = 0;
    QObject::connect(
        &user.import, &RegistryImport::downloadCompleted, [&completed] { ++completed; });
    const QString csv = folder.filePath(u"download"_s);
    const QList<int> sizes = {20'000, 15'000, 10'000, 5'000};
    for (const int size : sizes) {
        write(csv, registryOf(size));
        auto body = std::make_shared<QFile>(csv);
        ASSERT_TRUE(body->open(QIODevice::ReadOnly));
        QFile::remove(csv);
        user.import.importDownload(std::move(body));
    }
    EXPECT_TRUE(eventually([&] { return ended == sizes.size(); }));
    EXPECT_EQ(completed, sizes.size());
    EXPECT_EQ(user.database.count(), 5'000);
    expectFiles({u"oui.db"_s});
}

TEST_F(Refresh, LeavesEveryQuestionAWholeAnswer)
{
    RefreshingUser user(files);
    serve({}, registryOf(2000));
    std::atomic<bool> ending = false;
    std::atomic<int> broken = 0;
    std::atomic<int> answers = 0;
    std::thread asking([&, database = user.database] {
        while (!ending) {
            const qlonglong count = database.count();
            const qsizetype listed = database.displayStrings().size();
            const bool whole = (count == 10 || count == 2000) && (listed == 10 || listed == 2000) &&
                               database.lookup(u"000007"_s);
            broken += whole ? 0 : 1;
            ++answers;
        }
    });
    for (int i = 0; i < 10; ++i) {
        user.refresh();
    }
    EXPECT_TRUE(eventually([&] { return answers > 20; }));
    ending = true;
    asking.join();
    EXPECT_EQ(broken, 0) << "of " << answers;
    EXPECT_EQ(user.database.count(), 2000);
}

TEST_F(Refresh, InAFolderForReadingOnlyFails)
{
    RefreshingUser user(files);
    serve({}, registryOf(50));
    const LogCapture log;
    QFile::setPermissions(files.folder, QFile::ReadOwner | QFile::ExeOwner);
    user.refresh();
    QFile::setPermissions(files.folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_EQ(user.labels.last(), "Parsing file failed..."_L1);
    EXPECT_EQ(user.database.count(), 10);
    expectFiles({u"oui.db"_s});
}

TEST_F(Refresh, OfADatabaseForReadingOnlyFailsAndCompletes)
{
    RefreshingUser user(files);
    serve({}, registryOf(50));
    const LogCapture log;
    QFile::setPermissions(files.liveDatabase(), QFile::ReadOwner);
    user.refreshToCompletion();
    ASSERT_GE(user.labels.size(), 2);
    EXPECT_EQ(user.labels.at(user.labels.size() - 2), "Parsing file failed..."_L1);
    EXPECT_EQ(user.database.count(), 10);
}

TEST_F(Refresh, ThatIsAbandonedInAnyStateHarmsNobody)
{
    serveRealFile();
    for (const char *const label :
        {"Getting download information...", "Processing data...", "Processing data..."}) {
        RefreshingUser user(files);
        user.refreshUntil(QString::fromLatin1(label));
    }
    RefreshingUser user(files);
    user.refresh();
    EXPECT_GT(user.database.count(), 30'000);
    expectFiles({u"oui.db"_s});
}

} // namespace
} // namespace quillon::test
