// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/netlink/NetlinkHost.h"

#include "base/Log.h"
#include "platform/linux/netlink/RouteSocket.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>

#include <cerrno>
#include <cstring>
#include <linux/if.h>
#include <utility>

namespace quillon {

namespace {

constexpr qint64 longestUevent = 4096;

QHash<int, QString> firstAddresses(const QList<AddressFacts> &addresses)
{
    QHash<int, QString> first;
    for (const AddressFacts &address : addresses) {
        if (!first.contains(address.index)) {
            first.insert(address.index, address.ipv4);
        }
    }
    return first;
}

InterfaceInfo interfaceInfo(const LinkFacts &link, const QString &ipv4)
{
    return {ipv4, link.address, statusText(link)};
}

void logFailure(const char *what, int error)
{
    qCWarning(logPlatform, "%s could not be read: %s", what, std::strerror(error));
}

} // namespace

NetlinkHost::NetlinkHost(QString sysfs)
    : m_sysfs(std::move(sysfs))
{
}

QList<PortRecord> NetlinkHost::ports()
{
    RouteSocket socket;
    const LinkMessages links = socket.links();
    if (links.error != 0) {
        logFailure("Interfaces", links.error);
        return {};
    }
    const LinkMessages addresses = socket.addresses();
    if (addresses.error != 0) {
        logFailure("IPv4 addresses", addresses.error);
    }
    const QHash<int, QString> ipv4 = firstAddresses(addresses.addresses);
    QList<PortRecord> ports;
    for (const LinkFacts &link : links.links) {
        const QString name =
            portName(link, hasHardware(link) ? hardwareFacts(link) : HardwareFacts{});
        if (!name.isEmpty()) {
            ports.append({name, link.name, link.permanentAddress,
                interfaceInfo(link, ipv4.value(link.index))});
        }
    }
    return ports;
}

InterfaceInfo NetlinkHost::info(const QString &device)
{
    const QByteArray name = device.toUtf8();
    if (name.isEmpty() || name.size() >= IFNAMSIZ || name.contains('\0')) {
        return {};
    }
    RouteSocket socket;
    const LinkMessages links = socket.link(name);
    if (links.links.isEmpty() || links.links.first().name != device) {
        if (links.error != 0 && links.error != ENODEV) {
            logFailure("Interface", links.error);
        }
        return {};
    }
    const LinkFacts &link = links.links.first();
    const LinkMessages addresses = socket.addresses(link.index);
    return interfaceInfo(link, firstAddresses(addresses.addresses).value(link.index));
}

HardwareFacts NetlinkHost::hardwareFacts(const LinkFacts &link) const
{
    const QString folder = m_sysfs + QLatin1Char('/') + link.name;
    QFile uevent(folder + QLatin1String("/uevent"));
    if (!uevent.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        return {};
    }
    auto facts = hardwareFactsFromUevent(uevent.read(longestUevent), link.index);
    if (!facts) {
        return {};
    }
    // Some drivers outside the kernel's tree name no device type.
    facts->hasWirelessPhy =
        facts->deviceType.isEmpty() && QFileInfo::exists(folder + QLatin1String("/phy80211"));
    return *facts;
}

} // namespace quillon
