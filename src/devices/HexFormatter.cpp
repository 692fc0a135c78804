// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "devices/HexFormatter.h"

#include <QStringView>

#include <algorithm>

namespace quillon {

namespace {

constexpr qint32 bareDigitsLength = 12;
constexpr qint32 separatedLength = 17;

bool holdsOnly(const QString &text, QStringView characters)
{
    return std::all_of(
        text.begin(), text.end(), [characters](QChar c) { return characters.contains(c); });
}

} // namespace

bool HexFormatter::isPartialStringValid(const QString &proposed)
{
    const bool bareDigits = holdsOnly(proposed, u"1234567890abcdefABCDEF");
    setMaximumLength(bareDigits ? bareDigitsLength : separatedLength);
    return proposed.size() <= maximumLength() && holdsOnly(proposed, u":1234567890abcdefABCDEF");
}

} // namespace quillon
