// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/HybridClock.h"

#include <algorithm>
#include <limits>

namespace quillon {

namespace {

/// What is left up to latestStampTime is for those who follow a clock that is at its end.
constexpr qint64 latestClockTime = latestStampTime - (qint64{1} << 40);

} // namespace

Stamp HybridClock::next(qint64 now)
{
    const qint64 time = std::clamp<qint64>(now, 1, latestClockTime);
    if (time > m_last.time) {
        m_last = {time, 0, m_writer};
    } else if (m_last.count == std::numeric_limits<quint32>::max()) {
        m_last = {m_last.time + 1, 0, m_writer};
    } else {
        m_last = {m_last.time, m_last.count + 1, m_writer};
    }
    return m_last;
}

void HybridClock::see(const Stamp &stamp)
{
    m_last = std::max(m_last, stamp);
}

} // namespace quillon
