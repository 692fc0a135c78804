// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/ExposureSource.h"

#include <QByteArray>
#include <QStringList>

#include <optional>

namespace quillon {

/// How a running dhclient (of ISC) was started for an interface.
struct DhclientCommand
{
    bool isIpv6 = false;
    bool sendsDuid = false; ///< also for IPv4
    QString settingsFile = {};
    QStringList leaseFiles = {}; ///< the first one that has a DUID counts
};

/// None when that command line is not a dhclient's for `device`. The arguments end with zeros, as
/// in /proc/PID/cmdline.
std::optional<DhclientCommand> dhclientCommand(
    const QByteArray &commandLine, const QString &device);

/// The last "default-duid" of a lease file, which is written in octal or in hexadecimal; empty for
/// none.
QByteArray duidInLeases(const QByteArray &leases);

/// What a dhclient with these settings and that DUID sends. `hardware` is the address that the
/// interface was made with. Without settings (none) nothing is known of them.
ExposureFacts::Dhcp sentByDhclient(const DhclientCommand &command,
    const std::optional<QByteArray> &settings, const QByteArray &duid, const QString &device,
    const QByteArray &hardware);

} // namespace quillon
