// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/owner/LinuxAddressOwners.h"

#include "platform/linux/owner/NetworkManagerEthernet.h"
#include "platform/linux/owner/NetworkManagerWiFi.h"

#include <utility>

namespace quillon {

namespace {

using namespace std::chrono_literals;

// At login the program may be there before NetworkManager is.
constexpr auto takeBackLimit = 60s;

} // namespace

LinuxAddressOwners::LinuxAddressOwners(
    Scheduler &scheduler, SettingsStore &settings, const QDBusConnection &bus)
    : m_scheduler(scheduler)
    , m_released(settings)
    , m_networkManager(bus)
{
}

void LinuxAddressOwners::find(const QString &device, Found found)
{
    m_networkManager.findDevice(device, this,
        [this, device, found = std::move(found)](
            const std::optional<NetworkManager::Device> &known) {
            if (!known || !known->isManaged) {
                found(nullptr);
            } else if (known->isWiFi) {
                found(std::make_unique<NetworkManagerWiFi>(
                    m_networkManager, m_scheduler, m_released, device, *known));
            } else {
                found(std::make_unique<NetworkManagerEthernet>(
                    m_networkManager, m_scheduler, device, *known));
            }
        });
}

void LinuxAddressOwners::finishInterrupted()
{
    const QStringList devices = m_released.names();
    for (const QString &device : devices) {
        takeBack(device);
    }
}

void LinuxAddressOwners::takeBack(const QString &device)
{
    auto &watch = *m_watches.emplace_back(
        std::make_unique<DeviceWatch>(m_networkManager, m_scheduler, device));
    const auto look = [this](const std::optional<NetworkManager::Device> &known) {
        if (known && !known->isManaged) {
            m_networkManager.setManaged(known->path, true, this, [](bool) {});
        }
        return known && known->isManaged;
    };
    watch.waitUntil(takeBackLimit, look, [this, device](bool isInTime) {
        if (isInTime) {
            m_released.remove(device);
        }
    });
}

} // namespace quillon
