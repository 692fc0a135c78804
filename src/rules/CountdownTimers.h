// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Scheduler.h"
#include "rules/Countdown.h"

#include <QHash>
#include <QObject>
#include <QVariantMap>

#include <optional>

namespace quillon {

class AddressChanger;
class DeviceTable;
class NotificationCenter;
class Notifier;

/// The countdowns of rules that change an address again and again: one for each device, ticking
/// once a second while somebody can see it, else only when there is something to do. Every tick
/// computes what is left from the wall clock, so late ticks never add up. They end with the
/// program. Main thread.
class CountdownTimers : public QObject
{
    Q_OBJECT

public:
    struct Collaborators
    {
        Scheduler &scheduler;
        NotificationCenter &notifications;
        Notifier &notifier;
        const DeviceTable &devices;
        AddressChanger &addressChanger;
    };

    explicit CountdownTimers(const Collaborators &collaborators);
    ~CountdownTimers() override;

    /// Whether anything shows a countdown now; until somebody says so, it is taken for granted.
    /// From then on, and at once, the countdowns tick.
    void setWatched(bool watched);

    /// Starts the countdown of `device` anew, as long as the "timerMinutes" of the rule in its
    /// record say. At its end the device gets a random address, and it starts again. That address
    /// is one of the manufacturer that was chosen for the device, if any; the rule's own choice
    /// does not count. One that is a second late or more, or has no length, starts again without a
    /// change.
    void startCountDownTimer(const QString &device);
    void stopCountdownTimer(const QString &device);
    /// A paused countdown shows what it showed, does not come to its end, and goes on from where it
    /// was. For a device without countdown: nothing beyond the signal.
    void pauseCountdownTimer(const QString &device);
    void resumeCountdownTimer(const QString &device);

    /// The running and paused countdowns as property-list data, device to dictionary: "device";
    /// "startDate" (moved while paused); "interval", minutes; "timer", a number that no other
    /// start has; "isPaused" only while paused, holding "remaining", seconds; "label" from the
    /// first tick on, or at once where nobody watches, holding "display" and, while the menu shows
    /// the countdown, "menu", the title of its item.
    QVariantMap timers() const;
    /// What menus show of a countdown.
    struct Showing
    {
        std::optional<QString> display; ///< as "label"
        bool isPaused = false;
    };
    /// None for a device without countdown.
    std::optional<Showing> showing(const QString &device) const;

    /// The menu has an item that shows the countdown of `device`, or no longer. Its title follows
    /// the ticks; every start takes it away.
    void setMenuItemShown(const QString &device, bool shown);

Q_SIGNALS:
    /// At every tick, for each device; `text` tells what is left.
    void ticked(const QString &device, const QString &text, bool isPaused);
    /// A countdown was stopped, or none is running.
    void stopped();
    /// Pause or resume was asked for, of whatever device; it follows.
    void pauseOrResumeRequested();
    /// Menus have other items for a countdown: it was started, stopped, paused or resumed, or got
    /// its text.
    void menuItemsChanged();

private:
    struct Timer
    {
        Countdown countdown;
        Scheduler::Token ticker = {};                 ///< while watched
        std::shared_ptr<Scheduler::Alarm> alarm = {}; ///< while not
    };

    int minutesOfRule(const QString &device) const;
    bool isRunning(const QString &device, qulonglong number) const;
    void set(const QString &device, Timer &timer);
    void drop(Timer &timer);
    void checkCountdownTimer(const QString &device);
    void actOnRemaining(const QString &device, const Countdown &countdown, qint64 remaining);
    void expire(const QString &device, qulonglong number);
    void postOverview();

    Collaborators m_deps;
    bool m_isWatched = true;
    qulonglong m_lastNumber = 0;
    QHash<QString, Timer> m_timers;
};

} // namespace quillon
