// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "netlink/NetlinkAnswer.h"

#include <chrono>
#include <cstdint>
#include <functional>

namespace quillon {

/// A netlink(7) socket to the kernel, opened at its first use. Errors are errnos. A request waits
/// for its whole answer, and no longer than `patience`, whatever arrives meanwhile (ETIMEDOUT).
/// What other processes send to the socket is left out. One thread at a time.
class NetlinkSocket
{
public:
    struct Options
    {
        int protocol;             ///< NETLINK_ROUTE, NETLINK_GENERIC …
        std::uint32_t groups = 0; ///< to listen to, as bind(2) takes them: RTMGRP_…
        /// Kernels from 4.20 then honor what a request for a table asks for, and check it.
        bool strict = false;
        /// The kernel answers in the call itself, unless a driver holds its lock while a table is
        /// read. The limit is only there so that no fault hangs us.
        std::chrono::milliseconds patience = std::chrono::seconds(10);
    };
    using Take = NetlinkAnswer::Take;

    explicit NetlinkSocket(const Options &options);
    /// Takes over a socket that is open already.
    NetlinkSocket(int descriptor, const Options &options);
    ~NetlinkSocket();
    NetlinkSocket(const NetlinkSocket &) = delete;
    NetlinkSocket &operator=(const NetlinkSocket &) = delete;

    /// 0 also when it is open already.
    int open();
    int descriptor() const { return m_descriptor; }

    /// Sends a message and gives `take` the answer, message by message. When the answer did not
    /// come to its end (`finished`) the socket is closed, so that the rest of it is never taken for
    /// another; the next request opens a new one.
    NetlinkAnswer request(const NetlinkMessage &message, const Take &take = {});
    /// The same for a table (NLM_F_DUMP), read again when it changed meanwhile, a few times, which
    /// share the patience. The last reading of a table that changes all the time ends in EINTR:
    /// what was taken may lack entries. `restart` is told when nothing of what was taken counts.
    NetlinkAnswer readTable(
        const NetlinkMessage &message, const std::function<void()> &restart, const Take &take);

    /// One datagram that is there already, for sockets that listen; EAGAIN when there is none,
    /// ENOBUFS when some were lost. It is empty when another process sent it, and is there until
    /// this thread receives the next one.
    int receive(ByteSpan &datagram);

private:
    using Clock = std::chrono::steady_clock;

    NetlinkAnswer exchange(
        const NetlinkMessage &message, const Take &take, Clock::duration &patience);
    int send(const NetlinkMessage &message);
    int receiveUntil(Clock::time_point deadline, ByteSpan &datagram);
    void close();

    const Options m_options;
    int m_descriptor = -1;
    std::uint32_t m_sequence = 0;
};

} // namespace quillon
