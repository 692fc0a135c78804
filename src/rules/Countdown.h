// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "rules/CountdownText.h"

#include <QVariantMap>

#include <chrono>
#include <optional>

namespace quillon {

/// One countdown, as plain state: when it began, whether it is paused, and what is shown of it.
/// What is left is always computed from the wall clock, whose `now` its callers bring along.
struct Countdown
{
    QDateTime startDate;                   ///< moved while paused
    int interval = 0;                      ///< minutes
    qulonglong number = 0;                 ///< no other start has it
    std::optional<qint64> pausedRemaining; ///< seconds; while paused
    std::optional<QString> display;        ///< from the first tick on
    bool hasMenuItem = false;
    bool minuteWarningGiven = false;

    CountdownText textAt(const QDateTime &now) const;
    /// That of one that has just been started: its first second runs already.
    QString firstTextAt(const QDateTime &now) const;
    /// When one that nobody sees has something to do; a paused one never has.
    std::optional<QDateTime> nextAct(const QDateTime &now, std::chrono::milliseconds tick) const;

    /// Shows `text`; a paused one what it showed, and its start moves along.
    void showTime(const QString &text, const QDateTime &now);
    /// Moves the start, so that `remaining` seconds are left at the next second.
    void goOnFrom(qint64 remaining, const QDateTime &now);
    /// Whether the last minute has begun of one that is a minute long. Once.
    bool takeMinuteWarning(qint64 remaining);

    /// As CountdownTimers::timers() says, without the device.
    QVariantMap asPropertyList() const;
};

} // namespace quillon
