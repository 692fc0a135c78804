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

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 longestUevent = 4096;

QHash<int, QString> firstAddresses(const QList<AddressInfo> &addresses)
{
    QHash<int, QString> first;
    for (const AddressInfo &address : addresses) {
        if (!first.contains(address.index)) {
            first.insert(address.index, address.ipv4);
        }
    }
    return first;
}

/// By index of the interface.
QHash<int, QString> routers(const QList<NextHop> &hops)
{
    QHash<int, QStringList> found;
    for (const NextHop &hop : hops) {
        found[hop.interface].append(hop.gateway.isEmpty() ? u"direct"_s : hop.gateway);
    }
    QHash<int, QString> texts;
    for (auto entry = found.begin(); entry != found.end(); ++entry) {
        entry->sort();
        entry->removeDuplicates();
        texts.insert(entry.key(), entry->join(u' '));
    }
    return texts;
}

InterfaceInfo interfaceInfo(const LinkInfo &link, const QString &ipv4)
{
    return {ipv4, link.address, statusText(link)};
}

bool isRead(const char *what, int error)
{
    if (error != 0) {
        qCWarning(logPlatform, "%s could not be read: %s", what, std::strerror(error));
    }
    return error == 0;
}

} // namespace

NetlinkHost::NetlinkHost(QString sysfs)
    : m_sysfs(std::move(sysfs))
{
}

std::optional<QList<PortRecord>> NetlinkHost::ports()
{
    RouteSocket socket;
    const LinkMessages links = socket.links();
    const LinkMessages addresses = socket.addresses();
    const RouteSocket::Hops hops = socket.defaultHops();
    if (!isRead("Interfaces", links.error) || !isRead("IPv4 addresses", addresses.error) ||
        !isRead("Routes", hops.error)) {
        return std::nullopt;
    }
    const QHash<int, QString> ipv4 = firstAddresses(addresses.addresses);
    const QHash<int, QString> router = routers(hops.hops);
    QList<PortRecord> ports;
    for (const LinkInfo &link : links.links) {
        const QString name =
            offeredPortName(link, hasHardware(link) ? hardwareInfo(link) : HardwareInfo{});
        if (!name.isEmpty()) {
            ports.append({name, link.name, link.permanentAddress,
                interfaceInfo(link, ipv4.value(link.index)), router.value(link.index)});
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
    const LinkMessages addresses =
        links.links.isEmpty() ? LinkMessages{} : socket.addresses(links.links.first().index);
    return interfaceInfo(device, links, addresses);
}

InterfaceInfo interfaceInfo(
    const QString &device, const LinkMessages &link, const LinkMessages &addresses)
{
    const bool isLinkRead = isRead("Interface", link.error == ENODEV ? 0 : link.error);
    if (!isLinkRead || !isRead("IPv4 addresses", addresses.error)) {
        return {.readFailed = true};
    }
    if (link.links.isEmpty() || link.links.first().name != device) {
        return {};
    }
    const LinkInfo &found = link.links.first();
    return interfaceInfo(found, firstAddresses(addresses.addresses).value(found.index));
}

HardwareInfo NetlinkHost::hardwareInfo(const LinkInfo &link) const
{
    const QString folder = m_sysfs + u'/' + link.name;
    QFile uevent(folder + "/uevent"_L1);
    if (!uevent.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        return {};
    }
    auto hardware = hardwareInfoFromUevent(uevent.read(longestUevent), link.index);
    if (!hardware) {
        return {};
    }
    // Some drivers outside the kernel's tree name no device type.
    hardware->hasWirelessPhy =
        hardware->deviceType.isEmpty() && QFileInfo::exists(folder + "/phy80211"_L1);
    return *hardware;
}

} // namespace quillon
