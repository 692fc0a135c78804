// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/textual/InterfaceQueryText.h"

#include "platform/textual/TextLines.h"

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

/// What follows the first `mark`, up to the first character that `ends`, or to the end of the text.
template <typename Ends>
QString valueAfter(const QString &text, QLatin1String mark, Ends ends)
{
    const qsizetype found = text.indexOf(mark);
    if (found < 0) {
        return {};
    }
    const auto begin = text.cbegin() + found + mark.size();
    const auto end = std::find_if(begin, text.cend(), ends);
    return text.mid(found + mark.size(), end - begin);
}

} // namespace

InterfaceInfo interfaceInfo(const QString &query)
{
    const auto isBlank = [](QChar character) { return character == u' '; };
    return {
        .ipAddress = valueAfter(query, "inet "_L1, isBlank),
        .macAddress = valueAfter(query, "ether "_L1, isLineBreak),
        .status = valueAfter(query, "status: "_L1, isLineBreak),
    };
}

} // namespace quillon
