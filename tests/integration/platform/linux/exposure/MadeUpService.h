// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "integration/platform/linux/bus/PrivateBus.h"

#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QHash>

namespace quillon::test {

/// A program that owns a name on the bus and has an answer for each "PATH METHOD", or for "PATH
/// INTERFACE" where all properties of that interface are asked for. To anything else it answers
/// with an error.
class MadeUpService : public QDBusVirtualObject
{
public:
    MadeUpService(PrivateBus &bus, const QString &name)
        : m_connection(bus.open())
    {
        QDBusConnection connection(m_connection);
        EXPECT_TRUE(
            connection.registerVirtualObject(QStringLiteral("/"), this, QDBusConnection::SubPath));
        EXPECT_TRUE(connection.registerService(name));
    }
    ~MadeUpService() override
    {
        QDBusConnection(m_connection)
            .unregisterObject(QStringLiteral("/"), QDBusConnection::UnregisterTree);
        QDBusConnection::disconnectFromBus(m_connection);
    }

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &call, const QDBusConnection &) override
    {
        asked.append(call.member());
        if (isHanging) {
            return true;
        }
        const bool isForProperties = call.member() == QLatin1String("GetAll");
        const QString what = isForProperties ? call.arguments().value(0).toString() : call.member();
        const auto answer = answers.constFind(call.path() + QLatin1Char(' ') + what);
        QDBusConnection(m_connection)
            .send(answer == answers.constEnd()
                      ? call.createErrorReply(QStringLiteral("none.Such"), QString())
                      : call.createReply(*answer));
        return true;
    }

    QHash<QString, QVariantList> answers;
    QStringList asked; ///< the methods
    bool isHanging = false;

private:
    const QString m_connection;
};

} // namespace quillon::test
