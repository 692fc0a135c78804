// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "HostFixture.h"
#include "fakes/FakeNetworkHost.h"
#include "platform/CommandRunner.h"
#include "platform/textual/TextualHost.h"

namespace quillon::test {

/// The machine that the program's own tests use.
class FakeHostFixture : public HostFixture
{
public:
    NetworkHost &host() override { return m_model; }

    void plugCard(const QString &device, const QString &address) override
    {
        plug(QStringLiteral("Ethernet"), device, address);
    }
    void plugBridge(const QString &device, const QString &address) override
    {
        plug(QStringLiteral("Bridge"), device, address);
    }
    void plugContainerEnd(const QString &device, const QString &address) override
    {
        plug({}, device, address);
    }
    void unplug(const QString &device) override { m_model.unplug(device); }
    bool rename(const QString &device, const QString &newName) override
    {
        return m_model.rename(device, newName);
    }
    bool giveAddress(const QString &device, const QString &address) override
    {
        return m_model.giveAddress(device, address);
    }
    void giveIPv4(const QString &device, const QString &ipv4) override
    {
        m_model.at(device).ipv4.append(ipv4);
    }
    void takeIPv4(const QString &device, const QString &ipv4) override
    {
        m_model.at(device).ipv4.removeOne(ipv4);
    }
    void setLink(const QString &device, bool up) override { m_model.at(device).active = up; }
    bool soon(const std::function<bool()> &condition) override { return condition(); }

protected:
    FakeNetworkHost m_model;

private:
    void plug(const QString &port, const QString &device, const QString &address)
    {
        m_model.plug({port, device, {}, address, {}, false});
    }
};

/// The same machine, known only by what its two commands print.
class TextualHostFixture : public FakeHostFixture
{
public:
    NetworkHost &host() override { return m_host; }

private:
    /// Prints what the machine is like at the moment of each command.
    class Commands : public CommandRunner
    {
    public:
        explicit Commands(FakeNetworkHost &machine)
            : m_machine(machine)
        {
        }

        QString run(const QString &command) override
        {
            return command == QLatin1String("networksetup -listallhardwareports")
                       ? portList()
                       : query(command.section(QLatin1Char(' '), 1));
        }

    private:
        QString portList()
        {
            QString text;
            const QList<PortRecord> ports = m_machine.ports().value();
            for (const PortRecord &port : ports) {
                text += QStringLiteral("\nHardware Port: %1\nDevice: %2\nEthernet Address: %3\n")
                            .arg(port.interface, port.device, port.info.macAddress);
            }
            return text + QStringLiteral("\nVLAN Configurations\n===================\n");
        }

        QString query(const QString &device)
        {
            const InterfaceInfo info = m_machine.info(device);
            if (info.macAddress.isEmpty()) {
                return {};
            }
            QString text = QStringLiteral("%1: flags=8863<BROADCAST,SIMPLEX,MULTICAST> mtu 1500\n")
                               .arg(device);
            text += QStringLiteral("\tether %1\n").arg(info.macAddress);
            if (!info.ipAddress.isEmpty()) {
                text += QStringLiteral("\tinet %1 netmask 0xffffff00\n").arg(info.ipAddress);
            }
            return text + QStringLiteral("\tmedia: autoselect\n\tstatus: %1\n").arg(info.status);
        }

        FakeNetworkHost &m_machine;
    };

    Commands m_commands{m_model};
    TextualHost m_host{m_commands};
};

} // namespace quillon::test
