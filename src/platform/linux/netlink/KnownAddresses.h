// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "netlink/NetlinkMessage.h"

#include <QByteArray>
#include <QSet>

namespace quillon {

/// The IPv4 and IPv6 addresses that the kernel has told of. It tells of each again whenever its
/// lifetime is renewed: with every announcement of an IPv6 router, which may come every few
/// seconds, and nothing has changed then.
class KnownAddresses
{
public:
    /// Whether the message tells only of an address that is known. To be asked of every message.
    bool isRepeated(const nlmsghdr &message);
    /// Messages were lost: each address is told of anew.
    void forget() { m_known.clear(); }

private:
    QSet<QByteArray> m_known;
};

} // namespace quillon
