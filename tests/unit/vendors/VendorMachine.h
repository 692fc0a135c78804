// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "VendorFolder.h"
#include "app/features/VendorWiring.h"
#include "base/SettingsKeys.h"
#include "fakes/FakeHttpClient.h"
#include "fakes/FakeSettingsStore.h"
#include "fakes/QtPrinting.h"
#include "platform/NotificationCenter.h"
#include "presentation/vendors/VendorFieldModel.h"
#include "presentation/vendors/VendorPaneModel.h"
#include "vendors/RegistryDownload.h"
#include "vendors/RegistryImport.h"
#include "vendors/VendorChoice.h"
#include "vendors/VendorCount.h"
#include "vendors/VendorList.h"
#include "vendors/VendorLookup.h"

#include <gmock/gmock.h>

#include <utility>

namespace quillon::test {

/// The vendor components and their models, put together as the program does it.
class VendorMachine : public VendorFolder
{
protected:
    VendorMachine()
    {
        connectVendors(&context, {count, list, lookup, choice, import, download, pane, field});
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
    ~VendorMachine() override { QLocale::setDefault(QLocale::c()); }

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
    QStringList shown() const
    {
        QStringList rows;
        for (qsizetype row = 0; row < list.rowCount(); ++row) {
            rows << list.entry(row);
        }
        return rows;
    }

    const QUrl registry{QStringLiteral("https://registry.test/oui/oui.csv")};
    FakeScheduler scheduler;
    FakeSettingsStore settings{scheduler};
    NotificationCenter notifications;
    FakeHttpClient http{scheduler};
    VendorDatabase database{files.liveDatabase()};
    VendorCount count{settings, scheduler, files, database};
    VendorList list{scheduler, database};
    VendorLookup lookup{settings, scheduler, database};
    VendorChoice choice{settings, notifications, list};
    RegistryImport import{scheduler, settings, files, database};
    RegistryDownload download{http, registry, import, count, list};
    VendorPaneModel pane{settings, download};
    VendorFieldModel field{choice, list, notifications};
    QObject context;
    QStringList labels;
    QStringList counts;
};

} // namespace quillon::test
