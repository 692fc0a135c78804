// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "helper/KernelLink.h"

#include <functional>

namespace quillon {

class NetlinkSocket;

/// Puts the routes of one LinkConfiguration back by rtnetlink.
class NetlinkRoutes
{
public:
    using Pause = std::function<void()>;

    /// `pause` is one of the at most `maximalPauses` between two looks at an address that a route
    /// waits for. The socket must outlive this.
    NetlinkRoutes(NetlinkSocket &socket, Pause pause);

    static constexpr int maximalPauses = 60;

    /// 0 or the kernel's errno.
    int putBack(const LinkConfiguration::Message &route);

    /// How many came back without the source address that they had named.
    int sourcesLost() const { return m_sourcesLost; }

private:
    int putBackPatiently(const LinkConfiguration::Message &route);
    bool isSourceBeingChecked(const LinkConfiguration::Message &route);
    bool hasCarrier(int index);

    NetlinkSocket &m_socket;
    Pause m_pause;
    /// Shared by all routes: what is still wrong after that long stays wrong for the next one too.
    int m_pausesLeft = maximalPauses;
    int m_sourcesLost = 0;
};

} // namespace quillon
