// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/netlink/KernelReading.h"

#include <QDeadlineTimer>

#include <array>
#include <cerrno>
#include <linux/netlink.h>
#include <poll.h>
#include <sys/socket.h>

namespace quillon {

namespace {

// The kernel fills at most 32 KiB per read of a dump.
constexpr std::size_t readSize = 64 * 1024;

bool isTransient(int error)
{
    return error == EINTR || error == EAGAIN;
}

} // namespace

int readFromKernel(
    int descriptor, const QDeadlineTimer &deadline, const std::function<bool(ByteSpan)> &take)
{
    alignas(nlmsghdr) static thread_local std::array<std::byte, readSize> buffer;
    while (!deadline.hasExpired()) {
        pollfd awaited{.fd = descriptor, .events = POLLIN, .revents = 0};
        const int ready = ::poll(&awaited, 1, static_cast<int>(deadline.remainingTime()));
        if (ready < 0 && !isTransient(errno)) {
            return errno;
        }
        if (ready <= 0) {
            continue;
        }
        sockaddr_nl sender{};
        socklen_t senderSize = sizeof sender;
        const ssize_t size = ::recvfrom(descriptor, buffer.data(), buffer.size(), MSG_DONTWAIT,
            reinterpret_cast<sockaddr *>(&sender), &senderSize);
        if (size < 0 && isTransient(errno)) {
            continue;
        }
        if (size <= 0) {
            return size < 0 ? errno : EIO;
        }
        // Any process may send to a netlink socket; the kernel's port is 0.
        const ByteSpan datagram = std::span(buffer).first(static_cast<std::size_t>(size));
        if (sender.nl_pid == 0 && take(datagram)) {
            return 0;
        }
    }
    return ETIMEDOUT;
}

} // namespace quillon
