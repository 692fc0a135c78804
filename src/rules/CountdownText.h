// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>

namespace quillon {

/// What is left of a countdown, and how that is told.
struct CountdownText
{
    qint64 remaining = 0; ///< whole seconds; negative once the end has passed by a second or more
    QString displayString;

    bool operator==(const CountdownText &) const = default;
};

/// Hours, minutes and seconds, two digits each or more. Every part of a negative time is negative.
QString countdownTime(qint64 seconds);

/// The title of the menu item that shows `displayString`.
QString countdownMenuTitle(const QString &displayString);

/// What is left at `now` of a countdown of `interval` minutes that began at `startDate`; fractions
/// of a second are cut off towards zero.
CountdownText generateTimerCountdownStringForStartDateAndInterval(
    const QDateTime &startDate, int interval, const QDateTime &now);

} // namespace quillon
