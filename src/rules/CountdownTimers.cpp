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
// Nobody sees when an unwatched countdown acts: in the middle of the time in which 0 seconds
// remain.
constexpr std::chrono::milliseconds halfTick = tickInterval / 2;

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
    for (Countdown &countdown : m_timers) {
        dropTimer(countdown);
    }
}

void CountdownTimers::setWatched(bool watched)
{
    if (std::exchange(m_isWatched, watched) == watched) {
        return;
    }
    for (auto entry = m_timers.begin(); entry != m_timers.end(); ++entry) {
        setTimer(entry.key(), *entry);
    }
    const QStringList devices = watched ? m_timers.keys() : QStringList();
    for (const QString &device : devices) {
        checkCountdownTimer(device);
    }
}

void CountdownTimers::setTimer(const QString &device, Countdown &countdown)
{
    dropTimer(countdown);
    // The destructor ends what is set here.
    const Scheduler::Task check = [this, device] { checkCountdownTimer(device); };
    if (m_isWatched) {
        countdown.ticker = m_deps.scheduler.repeat(tickInterval, check);
        return;
    }
    if (!countdown.display) {
        // A menu that is closed lists it all the same: no tick gives it its text.
        countdown.display = textOf(countdown);
    }
    if (const std::optional<QDateTime> moment = nextAct(countdown)) {
        countdown.alarm = m_deps.scheduler.alarmAt(*moment, check);
    }
}

void CountdownTimers::dropTimer(Countdown &countdown)
{
    m_deps.scheduler.cancel(std::exchange(countdown.ticker, 0));
    countdown.alarm.reset();
}

/// When an unwatched countdown has something to do; a paused one never has.
std::optional<QDateTime> CountdownTimers::nextAct(const Countdown &countdown) const
{
    if (countdown.pausedRemaining) {
        return std::nullopt;
    }
    const bool isNextTick = countdown.interval <= 0 ||
                            (countdown.interval == warnedInterval && !countdown.minuteWarningGiven);
    const QDateTime soon = m_deps.scheduler.now().addMSecs(halfTick.count());
    const QDateTime end = countdown.startDate.addSecs(countdown.interval * secondsInMinute)
                              .addMSecs(-halfTick.count());
    return isNextTick ? soon.addMSecs(halfTick.count()) : std::max(soon, end);
}

void CountdownTimers::startCountDownTimer(const QString &device)
{
    stopCountdownTimer(device);
    Countdown countdown;
    countdown.startDate = m_deps.scheduler.now();
    countdown.interval = minutesOfRule(device);
    countdown.number = ++m_lastNumber;
    setTimer(device, m_timers[device] = countdown);
    m_deps.notifier.sendNotificationWithBody(localized("Quillon Timer started"), textOf(countdown));
    Q_EMIT menuItemsChanged();
}

QString CountdownTimers::textOf(const Countdown &countdown) const
{
    // By now the start has passed, if by less than the clock tells.
    const QDateTime soon = countdown.startDate.addMSecs(1);
    return generateTimerCountdownStringForStartDateAndInterval(
        countdown.startDate, countdown.interval, std::max(soon, m_deps.scheduler.now()))
        .displayString;
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
    const auto found = m_timers.find(device);
    const bool wasRunning = found != m_timers.end();
    if (wasRunning) {
        dropTimer(*found);
        m_timers.erase(found);
    }
    if (wasRunning || m_timers.isEmpty()) {
        Q_EMIT stopped();
    }
    if (wasRunning) {
        Q_EMIT menuItemsChanged();
    }
    postOverview();
}

void CountdownTimers::pauseCountdownTimer(const QString &device)
{
    Q_EMIT pauseOrResumeRequested();
    const auto found = m_timers.find(device);
    if (found == m_timers.end()) {
        return;
    }
    const CountdownText text = generateTimerCountdownStringForStartDateAndInterval(
        found->startDate, found->interval, m_deps.scheduler.now());
    found->pausedRemaining = text.remaining;
    if (!m_isWatched) {
        found->display = text.displayString;
        setTimer(device, *found);
    }
    Q_EMIT menuItemsChanged();
}

void CountdownTimers::resumeCountdownTimer(const QString &device)
{
    Q_EMIT pauseOrResumeRequested();
    const auto found = m_timers.find(device);
    if (found == m_timers.end() || !found->pausedRemaining) {
        return;
    }
    const qint64 remaining = *std::exchange(found->pausedRemaining, std::nullopt);
    if (!m_isWatched) {
        // No tick has done it.
        goOnFrom(*found, remaining, m_deps.scheduler.now());
        setTimer(device, *found);
    }
    Q_EMIT menuItemsChanged();
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
    const bool isFirst = !found->display;
    showTime(*found, text.displayString, now);
    const bool warns = takeMinuteWarning(*found, text.remaining);
    // A copy: whoever hears of the tick may end or restart the countdown.
    const Countdown countdown = *found;
    Q_EMIT ticked(device, *countdown.display, countdown.pausedRemaining.has_value());
    if (isFirst) {
        Q_EMIT menuItemsChanged();
    }
    if (warns) {
        m_deps.notifier.sendNotificationWithBody(localized("Quillon"), *countdown.display);
    }
    if (isRunning(device, countdown.number)) {
        actOnRemaining(device, countdown, text.remaining);
    }
    if (!m_isWatched && isRunning(device, countdown.number)) {
        setTimer(device, m_timers[device]);
    }
    postOverview();
}

void CountdownTimers::showTime(Countdown &countdown, const QString &text, const QDateTime &now)
{
    QString shown = text;
    if (const std::optional<qint64> paused = countdown.pausedRemaining) {
        shown = markedAsPaused(countdown.display.value_or(text));
        goOnFrom(countdown, *paused, now);
    }
    countdown.display = shown;
}

/// So that after resuming it goes on from where it was paused.
void CountdownTimers::goOnFrom(Countdown &countdown, qint64 remaining, const QDateTime &now)
{
    countdown.startDate = now.addSecs(remaining - countdown.interval * secondsInMinute + 1);
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

bool CountdownTimers::isRunning(const QString &device, qulonglong number) const
{
    const auto found = m_timers.constFind(device);
    return found != m_timers.constEnd() && found->number == number && !found->pausedRemaining;
}

void CountdownTimers::actOnRemaining(
    const QString &device, const Countdown &countdown, qint64 remaining)
{
    if (remaining < 0 || countdown.interval <= 0) {
        startCountDownTimer(device);
    } else if (remaining == 0) {
        // The change comes after all that belongs to this tick.
        m_deps.scheduler.onMain(
            this, [this, device, number = countdown.number] { expire(device, number); });
    }
}

void CountdownTimers::expire(const QString &device, qulonglong number)
{
    // It may have been stopped or restarted since, and two ticks may have met the same zero.
    if (isRunning(device, number)) {
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
        {key::timer, static_cast<qlonglong>(countdown.number)},
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
