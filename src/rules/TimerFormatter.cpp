// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/TimerFormatter.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr qsizetype maximumDigits = 3;

} // namespace

bool TimerFormatter::isPartialStringValid(const QString &proposed) const
{
    return proposed.size() <= maximumDigits && std::all_of(proposed.begin(), proposed.end(),
                                                   [](QChar c) { return c >= u'0' && c <= u'9'; });
}

} // namespace quillon
