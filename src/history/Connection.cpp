// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/Connection.h"

#include "store/model/QuillonModel.h"

namespace quillon {

FetchRequest Connection::fetchRequest()
{
    return {.entity = model::Connection, .predicate = {}, .order = {}};
}

Connection::Connection(ManagedObjectPtr record)
    : m_record(std::move(record))
{
}

QDateTime Connection::date() const
{
    return m_record->value(model::connection::date).toDateTime();
}

QString Connection::device() const
{
    return m_record->value(model::connection::device).toString();
}

QString Connection::interface() const
{
    return m_record->value(model::connection::interface).toString();
}

QString Connection::address() const
{
    return m_record->value(model::connection::address).toString();
}

QString Connection::ssid() const
{
    return m_record->value(model::connection::ssid).toString();
}

QString Connection::bssid() const
{
    return m_record->value(model::connection::bssid).toString();
}

QString Connection::notes() const
{
    return m_record->value(model::connection::notes).toString();
}

void Connection::setDate(const QDateTime &date)
{
    m_record->setValue(model::connection::date, date);
}

void Connection::setDevice(const QString &device)
{
    m_record->setValue(model::connection::device, device);
}

void Connection::setInterface(const QString &interface)
{
    m_record->setValue(model::connection::interface, interface);
}

void Connection::setAddress(const QString &address)
{
    m_record->setValue(model::connection::address, address);
}

void Connection::setSsid(const QString &ssid)
{
    m_record->setValue(model::connection::ssid, ssid);
}

void Connection::setBssid(const QString &bssid)
{
    m_record->setValue(model::connection::bssid, bssid);
}

void Connection::setNotes(const QString &notes)
{
    m_record->setValue(model::connection::notes, notes);
}

} // namespace quillon
