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

#include <QPointer>

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
    return record().value(record::device).toString();
}

QVariantMap CurrentInterface::record() const
{
    return m_settings.getDictionary(keys::currentInterfaceDict);
}

void CurrentInterface::selectInitialDevice()
{
    if (!device().isEmpty()) {
        return;
    }
    // The Wi-Fi device, if there is one, stands first.
    const QStringList devices = m_devices.sortedDevicesArray();
    if (!devices.isEmpty()) {
        rebuild(devices.first());
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
    updateInterface(menuItemTitle.split(titleSeparator).last());
}

void CurrentInterface::changeInterfacefromPopup(const QString &selectedTitle)
{
    updateInterface(selectedTitle);
}

void CurrentInterface::updateCurrentInterfaceDict(const QString &device)
{
    m_scheduler.onMain([self = QPointer(this), device] {
        if (self) {
            self->rebuild(device);
        }
    });
}

void CurrentInterface::rebuild(const QString &device)
{
    Q_EMIT rebuildStarted();
    QVariantMap record = m_devices.record(device);
    record[record::device] = device;
    const QString address =
        HexValueTransformer(m_settings).transformedValue(record.value(record::current).toString());
    if (!isStringValidHEX(address)) {
        return;
    }
    record[record::current] = address;
    m_settings.set(keys::currentInterfaceDict, record);
    m_settings.synchronize();
    Q_EMIT currentInterfaceUpdated(device, address);
}

void CurrentInterface::updateHexValues()
{
    const QString device = this->device();
    QVariantMap table = m_devices.devices();
    if (table.isEmpty()) {
        return;
    }
    if (table.contains(device)) {
        QVariantMap record = table.value(device).toMap();
        const QString hardware = record.value(record::hardware).toString();
        const QString current = record.value(record::current, hardware).toString();
        if (isStringValidHEX(current)) {
            record[record::current] = current;
            record[record::hardware] = hardware;
            table[device] = record;
            m_settings.set(keys::deviceDict, table);
            m_settings.synchronize();
        }
    }
    updateCurrentInterfaceDict(device);
    m_scheduler.onMain([self = QPointer(this)] {
        if (self) {
            Q_EMIT self->hexValuesUpdated();
        }
    });
}

} // namespace quillon
