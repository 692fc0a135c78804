// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/linux/netlink/DefaultRoute.h"

#include <QHash>

#include <optional>

namespace quillon {

/// What one RTM_NEWNEXTHOP message tells of a nexthop object: it is one hop, or a group of others.
struct NextHopObject
{
    quint32 id = 0;
    std::optional<NextHop> hop; ///< none for a group, a dead hop and one that swallows everything
    QList<quint32> group;       ///< ids

    bool operator==(const NextHopObject &) const = default;
};

/// None when the message has no id.
std::optional<NextHopObject> nextHopObject(const nlmsghdr &message);

/// By id.
using NextHopObjects = QHash<quint32, NextHopObject>;

/// The hops of a route: its own, or those of the object that it leads to. A group holds no groups.
QList<NextHop> hopsOf(const DefaultRoute &route, const NextHopObjects &objects);

} // namespace quillon
