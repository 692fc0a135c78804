// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/ExposureSource.h"
#include "platform/linux/exposure/IniText.h"

#include <QMap>
#include <QVariantMap>

namespace quillon {

/// What NetworkManager tells of a device's connection over the bus.
struct ConnectionInForce
{
    /// Section to key to value, without secrets; empty when it could not be read.
    QMap<QString, QVariantMap> settings;
    /// Of the leases; empty for none.
    QVariantMap ipv4Lease;
    QVariantMap ipv6Lease;
    QString hostName; ///< what it takes for the computer's
};

/// Puts into `facts` what is sent by a device with that connection; `defaults` are
/// NetworkManager.conf and the files beside it, in their order. Values of a wrong type count as
/// missing.
void takeConnection(
    ExposureFacts &facts, const ConnectionInForce &connection, const IniText &defaults);

} // namespace quillon
