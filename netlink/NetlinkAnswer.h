// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "netlink/NetlinkMessage.h"

#include <cstdint>
#include <functional>

namespace quillon {

/// How far the answer to one request has come, and how it ended.
struct NetlinkAnswer
{
    using Take = std::function<void(const nlmsghdr &message)>;

    std::uint32_t sequence = 0; ///< of the request
    bool finished = false;      ///< the last message was seen: NLMSG_DONE, NLMSG_ERROR
    bool interrupted = false;   ///< the table changed while it was read (NLM_F_DUMP_INTR)
    int error = 0;              ///< errno of a refusal or of a table that broke off, else 0

    /// Gives `take`, if any, the messages of a datagram that belong to the answer, its last one
    /// included. The bytes must be aligned as nlmsghdr.
    void add(ByteSpan datagram, const Take &take);
};

} // namespace quillon
