// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/DistributedNotificationCenter.h"
#include "platform/Scheduler.h"

#include <QList>

#include <map>
#include <utility>
#include <vector>

namespace quillon::test {

/// A session without other programs: posts are kept and reach the observers of this process in a
/// later turn of its main loop, for they go by way of the session.
class FakeDistributedNotificationCenter : public DistributedNotificationCenter
{
public:
    explicit FakeDistributedNotificationCenter(Scheduler &scheduler)
        : m_scheduler(scheduler)
    {
    }

    QList<std::pair<QString, QString>> posted;

    void post(const QString &name, const QString &object) override
    {
        posted.append({name, object});
        m_scheduler.onMain([this, name, object] { deliver(name, object); });
    }

    /// What another program posted arrives.
    void deliver(const QString &name, const QString &object)
    {
        std::vector<Token> interested;
        for (const auto &[token, entry] : m_observers) {
            if (entry.name == name && entry.object == object) {
                interested.push_back(token);
            }
        }
        for (const Token token : interested) {
            // An observer may have removed a later one.
            if (const auto found = m_observers.find(token); found != m_observers.end()) {
                const auto observer = found->second.observer;
                observer();
            }
        }
    }

    Token addObserver(
        const QString &name, const QString &object, std::function<void()> observer) override
    {
        m_observers[m_nextToken] = {name, object, std::move(observer)};
        return m_nextToken++;
    }

    void removeObserver(Token token) override { m_observers.erase(token); }
    bool hasObservers() const { return !m_observers.empty(); }

private:
    struct Entry
    {
        QString name;
        QString object;
        std::function<void()> observer;
    };

    Scheduler &m_scheduler;
    std::map<Token, Entry> m_observers;
    Token m_nextToken = 1;
};

} // namespace quillon::test
