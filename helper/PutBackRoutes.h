// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "helper/KernelLink.h"
#include "netlink/ByteSpan.h"

#include <optional>

struct nlmsghdr;

namespace quillon {

/// The part of PutBack.h that is about routes. A result is the body of RTM_NEWROUTE.

/// None when `message` is not a route through `link`, or one that the kernel or the next router
/// advertisement makes by itself.
std::optional<LinkConfiguration::Message> routeToPutBack(
    const nlmsghdr *message, const LinkState &link);

// Of a result of routeToPutBack().

bool hasGateway(const LinkConfiguration::Message &route);
/// Empty when it names none.
ByteSpan sourceOf(const LinkConfiguration::Message &route);
/// An IPv6 route may name an address only when duplicate address detection has passed it.
bool namesSourceIPv6(const LinkConfiguration::Message &route);
LinkConfiguration::Message withoutSource(const LinkConfiguration::Message &route);

} // namespace quillon
