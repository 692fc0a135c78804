// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "HostFixture.h"
#include "integration/platform/linux/Commands.h"
#include "integration/platform/linux/Waiting.h"
#include "platform/linux/netlink/NetlinkHost.h"

#include <QProcess>
#include <QStringList>

#include <utility>

namespace quillon::test {

/// The kernel of this network namespace, changed with ip(8). A card is one end of a virtual cable.
class LinuxHostFixture : public HostFixture
{
public:
    ~LinuxHostFixture() override
    {
        for (const QString &device : std::as_const(m_plugged)) {
            command(QStringLiteral("ip link del %1").arg(device));
        }
    }

    NetworkHost &host() override { return m_host; }

    void plugCard(const QString &device, const QString &address) override
    {
        const QString neighbor = QStringLiteral("far-") + device;
        command(QStringLiteral("ip link add %1 address %2 type veth peer name %3")
                .arg(device, address, neighbor));
        command(QStringLiteral("ip link set %1 up").arg(neighbor));
        m_plugged << device;
    }
    void plugBridge(const QString &device, const QString &address) override
    {
        command(QStringLiteral("ip link add %1 address %2 type bridge").arg(device, address));
        m_plugged << device;
    }
    void plugContainerEnd(const QString &device, const QString &address) override
    {
        plugCard(device, address);
    }
    void unplug(const QString &device) override
    {
        command(QStringLiteral("ip link del %1").arg(device));
        m_plugged.removeOne(device);
    }
    bool rename(const QString &device, const QString &newName) override
    {
        const bool renamed = accepts(QStringLiteral("ip link set %1 name %2").arg(device, newName));
        if (renamed) {
            m_plugged.replace(m_plugged.indexOf(device), newName);
        }
        return renamed;
    }
    bool giveAddress(const QString &device, const QString &address) override
    {
        return accepts(QStringLiteral("ip link set %1 address %2").arg(device, address));
    }
    void giveIPv4(const QString &device, const QString &ipv4) override
    {
        command(QStringLiteral("ip addr add %1/24 dev %2").arg(ipv4, device));
    }
    void takeIPv4(const QString &device, const QString &ipv4) override
    {
        command(QStringLiteral("ip addr del %1/24 dev %2").arg(ipv4, device));
    }
    void setLink(const QString &device, bool up) override
    {
        command(QStringLiteral("ip link set %1 %2")
                .arg(device, up ? QStringLiteral("up") : QStringLiteral("down")));
    }
    // The kernel follows a cable a moment later.
    bool soon(const std::function<bool()> &condition) override { return eventually(condition); }

private:
    static bool accepts(const QString &line)
    {
        QProcess process;
        process.startCommand(line);
        return process.waitForFinished() && process.exitStatus() == QProcess::NormalExit &&
               process.exitCode() == 0;
    }

    NetlinkHost m_host;
    QStringList m_plugged;
};

} // namespace quillon::test
