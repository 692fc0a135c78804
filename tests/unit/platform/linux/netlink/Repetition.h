// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "netlink/NetlinkMessage.h"
#include "unit/netlink/NetlinkBytes.h"

namespace quillon::test {

/// What `known`, the addresses or the routes, says of a datagram's last message.
template <typename Known>
bool lastIsRepeated(Known &known, const NetlinkBytes &bytes)
{
    bool repeated = false;
    forEachMessage(
        bytes.span(), [&](const nlmsghdr &message) { repeated = known.isRepeated(message); });
    return repeated;
}

} // namespace quillon::test
