// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "devices/DeviceRecord.h"

#include <QSet>
#include <QStringList>

#include <functional>
#include <mutex>
#include <optional>

namespace quillon {

class InterfaceAddresses;
class NetworkHost;
class SettingsStore;
struct InterfaceInfo;
struct PortRecord;

/// The table of known network interfaces, kept in the settings under `deviceDict`: device name to
/// device record. It never shrinks, and keys of a record that others set survive every refresh.
/// Nobody else writes it. The table is read from the settings at every call. Calls block while the
/// host answers. Any thread: the host is asked by one caller at a time.
class DeviceTable
{
public:
    DeviceTable(SettingsStore &settings, NetworkHost &host, const InterfaceAddresses &addresses);

    /// Reads the ports of the host into the table, which is written once, and flushes. A reading
    /// that fails leaves everything as it was, and returns false.
    bool updateNetWorkInterfaces();
    /// Whose doing another address in a record is.
    enum class AddressOf
    {
        Us,
        Others, ///< which is news
    };
    /// Changes the record of `device`, a new one when the table has none, flushes, and returns it.
    DeviceRecord update(const QString &device, const std::function<void(DeviceRecord &)> &change,
        AddressOf whose = AddressOf::Us);
    /// Whether the last reading that succeeded found the device, with an address: the table keeps
    /// the last record of one that was taken away.
    bool isPresent(const QString &device) const;
    /// Whether it did not. Before the first reading nothing is known to be gone.
    bool isGone(const QString &device) const;

    /// The devices, in key order, whose interface is not what it was when forgetNews() was last
    /// called for them, whoever had the table refreshed meanwhile. An address that the program gave
    /// an interface itself is no news, nor is a device that the table did not hold before. One that
    /// was away is news when it is back, also where nothing about it differs.
    QStringList devicesWithNews() const;
    /// The address is one that the program gave `device`, and no news, whoever saw it first.
    void noteOwnAddress(const QString &device, const QString &address);
    /// What the table holds of `device` is known from now on to whoever follows the news.
    void forgetNews(const QString &device);
    void forgetAllNews();

    /// Reads one interface back from the host; nothing is stored.
    InterfaceInfo getInfoForDevice(const QString &device) const;
    /// The device's IPv4 address listed last, "" when none.
    QString ipAddressForDevice(const QString &device) const;

    /// The whole table; what is no record reads as an empty one.
    DeviceRecords devices() const;
    /// The names of all devices, in key order.
    QStringList names() const;
    /// Empty for a device that is not in the table.
    DeviceRecord record(const QString &device) const;
    bool contains(const QString &device) const;

    bool isDeviceWifi(const QString &device) const;
    /// The first Wi-Fi device in the table's order, which is that of its sorted names; "" when
    /// there is none.
    QString getWifiDevice() const;
    /// The order of every list of devices: the Wi-Fi device, then names that begin with "e", then
    /// the others, each in plain order.
    QStringList sortedDevicesArray() const;

private:
    struct Reading
    {
        QList<PortRecord> ports;
        QSet<QString> arrived; ///< present now, and not at the reading before
    };
    std::optional<Reading> readPorts();
    void noteReturn(const QString &device);
    void noteNews(const QString &device, const DeviceRecord &before);
    void noteUpdate(const QString &device, const DeviceRecord &before, const DeviceRecord &changed,
        AddressOf whose);
    QVariantMap stored() const;

    SettingsStore &m_settings;
    NetworkHost &m_host;
    const InterfaceAddresses &m_addresses;
    mutable std::mutex m_hostMutex;
    /// None before the first reading. Guarded by m_hostMutex.
    std::optional<QSet<QString>> m_present;
    mutable std::mutex m_newsMutex;
    /// What was known of devices whose record was rewritten since. Guarded by m_newsMutex.
    DeviceRecords m_known;
};

} // namespace quillon
