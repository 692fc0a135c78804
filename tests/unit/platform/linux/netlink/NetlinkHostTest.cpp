// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/netlink/NetlinkHost.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

const LinkMessages link{.links = {{.index = 4,
                            .type = 1,
                            .flags = 0,
                            .operationalState = 6,
                            .name = u"eth0"_s,
                            .address = u"02:00:00:00:00:01"_s,
                            .permanentAddress = {},
                            .kind = {},
                            .parentBus = {}}},
    .addresses = {},
    .routes = {},
    .nextHops = {}};
const LinkMessages addresses{.links = {},
    .addresses = {{4, u"192.0.2.1"_s}, {4, u"192.0.2.2"_s}},
    .routes = {},
    .nextHops = {}};

LinkMessages failed(LinkMessages messages, int error)
{
    messages.error = error;
    return messages;
}

} // namespace

TEST(NetlinkHost, TellsOfAnInterfaceWhatBothAnswersSay)
{
    EXPECT_EQ(interfaceInfo(u"eth0"_s, link, addresses),
        (InterfaceInfo{u"192.0.2.1"_s, u"02:00:00:00:00:01"_s, u"active"_s}));
}

TEST(NetlinkHost, TellsNothingWhereOneOfTheAnswersFailed)
{
    const InterfaceInfo unread{.readFailed = true};
    EXPECT_EQ(interfaceInfo(u"eth0"_s, failed(link, EIO), addresses), unread);
    EXPECT_EQ(interfaceInfo(u"eth0"_s, link, failed(addresses, EINTR)), unread);
    EXPECT_EQ(interfaceInfo(u"eth0"_s, failed({}, EIO), {}), unread);
}

TEST(NetlinkHost, TellsNothingOfAnInterfaceThatIsNotThere)
{
    EXPECT_EQ(interfaceInfo(u"eth0"_s, failed({}, ENODEV), {}), InterfaceInfo{});
    EXPECT_EQ(interfaceInfo(u"alias0"_s, link, addresses), InterfaceInfo{}) << "another name of it";
}

} // namespace quillon::test
