// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "devices/DeviceTable.h"

#include "base/Localized.h"
#include "base/SettingsKeys.h"
#include "platform/InterfaceAddresses.h"
#include "platform/NetworkHost.h"
#include "platform/PortName.h"
#include "platform/SettingsStore.h"

#include <algorithm>

namespace quillon {

namespace {

const QString wifiPortName = QStringLiteral("Wi-Fi");

/// The factory address: what the host tells, else what was known, else the address first seen.
QString factoryAddress(const PortRecord &port, const QVariantMap &stored)
{
    if (!port.hardware.isEmpty()) {
        return port.hardware;
    }
    const QString known = stored.value(record::hardware).toString();
    return known.isEmpty() ? port.info.macAddress : known;
}

QVariantMap refreshedRecord(QVariantMap record, const PortRecord &port)
{
    const QString hardware = factoryAddress(port, record);
    record[record::interface] = port.interface;
    record[record::localizedInterface] =
        port.interface == wifiPortName ? localized(wifiPortName) : port.interface;
    record[record::hardware] = hardware;
    record[record::current] = port.info.macAddress;
    record[record::status] = port.info.status;
    record[record::ipAddress] = port.info.ipAddress;
    return record;
}

bool comesBefore(const QString &a, const QString &b)
{
    const bool aIsEthernet = a.startsWith(QLatin1Char('e'));
    const bool bIsEthernet = b.startsWith(QLatin1Char('e'));
    return aIsEthernet != bIsEthernet ? aIsEthernet : a < b;
}

QString firstWifiDevice(const QVariantMap &devices)
{
    const auto wifi = std::find_if(devices.begin(), devices.end(),
        [](const QVariant &record) { return isWifiRecord(record.toMap()); });
    return wifi == devices.end() ? QString() : wifi.key();
}

} // namespace

bool isWifiRecord(const QVariantMap &record)
{
    return record.value(record::interface).toString() == wifiPortName;
}

bool isUp(const QVariantMap &record)
{
    return record.value(record::status).toString() == QLatin1String("active");
}

QString firstChangedDevice(const QVariantMap &before, const QVariantMap &now)
{
    for (auto entry = before.cbegin(); entry != before.cend(); ++entry) {
        if (entry.value() != now.value(entry.key())) {
            return entry.key();
        }
    }
    return {};
}

DeviceTable::DeviceTable(
    SettingsStore &settings, NetworkHost &host, const InterfaceAddresses &addresses)
    : m_settings(settings)
    , m_host(host)
    , m_addresses(addresses)
{
}

void DeviceTable::updateNetWorkInterfaces()
{
    const QList<PortRecord> ports = [this] {
        const std::lock_guard lock(m_hostMutex);
        return m_host.ports();
    }();
    QVariantMap table = devices();
    for (const PortRecord &port : ports) {
        if (port.device.isEmpty() || isSkippedPortName(port.interface)) {
            continue;
        }
        table[port.device] = refreshedRecord(table.value(port.device).toMap(), port);
        m_settings.set(keys::deviceDict, table);
    }
    m_settings.synchronize();
}

InterfaceInfo DeviceTable::getInfoForDevice(const QString &device) const
{
    const std::lock_guard lock(m_hostMutex);
    return m_host.info(device);
}

QString DeviceTable::ipAddressForDevice(const QString &device) const
{
    QString address;
    const QList<InterfaceAddresses::Entry> entries = m_addresses.ipv4();
    for (const InterfaceAddresses::Entry &entry : entries) {
        if (entry.device == device) {
            address = entry.ipv4;
        }
    }
    return address;
}

QVariantMap DeviceTable::devices() const
{
    return m_settings.getDictionary(keys::deviceDict);
}

QVariantMap DeviceTable::record(const QString &device) const
{
    return devices().value(device).toMap();
}

bool DeviceTable::contains(const QString &device) const
{
    return devices().contains(device);
}

bool DeviceTable::isDeviceWifi(const QString &device) const
{
    return isWifiRecord(record(device));
}

QString DeviceTable::getWifiDevice() const
{
    return firstWifiDevice(devices());
}

QStringList DeviceTable::sortedDevicesArray() const
{
    const QVariantMap table = devices();
    QStringList names = table.keys();
    const QString wifi = firstWifiDevice(table);
    const bool hasWifi = !wifi.isNull() && names.removeOne(wifi);
    std::sort(names.begin(), names.end(), comesBefore);
    if (hasWifi) {
        names.prepend(wifi);
    }
    return names;
}

} // namespace quillon
