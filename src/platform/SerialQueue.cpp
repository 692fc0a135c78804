// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SerialQueue.h"

#include <deque>
#include <mutex>
#include <utility>

namespace quillon {

struct SerialQueue::State
{
    explicit State(Scheduler &owner)
        : scheduler(owner)
    {
    }

    Scheduler &scheduler;
    std::mutex mutex;
    std::deque<Scheduler::Task> waiting;
    bool running = false;
};

SerialQueue::SerialQueue(Scheduler &scheduler)
    : m_state(std::make_shared<State>(scheduler))
{
}

SerialQueue::~SerialQueue()
{
    const std::lock_guard lock(m_state->mutex);
    m_state->waiting.clear();
}

void SerialQueue::add(Scheduler::Task task)
{
    {
        const std::lock_guard lock(m_state->mutex);
        m_state->waiting.push_back(std::move(task));
        if (std::exchange(m_state->running, true)) {
            return;
        }
    }
    m_state->scheduler.inBackground([state = m_state] { runNext(state); });
}

void SerialQueue::runNext(const std::shared_ptr<State> &state)
{
    Scheduler::Task task;
    {
        const std::lock_guard lock(state->mutex);
        if (state->waiting.empty()) {
            state->running = false;
            return;
        }
        task = std::move(state->waiting.front());
        state->waiting.pop_front();
    }
    task();
    // One background task per operation, so that a long queue does not hold a thread of the pool.
    state->scheduler.inBackground([state] { runNext(state); });
}

} // namespace quillon
