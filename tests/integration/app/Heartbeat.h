// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTimer>

#include <algorithm>
#include <chrono>

namespace quillon::test {

/// Beats every millisecond on the main loop, and knows how long it was ever kept from that.
class Heartbeat
{
public:
    using Clock = std::chrono::steady_clock;

    Heartbeat()
    {
        m_timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] {
            const Clock::time_point now = Clock::now();
            m_longest = std::max(m_longest, now - m_last);
            m_last = now;
        });
        m_timer.start(1);
    }

    /// The longest time between two beats, the interval itself included.
    std::chrono::milliseconds longest() const
    {
        return std::chrono::duration_cast<std::chrono::milliseconds>(m_longest);
    }
    void forget()
    {
        m_last = Clock::now();
        m_longest = {};
    }

private:
    QTimer m_timer;
    Clock::time_point m_last = Clock::now();
    Clock::duration m_longest{};
};

} // namespace quillon::test
