// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Scheduler.h"

#include <map>
#include <mutex>
#include <optional>

namespace quillon::test {

/// Another scheduler whose clock runs `factor` times as fast: what takes a minute takes a second.
/// Clock and timers agree, and the clock waits for timers: however busy the machine is, each task
/// runs at the very moment it is due by now(), in order, and whatever it posts to the main thread
/// runs before the next one.
class FastScheduler : public Scheduler
{
public:
    /// `real` outlives this; its now() is taken as the time that really passes.
    FastScheduler(Scheduler &real, int factor);
    ~FastScheduler() override;

    QDateTime now() const override;
    /// The same clock: nobody sets it, and it is never suspended.
    std::chrono::milliseconds monotonic() const override
    {
        return std::chrono::milliseconds(m_start.msecsTo(now()));
    }
    bool isMainThread() const override { return m_real.isMainThread(); }
    void onMain(Task task) override { m_real.onMain(std::move(task)); }
    Token onMainAfter(std::chrono::milliseconds delay, Task task) override;
    Token repeat(std::chrono::milliseconds interval, Task task) override;
    void cancel(Token token) override;
    void inBackground(Task task) override { m_real.inBackground(std::move(task)); }

private:
    struct Timed
    {
        QDateTime due;
        std::chrono::milliseconds interval{0}; ///< 0: once
        Task task;
    };
    using Timers = std::map<Token, Timed>;

    Token add(std::chrono::milliseconds delay, std::chrono::milliseconds interval, Task task);
    // The rest is called with the mutex held, turn() without.
    QDateTime passed() const;
    QDateTime current() const;
    Timers::iterator earliest();
    Timers::const_iterator earliest() const;
    void wakeForEarliest();
    void turn();

    Scheduler &m_real;
    const int m_factor;
    const QDateTime m_start;
    mutable std::mutex m_mutex;
    Timers m_timers;
    Token m_nextToken = 1;
    QDateTime m_reached;               ///< the clock never goes back behind it
    std::optional<QDateTime> m_moment; ///< of the task that runs
    std::optional<Token> m_wake;       ///< of m_real
};

} // namespace quillon::test
