// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/netlink/KnownRoutes.h"

#include "netlink/NetlinkAttributes.h"

#include <initializer_list>
#include <linux/rtnetlink.h>
#include <sys/socket.h>

namespace quillon {

namespace {

using RouteAttributes = NetlinkAttributes<RTA_MAX>;

/// Whoever has more routes than this learns them from a routing protocol, which renews none.
constexpr qsizetype mostRoutes = 1000;

void append(QByteArray &identity, unsigned int number)
{
    identity += QByteArray::number(number) + ' ';
}

/// With its length, so that no two sequences of values look alike.
void append(
    QByteArray &identity, const RouteAttributes &attributes, std::initializer_list<int> types)
{
    for (const int type : types) {
        const ByteSpan bytes = attributes.bytes(type);
        append(identity, static_cast<unsigned int>(bytes.size()));
        identity.append(
            reinterpret_cast<const char *>(bytes.data()), static_cast<qsizetype>(bytes.size()));
    }
}

QByteArray identityOf(const rtmsg &about, const RouteAttributes &attributes)
{
    QByteArray identity;
    for (const unsigned int part : {unsigned{about.rtm_dst_len}, unsigned{about.rtm_src_len},
             unsigned{about.rtm_tos}, unsigned{about.rtm_type}}) {
        append(identity, part);
    }
    append(identity, attributes.value<quint32>(RTA_TABLE).value_or(about.rtm_table));
    append(identity, attributes, {RTA_DST, RTA_SRC, RTA_PRIORITY});
    return identity;
}

QByteArray wayOf(const rtmsg &about, const RouteAttributes &attributes)
{
    QByteArray way;
    append(way, about.rtm_flags);
    append(way, attributes, {RTA_OIF, RTA_GATEWAY, RTA_VIA, RTA_MULTIPATH, RTA_NH_ID});
    return way;
}

} // namespace

bool KnownRoutes::isRepeated(const nlmsghdr &message)
{
    if (message.nlmsg_type == RTM_NEWADDR || message.nlmsg_type == RTM_DELADDR) {
        return false;
    }
    const bool isNew = message.nlmsg_type == RTM_NEWROUTE;
    if (!isNew && message.nlmsg_type != RTM_DELROUTE) {
        forget();
        return false;
    }
    const auto about = headerOf<rtmsg>(message);
    if (!about || about->rtm_family != AF_INET6) {
        return false;
    }
    const RouteAttributes attributes(attributesOf<rtmsg>(message));
    const QByteArray identity = identityOf(*about, attributes);
    if (!isNew) {
        m_known.remove(identity);
        return false;
    }
    const QByteArray way = wayOf(*about, attributes);
    if (m_known.value(identity) == way) {
        return true;
    }
    if (m_known.size() >= mostRoutes) {
        forget();
    }
    m_known.insert(identity, way);
    return false;
}

} // namespace quillon
