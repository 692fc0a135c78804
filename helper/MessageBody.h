// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "helper/KernelLink.h"
#include "netlink/ByteSpan.h"

#include <netlink/attr.h>

#include <initializer_list>

namespace quillon {

class NetlinkSocket;

// Bodies of rtnetlink messages: a header (ifaddrmsg, rtmsg and the like), then attributes, each at
// a boundary of four bytes.

void append(LinkConfiguration::Message &body, const void *data, std::size_t size);
void appendAttribute(LinkConfiguration::Message &body, const nlattr *attribute);
void appendNumber(LinkConfiguration::Message &body, int type, std::uint32_t value);

/// Those after the header.
ByteSpan attributesOf(const LinkConfiguration::Message &body, std::size_t headerSize);

/// The body without its attributes of these types.
LinkConfiguration::Message without(const LinkConfiguration::Message &body, std::size_t headerSize,
    std::initializer_list<int> types);

/// Has the kernel remove what `body` describes: `type` is RTM_DEL…. Returns 0 or the kernel's
/// errno; what is not there, or belongs to an interface that has gone, is no error.
int remove(NetlinkSocket &socket, int type, const LinkConfiguration::Message &body);

/// Has the kernel create what `body` describes: `type` is RTM_NEW…, `flags` NLM_F_… beside
/// NLM_F_CREATE. Returns 0 or the kernel's errno; what is there already, or belongs to an interface
/// that has gone, is no error.
int create(NetlinkSocket &socket, int type, int flags, const LinkConfiguration::Message &body);

} // namespace quillon
