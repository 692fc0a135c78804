// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/linux/netlink/LinkMessages.h"

#include <functional>
#include <memory>

struct nl_msg;
struct nl_sock;

namespace quillon {

/// A socket of the kernel's routing family for questions and answers; moves, never shared.
class RouteSocket
{
public:
    /// Unusable (all answers empty, with a log line) when the kernel gives none.
    RouteSocket();

    /// All links, without their statistics.
    LinkMessages links();
    /// One link by name; no link and ENODEV when there is none.
    LinkMessages link(const QByteArray &name);
    /// The IPv4 addresses of one link, or of all (0), in the kernel's order.
    LinkMessages addresses(int index = 0);
    /// The default routes of one family, AF_INET or AF_INET6.
    LinkMessages defaultRoutes(int family);

private:
    struct Free
    {
        void operator()(nl_sock *socket) const;
    };

    LinkMessages ask(nl_msg *message);
    LinkMessages askForTable(const std::function<nl_msg *()> &message);

    std::unique_ptr<nl_sock, Free> m_socket;
};

} // namespace quillon
