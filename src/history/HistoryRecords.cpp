// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/HistoryRecords.h"

#include "base/Log.h"
#include "devices/DeviceTable.h"
#include "history/Connection.h"
#include "networks/WiFiRecord.h"
#include "platform/Scheduler.h"
#include "store/RecordStore.h"
#include "store/graph/FetchFailure.h"
#include "store/model/QuillonModel.h"

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// Deliberately not "Connection": no store has it, so the answer is always empty.
const QString historyEntity = u"History"_s;

/// Never null, so that it is stored as an empty text.
QString notNull(const QString &text)
{
    return text.isNull() ? u""_s : text;
}

} // namespace

/// What there is to tell of one change.
struct HistoryRecords::Fact
{
    QDateTime date;
    QString device;
    QString interface;
    QString address;
    QString ssid = u""_s;
    QString bssid = u""_s;
};

HistoryRecords::HistoryRecords(RecordStore &records, const DeviceTable &devices,
    const SettingsStore &settings, Scheduler &scheduler)
    : m_records(records)
    , m_devices(devices)
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
    const DeviceRecord deviceRecord = m_devices.record(device);
    Fact fact{
        .date = m_scheduler.now(),
        .device = device,
        .interface = notNull(deviceRecord.interface.value_or(QString())),
        .address = address,
    };
    if (deviceRecord.isWifi()) {
        const WiFiRecord wifi = WiFiRecord::stored(m_settings);
        fact.ssid = notNull(wifi.ssid);
        fact.bssid = notNull(wifi.bssid.toLower());
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
