// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/PutBackNexthops.h"

#include "helper/MessageBody.h"
#include "netlink/NetlinkAttributes.h"

#include <algorithm>
#include <linux/nexthop.h>
#include <linux/rtnetlink.h>

namespace quillon {

namespace {

using Message = LinkConfiguration::Message;
using NexthopAttributes = NetlinkAttributes<NHA_MAX>;

NexthopAttributes attributesOfNexthop(const Message &nexthop)
{
    return NexthopAttributes(attributesOf(nexthop, sizeof(nhmsg)));
}

std::uint32_t idOf(const Message &nexthop)
{
    return attributesOfNexthop(nexthop).value<std::uint32_t>(NHA_ID).value_or(0);
}

bool isPlainGroup(const NexthopAttributes &attributes)
{
    return attributes.has(NHA_GROUP) &&
           attributes.value<std::uint16_t>(NHA_GROUP_TYPE).value_or(NEXTHOP_GRP_TYPE_MPATH) ==
               NEXTHOP_GRP_TYPE_MPATH;
}

} // namespace

std::optional<Message> nexthopToPutBack(const nlmsghdr *message, const LinkState &link)
{
    auto header = headerOf<nhmsg>(*message);
    if (message->nlmsg_type != RTM_NEWNEXTHOP || !header) {
        return std::nullopt;
    }
    const NexthopAttributes attributes(attributesOf<nhmsg>(*message));
    if (attributes.value<int>(NHA_OIF) != link.index && !isPlainGroup(attributes)) {
        return std::nullopt;
    }
    // The scope and the other flags are the kernel's findings, and it refuses to take them back.
    header->nh_scope = 0;
    header->nh_flags &= RTNH_F_ONLINK;
    Message body;
    append(body, &*header, sizeof *header);
    for (int type : {NHA_ID, NHA_GROUP, NHA_OIF, NHA_GATEWAY, NHA_ENCAP_TYPE, NHA_ENCAP, NHA_FDB}) {
        if (attributes.has(type)) {
            appendAttribute(body, attributes.find(type));
        }
    }
    return body;
}

std::vector<std::uint32_t> membersOf(const Message &nexthop)
{
    const auto attributes = attributesOfNexthop(nexthop);
    ByteSpan group = attributes.bytes(NHA_GROUP);
    std::vector<std::uint32_t> members;
    for (nexthop_grp member{}; group.size() >= sizeof member;
        group = group.subspan(sizeof member)) {
        std::memcpy(&member, group.data(), sizeof member);
        members.push_back(member.id);
    }
    return members;
}

std::set<std::uint32_t> keepConcerned(std::vector<Message> &nexthops)
{
    const auto firstGroup = std::stable_partition(nexthops.begin(), nexthops.end(),
        [](const Message &nexthop) { return membersOf(nexthop).empty(); });
    std::set<std::uint32_t> ids;
    std::transform(nexthops.begin(), firstGroup, std::inserter(ids, ids.end()), idOf);
    // No group is in another.
    const auto objects = ids;
    nexthops.erase(std::remove_if(firstGroup, nexthops.end(),
                       [&](const Message &group) {
                           const auto members = membersOf(group);
                           return std::none_of(members.begin(), members.end(),
                               [&](std::uint32_t id) { return objects.contains(id); });
                       }),
        nexthops.end());
    std::transform(nexthops.begin(), nexthops.end(), std::inserter(ids, ids.end()), idOf);
    return ids;
}

} // namespace quillon
