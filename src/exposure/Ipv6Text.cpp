// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "exposure/Ipv6Text.h"

#include <arpa/inet.h>
#include <array>

namespace quillon {

QString ipv6Text(const QByteArray &octets)
{
    std::array<char, INET6_ADDRSTRLEN> text{};
    if (octets.size() != static_cast<qsizetype>(sizeof(in6_addr)) ||
        inet_ntop(AF_INET6, octets.constData(), text.data(), text.size()) == nullptr) {
        return {};
    }
    return QString::fromLatin1(text.data());
}

} // namespace quillon
