// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "devices/DeviceTable.h"

#include "base/SettingsKeys.h"
#include "platform/InterfaceAddresses.h"
#include "platform/NetworkHost.h"
#include "platform/SettingsStore.h"

#include <algorithm>

namespace quillon {

namespace {

/// The factory address: what the host tells, else what was known, else the address first seen.
QString factoryAddress(const PortRecord &port, const DeviceRecord &stored)
{
    if (!port.hardware.isEmpty()) {
        return port.hardware;
    }
    const QString known = stored.hardware.value_or(QString());
    return known.isEmpty() ? port.info.macAddress : known;
}

void refresh(DeviceRecord &record, const PortRecord &port)
{
    record.hardware = factoryAddress(port, record);
    record.interface = port.interface;
    record.localizedInterface = record.shownInterface();
    record.current = port.info.macAddress;
    record.status = port.info.status;
    record.ipAddress = port.info.ipAddress;
    record.router = port.router.isEmpty() ? std::nullopt : std::optional(port.router);
}

bool comesBefore(const QString &a, const QString &b)
{
    const bool aIsEthernet = a.startsWith(u'e');
    const bool bIsEthernet = b.startsWith(u'e');
    return aIsEthernet != bIsEthernet ? aIsEthernet : a < b;
}

} // namespace

DeviceTable::DeviceTable(
    SettingsStore &settings, NetworkHost &host, const InterfaceAddresses &addresses)
    : m_settings(settings)
    , m_host(host)
    , m_addresses(addresses)
{
}

bool DeviceTable::updateNetWorkInterfaces()
{
    const auto read = readPorts();
    const Reading reading = read.value_or(Reading());
    auto table = stored();
    bool isRefreshed = false;
    for (const PortRecord &port : reading.ports) {
        if (port.device.isEmpty()) {
            continue;
        }
        const auto known = table.constFind(port.device);
        const bool isKnown = known != table.constEnd();
        const DeviceRecord before = DeviceRecord::fromPropertyList(isKnown ? *known : QVariant());
        DeviceRecord record = before;
        refresh(record, port);
        if (isKnown && reading.arrived.contains(port.device)) {
            noteReturn(port.device);
        } else if (isKnown && !isSameInterface(record, before)) {
            noteNews(port.device, before);
        }
        table[port.device] = record.toPropertyList();
        isRefreshed = true;
    }
    if (isRefreshed) {
        m_settings.set(keys::deviceDict, table);
    }
    m_settings.synchronize();
    return read.has_value();
}

std::optional<DeviceTable::Reading> DeviceTable::readPorts()
{
    const std::lock_guard lock(m_hostMutex);
    const auto ports = m_host.ports();
    if (!ports) {
        return std::nullopt;
    }
    QSet<QString> present;
    for (const PortRecord &port : *ports) {
        if (!port.info.macAddress.isEmpty()) {
            present.insert(port.device);
        }
    }
    const QSet<QString> arrived =
        QSet<QString>(present).subtract(m_present.value_or(QSet<QString>()));
    m_present = present;
    return Reading{*ports, arrived};
}

bool DeviceTable::isPresent(const QString &device) const
{
    const std::lock_guard lock(m_hostMutex);
    return m_present && m_present->contains(device);
}

bool DeviceTable::isGone(const QString &device) const
{
    const std::lock_guard lock(m_hostMutex);
    return m_present && !m_present->contains(device);
}

DeviceRecord DeviceTable::update(
    const QString &device, const std::function<void(DeviceRecord &)> &change, AddressOf whose)
{
    auto table = stored();
    const DeviceRecord before = DeviceRecord::fromPropertyList(table.value(device));
    DeviceRecord record = before;
    change(record);
    if (table.contains(device)) {
        noteUpdate(device, before, record, whose);
    }
    table[device] = record.toPropertyList();
    m_settings.set(keys::deviceDict, table);
    m_settings.synchronize();
    return record;
}

void DeviceTable::noteNews(const QString &device, const DeviceRecord &before)
{
    const std::lock_guard lock(m_newsMutex);
    if (!m_known.contains(device)) {
        m_known.insert(device, before);
    }
}

// Nobody knows where it was.
void DeviceTable::noteReturn(const QString &device)
{
    const std::lock_guard lock(m_newsMutex);
    m_known.insert(device, DeviceRecord());
}

void DeviceTable::noteUpdate(
    const QString &device, const DeviceRecord &before, const DeviceRecord &changed, AddressOf whose)
{
    if (whose == AddressOf::Others && !isSameInterface(before, changed)) {
        noteNews(device, before);
        return;
    }
    // Whoever changed the address read the rest back with it, and that may be news.
    if (before.status != changed.status || before.ipAddress != changed.ipAddress) {
        noteNews(device, before);
    }
    const std::lock_guard lock(m_newsMutex);
    const auto known = m_known.find(device);
    if (known != m_known.end() && before.current != changed.current) {
        known->current = changed.current;
    }
}

void DeviceTable::noteOwnAddress(const QString &device, const QString &address)
{
    const std::lock_guard lock(m_newsMutex);
    const auto known = m_known.find(device);
    if (known != m_known.end()) {
        known->current = address;
    }
}

QStringList DeviceTable::devicesWithNews() const
{
    const auto table = stored();
    const std::lock_guard lock(m_newsMutex);
    QStringList devices;
    for (auto known = m_known.cbegin(); known != m_known.cend(); ++known) {
        if (!isSameInterface(*known, DeviceRecord::fromPropertyList(table.value(known.key())))) {
            devices.append(known.key());
        }
    }
    return devices;
}

void DeviceTable::forgetNews(const QString &device)
{
    const std::lock_guard lock(m_newsMutex);
    m_known.remove(device);
}

void DeviceTable::forgetAllNews()
{
    const std::lock_guard lock(m_newsMutex);
    m_known.clear();
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

QVariantMap DeviceTable::stored() const
{
    return m_settings.getDictionary(keys::deviceDict);
}

DeviceRecords DeviceTable::devices() const
{
    const auto table = stored();
    DeviceRecords records;
    for (auto entry = table.cbegin(); entry != table.cend(); ++entry) {
        records.insert(records.cend(), entry.key(), DeviceRecord::fromPropertyList(*entry));
    }
    return records;
}

QStringList DeviceTable::names() const
{
    return stored().keys();
}

DeviceRecord DeviceTable::record(const QString &device) const
{
    return DeviceRecord::fromPropertyList(stored().value(device));
}

bool DeviceTable::contains(const QString &device) const
{
    return stored().contains(device);
}

bool DeviceTable::isDeviceWifi(const QString &device) const
{
    return record(device).isWifi();
}

QString DeviceTable::getWifiDevice() const
{
    const auto table = stored();
    const auto wifi = std::find_if(table.cbegin(), table.cend(),
        [](const QVariant &record) { return DeviceRecord::fromPropertyList(record).isWifi(); });
    return wifi == table.cend() ? QString() : wifi.key();
}

QStringList DeviceTable::sortedDevicesArray() const
{
    QStringList names = this->names();
    const QString wifi = getWifiDevice();
    const bool hasWifi = !wifi.isNull() && names.removeOne(wifi);
    std::sort(names.begin(), names.end(), comesBefore);
    if (hasWifi) {
        names.prepend(wifi);
    }
    return names;
}

} // namespace quillon
