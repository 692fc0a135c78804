// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/netlink/NetlinkChangeSource.h"

#include "base/Log.h"
#include "platform/linux/netlink/LinkMessages.h"

#include <netlink/netlink.h>
#include <netlink/socket.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <linux/rtnetlink.h>
#include <sys/socket.h>
#include <utility>

namespace quillon {

namespace {

using namespace std::chrono_literals;

constexpr auto quietTime = 100ms;
constexpr auto longestBurst = 1s;
// Room for the messages of a few hundred interfaces that come and go while the main thread is busy.
constexpr int receiveBuffer = 1024 * 1024;
constexpr std::size_t readSize = 64 * 1024;

} // namespace

void NetlinkChangeSource::Free::operator()(nl_sock *socket) const
{
    nl_socket_free(socket);
}

NetlinkChangeSource::NetlinkChangeSource(Scheduler &scheduler)
    : m_scheduler(scheduler)
{
}

NetlinkChangeSource::~NetlinkChangeSource() = default;

void NetlinkChangeSource::start(std::function<void()> changed)
{
    m_burst =
        std::make_unique<BurstCollector>(m_scheduler, quietTime, longestBurst, std::move(changed));
    if (!open()) {
        qCWarning(logPlatform, "Network changes will not be noticed");
        return;
    }
    m_notifier =
        std::make_unique<QSocketNotifier>(nl_socket_get_fd(m_socket.get()), QSocketNotifier::Read);
    QObject::connect(
        m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] { read(); });
}

bool NetlinkChangeSource::open()
{
    m_socket.reset(nl_socket_alloc());
    if (!m_socket) {
        return false;
    }
    nl_socket_disable_seq_check(m_socket.get());
    if (const int result = nl_connect(m_socket.get(), NETLINK_ROUTE); result < 0) {
        qCWarning(logPlatform, "No routing socket: %s", nl_geterror(result));
        return false;
    }
    const int result = nl_socket_add_memberships(
        m_socket.get(), RTNLGRP_LINK, RTNLGRP_IPV4_IFADDR, RTNLGRP_IPV4_ROUTE, 0);
    if (result < 0) {
        qCWarning(logPlatform, "No routing groups: %s", nl_geterror(result));
        return false;
    }
    nl_socket_set_buffer_size(m_socket.get(), receiveBuffer, 0);
    return nl_socket_set_nonblocking(m_socket.get()) == 0;
}

void NetlinkChangeSource::read()
{
    alignas(nlmsghdr) static thread_local std::array<std::byte, readSize> buffer;
    bool changed = false;
    for (;;) {
        sockaddr_nl sender{};
        socklen_t senderSize = sizeof sender;
        const ssize_t size = recvfrom(nl_socket_get_fd(m_socket.get()), buffer.data(),
            buffer.size(), 0, reinterpret_cast<sockaddr *>(&sender), &senderSize);
        if (size > 0) {
            // Any process may send to a netlink socket; the kernel's port is 0.
            changed = changed || (sender.nl_pid == 0 && tellsOfChange(std::span(buffer).first(
                                                            static_cast<std::size_t>(size))));
            continue;
        }
        const int error = size < 0 ? errno : EPIPE;
        if (error == ENOBUFS) {
            // Messages were lost: something changed, and the socket goes on with the next message.
            changed = true;
        } else if (error == EAGAIN) {
            break;
        } else if (error != EINTR) {
            qCWarning(logPlatform, "Network changes end: %s", std::strerror(error));
            m_notifier->setEnabled(false);
            break;
        }
    }
    if (changed) {
        m_burst->happened();
    }
}

} // namespace quillon
