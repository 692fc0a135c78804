// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SettingsObservers.h"

#include <utility>

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
    Change current;           ///< the change that is being told
    std::deque<Token> untold; ///< who has not heard of it yet
    Token nextToken = 1;

    bool takeNext();
};

// Whether somebody is to be told of the current change, which is the next one when all know it.
bool SettingsObservers::State::takeNext()
{
    while (untold.empty() && !waiting.empty()) {
        current = std::move(waiting.front().change);
        for (const auto &[token, entry] : observers) {
            if (entry.key == current.key && token < waiting.front().firstUnaware) {
                untold.push_back(token);
            }
        }
        waiting.pop_front();
    }
    return !untold.empty();
}

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

// What is under way is part of the state: a call from within an observer first tells the others of
// the change that this observer reacts to, so that nobody hears of a newer one before.
void SettingsObservers::drain(const std::shared_ptr<State> &state)
{
    std::unique_lock lock(state->mutex);
    while (state->takeNext()) {
        const Token token = state->untold.front();
        state->untold.pop_front();
        // An observer called before this one may have removed it.
        const auto found = state->observers.find(token);
        if (found == state->observers.end()) {
            continue;
        }
        const Observer observer = found->second.observer;
        const Change change = state->current;
        lock.unlock();
        observer(change);
        lock.lock();
    }
}

} // namespace quillon
