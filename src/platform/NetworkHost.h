// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

#include <optional>

namespace quillon {

/// What can change about an interface, read afresh. Every text may be empty.
struct InterfaceInfo
{
    QString ipAddress = {};  ///< first IPv4 address, dotted decimal
    QString macAddress = {}; ///< the address in use, lower-case octets separated by ":"
    QString status = {};     ///< "active" or "inactive"
    /// The texts are empty because they could not be read; the interface may be there.
    bool readFailed = false;

    bool operator==(const InterfaceInfo &) const = default;
};

/// One changeable hardware port.
struct PortRecord
{
    QString interface; ///< port name, for example "Wi-Fi" or "Ethernet"
    QString device;    ///< interface name, for example "wlp2s0"
    QString hardware;  ///< factory address; empty when the device has none to tell
    InterfaceInfo info;
    /// The routers of its default routes, IPv4 and IPv6, in a fixed order and separated by a blank;
    /// "direct" for one without a router. Empty when there is no such route or the host cannot
    /// tell.
    QString router = {};

    bool operator==(const PortRecord &) const = default;
};

/// The machine's network interfaces. Calls block for as long as the system takes to answer; they
/// may come on any thread, not at the same time. A failure is logged.
class NetworkHost
{
public:
    virtual ~NetworkHost() = default;

    /// The hardware ports, in the system's order, without those whose names are skipped
    /// (PortName.h): a name may be longer where the system writes it than it is shown. None when
    /// the system could not be asked: that says nothing of any port.
    virtual std::optional<QList<PortRecord>> ports() = 0;
    /// One interface by name; all texts empty when there is none, or it could not be asked for.
    virtual InterfaceInfo info(const QString &device) = 0;
};

} // namespace quillon
