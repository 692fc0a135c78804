// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "netlink/ByteSpan.h"

#include <netlink/msg.h>

#include <cstring>
#include <memory>
#include <optional>

namespace quillon {

struct FreeNetlinkMessage
{
    void operator()(nl_msg *message) const { nlmsg_free(message); }
};
using NetlinkMessage = std::unique_ptr<nl_msg, FreeNetlinkMessage>;

/// A message to send, with the header that its family puts before the attributes. None when there
/// is no memory for it. The socket fills in NLM_F_REQUEST, NLM_F_ACK and the sequence number.
template <typename Header>
NetlinkMessage netlinkMessage(int type, int flags, Header header)
{
    NetlinkMessage message{nlmsg_alloc_simple(type, flags)};
    if (message && nlmsg_append(message.get(), &header, sizeof header, NLMSG_ALIGNTO) < 0) {
        message.reset();
    }
    return message;
}

// Reading of bytes that nobody has checked: lengths that lie end the walk, and nothing is read
// outside the bytes. libnl reads through pointers to non-const; it does not write.

/// Calls `visit(const nlmsghdr &)` with each complete message of a datagram, which must be aligned
/// as nlmsghdr. False when bytes were left that are no message.
template <typename Visit>
bool forEachMessage(ByteSpan datagram, Visit visit)
{
    auto *message = reinterpret_cast<nlmsghdr *>(const_cast<std::byte *>(datagram.data()));
    int left = static_cast<int>(datagram.size());
    while (nlmsg_ok(message, left)) {
        visit(*message);
        message = nlmsg_next(message, &left);
    }
    return left <= 0;
}

/// What a message begins with (ifinfomsg and the like); none when the message is shorter.
template <typename Header>
std::optional<Header> headerOf(const nlmsghdr &message)
{
    Header header{};
    if (nlmsg_datalen(&message) < static_cast<int>(sizeof header)) {
        return std::nullopt;
    }
    std::memcpy(&header, nlmsg_data(&message), sizeof header);
    return header;
}

/// What follows that header.
template <typename Header>
ByteSpan attributesOf(const nlmsghdr &message)
{
    return {reinterpret_cast<const std::byte *>(nlmsg_attrdata(&message, sizeof(Header))),
        static_cast<std::size_t>(nlmsg_attrlen(&message, sizeof(Header)))};
}

} // namespace quillon
