// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "netlink/NetlinkMessage.h"

#include <netlink/attr.h>

#include <array>
#include <string_view>
#include <type_traits>

namespace quillon {

/// The attributes of a message, or those nested in an attribute, by type up to `Highest`; of
/// several of one type the last counts. Whatever is cut short is left out. The bytes must outlive
/// this, and must be aligned as nlattr.
template <std::size_t Highest>
class NetlinkAttributes
{
public:
    using Policy = std::array<nla_policy, Highest + 1>;

    /// None at all when one of them does not keep to the policy.
    explicit NetlinkAttributes(ByteSpan bytes, const Policy *policy = nullptr)
    {
        auto *first = reinterpret_cast<nlattr *>(const_cast<std::byte *>(bytes.data()));
        if (nla_parse(m_found.data(), static_cast<int>(Highest), first,
                static_cast<int>(bytes.size()), policy ? policy->data() : nullptr) < 0) {
            m_found = {};
        }
    }

    nlattr *find(int type) const { return m_found[static_cast<std::size_t>(type)]; }
    bool has(int type) const { return find(type) != nullptr; }

    /// Empty when there is no such attribute.
    ByteSpan bytes(int type) const
    {
        const nlattr *attribute = find(type);
        return attribute ? ByteSpan(static_cast<const std::byte *>(nla_data(attribute)),
                               static_cast<std::size_t>(nla_len(attribute)))
                         : ByteSpan();
    }

    /// A number, or a structure of the kernel; none when there are too few bytes for it.
    template <typename Value>
    std::optional<Value> value(int type) const
    {
        static_assert(std::is_trivially_copyable_v<Value>);
        const ByteSpan content = bytes(type);
        Value value{};
        if (content.size() < sizeof value) {
            return std::nullopt;
        }
        std::memcpy(&value, content.data(), sizeof value);
        return value;
    }

    /// Up to the terminating zero, or to the end when there is none.
    std::string_view text(int type) const
    {
        const ByteSpan content = bytes(type);
        const std::string_view all(reinterpret_cast<const char *>(content.data()), content.size());
        return all.substr(0, all.find('\0'));
    }

private:
    std::array<nlattr *, Highest + 1> m_found{};
};

} // namespace quillon
