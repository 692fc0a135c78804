// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "integration/app/FastScheduler.h"

#include <algorithm>
#include <utility>

namespace quillon::test {

namespace {

constexpr auto byDue = [](const auto &left, const auto &right) {
    return left.second.due < right.second.due;
};

} // namespace

FastScheduler::FastScheduler(Scheduler &real, int factor)
    : m_real(real)
    , m_factor(factor)
    , m_start(real.now())
    , m_reached(m_start)
{
}

FastScheduler::~FastScheduler()
{
    const std::lock_guard lock(m_mutex);
    if (m_wake) {
        m_real.cancel(*m_wake);
    }
}

QDateTime FastScheduler::now() const
{
    const std::lock_guard lock(m_mutex);
    return current();
}

QDateTime FastScheduler::passed() const
{
    return m_start.addMSecs(m_start.msecsTo(m_real.now()) * m_factor);
}

QDateTime FastScheduler::current() const
{
    if (m_moment) {
        return *m_moment;
    }
    const auto next = earliest();
    const QDateTime time = next == m_timers.end() ? passed() : std::min(passed(), next->second.due);
    return std::max(time, m_reached);
}

// The first of those that are due at the same moment.
FastScheduler::Timers::iterator FastScheduler::earliest()
{
    return std::ranges::min_element(m_timers, byDue);
}

FastScheduler::Timers::const_iterator FastScheduler::earliest() const
{
    return std::ranges::min_element(m_timers, byDue);
}

Scheduler::Token FastScheduler::onMainAfter(std::chrono::milliseconds delay, Task task)
{
    return add(std::max(delay, std::chrono::milliseconds(0)), {}, std::move(task));
}

Scheduler::Token FastScheduler::repeat(std::chrono::milliseconds interval, Task task)
{
    const auto atLeastOne = std::max(interval, std::chrono::milliseconds(1));
    return add(atLeastOne, atLeastOne, std::move(task));
}

Scheduler::Token FastScheduler::add(
    std::chrono::milliseconds delay, std::chrono::milliseconds interval, Task task)
{
    const std::lock_guard lock(m_mutex);
    const Token token = m_nextToken++;
    m_reached = current();
    m_timers.emplace(token, Timed{m_reached.addMSecs(delay.count()), interval, std::move(task)});
    wakeForEarliest();
    return token;
}

void FastScheduler::cancel(Token token)
{
    const std::lock_guard lock(m_mutex);
    m_reached = current();
    m_timers.erase(token);
    wakeForEarliest();
}

void FastScheduler::wakeForEarliest()
{
    if (m_wake) {
        m_real.cancel(*std::exchange(m_wake, std::nullopt));
    }
    const auto next = earliest();
    if (next != m_timers.end()) {
        const qint64 missing = std::max<qint64>(passed().msecsTo(next->second.due), 0);
        const std::chrono::milliseconds wait((missing + m_factor - 1) / m_factor);
        m_wake = m_real.onMainAfter(wait, [this] { turn(); });
    }
}

void FastScheduler::turn()
{
    Task task;
    {
        const std::lock_guard lock(m_mutex);
        m_wake.reset();
        const auto next = earliest();
        if (next != m_timers.end() && next->second.due <= passed()) {
            m_reached = next->second.due;
            m_moment = m_reached;
            task = next->second.task;
            if (next->second.interval.count() == 0) {
                m_timers.erase(next);
            } else {
                next->second.due = m_reached.addMSecs(next->second.interval.count());
            }
        }
    }
    if (task) {
        task();
    }
    const std::lock_guard lock(m_mutex);
    m_moment.reset();
    wakeForEarliest();
}

} // namespace quillon::test
