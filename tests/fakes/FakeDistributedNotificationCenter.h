// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/DistributedNotificationCenter.h"

#include <QList>

#include <map>
#include <utility>

namespace quillon::test {

/// A session without other programs: posts are kept and reach the observers of this process.
class FakeDistributedNotificationCenter : public DistributedNotificationCenter
{
public:
    QList<std::pair<QString, QString>> posted;

    void post(const QString &name, const QString &object) override
    {
        posted.append({name, object});
        deliver(name, object);
    }

    /// As if another program had posted it.
    void deliver(const QString &name, const QString &object)
    {
        const auto observers = m_observers;
        for (const auto &[token, entry] : observers) {
            if (entry.name == name && entry.object == object) {
                entry.observer();
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

    std::map<Token, Entry> m_observers;
    Token m_nextToken = 1;
};

} // namespace quillon::test
