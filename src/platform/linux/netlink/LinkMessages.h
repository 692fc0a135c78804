// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/linux/netlink/DefaultRoute.h"

#include <QList>
#include <QString>

#include <cstddef>
#include <optional>
#include <span>
#include <string>

namespace quillon {

/// What one RTM_NEWLINK message of rtnetlink(7) tells about an interface.
struct LinkFacts
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

    bool operator==(const LinkFacts &) const = default;
};

/// What one RTM_NEWADDR message tells of an IPv4 address.
struct AddressFacts
{
    int index = 0;
    QString ipv4; ///< dotted decimal

    bool operator==(const AddressFacts &) const = default;
};

/// The answers to one request, collected from its datagrams.
struct LinkMessages
{
    QList<LinkFacts> links;
    QList<AddressFacts> addresses;
    QList<DefaultRoute> routes; ///< other routes are left out
    bool finished = false;      ///< the last message of the answer was seen
    bool interrupted = false;   ///< the tables changed while they were read (NLM_F_DUMP_INTR)
    int error = 0;              ///< errno of a refusal or of a table that broke off, else 0

    /// Adds the messages of one datagram that answer the request `sequence`. The bytes must be
    /// aligned as nlmsghdr. Whatever is truncated or malformed is left out; nothing is read beyond
    /// the span.
    void add(std::span<const std::byte> datagram, quint32 sequence);
};

/// Whether a datagram of the LINK, IPV4_IFADDR and IPV4_ROUTE groups tells of a change. Wireless
/// events (scan finished and the like, IFLA_WIRELESS) are none: they come every few seconds and
/// carry no state of the link. An unreadable datagram counts as a change.
bool tellsOfChange(std::span<const std::byte> datagram);

/// Whether the link can carry traffic. IF_OPER_UNKNOWN, which drivers without operational state
/// report all the time, counts as up when the carrier is there.
bool isActive(const LinkFacts &link);

/// "active" when the link can carry traffic, else "inactive".
QString statusText(const LinkFacts &link);

/// Lower-case octets separated by ":"; empty unless it is six octets.
QString addressText(std::span<const unsigned char> octets);

} // namespace quillon
