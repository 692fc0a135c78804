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
#include "rules/RuleQueries.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace quillon {

namespace {

constexpr std::chrono::milliseconds tickInterval{1000};

} // namespace

CountdownTimers::CountdownTimers(const Collaborators &collaborators)
    : m_deps(collaborators)
{
}

CountdownTimers::~CountdownTimers()
{
    for (Timer &timer : m_timers) {
        drop(timer);
    }
}

void CountdownTimers::setWatched(bool watched)
{
    if (std::exchange(m_isWatched, watched) == watched) {
        return;
    }
    for (auto entry = m_timers.begin(); entry != m_timers.end(); ++entry) {
        set(entry.key(), *entry);
    }
    const QStringList devices = watched ? m_timers.keys() : QStringList();
    for (const QString &device : devices) {
        checkCountdownTimer(device);
    }
}

void CountdownTimers::set(const QString &device, Timer &timer)
{
    drop(timer);
    // The destructor ends what is set here.
    const Scheduler::Task check = [this, device] { checkCountdownTimer(device); };
    if (m_isWatched) {
        timer.ticker = m_deps.scheduler.repeat(tickInterval, check);
        return;
    }
    const QDateTime now = m_deps.scheduler.now();
    if (!timer.countdown.display) {
        // A menu that is closed lists it all the same: no tick gives it its text.
        timer.countdown.display = timer.countdown.firstTextAt(now);
    }
    if (const std::optional<QDateTime> moment = timer.countdown.nextAct(now, tickInterval)) {
        timer.alarm = m_deps.scheduler.alarmAt(*moment, check);
    }
}

void CountdownTimers::drop(Timer &timer)
{
    m_deps.scheduler.cancel(std::exchange(timer.ticker, 0));
    timer.alarm.reset();
}

void CountdownTimers::startCountDownTimer(const QString &device)
{
    stopCountdownTimer(device);
    Countdown countdown;
    countdown.startDate = m_deps.scheduler.now();
    countdown.interval = minutesOfRule(device);
    countdown.number = ++m_lastNumber;
    set(device, m_timers[device] = Timer{.countdown = countdown});
    m_deps.notifier.sendNotificationWithBody(
        localized("Quillon Timer started"), countdown.firstTextAt(m_deps.scheduler.now()));
    Q_EMIT menuItemsChanged();
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
        drop(*found);
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
    Countdown &countdown = found->countdown;
    const CountdownText text = countdown.textAt(m_deps.scheduler.now());
    countdown.pausedRemaining = text.remaining;
    if (!m_isWatched) {
        countdown.display = text.displayString;
        set(device, *found);
    }
    Q_EMIT menuItemsChanged();
}

void CountdownTimers::resumeCountdownTimer(const QString &device)
{
    Q_EMIT pauseOrResumeRequested();
    const auto found = m_timers.find(device);
    if (found == m_timers.end() || !found->countdown.pausedRemaining) {
        return;
    }
    const qint64 remaining = *std::exchange(found->countdown.pausedRemaining, std::nullopt);
    if (!m_isWatched) {
        // No tick has done it.
        found->countdown.goOnFrom(remaining, m_deps.scheduler.now());
        set(device, *found);
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
    const CountdownText text = found->countdown.textAt(now);
    const bool isFirst = !found->countdown.display;
    found->countdown.showTime(text.displayString, now);
    const bool warns = found->countdown.takeMinuteWarning(text.remaining);
    // A copy: whoever hears of the tick may end or restart the countdown. Its alarm, whose task
    // this may be, is kept as well.
    const Timer timer = *found;
    const Countdown &countdown = timer.countdown;
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
        set(device, m_timers[device]);
    }
    postOverview();
}

bool CountdownTimers::isRunning(const QString &device, qulonglong number) const
{
    const auto found = m_timers.constFind(device);
    return found != m_timers.constEnd() && found->countdown.number == number &&
           !found->countdown.pausedRemaining;
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
        found->countdown.hasMenuItem = shown;
    }
}

std::optional<CountdownTimers::Showing> CountdownTimers::showing(const QString &device) const
{
    const auto found = m_timers.constFind(device);
    if (found == m_timers.constEnd()) {
        return std::nullopt;
    }
    return Showing{found->countdown.display, found->countdown.pausedRemaining.has_value()};
}

QVariantMap CountdownTimers::timers() const
{
    QVariantMap table;
    for (auto entry = m_timers.cbegin(); entry != m_timers.cend(); ++entry) {
        QVariantMap countdown = entry->countdown.asPropertyList();
        countdown[record::device] = entry.key();
        table[entry.key()] = countdown;
    }
    return table;
}

void CountdownTimers::postOverview()
{
    m_deps.notifications.post(notifications::updateOverview, this, timers());
}

} // namespace quillon
