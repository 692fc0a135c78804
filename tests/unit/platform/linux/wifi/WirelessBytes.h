// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "unit/netlink/NetlinkBytes.h"

#include <QByteArray>

#include <linux/genetlink.h>
#include <linux/nl80211.h>

namespace quillon::test {

// Messages of nl80211, attribute by attribute.

constexpr quint16 wirelessFamily = 28;

template <typename Number>
QByteArray numberBytes(Number number)
{
    return {reinterpret_cast<const char *>(&number), sizeof number};
}

inline QByteArray u32(quint32 number)
{
    return numberBytes(number);
}

inline QByteArray flag()
{
    return {};
}

/// Attributes one after the other, for nesting.
inline QByteArray attributes(std::initializer_list<std::pair<int, QByteArray>> list)
{
    NetlinkBytes bytes;
    for (const auto &[type, value] : list) {
        bytes.attribute(static_cast<quint16>(type), value);
    }
    return bytes.payload();
}

inline NetlinkBytes &addWireless(NetlinkBytes &bytes, int command,
    std::initializer_list<std::pair<int, QByteArray>> list, quint16 flags = NLM_F_MULTI)
{
    bytes.message(wirelessFamily, genlmsghdr{static_cast<quint8>(command), 1, 0}, flags);
    for (const auto &[type, value] : list) {
        bytes.attribute(static_cast<quint16>(type), value);
    }
    return bytes;
}

inline NetlinkBytes wireless(int command, std::initializer_list<std::pair<int, QByteArray>> list,
    quint16 flags = NLM_F_MULTI)
{
    NetlinkBytes bytes;
    addWireless(bytes, command, list, flags);
    return bytes;
}

} // namespace quillon::test
