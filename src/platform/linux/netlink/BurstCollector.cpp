// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/netlink/BurstCollector.h"

#include <utility>

namespace quillon {

BurstCollector::BurstCollector(Scheduler &scheduler, std::chrono::milliseconds quiet,
    std::chrono::milliseconds longest, std::function<void()> burst)
    : m_scheduler(scheduler)
    , m_quiet(quiet)
    , m_longest(longest)
    , m_burst(std::move(burst))
{
}

BurstCollector::~BurstCollector()
{
    cancelTimers();
}

void BurstCollector::happened()
{
    if (m_quietTimer) {
        m_scheduler.cancel(*m_quietTimer);
    }
    m_quietTimer = m_scheduler.onMainAfter(m_quiet, [this] { finish(); });
    if (!m_longestTimer) {
        m_longestTimer = m_scheduler.onMainAfter(m_longest, [this] { finish(); });
    }
}

void BurstCollector::finish()
{
    cancelTimers();
    m_burst();
}

void BurstCollector::cancelTimers()
{
    for (auto *timer : {&m_quietTimer, &m_longestTimer}) {
        if (const auto token = std::exchange(*timer, std::nullopt)) {
            m_scheduler.cancel(*token);
        }
    }
}

} // namespace quillon
