// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sync/Stamp.h"

namespace quillon {

/// Makes stamps that are later than every stamp that was made or seen here, however wrong the
/// computer's clock is; with a right one they are close to the time.
class HybridClock
{
public:
    HybridClock(WriterId writer, const Stamp &last)
        : m_writer(writer)
        , m_last(last)
    {
    }

    /// `now` in milliseconds since 1970 UTC.
    Stamp next(qint64 now);
    void see(const Stamp &stamp);
    /// The latest that was made or seen.
    const Stamp &last() const { return m_last; }

private:
    WriterId m_writer;
    Stamp m_last;
};

} // namespace quillon
