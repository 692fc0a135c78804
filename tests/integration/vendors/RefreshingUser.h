// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/features/VendorWiring.h"
#include "base/SettingsKeys.h"
#include "fakes/FakeSettingsStore.h"
#include "fakes/LogCapture.h"
#include "fakes/QtPrinting.h"
#include "integration/platform/qt/web/WebServer.h"
#include "platform/NotificationCenter.h"
#include "platform/qt/QtScheduler.h"
#include "platform/qt/web/NetworkHttpClient.h"
#include "presentation/vendors/VendorFieldModel.h"
#include "presentation/vendors/VendorPaneModel.h"
#include "vendors/DateStamp.h"
#include "vendors/RegistryDownload.h"
#include "vendors/RegistryImport.h"
#include "vendors/VendorChoice.h"
#include "vendors/VendorCount.h"
#include "vendors/VendorList.h"
#include "vendors/VendorLookup.h"
#include "vendors/VendorTable.h"

#include <QDir>
#include <gmock/gmock.h>

namespace quillon::test {

using namespace std::chrono_literals;

/// Somebody who refreshes the vendor database of a folder over the web, with everything real but
/// the settings.
class RefreshingUser
{
public:
    explicit RefreshingUser(const VendorFiles &vendorFiles)
        : files(vendorFiles)
    {
        // What is there is known.
        count.updateVendorCount();
        connectVendors(&context, {count, list, lookup, choice, import, download, pane, field});
        QObject::connect(&pane, &VendorPaneModel::changed, [this] {
            const QString &label = pane.state().updatedLabel;
            if (labels.isEmpty() || labels.last() != label) {
                labels << label;
            }
        });
    }

    bool isIdle() const { return pane.state().action == VendorPaneModel::Action::StartDownload; }
    /// Presses the button and waits for the end.
    void refresh()
    {
        labels.clear();
        pane.pressButton();
        EXPECT_FALSE(isIdle());
        EXPECT_TRUE(eventually([this] { return isIdle(); }, 60s)) << "it does not end";
    }
    /// The same, for a refresh that fails at its end and then completes: to its completion.
    void refreshToCompletion()
    {
        refresh();
        const QString completed = QStringLiteral("Last Updated: ");
        EXPECT_TRUE(eventually([&] { return labels.last().startsWith(completed); }))
            << labels.last().toStdString();
    }
    /// Presses the button and waits for `label`.
    void refreshUntil(const QString &label)
    {
        labels.clear();
        pane.pressButton();
        EXPECT_TRUE(eventually([&] { return pane.state().updatedLabel == label; }, 20s))
            << pane.state().updatedLabel.toStdString();
    }

    VendorFiles files;
    QtScheduler scheduler;
    FakeSettingsStore settings{scheduler};
    NotificationCenter notifications;
    NetworkHttpClient http{HttpClientOptions{500ms, {}, qint64(1) << 30}};
    VendorDatabase database{files.liveDatabase()};
    VendorCount count{settings, scheduler, files, database};
    VendorList list{scheduler, database};
    VendorLookup lookup{settings, scheduler, database};
    VendorChoice choice{settings, notifications, list};
    RegistryImport import{scheduler, settings, files, database};
    RegistryDownload download{http, WebServer::secure("/oui/oui.csv"), import, count, list};
    VendorPaneModel pane{settings, download};
    VendorFieldModel field{choice, list, notifications};
    QObject context;
    QStringList labels;
};

/// A folder, a web server, and the user of both.
class RefreshTest : public ::testing::Test
{
protected:
    RefreshTest()
    {
        EXPECT_TRUE(folder.isValid());
        files = {folder.filePath(QStringLiteral("Quillon")), {}};
        QDir().mkpath(files.folder);
    }

    void write(const QString &path, const QByteArray &content)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(content), content.size());
    }
    /// The database that is there before.
    void makeLive(int count)
    {
        const QString csv = folder.filePath(QStringLiteral("before.csv"));
        write(csv, registryOf(count));
        ASSERT_TRUE(fillVendorTable(csv, files.liveDatabase()));
    }
    static QByteArray registryOf(int count)
    {
        QByteArray text = "Registry,Assignment,Organization Name,Organization Address\r\n";
        for (int i = 0; i < count; ++i) {
            const QByteArray number = QByteArray::number(i, 16).rightJustified(6, '0').toUpper();
            text += "MA-L," + number + ",\"Maker " + number + ", Inc.\",\r\n";
        }
        return text;
    }
    /// What the web server gives for the registry.
    void serve(QVariantMap rule, const QByteArray &body)
    {
        rule.insert(QStringLiteral("body"), QString::fromUtf8(body));
        web.serve("/oui/oui.csv", rule);
    }
    void serveRealFile(QVariantMap rule = {})
    {
        rule.insert(QStringLiteral("file"), QStringLiteral(QUILLON_REGISTRY_CSV));
        web.serve("/oui/oui.csv", rule);
    }
    /// Soon: the last of the work is done in the background after the user has heard of it.
    void expectFiles(const QStringList &names) const
    {
        QStringList found;
        EXPECT_TRUE(eventually([&] {
            found = QDir(files.folder).entryList(QDir::Files | QDir::Hidden);
            return found == names;
        })) << found.join(u' ').toStdString();
    }

    QTemporaryDir folder;
    VendorFiles files;
    WebServer web;
};

} // namespace quillon::test
