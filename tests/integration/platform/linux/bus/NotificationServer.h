// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "integration/platform/linux/bus/PrivateBus.h"

#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QMap>
#include <QStringList>
#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace quillon::test {

/// A notification server: what was asked of it, and what is on the screen.
class NotificationServer : public QDBusVirtualObject
{
public:
    static inline const QString name = QStringLiteral("org.freedesktop.Notifications");
    static inline const QString path = QStringLiteral("/org/freedesktop/Notifications");

    explicit NotificationServer(PrivateBus &bus, QStringList capabilities = {})
        : m_bus(bus)
        , m_connection(bus.open())
        , m_capabilities(std::move(capabilities))
    {
        QDBusConnection connection(m_connection);
        connection.registerVirtualObject(path, this);
        EXPECT_TRUE(connection.registerService(name));
    }
    ~NotificationServer() override { m_bus.drop(m_connection); }

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &call, const QDBusConnection &) override
    {
        if (call.member() == QLatin1String("GetCapabilities")) {
            reply(call.createReply(QVariantList{m_capabilities}));
        } else if (call.member() == QLatin1String("Notify")) {
            notify(call);
        } else if (call.member() == QLatin1String("CloseNotification")) {
            close(call.arguments().value(0).toUInt());
            reply(call.createReply());
        }
        return true;
    }

    /// A person, or the server's own clock, takes a message away.
    void close(quint32 id)
    {
        closed.push_back(id);
        onScreen.remove(id);
        QDBusMessage signal =
            QDBusMessage::createSignal(path, name, QStringLiteral("NotificationClosed"));
        signal << id << 2U;
        reply(signal);
    }
    /// A person chooses an action; the message stays, as with some servers.
    void invoke(quint32 id, const QString &key)
    {
        QDBusMessage signal =
            QDBusMessage::createSignal(path, name, QStringLiteral("ActionInvoked"));
        signal << id << key;
        reply(signal);
    }
    void answerHeld()
    {
        for (const QDBusMessage &answer : held) {
            reply(answer);
        }
        held.clear();
    }

    std::vector<QDBusMessage> notified;
    std::vector<quint32> closed;
    QMap<quint32, QString> onScreen; ///< body by id
    bool refuses = false;
    bool holdsBack = false; ///< answers wait for answerHeld()
    std::vector<QDBusMessage> held;

private:
    void reply(const QDBusMessage &message) { QDBusConnection(m_connection).send(message); }

    void notify(const QDBusMessage &call)
    {
        notified.push_back(call);
        if (refuses) {
            reply(call.createErrorReply(
                QStringLiteral("org.freedesktop.Notifications.Error.ExcessNotificationGeneration"),
                QStringLiteral("too many")));
            return;
        }
        const quint32 replaces = call.arguments().value(1).toUInt();
        const quint32 id = replaces != 0 ? replaces : ++m_lastId;
        onScreen.insert(id, call.arguments().value(4).toString());
        const QDBusMessage answer = call.createReply(QVariantList{id});
        if (holdsBack) {
            held.push_back(answer);
        } else {
            reply(answer);
        }
    }

    PrivateBus &m_bus;
    const QString m_connection;
    const QStringList m_capabilities;
    quint32 m_lastId = 40;
};

} // namespace quillon::test
