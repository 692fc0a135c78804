// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Scheduler.h"
#include "platform/desktop/UserNotificationCenter.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QHash>
#include <QObject>

#include <optional>

namespace quillon {

/// The Desktop Notifications Specification 1.2 on the session bus. At most one message per
/// identifier is pending or on the screen. Nothing here waits for the notification server; one that
/// starts later or is exchanged while the program runs is used from its first message on.
class FreedesktopNotifications : public QObject, public UserNotificationCenter
{
    Q_OBJECT

public:
    explicit FreedesktopNotifications(
        Scheduler &scheduler, QDBusConnection bus = QDBusConnection::sessionBus());
    ~FreedesktopNotifications() override;

    /// Granted when a server answers or can be started. None at all is an error.
    void requestAlertAuthorization(AuthorizationReply reply) override;
    /// The reply of a request that is dropped never comes.
    void removePending(const QString &identifier) override;
    void removeDelivered(const QString &identifier) override;
    void add(const UserNotificationRequest &request,
        std::function<void(const std::optional<Error> &)> reply) override;

private:
    using AddReply = std::function<void(const std::optional<Error> &)>;
    using CapabilityUse = std::function<void(const std::optional<Error> &)>;

    /// Which message stands for an identifier. `number` tells a newer one from an older one whose
    /// answer is still on its way.
    struct Delivered
    {
        quint64 number = 0;
        quint32 serverId = 0;                       ///< 0 until the server answered
        QList<UserNotificationAction> actions = {}; ///< none until the server answered
    };

    void withCapabilities(CapabilityUse use);
    void show(const UserNotificationRequest &request, const AddReply &reply);
    void shown(const UserNotificationRequest &request, quint64 number, const QDBusMessage &answer,
        const AddReply &reply);
    QDBusMessage notifyCall(const UserNotificationRequest &request, quint32 replaces) const;
    void close(quint32 serverId);
    void serverChanged();
    // Called through the meta-object system by the bus connection.
    Q_SLOT void closed(quint32 serverId, quint32 reason);
    Q_SLOT void invoked(quint32 serverId, const QString &actionKey);

    Scheduler &m_scheduler;
    QDBusConnection m_bus;
    std::optional<QStringList> m_capabilities; ///< of the server that runs now
    quint64 m_lastNumber = 0;
    QHash<QString, Scheduler::Token> m_pending;
    QHash<QString, Delivered> m_delivered;
};

} // namespace quillon
