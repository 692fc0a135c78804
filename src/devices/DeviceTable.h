// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/PropertyList.h"

#include <QStringList>

#include <mutex>

namespace quillon {

class InterfaceAddresses;
class NetworkHost;
class SettingsStore;
struct InterfaceInfo;

/// A device is Wi-Fi when its record's `interface` is exactly "Wi-Fi".
bool isWifiRecord(const QVariantMap &record);
/// The link is up when its record's `status` is exactly "active".
bool isUp(const QVariantMap &record);

/// The first device, in key order, whose record is not the same in both tables; "" when none
/// differs. Devices that only `now` holds do not count.
QString firstChangedDevice(const QVariantMap &before, const QVariantMap &now);

/// The table of known network interfaces, kept in the settings under `deviceDict`: device name to
/// device record. It never shrinks, and keys of a record that others set survive every refresh.
/// The table is read from the settings at every call. Calls block while the host answers. Any
/// thread: the host is asked by one caller at a time.
class DeviceTable
{
public:
    DeviceTable(SettingsStore &settings, NetworkHost &host, const InterfaceAddresses &addresses);

    /// Reads the ports of the host into the table, writing it once per kept port, and flushes.
    void updateNetWorkInterfaces();
    /// Reads one interface back from the host; nothing is stored.
    InterfaceInfo getInfoForDevice(const QString &device) const;
    /// The device's IPv4 address listed last, "" when none.
    QString ipAddressForDevice(const QString &device) const;

    QVariantMap devices() const;
    QVariantMap record(const QString &device) const;
    bool contains(const QString &device) const;

    bool isDeviceWifi(const QString &device) const;
    /// The first Wi-Fi device in the table's order, which is that of its sorted names; "" when
    /// there is none.
    QString getWifiDevice() const;
    /// The order of every list of devices: the Wi-Fi device, then names that begin with "e", then
    /// the others, each in plain order.
    QStringList sortedDevicesArray() const;

private:
    SettingsStore &m_settings;
    NetworkHost &m_host;
    const InterfaceAddresses &m_addresses;
    mutable std::mutex m_hostMutex;
};

} // namespace quillon
