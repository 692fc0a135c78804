// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/AddressOwner.h"
#include "platform/linux/owner/DeviceWatch.h"
#include "platform/linux/owner/NetworkManager.h"
#include "platform/linux/owner/Reactivation.h"

#include <QObject>

#include <optional>

namespace quillon {

/// NetworkManager with an interface that may change its address while it is connected: changed as
/// it is, then connected anew with the same profile, for a lease. NetworkManager keeps the address
/// from then on.
class NetworkManagerEthernet : public QObject, public AddressOwner
{
    Q_OBJECT

public:
    /// `device` as NetworkManager has it now, with its profile.
    NetworkManagerEthernet(NetworkManager &networkManager, Scheduler &scheduler,
        const QString &name, NetworkManager::Device device);

    QString name() const override;
    void prepare(Prepared prepared) override;
    void settle(bool isChanged, Settled settled) override;

private:
    NetworkManager &m_networkManager;
    Scheduler &m_scheduler;
    const NetworkManager::Device m_device;
    DeviceWatch m_watch;
    bool m_mayControl = false;
    std::optional<Reactivation> m_reactivation;
};

} // namespace quillon
