// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/AddressOwner.h"
#include "platform/linux/owner/BusOwners.h"
#include "platform/linux/owner/NetworkManager.h"
#include "platform/linux/owner/ReleasedDevices.h"
#include "platform/linux/owner/TakingBack.h"

#include <QDBusConnection>
#include <QObject>

#include <map>
#include <memory>

namespace quillon {

/// Asks those who may own an interface on Linux, over the bus and none by its files. NetworkManager
/// takes part in a change. The others, and nobody, are not asked for anything: what comes of the
/// change is seen in the kernel.
class LinuxAddressOwners : public QObject, public AddressOwners
{
    Q_OBJECT

public:
    /// `guard` is the command of TakeBackGuard; `bus` is the system's.
    LinuxAddressOwners(Scheduler &scheduler, SettingsStore &settings, QStringList guard,
        const QDBusConnection &bus = QDBusConnection::systemBus());

    void find(const QString &device, Found found) override;
    void finishInterrupted() override;

private:
    Scheduler &m_scheduler;
    ReleasedDevices m_released;
    const QStringList m_guard;
    NetworkManager m_networkManager;
    BusOwners m_others;
    std::map<QString, std::unique_ptr<TakingBack>> m_takingBack; ///< by device
};

} // namespace quillon
