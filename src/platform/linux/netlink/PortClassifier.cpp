// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/netlink/PortClassifier.h"

#include <QLatin1String>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <linux/if.h>
#include <linux/if_arp.h>

namespace quillon {

namespace {

// Bridges that container engines and virtual machine monitors make for themselves.
constexpr std::array machineMadeBridges{QLatin1String("docker"), QLatin1String("virbr"),
    QLatin1String("lxcbr"), QLatin1String("lxdbr"), QLatin1String("incusbr"), QLatin1String("cni"),
    QLatin1String("podman"), QLatin1String("waydroid"), QLatin1String("vmnet"),
    QLatin1String("mpqemubr"), QLatin1String("kube-")};

// Host-side interfaces of virtual machine monitors whose drivers name no kind.
constexpr std::array machineMadeAdapters{QLatin1String("vmnet"), QLatin1String("vboxnet")};

template <typename Prefixes>
bool beginsWithOneOf(const QString &name, const Prefixes &prefixes)
{
    return std::ranges::any_of(
        prefixes, [&](QLatin1String prefix) { return name.startsWith(prefix); });
}

bool isMadeByAPerson(const QString &bridge)
{
    static const QRegularExpression dockerNetwork(QStringLiteral("\\Abr-[0-9a-f]{12}\\z"));
    return !beginsWithOneOf(bridge, machineMadeBridges) && !dockerNetwork.match(bridge).hasMatch();
}

// A container's uplink carries the name of a network card; the host's end of it never does.
bool isNamedAsNetworkCard(const QString &name)
{
    return name.startsWith(QLatin1String("en")) || name.startsWith(QLatin1String("eth"));
}

QString softwarePortName(const LinkInfo &link)
{
    if (link.kind == "bridge") {
        return isMadeByAPerson(link.name) ? QStringLiteral("Bridge") : QString();
    }
    if (link.kind == "veth") {
        return isNamedAsNetworkCard(link.name) ? QStringLiteral("Ethernet") : QString();
    }
    // The ports of a built-in switch are hardware although a software driver names them.
    return link.kind == "dsa" ? QStringLiteral("Ethernet") : QString();
}

QString hardwarePortName(const LinkInfo &link, const HardwareInfo &hardware)
{
    if (hardware.deviceType == QLatin1String("wlan") || hardware.hasWirelessPhy) {
        return QStringLiteral("Wi-Fi");
    }
    if (hardware.deviceType == QLatin1String("wwan") ||
        beginsWithOneOf(link.name, machineMadeAdapters)) {
        return {};
    }
    if (hardware.deviceType == QLatin1String("bluetooth")) {
        return QStringLiteral("Bluetooth PAN");
    }
    if (link.parentBus == "thunderbolt") {
        return QStringLiteral("Thunderbolt Ethernet");
    }
    return link.parentBus == "usb" ? QStringLiteral("USB Ethernet") : QStringLiteral("Ethernet");
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
