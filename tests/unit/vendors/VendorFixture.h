// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "VendorFolder.h"
#include "app/QuillonAppDelegate.h"
#include "base/SettingsKeys.h"
#include "fakes/FakePlatform.h"
#include "fakes/QtPrinting.h"

#include <gmock/gmock.h>

#include <utility>

namespace quillon::test {

/// The vendor components and their models in a program that is put together and not started.
class VendorFixture : public VendorFolder
{
protected:
    VendorFixture()
    {
        QObject::connect(&pane, &VendorPaneModel::changed, [this] {
            const auto &state = pane.state();
            if (labels.isEmpty() || labels.last() != state.updatedLabel) {
                labels << state.updatedLabel;
            }
            if (counts.isEmpty() || counts.last() != state.vendorCount) {
                counts << state.vendorCount;
            }
        });
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    }
    ~VendorFixture() override { QLocale::setDefault(QLocale::c()); }

    /// What the texts have been since the last call, each once in a row.
    QStringList takeLabels() { return std::exchange(labels, {}); }
    QStringList takeCounts() { return std::exchange(counts, {}); }

    void storeDevice(const QString &device, const QVariantMap &record)
    {
        QVariantMap table = settings.getDictionary(keys::deviceDict);
        table[device] = record;
        settings.set(keys::deviceDict, table);
    }
    void select(const QString &device)
    {
        settings.set(keys::currentInterfaceDict, QVariantMap{{record::device, device}});
    }
    void loadList()
    {
        list.loadVendorField();
        scheduler.runPending();
    }
    /// The whole list is there.
    void openList()
    {
        list.open();
        scheduler.runPending();
    }
    QStringList shown() const
    {
        QStringList rows;
        for (qsizetype row = 0; row < list.rowCount(); ++row) {
            rows << list.entry(row);
        }
        return rows;
    }

    const QUrl registry{QStringLiteral("https://registry.example/oui/oui.csv")};
    FakePlatform machine;
    FakeScheduler &scheduler = machine.scheduler;
    FakeSettingsStore &settings = machine.settings;
    NotificationCenter &notifications = machine.notifications;
    FakeHttpClient &http = machine.http;
    QuillonAppDelegate program{platform()};
    VendorFeature &feature = program.features().vendors;
    VendorDatabase &database = feature.database;
    VendorCount &count = feature.count;
    VendorList &list = feature.list;
    VendorLookup &lookup = feature.lookup;
    VendorChoice &choice = feature.choice;
    RegistryImport &import = feature.import;
    RegistryDownload &download = feature.download;
    VendorPaneModel &pane = feature.pane;
    VendorFieldModel &field = feature.field;
    QStringList labels;
    QStringList counts;

private:
    Platform platform()
    {
        Platform platform = machine.platform();
        platform.places.supportFolder = files.folder;
        platform.places.shippedVendorDatabase = files.seed;
        platform.places.vendorRegistry = registry;
        return platform;
    }
};

} // namespace quillon::test
