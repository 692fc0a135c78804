// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <chrono>

namespace quillon {

/// How long there has been no request. The time is an argument, so that it needs no clock.
class IdlePeriod
{
public:
    using Time = std::chrono::steady_clock::time_point;

    IdlePeriod(std::chrono::milliseconds period, Time now)
        : m_period{period}
        , m_last{now}
    {
    }

    /// Somebody asked something, or still waits for an answer.
    void used(Time now) { m_last = now; }
    /// Zero when the period is over.
    std::chrono::milliseconds left(Time now) const
    {
        const auto passed = std::chrono::duration_cast<std::chrono::milliseconds>(now - m_last);
        return std::max(m_period - passed, std::chrono::milliseconds{0});
    }
    bool isOver(Time now) const { return left(now).count() == 0; }

private:
    std::chrono::milliseconds m_period;
    Time m_last;
};

} // namespace quillon
