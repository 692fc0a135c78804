// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/DistributedNotificationCenter.h"

#include <QDBusConnection>
#include <QObject>

#include <map>

namespace quillon {

/// Broadcasts as the signal Posted of contract/com.orvandel.Quillon4.DistributedNotifications.xml
/// on the session bus. Every program of the session may send it, so it carries no more than its two
/// texts, and nothing that needs trust may depend on it. A program hears its own posts too. Main
/// thread.
class SessionBusNotificationCenter : public QObject, public DistributedNotificationCenter
{
    Q_OBJECT

public:
    explicit SessionBusNotificationCenter(QDBusConnection bus = QDBusConnection::sessionBus());
    ~SessionBusNotificationCenter() override;

    void post(const QString &name, const QString &object) override;
    Token addObserver(
        const QString &name, const QString &object, std::function<void()> observer) override;
    void removeObserver(Token token) override;

private:
    // Called through the meta-object system by the bus connection.
    Q_SLOT void received(const QString &name, const QString &object);

    struct Entry
    {
        QString name;
        QString object;
        std::function<void()> observer;
    };

    QDBusConnection m_bus;
    std::map<Token, Entry> m_observers;
    Token m_nextToken = 1;
};

} // namespace quillon
