// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

namespace quillon {

/// What can change about an interface, read afresh. Every text may be empty.
struct InterfaceInfo
{
    QString ipAddress;  ///< first IPv4 address, dotted decimal
    QString macAddress; ///< the address in use, lower-case octets separated by ":"
    QString status;     ///< "active" or "inactive"

    bool operator==(const InterfaceInfo &) const = default;
};

/// One changeable hardware port.
struct PortRecord
{
    QString interface; ///< port name, for example "Wi-Fi" or "Ethernet"
    QString device;    ///< interface name, for example "wlp2s0"
    QString hardware;  ///< factory address; empty when the device has none to tell
    InterfaceInfo info;

    bool operator==(const PortRecord &) const = default;
};

/// The machine's network interfaces. Calls block for as long as the system takes to answer; they
/// may come on any thread, not at the same time. A failure is logged and reads as no ports or empty
/// texts.
class NetworkHost
{
public:
    virtual ~NetworkHost() = default;

    /// The hardware ports, in the system's order. Whoever lists them leaves out those whose names
    /// are skipped (PortName.h).
    virtual QList<PortRecord> ports() = 0;
    /// One interface by name; all texts empty when there is none.
    virtual InterfaceInfo info(const QString &device) = 0;
};

} // namespace quillon
