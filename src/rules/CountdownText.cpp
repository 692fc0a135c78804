// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/CountdownText.h"

#include "base/Localized.h"

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 secondsInMinute = 60;
constexpr qint64 secondsInHour = 3600;
constexpr qint64 millisecondsInSecond = 1000;

} // namespace

QString countdownTime(qint64 seconds)
{
    return QString::asprintf("%02lld:%02lld:%02lld", seconds / secondsInHour,
        (seconds / secondsInMinute) % secondsInMinute, seconds % secondsInMinute);
}

QString countdownMenuTitle(const QString &displayString)
{
    return u"    "_s + displayString;
}

CountdownText generateTimerCountdownStringForStartDateAndInterval(
    const QDateTime &startDate, int interval, const QDateTime &now)
{
    const qint64 length = interval * secondsInMinute * millisecondsInSecond;
    const qint64 remaining = (length - startDate.msecsTo(now)) / millisecondsInSecond;
    return {
        remaining, filled(localized("...changing MAC Address in %@"), {countdownTime(remaining)})};
}

} // namespace quillon
