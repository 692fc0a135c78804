// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Scheduler.h"

#include <chrono>
#include <functional>
#include <optional>

namespace quillon {

/// Makes one call out of a burst of events: `quiet` after the last event of the burst, and at the
/// latest `longest` after its first, so that a burst without end is still told (then the next event
/// begins a new one). No timer runs while nothing happens. Main thread.
class BurstCollector
{
public:
    BurstCollector(Scheduler &scheduler, std::chrono::milliseconds quiet,
        std::chrono::milliseconds longest, std::function<void()> burst);
    ~BurstCollector();
    BurstCollector(const BurstCollector &) = delete;
    BurstCollector &operator=(const BurstCollector &) = delete;

    void happened();

private:
    void finish();
    void cancelTimers();

    Scheduler &m_scheduler;
    const std::chrono::milliseconds m_quiet;
    const std::chrono::milliseconds m_longest;
    const std::function<void()> m_burst;
    std::optional<Scheduler::Token> m_quietTimer;
    std::optional<Scheduler::Token> m_longestTimer;
};

} // namespace quillon
