// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/HelperLink.h"

#include <QDBusConnection>

namespace quillon {

class RandomSource;

/// The service on the session bus and the helper on the system bus, by the D-Bus XML of contract/.
///
/// All replies, error handlers and invalidation handlers come on the main thread, each in a later
/// turn of its loop than the call. An error of the contract that the peer answers with reaches the
/// reply of operations that have one for errors; whatever else went wrong (no such peer, no
/// permission on the bus, time over, peer gone, an answer of another shape than the contract's)
/// reaches the error handler. Dropping a connection does not end its calls, but silences its
/// invalidation handler.
class DBusHelperLink : public HelperLink
{
public:
    explicit DBusHelperLink(RandomSource &random,
        QDBusConnection sessionBus = QDBusConnection::sessionBus(),
        QDBusConnection systemBus = QDBusConnection::systemBus());

    Result<QByteArray> createAuthorization() override;
    std::shared_ptr<XPCServiceConnection> connectToService(const QString &serviceName) override;
    /// `endpoint` must be a unique bus name; calls on a connection to anything else fail.
    std::shared_ptr<HelperToolConnection> connectToListenerEndpoint(
        const QString &endpoint) override;

private:
    RandomSource &m_random;
    QDBusConnection m_sessionBus;
    QDBusConnection m_systemBus;
};

} // namespace quillon
