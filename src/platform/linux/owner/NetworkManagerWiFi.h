// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/AddressOwner.h"
#include "platform/linux/owner/DeviceWatch.h"
#include "platform/linux/owner/NetworkManager.h"
#include "platform/linux/owner/Reactivation.h"
#include "platform/linux/owner/TakeBackGuard.h"

#include <QObject>

#include <optional>

namespace quillon {

class ReleasedDevices;

/// NetworkManager with a Wi-Fi interface, which can only change its address while it is on no
/// network: NetworkManager lets the interface go, takes it back with the new address, which is the
/// one that it comes back to from then on, and connects anew with the profile from before.
class NetworkManagerWiFi : public QObject, public AddressOwner
{
    Q_OBJECT

public:
    /// `device` as NetworkManager has it now, with its profile.
    NetworkManagerWiFi(NetworkManager &networkManager, Scheduler &scheduler,
        ReleasedDevices &released, QStringList guard, const QString &name,
        NetworkManager::Device device);
    /// NetworkManager takes the interface back, if it has not.
    ~NetworkManagerWiFi() override;

    QString name() const override;
    void prepare(Prepared prepared) override;
    void settle(bool isChanged, Settled settled) override;

private:
    void release(const Prepared &prepared);
    void takeBack(const NetworkManager::Device &device);
    void connectOnceMore(const NetworkManager::Device &device);
    bool isTakenBack(const NetworkManager::Device &device);
    bool isBack(const std::optional<NetworkManager::Device> &device);

    NetworkManager &m_networkManager;
    Scheduler &m_scheduler;
    ReleasedDevices &m_released;
    const QStringList m_guardCommand;
    const QString m_name;
    const NetworkManager::Device m_device;
    DeviceWatch m_watch;
    bool m_isReleased = false;
    bool m_isRestarted = false; ///< NetworkManager, since the release
    std::optional<TakeBackGuard> m_guard;
    bool m_isAskedToTakeBack = false;
    std::optional<std::chrono::milliseconds> m_unavailableSince;
    std::optional<Reactivation> m_reactivation;
};

} // namespace quillon
