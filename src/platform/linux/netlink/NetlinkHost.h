// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/NetworkHost.h"
#include "platform/linux/netlink/LinkMessages.h"
#include "platform/linux/netlink/PortClassifier.h"

namespace quillon {

/// What two answers of the kernel tell of one interface: its link, its IPv4 addresses. `readFailed`
/// where one of them failed; empty where there is no such interface.
InterfaceInfo interfaceInfo(
    const QString &device, const LinkMessages &link, const LinkMessages &addresses);

/// What the kernel reports through rtnetlink(7): one dump of the links, one of the IPv4 addresses,
/// one of the default routes per family, and a look into sysfs for interfaces with hardware behind
/// them. When one of the dumps fails there is no list at all: half of it would look like a change.
class NetlinkHost : public NetworkHost
{
public:
    /// `sysfs` is where the kernel shows its interfaces.
    explicit NetlinkHost(QString sysfs = QStringLiteral("/sys/class/net"));

    std::optional<QList<PortRecord>> ports() override;
    InterfaceInfo info(const QString &device) override;

private:
    HardwareInfo hardwareInfo(const LinkInfo &link) const;

    QString m_sysfs;
};

} // namespace quillon
