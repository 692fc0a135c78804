// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

namespace quillon {

/// The system's interface-address list (getifaddrs on POSIX systems), IPv4 entries only.
class InterfaceAddresses
{
public:
    struct Entry
    {
        QString device;
        QString ipv4; ///< dotted decimal
    };

    virtual ~InterfaceAddresses() = default;

    /// In the system's order; empty when the list cannot be had. Any thread.
    virtual QList<Entry> ipv4() const = 0;
};

} // namespace quillon
