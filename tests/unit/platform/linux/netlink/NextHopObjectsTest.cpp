// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/netlink/NextHopObjects.h"

#include "unit/netlink/NetlinkBytes.h"

#include <gtest/gtest.h>

#include <linux/nexthop.h>
#include <linux/rtnetlink.h>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

const QByteArray router = QByteArray::fromHex("c0000201");

QByteArray number(quint32 value)
{
    return {reinterpret_cast<const char *>(&value), sizeof value};
}

QByteArray member(quint32 id)
{
    // Newer kernels have found use for the reserved fields.
    nexthop_grp entry{};
    entry.id = id;
    return {reinterpret_cast<const char *>(&entry), sizeof entry};
}

std::optional<NextHopObject> read(
    std::initializer_list<std::pair<int, QByteArray>> list, quint32 flags = 0)
{
    nhmsg header{};
    header.nh_flags = flags;
    NetlinkBytes bytes;
    bytes.message(RTM_NEWNEXTHOP, header);
    for (const auto &[type, value] : list) {
        bytes.attribute(static_cast<quint16>(type), value);
    }
    std::optional<NextHopObject> object;
    forEachMessage(bytes.span(), [&](const nlmsghdr &message) { object = nextHopObject(message); });
    return object;
}

NextHopObjects tableOf(std::initializer_list<std::optional<NextHopObject>> objects)
{
    NextHopObjects table;
    for (const auto &object : objects) {
        table.insert(object.value().id, object.value());
    }
    return table;
}

} // namespace

TEST(NextHopObjects, OneIsAHopOrAGroup)
{
    const auto hop = read({{NHA_ID, number(7)}, {NHA_OIF, number(3)}, {NHA_GATEWAY, router}});
    EXPECT_EQ(hop, (NextHopObject{.id = 7, .hop = NextHop{3, u"192.0.2.1"_s}, .group = {}}));
    const auto group = read({{NHA_ID, number(8)}, {NHA_GROUP, member(7) + member(9)}});
    EXPECT_EQ(group, (NextHopObject{.id = 8, .hop = {}, .group = {7, 9}}));
    EXPECT_EQ(read({{NHA_ID, number(7)}, {NHA_OIF, number(3)}})->hop, (NextHop{3, QString()}));
}

TEST(NextHopObjects, OneThatLeadsNowhereHasNoHop)
{
    EXPECT_FALSE(read({{NHA_ID, number(7)}, {NHA_BLACKHOLE, QByteArray()}})->hop);
    EXPECT_FALSE(read({{NHA_ID, number(7)}, {NHA_OIF, number(3)}}, RTNH_F_DEAD)->hop);
    EXPECT_FALSE(read({{NHA_ID, number(7)}, {NHA_OIF, number(3)}}, RTNH_F_LINKDOWN)->hop);
}

TEST(NextHopObjects, WithoutAnIdThereIsNone)
{
    EXPECT_FALSE(read({{NHA_OIF, number(3)}}));
    EXPECT_FALSE(read({{NHA_ID, QByteArray(3, '\1')}}));
}

TEST(NextHopObjects, AGroupThatIsCutShortHasWholeMembersOnly)
{
    const QByteArray whole = member(7) + member(9);
    for (qsizetype size = 0; size < whole.size(); ++size) {
        const auto group = read({{NHA_ID, number(8)}, {NHA_GROUP, whole.first(size)}});
        EXPECT_EQ(group->group.size(), size / qsizetype(sizeof(nexthop_grp))) << size;
    }
}

TEST(NextHopObjects, GiveARouteItsHops)
{
    const NextHopObjects objects = tableOf({
        read({{NHA_ID, number(7)}, {NHA_OIF, number(3)}, {NHA_GATEWAY, router}}),
        read({{NHA_ID, number(9)}, {NHA_OIF, number(4)}}),
        read({{NHA_ID, number(8)}, {NHA_GROUP, member(7) + member(9) + member(10)}}),
    });
    const NextHop seven{3, u"192.0.2.1"_s};
    const NextHop nine{4, QString()};
    EXPECT_EQ(hopsOf({.hops = {nine}, .object = 0}, objects), QList<NextHop>{nine});
    EXPECT_EQ(hopsOf({.hops = {}, .object = 7}, objects), QList<NextHop>{seven});
    EXPECT_EQ(hopsOf({.hops = {}, .object = 8}, objects), (QList<NextHop>{seven, nine}));
    EXPECT_EQ(hopsOf({.hops = {}, .object = 11}, objects), QList<NextHop>());
}

} // namespace quillon::test
