// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Error.h"
#include "platform/linux/bus/BusCall.h"

#include <QDBusConnection>
#include <QHash>
#include <QObject>

#include <functional>
#include <memory>

namespace quillon {

/// One connection to a program on a bus: calls with time limits, and the moment the peer is gone.
/// Each call ends in exactly one call of its handler, on the main thread, in a later turn of its
/// loop: with the peer's answer, or with an error message when there is none, the peer vanished or
/// the time is over. A call that is on its way keeps the connection alive. Main thread.
class BusPeer : public QObject, public std::enable_shared_from_this<BusPeer>
{
    Q_OBJECT

public:
    struct Address
    {
        QString name; ///< well-known or unique name
        QString path;
        QString interface;
    };

    static std::shared_ptr<BusPeer> make(QDBusConnection bus, Address address);
    ~BusPeer() override;

    void setInvalidationHandler(std::function<void()> handler);
    void resume();
    void call(const QString &method, const QVariantList &arguments, std::chrono::milliseconds limit,
        BusReply reply);

private:
    BusPeer(QDBusConnection bus, Address address);

    void watch();
    void askWhetherThere();
    void invalidate(const QString &why);
    void finish(quint64 number, const QDBusMessage &answer);
    // Called through the meta-object system by the bus connection.
    Q_SLOT void busLost();

    enum class State
    {
        Made,
        Resumed,
        Invalidated,
    };

    QDBusConnection m_bus;
    const Address m_address;
    State m_state = State::Made;
    std::function<void()> m_invalidationHandler;
    QHash<quint64, BusReply> m_pending;
    quint64 m_lastNumber = 0;
};

} // namespace quillon
