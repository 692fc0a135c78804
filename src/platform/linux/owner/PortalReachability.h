// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Reachability.h"
#include "platform/Scheduler.h"

#include <QDBusConnection>
#include <QObject>
#include <QVariantMap>

#include <chrono>
#include <optional>

class QDBusServiceWatcher;

namespace quillon {

/// What another one says, but for a network whose portal wants a log-in first, as far as
/// NetworkManager finds that out (its property Connectivity). It needs a moment for that: meanwhile
/// the internet counts as out of reach. Main thread.
class PortalReachability : public QObject, public Reachability
{
    Q_OBJECT

public:
    /// `network` outlives this; `bus` is the system's.
    PortalReachability(Reachability &network, Scheduler &scheduler,
        QDBusConnection bus = QDBusConnection::systemBus());
    ~PortalReachability() override;

    bool isReachable() override;
    void watch(std::function<void()> changed) override;

private Q_SLOTS:
    void propertiesChanged(const QString &interface, const QVariantMap &changed);

private:
    void ask();
    void note(uint connectivity);
    bool hasWaited();
    void endWait();

    Reachability &m_network;
    Scheduler &m_scheduler;
    QDBusConnection m_bus;
    QDBusServiceWatcher *m_watcher;
    uint m_connectivity = 0;
    std::optional<std::chrono::milliseconds> m_waitsUntil;
    Scheduler::Token m_waiting = 0;
    quint64 m_question = 0; ///< an older answer says nothing about now
    std::function<void()> m_changed;
};

} // namespace quillon
