// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "helper/KernelLink.h"

#include <functional>
#include <utility>

namespace quillon {

class NetlinkSocket;

/// Puts the routes and nexthop objects of one LinkConfiguration back by rtnetlink.
class NetlinkRoutes
{
public:
    using Pause = std::function<void()>;

    /// `pause` is one of the at most `maximalPauses` between two looks at an address that a route
    /// waits for. The socket must outlive this.
    NetlinkRoutes(NetlinkSocket &socket, Pause pause);

    static constexpr int maximalPauses = 60;

    /// `isTaken` tells whether somebody has taken an IPv4 address away that the routes were read
    /// with. What needs it then does not come back, and that is no error. It may be taken at any
    /// moment, a little after its routes.
    void watchAddresses(std::function<bool()> isTaken) { m_isAddressTaken = std::move(isTaken); }

    /// Tries everything and returns 0 or the first errno of the kernel.
    int putBack(const LinkConfiguration &configuration);

    /// How many routes came back without the source address that they had named.
    int sourcesLost() const { return m_sourcesLost; }
    /// How many nexthop objects and groups are not as they were: there is no carrier, without which
    /// the kernel takes none. Their routes come back with the hops written out.
    int nexthopsLost() const { return m_nexthopsLost; }
    /// How many routes and nexthop objects went with an address that was taken.
    int takenWithAddress() const { return m_takenWithAddress; }

private:
    int putNexthopBack(const LinkConfiguration::Message &nexthop);
    int putRouteBack(const LinkConfiguration::Route &route);
    int unlessTaken(int family, const std::function<int()> &attempt);
    int add(const LinkConfiguration::Message &route, int flags);
    int addPatiently(const LinkConfiguration::Message &route, int flags);
    bool nexthopExists(std::uint32_t id);
    bool isSourceBeingChecked(const LinkConfiguration::Message &route);
    bool hasCarrier(int index);

    NetlinkSocket &m_socket;
    Pause m_pause;
    /// Shared by all routes: what is still wrong after that long stays wrong for the next one too.
    int m_pausesLeft = maximalPauses;
    std::function<bool()> m_isAddressTaken;
    int m_takenWithAddress = 0;
    int m_sourcesLost = 0;
    int m_nexthopsLost = 0;
};

} // namespace quillon
