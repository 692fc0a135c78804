// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Scheduler.h"

#include <QDeadlineTimer>
#include <QObject>
#include <QThreadPool>

#include <map>
#include <mutex>

class QTimer;

namespace quillon {

/// The real scheduler: the main thread's event loop, which also turns while a menu is open, and a
/// thread pool of its own. Made and destroyed on the main thread, by main(); outlives whoever uses
/// it.
class QtScheduler : public Scheduler
{
public:
    /// Alarms of the platform's wall clock. One that cannot be had is none; then a timer stands in
    /// for it, which does not follow a clock that is set.
    using MakeAlarm = std::function<std::unique_ptr<Alarm>(const QDateTime &moment, Task task)>;

    explicit QtScheduler(MakeAlarm makeAlarm = {});
    ~QtScheduler() override;

    QDateTime now() const override;
    std::chrono::milliseconds monotonic() const override;
    bool isMainThread() const override;
    using Scheduler::onMain;
    using Scheduler::onMainAfter;
    void onMain(Task task) override;
    Token onMainAfter(std::chrono::milliseconds delay, Task task) override;
    Token repeat(std::chrono::milliseconds interval, Task task) override;
    std::unique_ptr<Alarm> alarmAt(const QDateTime &moment, Task task) override;
    void cancel(Token token) override;
    void inBackground(Task task) override;

    /// Waits for the background tasks that have begun and drops whatever waits, on the main thread
    /// too. From then on everything that is given is dropped. Main thread; a second call does
    /// nothing.
    void shutDown();

private:
    struct Timed
    {
        Task task;
        std::chrono::milliseconds interval{0}; ///< 0: once
        QDeadlineTimer due;
        QTimer *timer = nullptr; ///< main thread only; a child of m_loop
    };

    Token addTimed(Timed timed, std::chrono::milliseconds first);
    void post(Task task);
    void startTimer(Token token);
    void timeOut(Token token);

    MakeAlarm m_makeAlarm;
    QObject m_loop; ///< receives what runs on the main thread
    QThreadPool m_pool;
    std::mutex m_mutex;
    std::map<Token, Timed> m_timed;
    Token m_nextToken = 1;
    bool m_stopped = false;
};

} // namespace quillon
