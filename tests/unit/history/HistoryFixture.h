// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/NetworkKeys.h"
#include "history/Connection.h"
#include "history/HistoryRecords.h"
#include "store/RecordStore.h"
#include "unit/devices/DeviceFixture.h"

#include <QTemporaryDir>

#include <memory>

namespace quillon::test {

/// A laptop on the network "Home" whose changes are recorded in a real store.
class HistoryFixture : public DeviceFixture
{
protected:
    HistoryFixture()
        : DeviceFixture(QStringLiteral("laptop"))
    {
        table.updateNetWorkInterfaces();
        join(QStringLiteral("Home"), QStringLiteral("a4:2b:b0:11:22:33"));
    }

    void join(const QString &ssid, const QString &bssid)
    {
        settings.set(keys::currentWiFiDict,
            QVariantMap{{wifirecord::SSID, ssid}, {wifirecord::BSSID, bssid}});
    }

    static QList<Connection> recordsOf(ManagedObjectContext &context)
    {
        QList<Connection> connections;
        const Result<ManagedObjectList> fetched = context.fetch(Connection::fetchRequest());
        EXPECT_TRUE(fetched);
        if (fetched) {
            for (const ManagedObjectPtr &record : fetched.value()) {
                connections.append(Connection(record));
            }
        }
        return connections;
    }
    ManagedObjectContext &context() { return records->managedObjectContext(); }
    QString file() const { return folder.filePath(QStringLiteral("Quillon.sqlite")); }

    const QString wired = QStringLiteral("enp1s0");
    const QString wifi = QStringLiteral("wlp2s0");
    const QString address = QStringLiteral("02:AA:bb:CC:dd:01");
    QTemporaryDir folder;
    std::unique_ptr<RecordStore> records = std::make_unique<RecordStore>(scheduler, folder.path());
    std::unique_ptr<HistoryRecords> history =
        std::make_unique<HistoryRecords>(*records, table, settings, scheduler);
};

} // namespace quillon::test
