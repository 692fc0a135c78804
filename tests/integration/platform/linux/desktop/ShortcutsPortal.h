// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "integration/platform/linux/bus/PrivateBus.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVirtualObject>
#include <QMap>
#include <QSet>

#include <utility>

namespace quillon::test {

/// A shortcut as it goes over the bus.
struct GivenShortcut
{
    QString identifier;
    QVariantMap properties;
};

inline QDBusArgument &operator<<(QDBusArgument &argument, const GivenShortcut &shortcut)
{
    argument.beginStructure();
    argument << shortcut.identifier << shortcut.properties;
    argument.endStructure();
    return argument;
}

inline const QDBusArgument &operator>>(const QDBusArgument &argument, GivenShortcut &shortcut)
{
    argument.beginStructure();
    argument >> shortcut.identifier >> shortcut.properties;
    argument.endStructure();
    return argument;
}

/// A desktop portal with global shortcuts, and a user who answers its dialog.
class ShortcutsPortal : public QDBusVirtualObject
{
public:
    static inline const QString name = QStringLiteral("org.freedesktop.portal.Desktop");
    static inline const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
    static inline const QString interface =
        QStringLiteral("org.freedesktop.portal.GlobalShortcuts");

    explicit ShortcutsPortal(PrivateBus &bus)
        : m_bus(bus)
        , m_connection(bus.open())
    {
        qDBusRegisterMetaType<GivenShortcut>();
        qDBusRegisterMetaType<QList<GivenShortcut>>();
        QDBusConnection connection(m_connection);
        connection.registerVirtualObject(path, this, QDBusConnection::SubPath);
        EXPECT_TRUE(connection.registerService(name));
    }
    ~ShortcutsPortal() override { m_bus.drop(m_connection); }

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &call, const QDBusConnection &) override
    {
        const QString member = call.member();
        if (member == QLatin1String("Get")) {
            send(call.createReply(QVariant::fromValue(QDBusVariant(1U))));
        } else if (member == QLatin1String("CreateSession")) {
            createSession(call);
        } else if (member == QLatin1String("BindShortcuts")) {
            bindShortcuts(call);
        } else if (member == QLatin1String("Close")) {
            sessions.remove(call.path());
            send(call.createReply());
        } else {
            send(call.createErrorReply(QDBusError::UnknownMethod, member));
        }
        return true;
    }

    /// The user presses the keys of a shortcut of any session.
    void press(const QString &identifier)
    {
        const QStringList paths = sessions.keys();
        for (const QString &session : paths) {
            pressIn(session, identifier);
        }
    }
    void pressIn(const QString &session, const QString &identifier)
    {
        QDBusMessage signal =
            QDBusMessage::createSignal(path, interface, QStringLiteral("Activated"));
        signal << QVariant::fromValue(QDBusObjectPath(session)) << identifier
               << QVariant::fromValue<qulonglong>(4711) << QVariantMap();
        send(signal);
    }
    /// The user answers the dialogs that wait.
    void answerHeld()
    {
        for (const auto &[request, arguments] : std::exchange(m_held, {})) {
            respond(request, 0, arguments);
        }
    }

    uint bindCode = 0; ///< 1: the user cancels
    bool fails = false;
    bool holdsBack = false;
    QSet<QString> leftOut; ///< identifiers that the user takes out of the list
    /// By the path of the session: identifier to the properties that were asked for.
    QMap<QString, QMap<QString, QVariantMap>> sessions;

private:
    void send(const QDBusMessage &message) { QDBusConnection(m_connection).send(message); }

    static QString requestPath(const QDBusMessage &call, const QVariantMap &options)
    {
        return path + QStringLiteral("/request/") +
               call.service().mid(1).replace(QLatin1Char('.'), QLatin1Char('_')) +
               QLatin1Char('/') + options.value(QStringLiteral("handle_token")).toString();
    }

    void respond(const QString &request, uint code, const QVariantMap &results)
    {
        QDBusMessage signal = QDBusMessage::createSignal(
            request, QStringLiteral("org.freedesktop.portal.Request"), QStringLiteral("Response"));
        signal << code << results;
        send(signal);
    }

    void createSession(const QDBusMessage &call)
    {
        if (fails) {
            send(call.createErrorReply(QDBusError::Failed, QStringLiteral("no")));
            return;
        }
        const auto options = qdbus_cast<QVariantMap>(call.arguments().value(0));
        const QString session = path + QStringLiteral("/session/made_up/") +
                                options.value(QStringLiteral("session_handle_token")).toString();
        sessions[session] = {};
        const QString request = requestPath(call, options);
        send(call.createReply(QVariant::fromValue(QDBusObjectPath(request))));
        respond(request, 0, {{QStringLiteral("session_handle"), session}});
    }

    void bindShortcuts(const QDBusMessage &call)
    {
        const QString session = call.arguments().value(0).value<QDBusObjectPath>().path();
        // A session takes its shortcuts once.
        if (!sessions.contains(session) || !sessions.value(session).isEmpty()) {
            send(call.createErrorReply(QDBusError::Failed, QStringLiteral("no such session")));
            return;
        }
        const auto options = qdbus_cast<QVariantMap>(call.arguments().value(3));
        QList<GivenShortcut> granted;
        const auto asked = qdbus_cast<QList<GivenShortcut>>(call.arguments().value(1));
        for (const GivenShortcut &shortcut : asked) {
            if (!leftOut.contains(shortcut.identifier)) {
                sessions[session][shortcut.identifier] = shortcut.properties;
                granted.append(shortcut);
            }
        }
        const QString request = requestPath(call, options);
        send(call.createReply(QVariant::fromValue(QDBusObjectPath(request))));
        const QVariantMap results{{QStringLiteral("shortcuts"), QVariant::fromValue(granted)}};
        if (holdsBack) {
            m_held.append({request, results});
        } else {
            respond(request, bindCode, results);
        }
    }

    PrivateBus &m_bus;
    const QString m_connection;
    QList<std::pair<QString, QVariantMap>> m_held;
};

} // namespace quillon::test
