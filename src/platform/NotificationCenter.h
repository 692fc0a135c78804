// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QVariantMap>

#include <functional>
#include <map>
#include <mutex>

namespace quillon {

/// In-process broadcasts by name, delivered before post() returns, on the posting thread, in the
/// order in which the observers were added. Safe from every thread; observers may add and remove
/// observers.
class NotificationCenter
{
public:
    struct Notification
    {
        QString name;
        /// Who posts; an identity to compare, never dereferenced. May be null.
        const void *object = nullptr;
        QVariantMap userInfo;
    };
    using Observer = std::function<void(const Notification &)>;
    using Token = quint64;

    void post(const QString &name, const void *object = nullptr, const QVariantMap &userInfo = {});

    Token addObserver(const QString &name, Observer observer);
    /// After it returns, the observer is not called again by posts that begin later.
    void removeObserver(Token token);
    /// Whether anybody listens to anything.
    bool hasObservers();

private:
    struct Entry
    {
        QString name;
        Observer observer;
    };

    std::mutex m_mutex;
    std::map<Token, Entry> m_observers;
    Token m_nextToken = 1;
};

} // namespace quillon
