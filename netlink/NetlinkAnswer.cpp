// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "netlink/NetlinkAnswer.h"

#include <cerrno>

namespace quillon {

namespace {

// The last message says how it went: an errno by its negative value, and there is none above 4095.
// A table's end may come without; libnl does not look at it.
int errorOf(const nlmsghdr &last)
{
    constexpr int highestErrno = 4095;
    const int status = headerOf<int>(last).value_or(last.nlmsg_type == NLMSG_DONE ? 0 : 1);
    return status <= 0 && status >= -highestErrno ? -status : EBADMSG;
}

} // namespace

void NetlinkAnswer::add(ByteSpan datagram, const Take &take)
{
    forEachMessage(datagram, [&](const nlmsghdr &message) {
        if (message.nlmsg_seq != sequence || finished) {
            return;
        }
        interrupted = interrupted || (message.nlmsg_flags & NLM_F_DUMP_INTR) != 0;
        finished = message.nlmsg_type == NLMSG_DONE || message.nlmsg_type == NLMSG_ERROR;
        if (finished) {
            error = errorOf(message);
        }
        if (take) {
            take(message);
        }
    });
}

} // namespace quillon
