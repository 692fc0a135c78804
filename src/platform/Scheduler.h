// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QPointer>

#include <chrono>
#include <functional>
#include <memory>
#include <utility>

namespace quillon {

/// Time and threads. No other code calls a timer, a thread or the clock directly.
/// All calls are safe from every thread. Tasks still waiting when the program leaves its main loop
/// never run.
class Scheduler
{
public:
    using Task = std::function<void()>;
    using Token = quint64;

    virtual ~Scheduler() = default;

    /// The wall clock, UTC.
    virtual QDateTime now() const = 0;
    /// The time since some moment before the first call, without that in suspension. Nobody sets
    /// it: where now() has gone another way, the clock was set or the machine was suspended.
    virtual std::chrono::milliseconds monotonic() const = 0;
    virtual bool isMainThread() const = 0;

    /// Runs `task` on the main thread in a later turn of its loop, also when called there. Tasks
    /// run in the order in which they were given.
    virtual void onMain(Task task) = 0;
    /// The same after `delay`; the token cancels it until it has begun.
    virtual Token onMainAfter(std::chrono::milliseconds delay, Task task) = 0;
    /// The same two for a task of `context`: it does not run when `context` has been destroyed by
    /// then. `context` is alive at the call and is destroyed on the main thread.
    void onMain(const QObject *context, Task task);
    Token onMainAfter(std::chrono::milliseconds delay, const QObject *context, Task task);
    /// A callback for a reply that may come on any thread, and after `context` has gone: it hands
    /// what it is given to `task`, as a task of `context`. The scheduler outlives it.
    template <typename... Values, typename Reply>
    std::function<void(Values...)> replyOnMain(const QObject *context, Reply reply)
    {
        return [this, context = QPointer(context), reply = std::move(reply)](Values... values) {
            onMain([context, reply, values...] {
                if (context) {
                    reply(values...);
                }
            });
        };
    }
    /// Runs `task` on the main thread every `interval`, first after one interval, until cancelled;
    /// also while a menu is open.
    virtual Token repeat(std::chrono::milliseconds interval, Task task) = 0;

    /// Cancels what it stands for when it goes. Main thread.
    class Alarm
    {
    public:
        virtual ~Alarm() = default;
    };
    /// Runs `task` on the main thread once now() has come to `moment`, be it that the clock was set
    /// there, or that the machine was suspended meanwhile; nothing wakes up before. As this class
    /// has it, for schedulers whose clock nobody sets, by onMainAfter(). Main thread.
    virtual std::unique_ptr<Alarm> alarmAt(const QDateTime &moment, Task task);

    /// Unknown or used-up tokens are ignored.
    virtual void cancel(Token token) = 0;

    /// Runs `task` on a thread other than the main one. No order among tasks: see SerialQueue.
    virtual void inBackground(Task task) = 0;
};

} // namespace quillon
