// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/CountdownTimers.h"

#include "base/Localized.h"
#include "base/NotificationNames.h"
#include "base/Notifier.h"
#include "base/SettingsKeys.h"
#include "devices/AddressChanger.h"
#include "devices/DeviceTable.h"
#include "platform/NotificationCenter.h"
#include "rules/CountdownText.h"
#include "rules/RuleQueries.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::milliseconds tickInterval{1000};
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

CountdownTimers::CountdownTimers(const Collaborators &collaborators)
    : m_deps(collaborators)
{
}

CountdownTimers::~CountdownTimers()
{
    for (const Countdown &countdown : std::as_const(m_timers)) {
        m_deps.scheduler.cancel(countdown.timer);
    }
}

void CountdownTimers::startCountDownTimer(const QString &device)
{
    stopCountdownTimer(device);
    Countdown countdown;
    countdown.startDate = m_deps.scheduler.now();
    countdown.interval = minutesOfRule(device);
    countdown.timer = m_deps.scheduler.repeat(tickInterval, [this, device] {
        // The destructor ends the ticking.
        checkCountdownTimer(device);
    });
    m_timers[device] = countdown;
    // By now the start has passed, if by less than the clock tells.
    const QDateTime soon = countdown.startDate.addMSecs(1);
    const CountdownText text = generateTimerCountdownStringForStartDateAndInterval(
        countdown.startDate, countdown.interval, std::max(soon, m_deps.scheduler.now()));
    m_deps.notifier.sendNotificationWithBody(
        localized("Quillon Timer started"), text.displayString);
}

int CountdownTimers::minutesOfRule(const QString &device) const
{
    const auto rule = m_deps.devices.record(device).rule.value_or(QVariantMap());
    // As many as a rule can hold, whatever the settings say.
    using Minutes = std::numeric_limits<qint16>;
    return static_cast<int>(std::clamp<qlonglong>(
        rule.value(timerMinutesKey).toLongLong(), Minutes::min(), Minutes::max()));
}

void CountdownTimers::stopCountdownTimer(const QString &device)
{
    const auto found = m_timers.constFind(device);
    const bool wasRunning = found != m_timers.constEnd();
    if (wasRunning) {
        m_deps.scheduler.cancel(found->timer);
        m_timers.erase(found);
    }
    if (wasRunning || m_timers.isEmpty()) {
        Q_EMIT stopped();
    }
    postOverview();
}

void CountdownTimers::pauseCountdownTimer(const QString &device)
{
    Q_EMIT pauseOrResumeRequested();
    const auto found = m_timers.find(device);
    if (found != m_timers.end()) {
        found->pausedRemaining = generateTimerCountdownStringForStartDateAndInterval(
            found->startDate, found->interval, m_deps.scheduler.now())
                                     .remaining;
    }
}

void CountdownTimers::resumeCountdownTimer(const QString &device)
{
    Q_EMIT pauseOrResumeRequested();
    const auto found = m_timers.find(device);
    if (found != m_timers.end()) {
        found->pausedRemaining.reset();
    }
}

void CountdownTimers::checkCountdownTimer(const QString &device)
{
    const auto found = m_timers.find(device);
    if (found == m_timers.end()) {
        return;
    }
    const QDateTime now = m_deps.scheduler.now();
    const CountdownText text =
        generateTimerCountdownStringForStartDateAndInterval(found->startDate, found->interval, now);
    showTime(*found, text.displayString, now);
    const bool warns = takeMinuteWarning(*found, text.remaining);
    // A copy: whoever hears of the tick may end or restart the countdown.
    const Countdown countdown = *found;
    Q_EMIT ticked(device, *countdown.display, countdown.pausedRemaining.has_value());
    if (warns) {
        m_deps.notifier.sendNotificationWithBody(localized("Quillon"), *countdown.display);
    }
    if (isRunning(device, countdown.timer)) {
        actOnRemaining(device, countdown, text.remaining);
    }
    postOverview();
}

void CountdownTimers::showTime(Countdown &countdown, const QString &text, const QDateTime &now)
{
    QString shown = text;
    if (const std::optional<qint64> paused = countdown.pausedRemaining) {
        shown = markedAsPaused(countdown.display.value_or(text));
        // After resuming it goes on from where it was paused.
        countdown.startDate = now.addSecs(*paused - countdown.interval * secondsInMinute + 1);
    }
    countdown.display = shown;
}

bool CountdownTimers::takeMinuteWarning(Countdown &countdown, qint64 remaining)
{
    if (remaining > secondsInMinute) {
        countdown.minuteWarningGiven = false;
    }
    // The tick that passes the minute counts: the first one comes when a second is gone already.
    const bool due = countdown.interval == warnedInterval && remaining > 0 &&
                     remaining <= secondsInMinute && !countdown.minuteWarningGiven &&
                     !countdown.pausedRemaining;
    countdown.minuteWarningGiven = countdown.minuteWarningGiven || due;
    return due;
}

bool CountdownTimers::isRunning(const QString &device, Scheduler::Token timer) const
{
    const auto found = m_timers.constFind(device);
    return found != m_timers.constEnd() && found->timer == timer && !found->pausedRemaining;
}

void CountdownTimers::actOnRemaining(
    const QString &device, const Countdown &countdown, qint64 remaining)
{
    if (remaining < 0 || countdown.interval <= 0) {
        startCountDownTimer(device);
    } else if (remaining == 0) {
        // The change comes after all that belongs to this tick.
        m_deps.scheduler.onMain(
            this, [this, device, timer = countdown.timer] { expire(device, timer); });
    }
}

void CountdownTimers::expire(const QString &device, Scheduler::Token timer)
{
    // It may have been stopped or restarted since, and two ticks may have met the same zero.
    if (isRunning(device, timer)) {
        m_deps.addressChanger.genRandomMacAddressWithVendor(device);
        startCountDownTimer(device);
    }
}

void CountdownTimers::setMenuItemShown(const QString &device, bool shown)
{
    const auto found = m_timers.find(device);
    if (found != m_timers.end()) {
        found->hasMenuItem = shown;
    }
}

std::optional<CountdownTimers::Showing> CountdownTimers::showing(const QString &device) const
{
    const auto found = m_timers.constFind(device);
    if (found == m_timers.constEnd()) {
        return std::nullopt;
    }
    return Showing{found->display, found->pausedRemaining.has_value()};
}

QVariantMap CountdownTimers::timers() const
{
    QVariantMap table;
    for (auto entry = m_timers.cbegin(); entry != m_timers.cend(); ++entry) {
        table[entry.key()] = asPropertyList(entry.key(), *entry);
    }
    return table;
}

QVariantMap CountdownTimers::asPropertyList(const QString &device, const Countdown &countdown)
{
    QVariantMap entry{
        {record::device, device},
        {key::startDate, countdown.startDate},
        {key::interval, static_cast<qlonglong>(countdown.interval)},
        {key::timer, static_cast<qlonglong>(countdown.timer)},
    };
    if (countdown.pausedRemaining) {
        entry[key::isPaused] = QVariantMap{{key::remaining, *countdown.pausedRemaining}};
    }
    QVariantMap label;
    if (countdown.display) {
        label[key::display] = *countdown.display;
    }
    if (countdown.hasMenuItem) {
        label[key::menu] = countdownMenuTitle(countdown.display.value_or(QString()));
    }
    if (!label.isEmpty()) {
        entry[key::label] = label;
    }
    return entry;
}

void CountdownTimers::postOverview()
{
    m_deps.notifications.post(notifications::updateOverview, this, timers());
}

} // namespace quillon
