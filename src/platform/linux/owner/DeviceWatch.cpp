// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/owner/DeviceWatch.h"

#include <utility>

namespace quillon {

namespace {

using namespace std::chrono_literals;

constexpr auto period = 1s;

} // namespace

DeviceWatch::DeviceWatch(NetworkManager &networkManager, Scheduler &scheduler, QString device)
    : m_networkManager(networkManager)
    , m_scheduler(scheduler)
    , m_device(std::move(device))
{
    connect(&m_networkManager, &NetworkManager::changed, this, &DeviceWatch::lookNow);
}

DeviceWatch::~DeviceWatch()
{
    if (m_tick) {
        m_scheduler.cancel(*m_tick);
    }
}

void DeviceWatch::waitUntil(std::chrono::milliseconds limit, Look look, End end)
{
    m_look = std::move(look);
    m_end = std::move(end);
    m_deadline = m_scheduler.monotonic() + limit;
    m_tick = m_scheduler.repeat(period, [this] { lookNow(); });
    lookNow();
}

void DeviceWatch::lookNow()
{
    if (!m_look) {
        return;
    }
    if (m_scheduler.monotonic() >= m_deadline) {
        finish(false);
        return;
    }
    m_isStale = m_isAsking;
    if (m_isAsking) {
        return;
    }
    m_isAsking = true;
    m_networkManager.findDevice(
        m_device, this, [this](const std::optional<NetworkManager::Device> &device) {
            m_isAsking = false;
            if (m_look && m_look(device)) {
                finish(true);
            } else if (std::exchange(m_isStale, false)) {
                lookNow();
            }
        });
}

void DeviceWatch::finish(bool isInTime)
{
    m_scheduler.cancel(*std::exchange(m_tick, std::nullopt));
    m_look = nullptr;
    const End end = std::exchange(m_end, nullptr);
    end(isInTime);
}

} // namespace quillon
