// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/FakeScheduler.h"

#include <algorithm>
#include <utility>

namespace quillon::test {

class FakeScheduler::HeldAlarm : public Scheduler::Alarm
{
public:
    HeldAlarm(FakeScheduler &scheduler, Token token)
        : m_scheduler(scheduler)
        , m_token(token)
    {
    }
    ~HeldAlarm() override { m_scheduler.cancel(m_token); }

private:
    FakeScheduler &m_scheduler;
    Token m_token;
};

std::unique_ptr<Scheduler::Alarm> FakeScheduler::alarmAt(const QDateTime &moment, Task task)
{
    const QDateTime due = moment.addMSecs(-m_clockIsAhead.count());
    m_timers.emplace(m_nextToken, Timer{due, {}, std::move(task), true});
    return std::make_unique<HeldAlarm>(*this, m_nextToken++);
}

void FakeScheduler::setClock(std::chrono::milliseconds forward)
{
    m_clockIsAhead += forward;
    for (auto &[token, timer] : m_timers) {
        if (timer.followsClock) {
            timer.due = timer.due.addMSecs(-forward.count());
        }
    }
}

void FakeScheduler::onMain(Task task)
{
    m_main.push_back(std::move(task));
}

Scheduler::Token FakeScheduler::onMainAfter(std::chrono::milliseconds delay, Task task)
{
    m_timers.emplace(m_nextToken, Timer{m_now.addMSecs(delay.count()), {}, std::move(task)});
    return m_nextToken++;
}

Scheduler::Token FakeScheduler::repeat(std::chrono::milliseconds interval, Task task)
{
    m_timers.emplace(
        m_nextToken, Timer{m_now.addMSecs(interval.count()), interval, std::move(task)});
    return m_nextToken++;
}

void FakeScheduler::cancel(Token token)
{
    m_timers.erase(token);
}

void FakeScheduler::inBackground(Task task)
{
    m_background.push_back(std::move(task));
}

void FakeScheduler::asBackground(const Task &task)
{
    const bool wasOnMainThread = std::exchange(m_onMainThread, false);
    task();
    m_onMainThread = wasOnMainThread;
}

void FakeScheduler::runPending()
{
    do {
        while (!m_main.empty() || !m_background.empty()) {
            if (!m_background.empty()) {
                const Task task = std::move(m_background.front());
                m_background.pop_front();
                asBackground(task);
            } else {
                const Task task = std::move(m_main.front());
                m_main.pop_front();
                task();
            }
        }
    } while (runTimersDue());
}

bool FakeScheduler::runTimersDue()
{
    const auto next = std::min_element(m_timers.begin(), m_timers.end(),
        [](const auto &a, const auto &b) { return a.second.due < b.second.due; });
    if (next == m_timers.end() || next->second.due > m_now) {
        return false;
    }
    ++m_wakeUps;
    const Task task = next->second.task;
    if (next->second.interval.count() > 0) {
        next->second.due = next->second.due.addMSecs(next->second.interval.count());
    } else {
        m_timers.erase(next);
    }
    task();
    return true;
}

void FakeScheduler::advance(std::chrono::milliseconds time)
{
    const QDateTime end = m_now.addMSecs(time.count());
    runPending();
    for (;;) {
        const auto next = std::min_element(m_timers.begin(), m_timers.end(),
            [](const auto &a, const auto &b) { return a.second.due < b.second.due; });
        if (next == m_timers.end() || next->second.due > end) {
            break;
        }
        m_now = std::max(m_now, next->second.due);
        runPending();
    }
    m_now = end;
}

} // namespace quillon::test
