// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "netlink/NetlinkMessage.h"
#include "platform/ExposureSource.h"

#include <chrono>
#include <optional>

namespace quillon {

/// The IPv6 address in an RTM_NEWADDR message; none for any other message, and for one that is no
/// address yet because another computer has it. `now` is the time since the machine's start, as
/// the kernel's counter of ticks has it.
std::optional<ExposureFacts::Ipv6Address> ipv6AddressIn(
    const nlmsghdr &message, std::chrono::milliseconds now);

/// Those of one interface, in the kernel's order, link-local ones last; none when they cannot be
/// read. Any thread.
std::optional<QList<ExposureFacts::Ipv6Address>> kernelIpv6Addresses(int index);

} // namespace quillon
