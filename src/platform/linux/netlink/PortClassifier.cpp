// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/netlink/PortClassifier.h"

#include "platform/PortName.h"

#include <QLatin1String>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <linux/if.h>
#include <linux/if_arp.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

// Bridges that container engines and virtual machine monitors make for themselves.
constexpr std::array machineMadeBridges{"docker"_L1, "virbr"_L1, "lxcbr"_L1, "lxdbr"_L1,
    "incusbr"_L1, "cni"_L1, "podman"_L1, "waydroid"_L1, "vmnet"_L1, "mpqemubr"_L1, "kube-"_L1};

// Host-side interfaces of virtual machine monitors whose drivers name no kind.
constexpr std::array machineMadeAdapters{"vmnet"_L1, "vboxnet"_L1};

template <typename Prefixes>
bool beginsWithOneOf(const QString &name, const Prefixes &prefixes)
{
    return std::ranges::any_of(
        prefixes, [&](QLatin1String prefix) { return name.startsWith(prefix); });
}

bool isMadeByAPerson(const QString &bridge)
{
    static const QRegularExpression dockerNetwork(u"\\Abr-[0-9a-f]{12}\\z"_s);
    return !beginsWithOneOf(bridge, machineMadeBridges) && !dockerNetwork.match(bridge).hasMatch();
}

// A container's uplink carries the name of a network card; the host's end of it never does.
bool isNamedAsNetworkCard(const QString &name)
{
    return name.startsWith("en"_L1) || name.startsWith("eth"_L1);
}

QString softwarePortName(const LinkInfo &link)
{
    if (link.kind == "bridge") {
        return isMadeByAPerson(link.name) ? u"Bridge"_s : QString();
    }
    if (link.kind == "veth") {
        return isNamedAsNetworkCard(link.name) ? u"Ethernet"_s : QString();
    }
    // The ports of a built-in switch are hardware although a software driver names them.
    return link.kind == "dsa" ? u"Ethernet"_s : QString();
}

QString hardwarePortName(const LinkInfo &link, const HardwareInfo &hardware)
{
    if (hardware.deviceType == "wlan"_L1 || hardware.hasWirelessPhy) {
        return u"Wi-Fi"_s;
    }
    if (hardware.deviceType == "wwan"_L1 || beginsWithOneOf(link.name, machineMadeAdapters)) {
        return {};
    }
    if (hardware.deviceType == "bluetooth"_L1) {
        return u"Bluetooth PAN"_s;
    }
    if (link.parentBus == "thunderbolt") {
        return u"Thunderbolt Ethernet"_s;
    }
    return link.parentBus == "usb" ? u"USB Ethernet"_s : u"Ethernet"_s;
}

} // namespace

bool hasHardware(const LinkInfo &link)
{
    return link.type == ARPHRD_ETHER && !(link.flags & IFF_LOOPBACK) && link.kind.empty();
}

QString portName(const LinkInfo &link, const HardwareInfo &hardware)
{
    if (link.type != ARPHRD_ETHER || (link.flags & IFF_LOOPBACK)) {
        return {};
    }
    return link.kind.empty() ? hardwarePortName(link, hardware) : softwarePortName(link);
}

QString offeredPortName(const LinkInfo &link, const HardwareInfo &hardware)
{
    const QString name = portName(link, hardware);
    return isSkippedPortName(name) ? QString() : name;
}

std::optional<HardwareInfo> hardwareInfoFromUevent(const QByteArray &uevent, int index)
{
    HardwareInfo hardware;
    bool isThisInterface = false;
    const QList<QByteArray> lines = uevent.split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith("DEVTYPE=")) {
            hardware.deviceType = QString::fromLatin1(line.mid(8));
        } else if (line.startsWith("IFINDEX=")) {
            isThisInterface = line.mid(8).toInt() == index;
        }
    }
    return isThisInterface ? std::optional(hardware) : std::nullopt;
}

} // namespace quillon
