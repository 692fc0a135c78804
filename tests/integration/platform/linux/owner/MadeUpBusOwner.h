// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "integration/platform/linux/bus/PrivateBus.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QDBusVirtualObject>

#include <optional>

namespace quillon::test {

/// A program that answers like systemd-networkd or wpa_supplicant about the interface "dev0", or
/// does nothing but own a name, as iwd for who may not ask it.
class MadeUpBusOwner : public QDBusVirtualObject
{
public:
    MadeUpBusOwner(PrivateBus &bus, const QString &service)
        : m_connection(bus.open())
    {
        QDBusConnection connection(m_connection);
        EXPECT_TRUE(
            connection.registerVirtualObject(QStringLiteral("/"), this, QDBusConnection::SubPath));
        EXPECT_TRUE(connection.registerService(service));
    }
    ~MadeUpBusOwner() override
    {
        QDBusConnection(m_connection)
            .unregisterObject(QStringLiteral("/"), QDBusConnection::UnregisterTree);
        QDBusConnection::disconnectFromBus(m_connection);
    }

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &call, const QDBusConnection &) override
    {
        ++questions;
        if (isHanging) {
            return true;
        }
        const bool isKnown = call.member() == QLatin1String("Get") ||
                             call.arguments().value(0) == QStringLiteral("dev0");
        QDBusConnection(m_connection)
            .send(isKnown ? call.createReply(answerTo(call.member()))
                          : call.createErrorReply(QStringLiteral("none.Such"), QString()));
        return true;
    }

    bool isHanging = false;
    QString administrativeState = QStringLiteral("configured");
    int questions = 0;

private:
    QVariantList answerTo(const QString &method) const
    {
        const auto path = QVariant::fromValue(QDBusObjectPath(QStringLiteral("/link/_37")));
        if (method == QLatin1String("GetLinkByName")) {
            return {7, path};
        }
        if (method == QLatin1String("GetInterface")) {
            return {path};
        }
        return {QVariant::fromValue(QDBusVariant(administrativeState))};
    }

    const QString m_connection;
};

} // namespace quillon::test
