// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/HistoryRecords.h"

#include "base/Log.h"
#include "base/NetworkKeys.h"
#include "base/SettingsKeys.h"
#include "base/StoredText.h"
#include "devices/DeviceTable.h"
#include "history/Connection.h"
#include "platform/Scheduler.h"
#include "platform/SettingsStore.h"
#include "store/RecordStore.h"
#include "store/graph/FetchFailure.h"
#include "store/model/QuillonModel.h"

namespace quillon {

namespace {

/// Deliberately not "Connection": no store has it, so the answer is always empty.
const QString historyEntity = QStringLiteral("History");

/// Never null, so that it is stored as an empty text.
QString textIn(const QVariantMap &dictionary, const QString &key)
{
    return storedText(dictionary, key).value_or(QStringLiteral(""));
}

} // namespace

/// What there is to tell of one change.
struct HistoryRecords::Fact
{
    QDateTime date;
    QString device;
    QString interface;
    QString address;
    QString ssid = QStringLiteral("");
    QString bssid = QStringLiteral("");
};

HistoryRecords::HistoryRecords(RecordStore &records, SettingsStore &settings, Scheduler &scheduler)
    : m_records(records)
    , m_settings(settings)
    , m_scheduler(scheduler)
    , m_life(std::make_shared<const bool>(true))
{
}

void HistoryRecords::addHistoryItemForDeviceWithNewAddress(
    const QString &device, const QString &address)
{
    const Fact fact = factNow(device, address);
    if (m_scheduler.isMainThread()) {
        record(fact);
        return;
    }
    m_scheduler.onMain([this, life = std::weak_ptr(m_life), fact] {
        if (!life.expired()) {
            record(fact);
        }
    });
}

HistoryRecords::Fact HistoryRecords::factNow(const QString &device, const QString &address) const
{
    const QVariantMap deviceRecord =
        m_settings.getDictionary(keys::deviceDict).value(device).toMap();
    Fact fact{
        .date = m_scheduler.now(),
        .device = device,
        .interface = textIn(deviceRecord, record::interface),
        .address = address,
    };
    if (isWifiRecord(deviceRecord)) {
        const QVariantMap wifi = m_settings.getDictionary(keys::currentWiFiDict);
        fact.ssid = textIn(wifi, wifirecord::SSID);
        fact.bssid = textIn(wifi, wifirecord::BSSID).toLower();
    }
    return fact;
}

void HistoryRecords::record(const Fact &fact)
{
    ManagedObjectContext &context = m_records.managedObjectContext();
    {
        // What happened cannot be undone.
        const ManagedObjectContext::UndoDisabled undoDisabled(context);
        Connection connection(context.insertNewObject(model::Connection));
        connection.setDate(fact.date);
        connection.setAddress(fact.address);
        connection.setDevice(fact.device);
        connection.setInterface(fact.interface);
        connection.setBssid(fact.bssid);
        connection.setSsid(fact.ssid);
    }
    if (const auto error = context.save()) {
        qCWarning(logHistory, "Rule not added...");
    }
}

ManagedObjectList HistoryRecords::managedHistoryArray()
{
    const Result<ManagedObjectList> records = m_records.managedObjectContext().fetch(
        {.entity = historyEntity, .predicate = {}, .order = {}});
    if (!records) {
        logFetchFailure(logHistory, records.error());
        return {};
    }
    return records.value();
}

} // namespace quillon
