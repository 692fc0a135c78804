// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "helper/KernelLink.h"

#include <netlink/attr.h>
#include <netlink/msg.h>

#include <cstring>
#include <memory>

namespace quillon::test {

using Bytes = std::vector<std::uint8_t>;

inline constexpr int ourIndex = 7;
inline const Bytes gateway{192, 0, 2, 1};
inline const Bytes ourIPv4{192, 0, 2, 10};
inline const Bytes otherIPv6{0xfd, 0, 0x0d, 0xb8, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0x10};
// Formed from 02:11:22:33:44:55.
inline const Bytes formedIPv6{
    0xfd, 0, 0x0d, 0xb8, 0, 0, 0, 0, 0x00, 0x11, 0x22, 0xff, 0xfe, 0x33, 0x44, 0x55};
inline const Bytes linkLocal{0xfe, 0x80, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1};

/// A message as the kernel sends it.
template <typename Header>
class KernelMessage
{
public:
    KernelMessage(int type, const Header &header)
        : m_message{nlmsg_alloc_simple(type, 0), nlmsg_free}
    {
        auto copy = header;
        nlmsg_append(m_message.get(), &copy, sizeof copy, NLMSG_ALIGNTO);
    }
    KernelMessage &with(int type, const Bytes &value)
    {
        nla_put(m_message.get(), type, static_cast<int>(value.size()), value.data());
        return *this;
    }
    KernelMessage &with(int type, std::uint32_t value)
    {
        nla_put_u32(m_message.get(), type, value);
        return *this;
    }
    const nlmsghdr *header() const { return nlmsg_hdr(m_message.get()); }

private:
    std::unique_ptr<nl_msg, decltype(&nlmsg_free)> m_message;
};

inline LinkState ourLink()
{
    return {ourIndex, "enp1s0", 1, 0, {0x02, 0x11, 0x22, 0x33, 0x44, 0x55}};
}

/// The value of an attribute in a message's body, or nothing.
template <typename Header>
Bytes attributeOf(const Bytes &body, int type)
{
    const auto start = NLMSG_ALIGN(sizeof(Header));
    auto *attributes = reinterpret_cast<nlattr *>(const_cast<std::uint8_t *>(body.data()) + start);
    const auto *found = nla_find(attributes, static_cast<int>(body.size() - start), type);
    if (found == nullptr) {
        return {};
    }
    const auto *data = static_cast<const std::uint8_t *>(nla_data(found));
    return {data, data + nla_len(found)};
}

inline std::uint32_t numberOf(const Bytes &bytes)
{
    std::uint32_t number = 0;
    if (bytes.size() == sizeof number) {
        std::memcpy(&number, bytes.data(), sizeof number);
    }
    return number;
}

} // namespace quillon::test
