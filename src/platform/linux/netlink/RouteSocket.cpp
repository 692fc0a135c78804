// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/netlink/RouteSocket.h"

#include "base/Log.h"

#include <netlink/msg.h>
#include <netlink/netlink.h>
#include <netlink/socket.h>

#include <array>
#include <cerrno>
#include <functional>
#include <linux/if_addr.h>
#include <linux/rtnetlink.h>
#include <sys/socket.h>
#include <sys/time.h>

namespace quillon {

namespace {

// The kernel fills at most 32 KiB per read of a dump.
constexpr std::size_t readSize = 64 * 1024;
// A table that changes all the time is taken as it is after so many attempts.
constexpr int dumpAttempts = 5;

using Message = std::unique_ptr<nl_msg, decltype(&nlmsg_free)>;

nl_msg *linkRequest(int flags)
{
    nl_msg *message = nlmsg_alloc_simple(RTM_GETLINK, flags);
    ifinfomsg header{};
    if (message && nlmsg_append(message, &header, sizeof header, NLMSG_ALIGNTO) == 0) {
        nla_put_u32(message, IFLA_EXT_MASK, RTEXT_FILTER_SKIP_STATS);
    }
    return message;
}

nl_msg *addressRequest(int index)
{
    nl_msg *message = nlmsg_alloc_simple(RTM_GETADDR, NLM_F_DUMP);
    ifaddrmsg header{};
    header.ifa_family = AF_INET;
    header.ifa_index = static_cast<unsigned int>(index);
    if (message) {
        nlmsg_append(message, &header, sizeof header, NLMSG_ALIGNTO);
    }
    return message;
}

nl_msg *routeRequest(int family)
{
    nl_msg *message = nlmsg_alloc_simple(RTM_GETROUTE, NLM_F_DUMP);
    rtmsg header{};
    header.rtm_family = static_cast<unsigned char>(family);
    header.rtm_type = RTN_UNICAST;
    if (message) {
        nlmsg_append(message, &header, sizeof header, NLMSG_ALIGNTO);
    }
    return message;
}

LinkMessages failure(int error)
{
    LinkMessages messages;
    messages.error = error;
    return messages;
}

// Kernels from 4.20 then honour the index of an address request and the type of a route request.
void wishStrictChecks(int descriptor)
{
    const int on = 1;
    setsockopt(descriptor, SOL_NETLINK, NETLINK_GET_STRICT_CHK, &on, sizeof on);
}

// The kernel answers in the call itself; the limit is only there so that no fault of it hangs us.
void limitWaiting(int descriptor)
{
    const timeval limit{.tv_sec = 2, .tv_usec = 0};
    setsockopt(descriptor, SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof limit);
}

} // namespace

void RouteSocket::Free::operator()(nl_sock *socket) const
{
    nl_socket_free(socket);
}

RouteSocket::RouteSocket()
    : m_socket(nl_socket_alloc())
{
    const int result = m_socket ? nl_connect(m_socket.get(), NETLINK_ROUTE) : -NLE_NOMEM;
    if (result < 0) {
        qCWarning(logPlatform, "No routing socket: %s", nl_geterror(result));
        m_socket.reset();
        return;
    }
    nl_socket_disable_auto_ack(m_socket.get());
    wishStrictChecks(nl_socket_get_fd(m_socket.get()));
    limitWaiting(nl_socket_get_fd(m_socket.get()));
}

LinkMessages RouteSocket::links()
{
    return askForTable([] { return linkRequest(NLM_F_DUMP); });
}

LinkMessages RouteSocket::link(const QByteArray &name)
{
    nl_msg *message = linkRequest(0);
    if (message) {
        nla_put_string(message, IFLA_IFNAME, name.constData());
    }
    return ask(message);
}

LinkMessages RouteSocket::addresses(int index)
{
    return askForTable([index] { return addressRequest(index); });
}

LinkMessages RouteSocket::defaultRoutes(int family)
{
    return askForTable([family] { return routeRequest(family); });
}

LinkMessages RouteSocket::askForTable(const std::function<nl_msg *()> &message)
{
    LinkMessages answer;
    for (int attempt = 0; attempt < dumpAttempts; ++attempt) {
        answer = ask(message());
        if (!answer.interrupted) {
            break;
        }
    }
    return answer;
}

LinkMessages RouteSocket::ask(nl_msg *request)
{
    const Message message(request, &nlmsg_free);
    if (!m_socket || !message) {
        return failure(ENOBUFS);
    }
    if (const int sent = nl_send_auto(m_socket.get(), message.get()); sent < 0) {
        qCWarning(logPlatform, "Routing request not sent: %s", nl_geterror(sent));
        return failure(EIO);
    }
    const int descriptor = nl_socket_get_fd(m_socket.get());
    const quint32 sequence = nlmsg_hdr(message.get())->nlmsg_seq;
    LinkMessages answer;
    alignas(nlmsghdr) static thread_local std::array<std::byte, readSize> buffer;
    while (!answer.finished) {
        sockaddr_nl sender{};
        socklen_t senderSize = sizeof sender;
        const ssize_t size = recvfrom(descriptor, buffer.data(), buffer.size(), 0,
            reinterpret_cast<sockaddr *>(&sender), &senderSize);
        if (size < 0 && errno == EINTR) {
            continue;
        }
        if (size <= 0) {
            return failure(size < 0 ? errno : EIO);
        }
        // Any process may send to a netlink socket; the kernel's port is 0.
        if (sender.nl_pid == 0) {
            answer.add(std::span(buffer).first(static_cast<std::size_t>(size)), sequence);
        }
    }
    return answer;
}

} // namespace quillon
