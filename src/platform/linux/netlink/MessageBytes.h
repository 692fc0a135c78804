// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <concepts>
#include <cstddef>
#include <cstring>
#include <linux/netlink.h>
#include <optional>
#include <span>

namespace quillon {

// Reading netlink messages from bytes that nobody has checked. Everything here is total: lengths
// that lie end the walk, nothing is read outside the span, and no alignment is asked for.

using ByteSpan = std::span<const std::byte>;

/// A number in the byte order of this machine; none when there are too few bytes for it.
template <std::unsigned_integral Number>
std::optional<Number> hostNumber(ByteSpan bytes)
{
    Number number{};
    if (bytes.size() < sizeof number) {
        return std::nullopt;
    }
    std::memcpy(&number, bytes.data(), sizeof number);
    return number;
}

/// What follows the first `size` bytes and their padding to four.
inline ByteSpan afterPadded(ByteSpan bytes, std::size_t size)
{
    constexpr std::size_t alignment = 4; // of messages, attributes and next hops alike
    const std::size_t padded = (size + alignment - 1) / alignment * alignment;
    return bytes.subspan(std::min(padded, bytes.size()));
}

/// Calls `visit(const nlmsghdr &, payload)` with each complete message of a datagram.
template <typename Visit>
void forEachMessage(ByteSpan datagram, Visit visit)
{
    nlmsghdr header{};
    while (datagram.size() >= sizeof header) {
        std::memcpy(&header, datagram.data(), sizeof header);
        if (header.nlmsg_len < sizeof header || header.nlmsg_len > datagram.size()) {
            return;
        }
        visit(header, datagram.subspan(sizeof header, header.nlmsg_len - sizeof header));
        datagram = afterPadded(datagram, header.nlmsg_len);
    }
}

/// Calls `visit(type, value)` with each complete attribute; nested ones are walked the same way.
template <typename Visit>
void forEachAttribute(ByteSpan attributes, Visit visit)
{
    nlattr header{};
    while (attributes.size() >= sizeof header) {
        std::memcpy(&header, attributes.data(), sizeof header);
        if (header.nla_len < sizeof header || header.nla_len > attributes.size()) {
            return;
        }
        visit(static_cast<int>(header.nla_type & NLA_TYPE_MASK),
            attributes.subspan(sizeof header, header.nla_len - sizeof header));
        attributes = afterPadded(attributes, header.nla_len);
    }
}

} // namespace quillon
