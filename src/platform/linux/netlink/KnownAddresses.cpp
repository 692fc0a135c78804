// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/netlink/KnownAddresses.h"

#include "netlink/NetlinkAttributes.h"

#include <linux/if_addr.h>
#include <linux/rtnetlink.h>

namespace quillon {

namespace {

/// What makes an address the same one: interface, family, prefix length, scope and its octets.
QByteArray identityOf(const ifaddrmsg &about, const NetlinkAttributes<IFA_MAX> &attributes)
{
    const ByteSpan octets = attributes.bytes(attributes.has(IFA_LOCAL) ? IFA_LOCAL : IFA_ADDRESS);
    QByteArray identity = QByteArray::number(about.ifa_index);
    for (const unsigned int part :
        {unsigned{about.ifa_family}, unsigned{about.ifa_prefixlen}, unsigned{about.ifa_scope}}) {
        identity += ' ' + QByteArray::number(part);
    }
    identity += ' ';
    identity.append(
        reinterpret_cast<const char *>(octets.data()), static_cast<qsizetype>(octets.size()));
    return identity;
}

} // namespace

bool KnownAddresses::isRepeated(const nlmsghdr &message)
{
    const auto about = headerOf<ifaddrmsg>(message);
    if (!about || (message.nlmsg_type != RTM_NEWADDR && message.nlmsg_type != RTM_DELADDR)) {
        return false;
    }
    const QByteArray identity =
        identityOf(*about, NetlinkAttributes<IFA_MAX>(attributesOf<ifaddrmsg>(message)));
    if (message.nlmsg_type == RTM_DELADDR) {
        m_known.remove(identity);
        return false;
    }
    const bool isKnown = m_known.contains(identity);
    m_known.insert(identity);
    return isKnown;
}

} // namespace quillon
