// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/owner/NetworkManagerEthernet.h"

#include <utility>

namespace quillon {

namespace {

using namespace std::chrono_literals;

// A DHCP server may take its time; without one NetworkManager gives up after 45 s.
constexpr auto connectLimit = 50s;

} // namespace

NetworkManagerEthernet::NetworkManagerEthernet(NetworkManager &networkManager, Scheduler &scheduler,
    const QString &name, NetworkManager::Device device)
    : m_networkManager(networkManager)
    , m_scheduler(scheduler)
    , m_device(std::move(device))
    , m_watch(networkManager, scheduler, name)
{
}

QString NetworkManagerEthernet::name() const
{
    return QStringLiteral("NetworkManager");
}

void NetworkManagerEthernet::prepare(Prepared prepared)
{
    m_networkManager.askPermission(this, [this, prepared = std::move(prepared)](bool isGranted) {
        m_mayControl = isGranted;
        prepared(true);
    });
}

void NetworkManagerEthernet::settle(bool isChanged, Settled settled)
{
    if (!isChanged || m_device.profile.isEmpty() || !m_mayControl) {
        // On no network there was nothing to say to it.
        const bool isTold = m_mayControl || (isChanged && m_device.profile.isEmpty());
        m_scheduler.onMain(this, [settled = std::move(settled), isTold] {
            settled(isTold ? Outcome::Settled : Outcome::Untold);
        });
        return;
    }
    m_reactivation.emplace(m_networkManager, m_device.profile, m_device.activeConnection);
    m_watch.waitUntil(
        connectLimit,
        [this](const std::optional<NetworkManager::Device> &device) {
            return device && m_reactivation->look(*device);
        },
        [settled = std::move(settled)](
            bool isInTime) { settled(isInTime ? Outcome::Settled : Outcome::NotBack); });
}

} // namespace quillon
