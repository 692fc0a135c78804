// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/QuillonAppDelegate.h"
#include "base/DateStamp.h"
#include "base/SettingsKeys.h"
#include "fakes/FakePlatform.h"
#include "fakes/LogCapture.h"
#include "fakes/QtPrinting.h"
#include "integration/platform/qt/web/WebServer.h"
#include "platform/qt/QtScheduler.h"
#include "platform/qt/web/NetworkHttpClient.h"
#include "vendors/VendorTable.h"

#include <QDir>
#include <gmock/gmock.h>

namespace quillon::test {

using namespace std::chrono_literals;

/// Somebody who refreshes the vendor database of a folder over the web, in a program of which the
/// files, the web and the threads are real.
class RefreshingUser
{
public:
    explicit RefreshingUser(const VendorFiles &vendorFiles)
        : files(vendorFiles)
    {
        // What is there is known.
        count.updateVendorCount();
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
        EXPECT_TRUE(eventually([this] { return isIdle(); })) << "it does not end";
    }
    /// The same, for a refresh that fails at its end and then completes: to its completion.
    void refreshToCompletion()
    {
        refresh();
        const QString completed = QStringLiteral("Last Updated: ");
        EXPECT_TRUE(eventually([&] { return labels.last().startsWith(completed); }))
            << labels.last().toStdString();
    }
    /// Presses the button, waits for `label`, and does something in the turn after it came: the
    /// next label may come at any time.
    void refreshUntil(const QString &label, const std::function<void()> &act = [] {})
    {
        labels.clear();
        QObject soon;
        bool came = false;
        bool done = false;
        QObject::connect(&pane, &VendorPaneModel::changed, &soon, [&] {
            if (!came && pane.state().updatedLabel == label) {
                came = true;
                QMetaObject::invokeMethod(
                    &soon,
                    [&] {
                        act();
                        done = true;
                    },
                    Qt::QueuedConnection);
            }
        });
        pane.pressButton();
        EXPECT_TRUE(eventually([&] { return done; })) << pane.state().updatedLabel.toStdString();
    }

    VendorFiles files;
    QtScheduler scheduler;
    NetworkHttpClient http{HttpClientOptions{3s, {}, qint64(1) << 30}};
    FakeSettingsStore settings{scheduler};
    FakePlatform machine;
    QuillonAppDelegate program{platform()};
    VendorFeature &feature = program.features().vendors;
    VendorDatabase &database = feature.database;
    VendorCount &count = feature.count;
    VendorList &list = feature.list;
    VendorLookup &lookup = feature.lookup;
    RegistryImport &import = feature.import;
    VendorPaneModel &pane = feature.pane;
    QStringList labels;

private:
    Platform platform()
    {
        const Platform fakes = machine.platform();
        return {
            .scheduler = scheduler,
            .settings = settings,
            .groupSettings = fakes.groupSettings,
            .notifications = fakes.notifications,
            .distributedNotifications = fakes.distributedNotifications,
            .userNotifications = fakes.userNotifications,
            .alerts = fakes.alerts,
            .network = fakes.network,
            .interfaceAddresses = fakes.interfaceAddresses,
            .addressOwners = fakes.addressOwners,
            .exposure = fakes.exposure,
            .networkChanges = fakes.networkChanges,
            .reachability = fakes.reachability,
            .sleep = fakes.sleep,
            .wifi = fakes.wifi,
            .radioSwitch = fakes.radioSwitch,
            .location = fakes.location,
            .systemSettings = fakes.systemSettings,
            .softwareCenter = fakes.softwareCenter,
            .hotKeys = fakes.hotKeys,
            .loginItem = fakes.loginItem,
            .links = fakes.links,
            .http = http,
            .helperLink = fakes.helperLink,
            .random = fakes.random,
            .runningApplications = fakes.runningApplications,
            .cloud = fakes.cloud,
            .secrets = fakes.secrets,
            .powerSaving = fakes.powerSaving,
            .places = {.supportFolder = files.folder,
                .shippedVendorDatabase = files.seed,
                .externalAddressService = {},
                .vendorRegistry = WebServer::secure("/oui/oui.csv"),
                .licenseFile = {}},
        };
    }
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
