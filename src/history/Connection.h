// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/graph/ManagedObject.h"
#include "store/model/FetchRequest.h"
#include "store/model/QuillonModel.h"

#include <utility>

namespace quillon {

/// One history record, typed: a change of an address. It is complete when made; afterwards only its
/// notes change. Cheap to copy; all copies are the same record. An attribute that holds nothing
/// reads as empty. Main thread.
class Connection
{
public:
    /// All records, without an order.
    static FetchRequest fetchRequest() { return {model::Connection, {}, {}}; }

    /// `record` is a live record of the entity "Connection".
    explicit Connection(ManagedObjectPtr record)
        : m_record(std::move(record))
    {
    }

    const ManagedObjectPtr &record() const { return m_record; }

    /// When the record was made, UTC.
    QDateTime date() const { return m_record->get(model::connection::date); }
    QString device() const { return m_record->get(model::connection::device); }
    /// The hardware port's name.
    QString interface() const { return m_record->get(model::connection::interface); }
    /// The new address, as it was asked for.
    QString address() const { return m_record->get(model::connection::address); }
    /// "" unless the port is Wi-Fi.
    QString ssid() const { return m_record->get(model::connection::ssid); }
    /// Lower case; "" unless the port is Wi-Fi.
    QString bssid() const { return m_record->get(model::connection::bssid); }
    QString notes() const { return m_record->get(model::connection::notes); }

    void setDate(const QDateTime &date) { m_record->set(model::connection::date, date); }
    void setDevice(const QString &device) { m_record->set(model::connection::device, device); }
    void setInterface(const QString &interface)
    {
        m_record->set(model::connection::interface, interface);
    }
    void setAddress(const QString &address) { m_record->set(model::connection::address, address); }
    void setSsid(const QString &ssid) { m_record->set(model::connection::ssid, ssid); }
    void setBssid(const QString &bssid) { m_record->set(model::connection::bssid, bssid); }
    void setNotes(const QString &notes) { m_record->set(model::connection::notes, notes); }

private:
    ManagedObjectPtr m_record;
};

} // namespace quillon
