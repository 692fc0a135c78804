// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/linux/netlink/DefaultRoute.h"
#include "platform/linux/netlink/KnownAddresses.h"
#include "platform/linux/netlink/KnownRoutes.h"
#include "platform/linux/netlink/NextHopObjects.h"

#include <QList>
#include <QString>

#include <string>

namespace quillon {

/// What one RTM_NEWLINK message of rtnetlink(7) tells about an interface.
struct LinkInfo
{
    int index = 0;
    unsigned short type = 0;            ///< ARPHRD_… of <linux/if_arp.h>
    unsigned int flags = 0;             ///< IFF_… of <linux/if.h>
    unsigned char operationalState = 0; ///< IF_OPER_… of RFC 2863
    QString name;
    QString address;          ///< lower-case octets separated by ":"; empty unless it is six
    QString permanentAddress; ///< the same; empty when the device has none
    std::string kind;         ///< "veth", "bridge" …; empty for hardware
    std::string parentBus;    ///< "pci", "usb", "thunderbolt" …; empty when there is none

    bool operator==(const LinkInfo &) const = default;
};

/// What one RTM_NEWADDR message tells of an IPv4 address.
struct AddressInfo
{
    int index = 0;
    QString ipv4; ///< dotted decimal

    bool operator==(const AddressInfo &) const = default;
};

/// What the messages of an answer tell.
struct LinkMessages
{
    QList<LinkInfo> links;
    QList<AddressInfo> addresses;
    QList<DefaultRoute> routes; ///< other routes are left out
    NextHopObjects nextHops;
    int error = 0; ///< errno of an answer that failed, else 0

    /// Whatever is truncated or malformed is left out.
    void add(const nlmsghdr &message);
};

/// Whether a datagram of the groups for links, addresses, routes and nexthop objects tells of a
/// change. Wireless events (scan finished and the like, IFLA_WIRELESS) are none: they come every
/// few seconds and carry no state of the link. Nor is an address or a route that is known and told
/// again. An unreadable datagram counts as a change. Aligned as nlmsghdr.
bool tellsOfChange(ByteSpan datagram, KnownAddresses &addresses, KnownRoutes &routes);

/// Whether the link can carry traffic. IF_OPER_UNKNOWN, which drivers without operational state
/// report all the time, counts as up when the carrier is there.
bool isActive(const LinkInfo &link);

/// "active" when the link can carry traffic, else "inactive".
QString statusText(const LinkInfo &link);

/// Lower-case octets separated by ":"; empty unless it is six octets.
QString addressText(ByteSpan octets);

} // namespace quillon
