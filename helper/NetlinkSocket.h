// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>

struct nl_msg;
struct nl_sock;
struct nlmsghdr;

namespace quillon {

struct FreeNetlinkMessage
{
    void operator()(nl_msg *message) const;
};
struct FreeNetlinkSocket
{
    void operator()(nl_sock *socket) const;
};
using NetlinkMessage = std::unique_ptr<nl_msg, FreeNetlinkMessage>;

/// 0, or the errno value with which a table broke off: `end` is its NLMSG_DONE. libnl does not
/// look.
int failureOfTable(const nlmsghdr *end);

/// A connection to the kernel's routing service (rtnetlink(7)), opened at the first request. Used
/// by one thread; every request waits for its answer.
class NetlinkSocket
{
public:
    using Answer = std::function<void(const nlmsghdr *message)>;

    /// Sends `message` and passes every message of the answer to `answer`. Returns 0 or the
    /// kernel's errno value. With NLM_F_DUMP in its flags the answer is a whole table; EINTR then
    /// means that the table changed meanwhile.
    int request(nl_msg *message, const Answer &answer = {});

private:
    int open();

    std::unique_ptr<nl_sock, FreeNetlinkSocket> m_socket;
};

} // namespace quillon
