// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "devices/CurrentInterface.h"

#include "base/SettingsKeys.h"
#include "devices/AddressText.h"
#include "devices/DeviceTable.h"
#include "devices/HexValueTransformer.h"
#include "devices/MenuItem.h"
#include "platform/Scheduler.h"
#include "platform/SettingsStore.h"

#include <algorithm>

namespace quillon {

CurrentInterface::CurrentInterface(
    SettingsStore &settings, Scheduler &scheduler, DeviceTable &devices)
    : m_settings(settings)
    , m_scheduler(scheduler)
    , m_devices(devices)
{
}

QString CurrentInterface::device() const
{
    return record().device.value_or(QString());
}

DeviceRecord CurrentInterface::record() const
{
    return DeviceRecord::fromPropertyList(m_settings.get(keys::currentInterfaceDict));
}

bool CurrentInterface::isSelected() const
{
    return m_devices.contains(device());
}

void CurrentInterface::selectInitialDevice()
{
    if (isSelected()) {
        return;
    }
    QStringList devices = m_devices.sortedDevicesArray();
    devices.removeIf([this](const QString &device) { return !selection(device); });
    const auto there = std::find_if(devices.cbegin(), devices.cend(),
        [this](const QString &device) { return m_devices.isPresent(device); });
    if (there != devices.cend()) {
        rebuild(*there);
    } else if (!devices.isEmpty()) {
        rebuild(devices.first());
    }
}

void CurrentInterface::selectAnyIfNone()
{
    if (isSelected()) {
        return;
    }
    selectInitialDevice();
    if (isSelected()) {
        Q_EMIT interfaceSelected(device());
    }
}

void CurrentInterface::updateInterface(const QString &device)
{
    if (!device.isEmpty()) {
        m_devices.updateNetWorkInterfaces();
        selectInterface(device);
    }
}

void CurrentInterface::selectInterface(const QString &device)
{
    if (!device.isEmpty()) {
        updateCurrentInterfaceDict(device);
        Q_EMIT interfaceSelected(device);
    }
}

void CurrentInterface::changeInterface(const QString &menuItemTitle)
{
    const QString device = menuItemTitle.split(titleSeparator).last();
    m_devices.updateNetWorkInterfaces();
    if (m_devices.contains(device)) {
        selectInterface(device);
    }
}

void CurrentInterface::changeInterfacefromPopup(const QString &selectedTitle)
{
    updateInterface(selectedTitle);
}

void CurrentInterface::updateCurrentInterfaceDict(const QString &device)
{
    m_scheduler.onMain(this, [this, device] { rebuild(device); });
}

std::optional<DeviceRecord> CurrentInterface::selection(const QString &device) const
{
    DeviceRecord record = m_devices.record(device);
    record.device = device;
    record.current =
        HexValueTransformer(m_settings).transformedValue(record.current.value_or(QString()));
    return isStringValidHEX(*record.current) ? std::optional(record) : std::nullopt;
}

void CurrentInterface::rebuild(const QString &device)
{
    Q_EMIT rebuildStarted();
    const auto record = selection(device);
    if (!record) {
        return;
    }
    m_settings.set(keys::currentInterfaceDict, record->toPropertyList());
    m_settings.synchronize();
    Q_EMIT currentInterfaceUpdated(device, *record->current);
}

void CurrentInterface::updateHexValues()
{
    const QString device = this->device();
    if (m_devices.names().isEmpty()) {
        return;
    }
    const DeviceRecord known = m_devices.record(device);
    const QString hardware = known.hardware.value_or(QString());
    const QString address = known.current.value_or(hardware);
    if (isStringValidHEX(address)) {
        m_devices.update(device, [&hardware, &address](DeviceRecord &record) {
            record.current = address;
            record.hardware = hardware;
        });
    }
    updateCurrentInterfaceDict(device);
    m_scheduler.onMain(this, [this] { Q_EMIT hexValuesUpdated(); });
}

} // namespace quillon
