// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SettingsObservers.h"

#include <utility>
#include <vector>

namespace quillon {

struct SettingsObservers::State
{
    struct Entry
    {
        QString key;
        Observer observer;
    };
    struct Waiting
    {
        Change change;
        Token firstUnaware = 0; ///< observers from this token on were added later
    };

    std::mutex mutex;
    std::map<Token, Entry> observers;
    std::deque<Waiting> waiting;
    Token nextToken = 1;
};

SettingsObservers::SettingsObservers(Scheduler &scheduler)
    : m_scheduler(scheduler)
    , m_state(std::make_shared<State>())
{
}

SettingsObservers::Token SettingsObservers::add(const QString &key, Observer observer)
{
    const std::lock_guard lock(m_state->mutex);
    const Token token = m_state->nextToken++;
    m_state->observers.emplace(token, State::Entry{key, std::move(observer)});
    return token;
}

void SettingsObservers::remove(Token token)
{
    const std::lock_guard lock(m_state->mutex);
    m_state->observers.erase(token);
}

void SettingsObservers::report(const Change &change)
{
    const std::lock_guard lock(m_state->mutex);
    m_state->waiting.push_back({change, m_state->nextToken});
}

void SettingsObservers::deliver()
{
    if (m_scheduler.isMainThread()) {
        drain(std::shared_ptr<State>(m_state));
        return;
    }
    m_scheduler.onMain([weak = std::weak_ptr<State>(m_state)] {
        if (const auto state = weak.lock()) {
            drain(state);
        }
    });
}

void SettingsObservers::drain(const std::shared_ptr<State> &state)
{
    std::unique_lock lock(state->mutex);
    while (!state->waiting.empty()) {
        const State::Waiting next = std::move(state->waiting.front());
        state->waiting.pop_front();
        std::vector<Token> addressed;
        for (const auto &[token, entry] : state->observers) {
            if (entry.key == next.change.key && token < next.firstUnaware) {
                addressed.push_back(token);
            }
        }
        for (const Token token : addressed) {
            // An observer called before this one may have removed it.
            const auto found = state->observers.find(token);
            if (found == state->observers.end()) {
                continue;
            }
            const Observer observer = found->second.observer;
            lock.unlock();
            observer(next.change);
            lock.lock();
        }
    }
}

} // namespace quillon
