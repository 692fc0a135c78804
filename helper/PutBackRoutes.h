// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "helper/KernelLink.h"
#include "netlink/ByteSpan.h"

#include <optional>
#include <set>

struct nlmsghdr;

namespace quillon {

/// The part of PutBack.h that is about routes. A result is the body of RTM_NEWROUTE.

/// None when `message` is not a route through `link` or through one of the nexthop objects with
/// these ids, or one that the kernel or the next router advertisement makes by itself. A route
/// through an object names the object, and its hops as well where the kernel tells them.
std::optional<LinkConfiguration::Message> routeToPutBack(
    const nlmsghdr *message, const LinkState &link, const std::set<std::uint32_t> &nexthops);

// Of a result of routeToPutBack().

/// The order in which routes come back: those without a gateway first, so that gateways are
/// reachable, before nexthop objects; then those through objects without a gateway; then the
/// others.
int orderOf(const LinkConfiguration::Message &route);
/// The nexthop object's id.
std::optional<std::uint32_t> nexthopOf(const LinkConfiguration::Message &route);
/// The kernel takes one of the two alone.
LinkConfiguration::Message withoutHops(const LinkConfiguration::Message &route);
LinkConfiguration::Message withoutNexthop(const LinkConfiguration::Message &route);
bool hasHops(const LinkConfiguration::Message &route);
/// Empty when it names none.
ByteSpan sourceOf(const LinkConfiguration::Message &route);
/// An IPv6 route may name an address only when duplicate address detection has passed it.
bool namesSourceIPv6(const LinkConfiguration::Message &route);
LinkConfiguration::Message withoutSource(const LinkConfiguration::Message &route);

} // namespace quillon
