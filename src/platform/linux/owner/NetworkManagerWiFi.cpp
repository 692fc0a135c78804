// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/owner/NetworkManagerWiFi.h"

#include "platform/linux/owner/ReleasedDevices.h"

#include <utility>

namespace quillon {

namespace {

using namespace std::chrono_literals;

constexpr auto releaseLimit = 10s;
// Association, and a DHCP server that takes its time.
constexpr auto connectLimit = 60s;
constexpr auto unavailableLimit = 5s;

} // namespace

NetworkManagerWiFi::NetworkManagerWiFi(NetworkManager &networkManager, Scheduler &scheduler,
    ReleasedDevices &released, QStringList guard, const QString &name,
    NetworkManager::Device device)
    : m_networkManager(networkManager)
    , m_scheduler(scheduler)
    , m_released(released)
    , m_guardCommand(std::move(guard))
    , m_name(name)
    , m_device(std::move(device))
    , m_watch(networkManager, scheduler, name)
{
    connect(&networkManager, &NetworkManager::ownerChanged, this,
        [this] { m_isRestarted = m_isReleased; });
}

NetworkManagerWiFi::~NetworkManagerWiFi()
{
    if (m_isReleased) {
        m_networkManager.setManagedNow(m_device.path);
        m_released.abandon(m_name);
    }
}

QString NetworkManagerWiFi::name() const
{
    return QStringLiteral("NetworkManager");
}

void NetworkManagerWiFi::prepare(Prepared prepared)
{
    m_networkManager.askPermission(this, [this, prepared = std::move(prepared)](bool isGranted) {
        if (!isGranted) {
            // Changed nevertheless: the address holds until the next connection.
            prepared(true);
            return;
        }
        release(prepared);
    });
}

void NetworkManagerWiFi::release(const Prepared &prepared)
{
    // First of all: if we die, somebody must know.
    m_released.add(m_name);
    m_guard.emplace(m_guardCommand, m_name);
    m_isReleased = true;
    m_networkManager.setManaged(m_device.path, false, this, [this, prepared](bool isDone) {
        const auto isLetGo = [](const std::optional<NetworkManager::Device> &device) {
            return device && device->state == NetworkManager::Unmanaged;
        };
        if (!isDone) {
            settle(false, [prepared](Outcomes) { prepared(false); });
            return;
        }
        m_watch.waitUntil(releaseLimit, isLetGo, [this, prepared](bool isInTime) {
            if (isInTime) {
                prepared(true);
            } else {
                settle(false, [prepared](Outcomes) { prepared(false); });
            }
        });
    });
}

void NetworkManagerWiFi::settle(bool, Settled settled)
{
    if (!m_isReleased) {
        m_scheduler.onMain(this, [settled = std::move(settled)] { settled(Outcome::Untold); });
        return;
    }
    if (!m_device.profile.isEmpty()) {
        m_reactivation.emplace(m_networkManager, m_device.profile, m_device.activeConnection);
    }
    m_watch.waitUntil(
        connectLimit,
        [this](const std::optional<NetworkManager::Device> &device) { return isBack(device); },
        [settled = std::move(settled)](
            bool isInTime) { settled(isInTime ? Outcome::Settled : Outcome::NotBack); });
}

bool NetworkManagerWiFi::isBack(const std::optional<NetworkManager::Device> &device)
{
    if (!device) {
        return false;
    }
    if (!device->isManaged) {
        takeBack(*device);
        return false;
    }
    if (!isTakenBack(*device)) {
        return false;
    }
    if (!m_device.profile.isEmpty() && !(m_reactivation && m_reactivation->look(*device))) {
        return false;
    }
    if (std::exchange(m_isRestarted, false) && m_reactivation) {
        connectOnceMore(*device);
        return false;
    }
    return true;
}

// Until it has come so far, NetworkManager's own notes on disk say that it does not manage the
// interface: killed now, it would leave it so at its next start.
bool NetworkManagerWiFi::isTakenBack(const NetworkManager::Device &device)
{
    if (device.state < NetworkManager::Disconnected) {
        const auto now = m_scheduler.monotonic();
        m_unavailableSince = m_unavailableSince.value_or(now);
        // A radio that is blocked does not come further.
        return now - *m_unavailableSince >= unavailableLimit;
    }
    if (m_isReleased) {
        m_isReleased = false;
        m_released.remove(m_name);
        m_guard.reset();
    }
    return true;
}

void NetworkManagerWiFi::connectOnceMore(const NetworkManager::Device &device)
{
    // A new NetworkManager takes the IP address that it finds for somebody's, and keeps it beside
    // its own: one who sees both would know that the old link-layer address and the new are one's.
    m_reactivation.reset();
    m_networkManager.disconnectDevice(
        device.path, this, [this, before = device.activeConnection](bool) {
            m_reactivation.emplace(m_networkManager, m_device.profile, before);
        });
}

void NetworkManagerWiFi::takeBack(const NetworkManager::Device &device)
{
    if (m_isAskedToTakeBack) {
        return;
    }
    m_isAskedToTakeBack = true;
    m_networkManager.setManaged(device.path, true, this, [this](bool) {
        // Asked again at the next look, if it is not managed then.
        m_isAskedToTakeBack = false;
    });
}

} // namespace quillon
