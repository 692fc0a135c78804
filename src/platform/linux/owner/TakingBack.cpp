// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/owner/TakingBack.h"

#include <utility>

namespace quillon {

namespace {

using namespace std::chrono_literals;

// At login the program may be there before NetworkManager is, and it may be restarted.
constexpr auto limit = 60s;

} // namespace

TakingBack::TakingBack(NetworkManager &networkManager, Scheduler &scheduler, const QString &device,
    DeviceWatch::End end)
    : m_networkManager(networkManager)
    , m_watch(networkManager, scheduler, device)
{
    const auto look = [this](const std::optional<NetworkManager::Device> &known) {
        if (known && !known->isManaged) {
            m_networkManager.setManaged(known->path, true, this, [](bool) {});
        }
        // What it notes on disk says so from then on.
        return known && known->isManaged && known->state >= NetworkManager::Disconnected;
    };
    m_watch.waitUntil(limit, look, std::move(end));
}

} // namespace quillon
