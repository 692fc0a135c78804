// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Scheduler.h"
#include "platform/SettingsStore.h"

#include <deque>
#include <map>
#include <memory>
#include <mutex>

namespace quillon {

/// The observers of a settings store, for those who implement one. Changes reach the observers on
/// the main thread in the order in which they were reported: at once when the main thread reports
/// them (after those that other threads reported before), else in a later turn of its loop. Safe
/// from every thread; observers may add and remove observers and cause further changes. A change
/// that an observer causes is told before its call returns too: first the other observers hear of
/// the change that it reacts to, then all of the new one, so that each hears them in their order.
/// An observer hears of no change that was reported before it was added.
class SettingsObservers
{
public:
    using Change = SettingsStore::Change;
    using Observer = SettingsStore::Observer;
    using Token = SettingsStore::Token;

    explicit SettingsObservers(Scheduler &scheduler);

    Token add(const QString &key, Observer observer);
    void remove(Token token);

    /// Puts `change` in line, nothing more: may be called while the caller holds its own lock, so
    /// that the line has the order in which the changes were made. deliver() must follow.
    void report(const Change &change);
    /// Calls the observers, or has them called soon when this is not the main thread. The caller
    /// holds no lock. This object may be destroyed by an observer.
    void deliver();

private:
    struct State;
    static void drain(const std::shared_ptr<State> &state);

    Scheduler &m_scheduler;
    std::shared_ptr<State> m_state;
};

} // namespace quillon
