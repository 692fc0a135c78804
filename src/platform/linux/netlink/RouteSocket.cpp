// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/netlink/RouteSocket.h"

#include <netlink/attr.h>

#include <linux/rtnetlink.h>
#include <sys/socket.h>

namespace quillon {

namespace {

NetlinkMessage linkRequest(int flags)
{
    auto message = netlinkMessage(RTM_GETLINK, flags, ifinfomsg{});
    if (message) {
        nla_put_u32(message.get(), IFLA_EXT_MASK, RTEXT_FILTER_SKIP_STATS);
    }
    return message;
}

} // namespace

LinkMessages RouteSocket::links()
{
    return read(linkRequest(NLM_F_DUMP));
}

LinkMessages RouteSocket::link(const QByteArray &name)
{
    const auto message = linkRequest(0);
    if (message) {
        nla_put_string(message.get(), IFLA_IFNAME, name.constData());
    }
    return read(message);
}

LinkMessages RouteSocket::addresses(int index)
{
    ifaddrmsg header{};
    header.ifa_family = AF_INET;
    header.ifa_index = static_cast<unsigned int>(index);
    return read(netlinkMessage(RTM_GETADDR, NLM_F_DUMP, header));
}

LinkMessages RouteSocket::defaultRoutes(int family)
{
    rtmsg header{};
    header.rtm_family = static_cast<unsigned char>(family);
    header.rtm_type = RTN_UNICAST;
    return read(netlinkMessage(RTM_GETROUTE, NLM_F_DUMP, header));
}

LinkMessages RouteSocket::read(const NetlinkMessage &message)
{
    LinkMessages messages;
    const NetlinkAnswer answer = m_socket.readTable(
        message, [&] { messages = {}; }, [&](const nlmsghdr &part) { messages.add(part); });
    messages.error = answer.error;
    return messages;
}

} // namespace quillon
