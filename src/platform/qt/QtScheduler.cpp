// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/QtScheduler.h"

#include <QCoreApplication>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

// A task may wait for another program; a few such must not hold up the rest on a small machine.
constexpr int leastThreads = 4;

// QTimer counts milliseconds in an int, 24.8 days; longer waits are made of several.
constexpr std::chrono::milliseconds longestWait = std::chrono::hours(24 * 20);

} // namespace

QtScheduler::QtScheduler(MakeAlarm makeAlarm)
    : m_makeAlarm(std::move(makeAlarm))
{
    m_pool.setMaxThreadCount(std::max(leastThreads, QThread::idealThreadCount()));
}

QtScheduler::~QtScheduler()
{
    shutDown();
}

QDateTime QtScheduler::now() const
{
    return QDateTime::currentDateTimeUtc();
}

std::chrono::milliseconds QtScheduler::monotonic() const
{
    // CLOCK_MONOTONIC stands still in suspension.
    return std::chrono::duration_cast<std::chrono::milliseconds>(
        std::chrono::steady_clock::now().time_since_epoch());
}

bool QtScheduler::isMainThread() const
{
    return QThread::currentThread() == m_loop.thread();
}

void QtScheduler::onMain(Task task)
{
    const std::lock_guard lock(m_mutex);
    post(std::move(task));
}

void QtScheduler::post(Task task)
{
    if (!m_stopped) {
        QMetaObject::invokeMethod(&m_loop, std::move(task), Qt::QueuedConnection);
    }
}

Scheduler::Token QtScheduler::onMainAfter(std::chrono::milliseconds delay, Task task)
{
    return addTimed({std::move(task), {}, {}}, std::max(delay, std::chrono::milliseconds(0)));
}

Scheduler::Token QtScheduler::repeat(std::chrono::milliseconds interval, Task task)
{
    const auto atLeastOne = std::max(interval, std::chrono::milliseconds(1));
    return addTimed({std::move(task), atLeastOne, {}}, atLeastOne);
}

std::unique_ptr<Scheduler::Alarm> QtScheduler::alarmAt(const QDateTime &moment, Task task)
{
    std::unique_ptr<Alarm> alarm = m_makeAlarm ? m_makeAlarm(moment, task) : nullptr;
    return alarm ? std::move(alarm) : Scheduler::alarmAt(moment, std::move(task));
}

Scheduler::Token QtScheduler::addTimed(Timed timed, std::chrono::milliseconds first)
{
    // The time counts from here, not from when the main thread gets round to it.
    timed.due = QDeadlineTimer(first, Qt::PreciseTimer);
    const std::lock_guard lock(m_mutex);
    const Token token = m_nextToken++;
    if (!m_stopped) {
        m_timed.emplace(token, std::move(timed));
        post([this, token] { startTimer(token); });
    }
    return token;
}

void QtScheduler::startTimer(Token token)
{
    const std::lock_guard lock(m_mutex);
    const auto found = m_timed.find(token);
    if (found == m_timed.end()) {
        return;
    }
    Timed &timed = found->second;
    if (timed.timer == nullptr) {
        timed.timer = new QTimer(&m_loop);
        timed.timer->setSingleShot(true);
        // Coarse timers may come early.
        timed.timer->setTimerType(Qt::PreciseTimer);
        QObject::connect(timed.timer, &QTimer::timeout, &m_loop, [this, token] { timeOut(token); });
    }
    const std::chrono::milliseconds remaining(std::max<qint64>(timed.due.remainingTime(), 0));
    timed.timer->start(std::min(remaining, longestWait));
}

void QtScheduler::timeOut(Token token)
{
    Task task;
    {
        const std::lock_guard lock(m_mutex);
        const auto found = m_timed.find(token);
        if (found == m_timed.end()) {
            return;
        }
        Timed &timed = found->second;
        if (timed.due.hasExpired()) {
            task = timed.task;
            if (timed.interval.count() == 0) {
                timed.timer->deleteLater();
                m_timed.erase(found);
            } else {
                // From the moment it was due, so that delays do not add up; missed turns are left
                // out.
                do {
                    timed.due += timed.interval.count();
                } while (timed.due.hasExpired());
            }
        }
    }
    // Before the task: it may run a loop of its own (a menu, a dialog) and the next turn must come.
    startTimer(token);
    if (task) {
        task();
    }
}

void QtScheduler::cancel(Token token)
{
    const std::lock_guard lock(m_mutex);
    const auto found = m_timed.find(token);
    if (found == m_timed.end()) {
        return;
    }
    if (QTimer *timer = found->second.timer) {
        timer->deleteLater();
    }
    m_timed.erase(found);
}

void QtScheduler::inBackground(Task task)
{
    const std::lock_guard lock(m_mutex);
    if (!m_stopped) {
        m_pool.start(std::move(task));
    }
}

void QtScheduler::shutDown()
{
    {
        const std::lock_guard lock(m_mutex);
        if (std::exchange(m_stopped, true)) {
            return;
        }
        m_pool.clear();
    }
    m_pool.waitForDone();
    QCoreApplication::removePostedEvents(&m_loop);
    const std::lock_guard lock(m_mutex);
    for (const auto &[token, timed] : m_timed) {
        delete timed.timer;
    }
    m_timed.clear();
}

} // namespace quillon
