// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/owner/LinuxAddressOwners.h"

#include "platform/linux/owner/NetworkManagerEthernet.h"
#include "platform/linux/owner/NetworkManagerWiFi.h"
#include "platform/linux/owner/WatchedInterface.h"
#include "platform/linux/wifi/Nl80211Socket.h"

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

bool isRadio(const QString &device)
{
    const Nl80211Messages answer = Nl80211Socket().ask({});
    return std::ranges::any_of(
        answer.interfaces, [&](const StationInterface &one) { return one.name == device; });
}

} // namespace

LinuxAddressOwners::LinuxAddressOwners(
    Scheduler &scheduler, SettingsStore &settings, QStringList guard, const QDBusConnection &bus)
    : m_scheduler(scheduler)
    , m_released(settings)
    , m_guard(std::move(guard))
    , m_networkManager(bus)
    , m_others(bus)
{
    // One that was let go of, and of which it had not noted that it has it back, stays so.
    connect(&m_networkManager, &NetworkManager::ownerChanged, this,
        &LinuxAddressOwners::finishInterrupted);
}

void LinuxAddressOwners::find(const QString &device, Found found)
{
    m_networkManager.findDeviceWithProfile(device, this,
        [this, device, found = std::move(found)](
            const std::optional<NetworkManager::Device> &known) {
            if (!known || !known->isManaged || known->isExternal) {
                m_others.find(
                    device, isRadio(device), this, [this, device, found](const QString &name) {
                        found(std::make_unique<WatchedInterface>(m_scheduler, device, name));
                    });
            } else if (known->isWiFi) {
                m_takingBack.erase(device); // it has it, and may be asked to let go of it now
                found(std::make_unique<NetworkManagerWiFi>(
                    m_networkManager, m_scheduler, m_released, m_guard, device, *known));
            } else {
                found(std::make_unique<NetworkManagerEthernet>(
                    m_networkManager, m_scheduler, device, *known));
            }
        });
}

void LinuxAddressOwners::finishInterrupted()
{
    const QStringList devices = m_released.abandoned();
    for (const QString &device : devices) {
        const auto end = [this, device](bool isInTime) {
            if (isInTime) {
                m_released.remove(device);
            }
        };
        m_takingBack[device] =
            std::make_unique<TakingBack>(m_networkManager, m_scheduler, device, end);
    }
}

} // namespace quillon
