// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/netlink/RouteSocket.h"

#include <netlink/attr.h>

#include <algorithm>
#include <cerrno>
#include <linux/nexthop.h>
#include <linux/rtnetlink.h>
#include <sys/socket.h>
#include <utility>

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

LinkMessages RouteSocket::nextHopObjects()
{
    return read(netlinkMessage(RTM_GETNEXTHOP, NLM_F_DUMP, nhmsg{}));
}

RouteSocket::Hops RouteSocket::defaultHops()
{
    Hops found;
    QList<DefaultRoute> routes;
    for (const int family : {AF_INET, AF_INET6}) {
        const LinkMessages messages = defaultRoutes(family);
        routes += messages.routes;
        // A kernel without IPv6 has no such routes.
        const bool isMissing = messages.error == EOPNOTSUPP || messages.error == EAFNOSUPPORT;
        found.error = found.error != 0 || isMissing ? found.error : messages.error;
    }
    // Nearly always the routes tell their hops themselves.
    NextHopObjects objects;
    if (std::ranges::any_of(routes, [](const auto &route) { return route.object != 0; })) {
        const LinkMessages messages = nextHopObjects();
        objects = messages.nextHops;
        found.error = found.error != 0 ? found.error : messages.error;
    }
    for (const DefaultRoute &route : std::as_const(routes)) {
        found.hops += hopsOf(route, objects);
    }
    return found;
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
