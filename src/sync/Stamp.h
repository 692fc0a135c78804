// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <compare>

namespace quillon {

/// Who writes: one computer with one store, by a random number that nobody else has.
using WriterId = quint64;

/// When something was written, and by whom: what orders all writes of an account. The default is
/// before all others and stands for "never".
struct Stamp
{
    qint64 time = 0;   ///< milliseconds since 1970 UTC, of a clock that never goes back
    quint32 count = 0; ///< of the writes in one millisecond
    WriterId writer = 0;

    auto operator<=>(const Stamp &) const = default;
    bool isNever() const { return *this == Stamp(); }
};

/// No clock is believed beyond this moment (about the year 10889), so that there is always a later
/// one.
inline constexpr qint64 latestStampTime = qint64{1} << 48;

} // namespace quillon
