// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "netlink/NetlinkSocket.h"

#include <array>
#include <cerrno>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace quillon {

namespace {

// The kernel fills at most 32 KiB per read of a table.
constexpr std::size_t readSize = 64 * 1024;
// Room for the messages of a few hundred interfaces that come and go while nobody reads.
constexpr int receiveBuffer = 1024 * 1024;
constexpr int attempts = 8;

} // namespace

NetlinkSocket::NetlinkSocket(const Options &options)
    : m_options(options)
{
}

NetlinkSocket::NetlinkSocket(int descriptor, const Options &options)
    : m_options(options)
    , m_descriptor(descriptor)
{
}

NetlinkSocket::~NetlinkSocket()
{
    close();
}

int NetlinkSocket::open()
{
    if (m_descriptor >= 0) {
        return 0;
    }
    m_descriptor =
        ::socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC | SOCK_NONBLOCK, m_options.protocol);
    sockaddr_nl own{};
    own.nl_family = AF_NETLINK;
    own.nl_groups = m_options.groups;
    if (m_descriptor < 0 ||
        ::bind(m_descriptor, reinterpret_cast<sockaddr *>(&own), sizeof own) != 0) {
        const int error = errno;
        close();
        return error;
    }
    // Neither is a condition: there is less room then, or there are more messages.
    const int strict = m_options.strict ? 1 : 0;
    ::setsockopt(m_descriptor, SOL_NETLINK, NETLINK_GET_STRICT_CHK, &strict, sizeof strict);
    ::setsockopt(m_descriptor, SOL_SOCKET, SO_RCVBUF, &receiveBuffer, sizeof receiveBuffer);
    return 0;
}

NetlinkAnswer NetlinkSocket::request(const NetlinkMessage &message, const Take &take)
{
    Clock::duration patience = m_options.patience;
    return exchange(message, take, patience);
}

NetlinkAnswer NetlinkSocket::readTable(
    const NetlinkMessage &message, const std::function<void()> &restart, const Take &take)
{
    Clock::duration patience = m_options.patience;
    NetlinkAnswer answer = exchange(message, take, patience);
    for (int left = attempts - 1; left > 0 && answer.finished && answer.interrupted; --left) {
        restart();
        answer = exchange(message, take, patience);
    }
    if (!answer.finished) {
        restart();
    } else if (answer.error == 0 && answer.interrupted) {
        answer.error = EINTR;
    }
    return answer;
}

NetlinkAnswer NetlinkSocket::exchange(
    const NetlinkMessage &message, const Take &take, Clock::duration &patience)
{
    NetlinkAnswer answer{.sequence = ++m_sequence};
    int error = send(message);
    // Drivers work, and locks are waited for, while the message is sent: that is not counted.
    const Clock::time_point deadline = Clock::now() + patience;
    while (error == 0 && !answer.finished) {
        ByteSpan datagram;
        error = receiveUntil(deadline, datagram);
        answer.add(datagram, take);
    }
    patience = deadline - Clock::now();
    if (!answer.finished) {
        close();
        answer.error = error;
    }
    return answer;
}

int NetlinkSocket::send(const NetlinkMessage &message)
{
    if (!message) {
        return ENOMEM;
    }
    if (const int error = open(); error != 0) {
        return error;
    }
    nlmsghdr *header = nlmsg_hdr(message.get());
    header->nlmsg_flags |= NLM_F_REQUEST | NLM_F_ACK;
    header->nlmsg_seq = m_sequence;
    return ::send(m_descriptor, header, header->nlmsg_len, MSG_NOSIGNAL) < 0 ? errno : 0;
}

int NetlinkSocket::receiveUntil(Clock::time_point deadline, ByteSpan &datagram)
{
    for (;;) {
        // Looked at before each datagram, so that none that is there already delays the end.
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now());
        if (left.count() <= 0) {
            return ETIMEDOUT;
        }
        pollfd awaited{.fd = m_descriptor, .events = POLLIN, .revents = 0};
        const int ready = ::poll(&awaited, 1, static_cast<int>(left.count()));
        const int error = ready < 0 ? errno : receive(datagram);
        if (error != EINTR && error != EAGAIN) {
            return error;
        }
    }
}

int NetlinkSocket::receive(ByteSpan &datagram)
{
    alignas(nlmsghdr) static thread_local std::array<std::byte, readSize> buffer;
    datagram = {};
    sockaddr_nl sender{};
    socklen_t senderSize = sizeof sender;
    const ssize_t size = ::recvfrom(m_descriptor, buffer.data(), buffer.size(),
        MSG_DONTWAIT | MSG_TRUNC, reinterpret_cast<sockaddr *>(&sender), &senderSize);
    if (size < 0) {
        return errno == EINTR ? EAGAIN : errno;
    }
    if (size == 0 || static_cast<std::size_t>(size) > buffer.size()) {
        return size == 0 ? EPIPE : EMSGSIZE;
    }
    // Any process may send to a netlink socket; the kernel's port is 0.
    if (sender.nl_pid == 0) {
        datagram = std::span(buffer).first(static_cast<std::size_t>(size));
    }
    return 0;
}

void NetlinkSocket::close()
{
    if (m_descriptor >= 0) {
        ::close(m_descriptor);
        m_descriptor = -1;
    }
}

} // namespace quillon
