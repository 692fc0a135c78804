// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "VendorFixture.h"
#include "base/DateStamp.h"

namespace quillon::test {

/// Somebody with ten vendors, who presses the button and reads the two lines.
class RegistryRefresh : public VendorFixture
{
protected:
    RegistryRefresh()
    {
        makeLive(registryOf(10));
        settings.set(keys::vendorCountValue, 10);
        settings.set(keys::vendorIDUpdatedDate, QStringLiteral("Yesterday"));
        pane.showStoredTexts();
        takeLabels();
        takeCounts();
        stamp = mediumDateShortTime(scheduler.now().toLocalTime(), QLocale());
    }

    /// Presses the button and lets everything happen.
    void refresh(const QByteArray &body, int status = 200)
    {
        http.serve(registry, body, status);
        pane.pressButton();
        scheduler.runPending();
    }
    /// Downloads `body` by hand, up to the moment when the import begins.
    void downloadUpToImport(const QByteArray &body)
    {
        pane.pressButton();
        const auto task = http.last();
        http.deliver(task, body, body.size());
        scheduler.runPending();
        http.finish(task);
    }
    QString lastUpdated() const { return QStringLiteral("Last Updated: ") + stamp; }
    void expectIdle() const
    {
        EXPECT_EQ(pane.state().action, VendorPaneModel::Action::StartDownload);
        EXPECT_EQ(pane.state().buttonTitle, QLatin1String("Update database"));
        EXPECT_FALSE(pane.state().progressShown);
        EXPECT_EQ(pane.state().progress, 0.0F);
    }
    void expectDownloading() const
    {
        EXPECT_EQ(pane.state().action, VendorPaneModel::Action::CancelDownload);
        EXPECT_EQ(pane.state().buttonTitle, QLatin1String("Cancel download..."));
    }
    QStringList filesInFolder() const
    {
        return QDir(files.folder).entryList(QDir::Files | QDir::Hidden);
    }
    /// It failed, and left the live database and the downloaded text alone.
    void expectParsingFailed()
    {
        EXPECT_EQ(takeLabels().last(), QLatin1String("Parsing file failed..."));
        EXPECT_EQ(settings.getString(keys::vendorIDUpdatedDate), QLatin1String("Yesterday"));
        EXPECT_EQ(database.count(), 10);
        EXPECT_THAT(filesInFolder(), ::testing::ElementsAre("oui.csv", "oui.db"));
        EXPECT_EQ(pane.state().vendorCount, QLatin1String("10 Vendor Identifiers"));
        expectIdle();
    }

    QString stamp;
};

} // namespace quillon::test
