// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "updates/UpdateVersion.h"

#include <QList>

#include <algorithm>

namespace quillon {

namespace {

/// So that every number fits.
constexpr qsizetype mostDigits = 9;

bool isNumber(QStringView text)
{
    const auto isDigit = [](QChar c) { return c >= u'0' && c <= u'9'; };
    return !text.isEmpty() && text.size() <= mostDigits &&
           (text.size() == 1 || text.front() != u'0') &&
           std::all_of(text.begin(), text.end(), isDigit);
}

} // namespace

std::optional<UpdateVersion> UpdateVersion::fromText(QStringView text)
{
    constexpr qsizetype longest = (mostDigits + 1) * mostNumbers;
    UpdateVersion version;
    const QList<QStringView> numbers =
        text.size() < longest ? text.split(u'.') : QList<QStringView>();
    if (numbers.isEmpty() || numbers.size() > qsizetype(mostNumbers) ||
        !std::all_of(numbers.begin(), numbers.end(), isNumber)) {
        return std::nullopt;
    }
    std::transform(numbers.begin(), numbers.end(), version.m_numbers.begin(),
        [](QStringView number) { return number.toUInt(); });
    version.m_text = text.toString();
    return version;
}

} // namespace quillon
