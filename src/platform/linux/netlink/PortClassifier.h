// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/linux/netlink/LinkMessages.h"

#include <QString>

#include <optional>

namespace quillon {

/// What sysfs tells of an interface that has hardware behind it.
struct HardwareInfo
{
    QString deviceType; ///< DEVTYPE of its uevent: "wlan", "wwan", "bluetooth" …; often empty
    bool hasWirelessPhy = false; ///< it hangs on a radio of cfg80211
};

/// Whether portName() needs HardwareInfo for this link: Ethernet-like and not made by software.
bool hasHardware(const LinkInfo &link);

/// The name of the hardware port that an interface is ("Wi-Fi", "Ethernet", "USB Ethernet",
/// "Thunderbolt Ethernet", "Bluetooth PAN", "Bridge"), or empty when it is none: loopback, tunnels,
/// mobile broadband, and whatever containers, virtual machines or stacked interfaces bring along.
QString portName(const LinkInfo &link, const HardwareInfo &hardware);

/// The same, and empty for a port whose name is skipped (PortName.h).
QString offeredPortName(const LinkInfo &link, const HardwareInfo &hardware);

/// What a uevent file of /sys/class/net tells, or none when it is about another interface: /sys
/// may have been mounted in another network namespace.
std::optional<HardwareInfo> hardwareInfoFromUevent(const QByteArray &uevent, int index);

} // namespace quillon
