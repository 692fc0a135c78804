// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/MessageBody.h"

#include "netlink/NetlinkSocket.h"

#include <algorithm>
#include <cerrno>

namespace quillon {

namespace {

using Message = LinkConfiguration::Message;

constexpr std::size_t aligned(std::size_t size)
{
    constexpr std::size_t boundary = NLMSG_ALIGNTO;
    return (size + boundary - 1) / boundary * boundary;
}

int send(NetlinkSocket &socket, int type, int flags, const Message &body)
{
    const NetlinkMessage message{nlmsg_alloc_size(body.size() + NLMSG_HDRLEN + NLMSG_ALIGNTO)};
    if (!message ||
        nlmsg_put(message.get(), NL_AUTO_PORT, NL_AUTO_SEQ, type, 0, flags) == nullptr) {
        return ENOMEM;
    }
    // The body is what the kernel would have sent after the header.
    auto *data = const_cast<std::uint8_t *>(body.data());
    if (nlmsg_append(message.get(), data, body.size(), NLMSG_ALIGNTO) < 0) {
        return ENOMEM;
    }
    return socket.request(message).error;
}

} // namespace

void append(Message &body, const void *data, std::size_t size)
{
    const auto *bytes = static_cast<const std::uint8_t *>(data);
    body.insert(body.end(), bytes, bytes + size);
    body.resize(aligned(body.size()));
}

void appendAttribute(Message &body, const nlattr *attribute)
{
    append(body, attribute, attribute->nla_len);
}

void appendNumber(Message &body, int type, std::uint32_t value)
{
    nlattr header{};
    header.nla_len = static_cast<std::uint16_t>(sizeof header + sizeof value);
    header.nla_type = static_cast<std::uint16_t>(type);
    append(body, &header, sizeof header);
    append(body, &value, sizeof value);
}

ByteSpan attributesOf(const Message &body, std::size_t headerSize)
{
    return std::as_bytes(std::span(body)).subspan(std::min(aligned(headerSize), body.size()));
}

Message without(const Message &body, std::size_t headerSize, std::initializer_list<int> types)
{
    const ByteSpan attributes = attributesOf(body, headerSize);
    Message rest;
    append(rest, body.data(), body.size() - attributes.size());
    const auto *attribute = reinterpret_cast<const nlattr *>(attributes.data());
    int left = static_cast<int>(attributes.size());
    for (; nla_ok(attribute, left) != 0; attribute = nla_next(attribute, &left)) {
        if (std::find(types.begin(), types.end(), nla_type(attribute)) == types.end()) {
            appendAttribute(rest, attribute);
        }
    }
    return rest;
}

int create(NetlinkSocket &socket, int type, int flags, const Message &body)
{
    const int error = send(socket, type, NLM_F_CREATE | flags, body);
    // A link that has gone meanwhile has nothing to restore.
    return error == EEXIST || error == ENODEV ? 0 : error;
}

int remove(NetlinkSocket &socket, int type, const Message &body)
{
    const int error = send(socket, type, 0, body);
    return error == EADDRNOTAVAIL || error == ENODEV ? 0 : error;
}

} // namespace quillon
