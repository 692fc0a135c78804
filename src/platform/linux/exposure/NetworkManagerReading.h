// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/linux/exposure/NetworkManagerSettings.h"

#include <QDBusConnection>
#include <QObject>

#include <functional>

namespace quillon {

/// Asks NetworkManager for the connection that is in force on `device`, its leases and its host
/// name; never for a secret. `reply` is called once, in a later turn, within seconds, unless
/// `context` goes before; with none when NetworkManager does not manage the device, or only looks
/// at it because somebody else connected it.
void readConnection(const QDBusConnection &bus, const QString &device, QObject *context,
    const std::function<void(const std::optional<ConnectionInForce> &connection)> &reply);

} // namespace quillon
