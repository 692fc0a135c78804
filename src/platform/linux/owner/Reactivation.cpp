// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/owner/Reactivation.h"

#include <utility>

namespace quillon {

namespace {

// A device that was just taken back refuses for a moment.
constexpr int mostTries = 3;

} // namespace

Reactivation::Reactivation(
    NetworkManager &networkManager, QString profile, QString activeConnection)
    : m_networkManager(networkManager)
    , m_profile(std::move(profile))
    , m_before(std::move(activeConnection))
    , m_triesLeft(mostTries)
{
    connect(&networkManager, &NetworkManager::ownerChanged, this, [this] {
        m_triesLeft = mostTries;
        m_isAsked = false;
    });
}

bool Reactivation::look(const NetworkManager::Device &device)
{
    // Paths are given anew when NetworkManager is restarted.
    m_hasLeft = m_hasLeft || device.state < NetworkManager::Activated ||
                device.activeConnection != m_before;
    if (device.state == NetworkManager::Activated && m_hasLeft) {
        return true;
    }
    if (!m_isAsked && m_triesLeft > 0 && device.isManaged &&
        device.state >= NetworkManager::Disconnected) {
        --m_triesLeft;
        m_isAsked = true;
        m_networkManager.activate(
            m_profile, device.path, this, [this](bool isBegun) { m_isAsked = isBegun; });
    }
    return false;
}

} // namespace quillon
