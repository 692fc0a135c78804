// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <cstddef>
#include <cstring>
#include <linux/netlink.h>
#include <span>
#include <vector>

namespace quillon::test {

/// Netlink messages byte by byte, as the kernel sends them or as nobody should.
class NetlinkBytes
{
public:
    static constexpr quint32 sequence = 7;

    template <typename Header>
    NetlinkBytes &message(
        quint16 type, const Header &header, quint16 flags = NLM_F_MULTI, quint32 number = sequence)
    {
        m_start = m_bytes.size();
        m_hasMessage = true;
        append(nlmsghdr{.nlmsg_len = sizeof(nlmsghdr) + sizeof header,
            .nlmsg_type = type,
            .nlmsg_flags = flags,
            .nlmsg_seq = number,
            .nlmsg_pid = 0});
        append(header);
        return *this;
    }

    NetlinkBytes &attribute(quint16 type, const QByteArray &value)
    {
        append(nlattr{.nla_len = static_cast<quint16>(sizeof(nlattr) + std::size_t(value.size())),
            .nla_type = type});
        m_bytes.insert(m_bytes.end(), value.begin(), value.end());
        m_bytes.resize((m_bytes.size() + 3) & ~std::size_t{3}, '\0');
        if (m_hasMessage) {
            setMessageLength(m_bytes.size() - m_start);
        }
        return *this;
    }

    NetlinkBytes &text(quint16 type, const char *value)
    {
        return attribute(type, QByteArray(value, static_cast<qsizetype>(std::strlen(value)) + 1));
    }

    /// A lie about how long the last message is.
    NetlinkBytes &setMessageLength(std::size_t length)
    {
        const auto value = static_cast<quint32>(length);
        std::memcpy(m_bytes.data() + m_start, &value, sizeof value);
        return *this;
    }

    NetlinkBytes &cutTo(std::size_t size)
    {
        m_bytes.resize(size);
        return *this;
    }

    std::size_t size() const { return m_bytes.size(); }
    QByteArray payload() const { return {m_bytes.data(), static_cast<qsizetype>(m_bytes.size())}; }
    std::span<const std::byte> span() const { return std::as_bytes(std::span(m_bytes)); }

private:
    template <typename T>
    void append(const T &value)
    {
        const auto *bytes = reinterpret_cast<const char *>(&value);
        m_bytes.insert(m_bytes.end(), bytes, bytes + sizeof value);
    }

    std::vector<char> m_bytes;
    std::size_t m_start = 0;
    bool m_hasMessage = false; ///< without one the bytes are nested attributes
};

} // namespace quillon::test
