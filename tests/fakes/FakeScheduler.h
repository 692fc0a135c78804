// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Scheduler.h"

#include <deque>
#include <map>

namespace quillon::test {

/// A scheduler whose clock has hands: nothing runs until a test turns them. Background tasks run on
/// the calling thread too, but isMainThread() is false meanwhile.
class FakeScheduler : public Scheduler
{
public:
    QDateTime now() const override { return m_now.addMSecs(m_clockIsAhead.count()); }
    std::chrono::milliseconds monotonic() const override
    {
        return std::chrono::milliseconds(m_now.toMSecsSinceEpoch());
    }
    bool isMainThread() const override { return m_onMainThread; }
    using Scheduler::onMain;
    using Scheduler::onMainAfter;
    void onMain(Task task) override;
    Token onMainAfter(std::chrono::milliseconds delay, Task task) override;
    Token repeat(std::chrono::milliseconds interval, Task task) override;
    void cancel(Token token) override;
    std::unique_ptr<Alarm> alarmAt(const QDateTime &moment, Task task) override;
    void inBackground(Task task) override;

    /// Runs what is due now, and what that asks for, until nothing is left.
    void runPending();
    /// Turns the hands forward, running every task at its own moment.
    void advance(std::chrono::milliseconds time);
    /// Time goes by while the main thread is held up: what becomes due runs when it turns again.
    void pass(std::chrono::milliseconds time) { m_now = m_now.addMSecs(time.count()); }
    /// Sets the clock forward, or back, as a user does, or time that passed while the machine was
    /// suspended: now() jumps, and what waits still waits for as long as before; alarms do not.
    void setClock(std::chrono::milliseconds forward);
    /// Calls `task` as if from another thread.
    void asBackground(const Task &task);
    bool hasTimers() const { return !m_timers.empty(); }
    /// How often the main thread was woken by a timer or an alarm.
    int wakeUps() const { return m_wakeUps; }

private:
    struct Timer
    {
        QDateTime due;
        std::chrono::milliseconds interval{0};
        Task task;
        bool followsClock = false; ///< `due` is when the hands come there as the clock is now
    };
    class HeldAlarm;

    bool runTimersDue();

    QDateTime m_now = QDateTime::fromSecsSinceEpoch(1'750'000'000, Qt::UTC);
    std::chrono::milliseconds m_clockIsAhead{0};
    bool m_onMainThread = true;
    std::deque<Task> m_main;
    std::deque<Task> m_background;
    std::map<Token, Timer> m_timers;
    Token m_nextToken = 1;
    int m_wakeUps = 0;
};

} // namespace quillon::test
