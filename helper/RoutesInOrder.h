// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "helper/KernelLink.h"

#include <optional>
#include <tuple>

struct nlmsghdr;

namespace quillon {

/// Collects the routes to put back from the kernel's table, message by message, and finds those
/// that have to come ahead of another interface's.
class RoutesInOrder
{
public:
    /// `links` are those that go down.
    explicit RoutesInOrder(const std::vector<LinkState> &links);

    /// `body` is what is to be put back of the route, if anything.
    void add(const nlmsghdr &message, std::optional<LinkConfiguration::Message> body);
    /// Begins anew.
    void clear();
    /// All of them, in the order in which they are to be put back.
    std::vector<LinkConfiguration::Route> take();

private:
    /// Routes that differ in nothing of it follow each other in the table.
    using Destination =
        std::tuple<std::uint32_t, std::uint32_t, std::uint8_t, std::uint8_t, std::uint32_t>;

    static std::optional<Destination> destinationOf(const nlmsghdr &message);
    bool staysMeanwhile(const nlmsghdr &message) const;

    const std::vector<LinkState> &m_links;
    std::vector<LinkConfiguration::Route> m_routes;
    std::optional<Destination> m_destination;
    std::size_t m_firstOfDestination = 0;
};

} // namespace quillon
