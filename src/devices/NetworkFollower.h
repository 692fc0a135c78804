// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QVariantMap>

namespace quillon {

class CurrentInterface;
class DeviceTable;

/// The first device, in key order, whose record is not the same in both tables; "" when none
/// differs. Devices that only `now` holds do not count.
QString firstChangedDevice(const QVariantMap &before, const QVariantMap &now);

/// Keeps the device table and the selected interface in step with the network. Main thread.
class NetworkFollower : public QObject
{
    Q_OBJECT

public:
    NetworkFollower(DeviceTable &devices, CurrentInterface &currentInterface);

    /// Reads the interfaces anew; at most one device counts as changed, even when several did.
    void networkChanged();

Q_SIGNALS:
    /// `device` is the changed one; the selection has been refreshed when it was the selected one.
    void deviceChanged(const QString &device);

private:
    DeviceTable &m_devices;
    CurrentInterface &m_currentInterface;
};

} // namespace quillon
