// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/Countdown.h"

#include "base/Localized.h"

#include <algorithm>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 secondsInMinute = 60;
constexpr int warnedInterval = 1;

namespace key {

const QString startDate = u"startDate"_s;
const QString interval = u"interval"_s;
const QString timer = u"timer"_s;
const QString isPaused = u"isPaused"_s;
const QString remaining = u"remaining"_s;
const QString label = u"label"_s;
const QString display = u"display"_s;
const QString menu = u"menu"_s;

} // namespace key

QString markedAsPaused(const QString &text)
{
    const QString mark = localized("(paused)");
    return text.contains(mark) ? text : text + u' ' + mark;
}

} // namespace

CountdownText Countdown::textAt(const QDateTime &now) const
{
    return generateTimerCountdownStringForStartDateAndInterval(startDate, interval, now);
}

QString Countdown::firstTextAt(const QDateTime &now) const
{
    // The start has passed, if by less than the clock tells.
    const QDateTime soon = startDate.addMSecs(1);
    return textAt(std::max(soon, now)).displayString;
}

std::optional<QDateTime> Countdown::nextAct(
    const QDateTime &now, std::chrono::milliseconds tick) const
{
    if (pausedRemaining) {
        return std::nullopt;
    }
    // Nobody sees when it acts: in the middle of the time in which 0 seconds remain.
    const std::chrono::milliseconds halfTick = tick / 2;
    const bool isNextTick = interval <= 0 || (interval == warnedInterval && !minuteWarningGiven);
    const QDateTime soon = now.addMSecs(halfTick.count());
    const QDateTime end = startDate.addSecs(interval * secondsInMinute).addMSecs(-halfTick.count());
    return isNextTick ? soon.addMSecs(halfTick.count()) : std::max(soon, end);
}

void Countdown::showTime(const QString &text, const QDateTime &now)
{
    QString shown = text;
    if (const std::optional<qint64> paused = pausedRemaining) {
        shown = markedAsPaused(display.value_or(text));
        goOnFrom(*paused, now);
    }
    display = shown;
}

void Countdown::goOnFrom(qint64 remaining, const QDateTime &now)
{
    startDate = now.addSecs(remaining - interval * secondsInMinute + 1);
}

bool Countdown::takeMinuteWarning(qint64 remaining)
{
    if (remaining > secondsInMinute) {
        minuteWarningGiven = false;
    }
    // The tick that passes the minute counts: the first one comes when a second is gone already.
    const bool due = interval == warnedInterval && remaining > 0 && remaining <= secondsInMinute &&
                     !minuteWarningGiven && !pausedRemaining;
    minuteWarningGiven = minuteWarningGiven || due;
    return due;
}

QVariantMap Countdown::asPropertyList() const
{
    QVariantMap entry{
        {key::startDate, startDate},
        {key::interval, static_cast<qlonglong>(interval)},
        {key::timer, static_cast<qlonglong>(number)},
    };
    if (pausedRemaining) {
        entry[key::isPaused] = QVariantMap{{key::remaining, *pausedRemaining}};
    }
    QVariantMap label;
    if (display) {
        label[key::display] = *display;
    }
    if (hasMenuItem) {
        label[key::menu] = countdownMenuTitle(display.value_or(QString()));
    }
    if (!label.isEmpty()) {
        entry[key::label] = label;
    }
    return entry;
}

} // namespace quillon
