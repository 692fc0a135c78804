// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/NotificationCenter.h"

#include <utility>
#include <vector>

namespace quillon {

void NotificationCenter::post(const QString &name, const void *object, const QVariantMap &userInfo)
{
    const Notification notification{name, object, userInfo};
    std::vector<Token> addressed;
    {
        const std::lock_guard lock(m_mutex);
        for (const auto &[token, entry] : m_observers) {
            if (entry.name == name) {
                addressed.push_back(token);
            }
        }
    }
    for (const Token token : addressed) {
        Observer observer;
        {
            // An observer called before this one may have removed it.
            const std::lock_guard lock(m_mutex);
            const auto found = m_observers.find(token);
            if (found == m_observers.end()) {
                continue;
            }
            observer = found->second.observer;
        }
        observer(notification);
    }
}

NotificationCenter::Token NotificationCenter::addObserver(const QString &name, Observer observer)
{
    const std::lock_guard lock(m_mutex);
    const Token token = m_nextToken++;
    m_observers.emplace(token, Entry{name, std::move(observer)});
    return token;
}

void NotificationCenter::removeObserver(Token token)
{
    const std::lock_guard lock(m_mutex);
    m_observers.erase(token);
}

bool NotificationCenter::hasObservers()
{
    const std::lock_guard lock(m_mutex);
    return !m_observers.empty();
}

} // namespace quillon
