// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "devices/NetworkFollower.h"

#include "devices/CurrentInterface.h"
#include "devices/DeviceTable.h"

namespace quillon {

QString firstChangedDevice(const QVariantMap &before, const QVariantMap &now)
{
    for (auto entry = before.cbegin(); entry != before.cend(); ++entry) {
        if (entry.value() != now.value(entry.key())) {
            return entry.key();
        }
    }
    return {};
}

NetworkFollower::NetworkFollower(DeviceTable &devices, CurrentInterface &currentInterface)
    : m_devices(devices)
    , m_currentInterface(currentInterface)
{
}

void NetworkFollower::networkChanged()
{
    const QVariantMap before = m_devices.devices();
    m_devices.updateNetWorkInterfaces();
    const QString changed = firstChangedDevice(before, m_devices.devices());
    if (changed.isEmpty()) {
        return;
    }
    if (changed == m_currentInterface.device()) {
        m_currentInterface.updateInterface(changed);
    }
    Q_EMIT deviceChanged(changed);
}

} // namespace quillon
