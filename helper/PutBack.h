// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "helper/KernelLink.h"

#include <optional>

struct nlmsghdr;

namespace quillon {

/// From the kernel's tables to the messages that restore an interface's configuration after it was
/// down: pure functions of messages. A result is a message's body (after its header), ready for
/// RTM_NEWADDR or RTM_NEWNEIGH. Routes are in PutBackRoutes.h.

/// None when `message` is not an address of `link`, or one that the kernel makes by itself:
/// temporary and stable-privacy IPv6 addresses and those formed from the
/// link-layer address, which would betray the address that was just left.
std::optional<LinkConfiguration::Message> addressToPutBack(
    const nlmsghdr *message, const LinkState &link);

/// The IPv6 address in `message` as a body for RTM_DELADDR, or for formedAnew(). None when it is
/// not of `link`, or was formed from no link-layer address: not from that of `link`, nor by the
/// kernel from an earlier one.
std::optional<LinkConfiguration::Message> formedAddress(
    const nlmsghdr *message, const LinkState &link);

/// The same address, flags and what is left of its lifetimes, for a link with that link-layer
/// address: a body for RTM_NEWADDR.
LinkConfiguration::Message formedAnew(
    const LinkConfiguration::Message &formed, const contract::LinkLayerAddress &link);
/// The index of the link that it is an address of; 0 for what is no body of an address.
int linkOfAddress(const LinkConfiguration::Message &address);

/// None when `message` is not a neighbor of `link`, or one that the kernel learned or made by
/// itself. Static entries keep a spoofed answer from being believed.
std::optional<LinkConfiguration::Message> neighborToPutBack(
    const nlmsghdr *message, const LinkState &link);

} // namespace quillon
