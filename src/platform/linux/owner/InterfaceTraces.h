// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/AddressOwner.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

namespace quillon {

/// What others may know an interface by, as the kernel has it.
struct InterfaceTraces
{
    /// An IPv4 address that somebody gave for a time.
    struct Lease
    {
        QByteArray address;  ///< 4 octets
        quint32 renewed = 0; ///< when it was given last, in the kernel's time

        bool operator==(const Lease &) const = default;
    };

    bool isThere = false;
    bool isRunning = false; ///< it can carry traffic
    QByteArray linkAddress; ///< 6 octets, else empty
    QList<Lease> leases;
    QList<QByteArray> ipv6; ///< 16 octets each

    bool operator==(const InterfaceTraces &) const = default;
};

/// Reads them from the kernel; none when it cannot be read.
std::optional<InterfaceTraces> readTraces(const QString &device);

/// What an interface lacks after a change of its link-layer address: it is connected again if it
/// was, has a lease if it had one, its IPv4 addresses are not those of before but where they were
/// given anew, and no IPv6 address is left that was formed from the link-layer address of before.
AddressOwner::Outcomes lacking(const InterfaceTraces &before, const InterfaceTraces &now);

} // namespace quillon
