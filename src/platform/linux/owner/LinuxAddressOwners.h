// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/AddressOwner.h"
#include "platform/linux/owner/NetworkManager.h"
#include "platform/linux/owner/ReleasedDevices.h"
#include "platform/linux/owner/TakingBack.h"

#include <QDBusConnection>
#include <QObject>

#include <memory>
#include <vector>

namespace quillon {

/// Asks the network managers of a Linux desktop, over the bus and none by its files. Where none has
/// the interface in its hands, or the one that has it follows the kernel by itself, nobody needs to
/// take part.
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
    std::vector<std::unique_ptr<TakingBack>> m_interrupted;
};

} // namespace quillon
