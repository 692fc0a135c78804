// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "integration/platform/linux/Commands.h"

#include <chrono>
#include <thread>

namespace quillon::test {

/// In the sandbox, a card "own0" with a lease of an IPv4 address, at a wire whose other end is
/// "far0". Nobody manages them.
class WiredPair
{
public:
    WiredPair()
    {
        ip("link add own0 address 02:00:00:00:00:a1 type veth peer name far0");
        ip("link set far0 up");
        ip("link set own0 up");
        ip("address add 192.0.2.77/24 dev own0 valid_lft 4000 preferred_lft 3000");
        // The kernel dates a lease in hundredths of a second: a renewal shall have another date.
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    ~WiredPair()
    {
        if (!m_isGone) {
            ip("link delete own0");
        }
    }
    WiredPair(const WiredPair &) = delete;
    WiredPair &operator=(const WiredPair &) = delete;

    static QString name() { return QStringLiteral("own0"); }
    /// As the helper does it: the kernel forms its IPv6 addresses anew.
    void change(const char *address = "02:00:00:00:00:a2")
    {
        ip("link set own0 down");
        ip(QByteArray("link set own0 address ") + address);
        ip("link set own0 up");
    }
    /// As a DHCP client does it.
    void renewLease()
    {
        ip("address change 192.0.2.77/24 dev own0 valid_lft 5000 preferred_lft 4000");
    }
    void remove()
    {
        ip("link delete own0");
        m_isGone = true;
    }
    static void ip(const QByteArray &arguments)
    {
        command(QStringLiteral("ip ") + QLatin1String(arguments));
    }

private:
    bool m_isGone = false;
};

} // namespace quillon::test
