// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Reachability.h"

#include <QDBusConnection>
#include <QObject>
#include <QVariantMap>

class QDBusServiceWatcher;

namespace quillon {

/// What another one says, but for a network whose portal wants a log-in first, as far as
/// NetworkManager finds that out (its property Connectivity). Main thread.
class PortalReachability : public QObject, public Reachability
{
    Q_OBJECT

public:
    /// `network` outlives this; `bus` is the system's.
    explicit PortalReachability(
        Reachability &network, QDBusConnection bus = QDBusConnection::systemBus());

    bool isReachable() override;
    void watch(std::function<void()> changed) override;

private Q_SLOTS:
    void propertiesChanged(const QString &interface, const QVariantMap &changed);

private:
    void ask();
    void note(uint connectivity);

    Reachability &m_network;
    QDBusConnection m_bus;
    QDBusServiceWatcher *m_watcher;
    bool m_isPortal = false;
    quint64 m_question = 0; ///< an older answer says nothing about now
    std::function<void()> m_changed;
};

} // namespace quillon
