// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "helper/KernelLink.h"

#include <optional>
#include <set>

struct nlmsghdr;

namespace quillon {

// The part of PutBack.h that is about nexthop objects, which the kernel deletes when their
// interface goes down, and of which it takes them out of their groups. A body is that of
// RTM_NEWNEXTHOP.

/// None when `message` is neither an object that leads out through `link` nor a group. Resilient
/// groups are none here: a kernel that has taken a hop out does not take the same group again.
std::optional<LinkConfiguration::Message> nexthopToPutBack(
    const nlmsghdr *message, const LinkState &link);

/// Of the kernel's whole table, through nexthopToPutBack(): leaves out the groups that have none of
/// the objects, and puts the others behind the objects. Returns the ids of all that are left.
std::set<std::uint32_t> keepConcerned(std::vector<LinkConfiguration::Message> &nexthops);

/// The ids in a group; none of anything else.
std::vector<std::uint32_t> membersOf(const LinkConfiguration::Message &nexthop);

} // namespace quillon
