// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/netlink/NextHopObjects.h"

#include "netlink/NetlinkAttributes.h"

#include <cstring>
#include <linux/nexthop.h>

namespace quillon {

namespace {

QList<quint32> groupIn(ByteSpan bytes)
{
    QList<quint32> ids;
    for (; bytes.size() >= sizeof(nexthop_grp); bytes = bytes.subspan(sizeof(nexthop_grp))) {
        nexthop_grp entry{};
        std::memcpy(&entry, bytes.data(), sizeof entry);
        ids.append(entry.id);
    }
    return ids;
}

} // namespace

std::optional<NextHopObject> nextHopObject(const nlmsghdr &message)
{
    const auto about = headerOf<nhmsg>(message);
    const NetlinkAttributes<NHA_MAX> attributes(attributesOf<nhmsg>(message));
    const auto id = attributes.value<quint32>(NHA_ID);
    if (!about || !id) {
        return std::nullopt;
    }
    NextHopObject object;
    object.id = *id;
    object.group = groupIn(attributes.bytes(NHA_GROUP));
    if (const auto index = attributes.value<int>(NHA_OIF); index && !isDeadHop(about->nh_flags)) {
        object.hop = NextHop{*index, internetAddressText(attributes.bytes(NHA_GATEWAY))};
    }
    return object;
}

QList<NextHop> hopsOf(const DefaultRoute &route, const NextHopObjects &objects)
{
    QList<NextHop> hops = route.hops;
    const auto append = [&](quint32 id) {
        if (const auto hop = objects.value(id).hop) {
            hops.append(*hop);
        }
    };
    if (route.object != 0) {
        append(route.object);
        const QList<quint32> group = objects.value(route.object).group;
        for (const quint32 id : group) {
            append(id);
        }
    }
    return hops;
}

} // namespace quillon
