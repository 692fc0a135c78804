// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/graph/ManagedObject.h"
#include "store/model/FetchRequest.h"

#include <QDateTime>

namespace quillon {

/// One history record, typed: a change of an address. It is complete when made; afterwards only its
/// notes change. Cheap to copy; all copies are the same record. An attribute that holds nothing
/// reads as empty. Main thread.
class Connection
{
public:
    /// All records, without an order.
    static FetchRequest fetchRequest();

    /// `record` is a live record of the entity "Connection".
    explicit Connection(ManagedObjectPtr record);

    const ManagedObjectPtr &record() const { return m_record; }

    QDateTime date() const; ///< when the record was made, UTC
    QString device() const;
    QString interface() const; ///< the hardware port's name
    QString address() const;   ///< the new address, as it was asked for
    QString ssid() const;      ///< "" unless the port is Wi-Fi
    QString bssid() const;     ///< lower case; "" unless the port is Wi-Fi
    QString notes() const;

    void setDate(const QDateTime &date);
    void setDevice(const QString &device);
    void setInterface(const QString &interface);
    void setAddress(const QString &address);
    void setSsid(const QString &ssid);
    void setBssid(const QString &bssid);
    void setNotes(const QString &notes);

private:
    ManagedObjectPtr m_record;
};

} // namespace quillon
