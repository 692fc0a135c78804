// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/netlink/KnownAddresses.h"

#include "unit/platform/linux/netlink/Repetition.h"

#include <gtest/gtest.h>

#include <linux/if_addr.h>
#include <linux/rtnetlink.h>
#include <sys/socket.h>

namespace quillon::test {

namespace {

struct Address
{
    quint16 type = RTM_NEWADDR;
    quint8 family = AF_INET6;
    quint32 index = 4;
    quint8 prefix = 64;
    quint32 flags = 0;
    QByteArray octets = QByteArray(16, '\1');
};

bool isRepeated(KnownAddresses &known, const Address &address)
{
    ifaddrmsg header{};
    header.ifa_family = address.family;
    header.ifa_index = address.index;
    header.ifa_prefixlen = address.prefix;
    NetlinkBytes bytes;
    bytes.message(address.type, header)
        .attribute(IFA_ADDRESS, address.octets)
        .attribute(IFA_FLAGS, QByteArray(reinterpret_cast<const char *>(&address.flags), 4));
    return lastIsRepeated(known, bytes);
}

} // namespace

TEST(KnownAddresses, AreToldOnceWhateverElseIsToldOfThem)
{
    KnownAddresses known;
    EXPECT_FALSE(isRepeated(known, {.flags = IFA_F_TENTATIVE}));
    EXPECT_TRUE(isRepeated(known, {.flags = IFA_F_PERMANENT}));
    EXPECT_TRUE(isRepeated(known, {}));
}

TEST(KnownAddresses, DifferByInterfaceFamilyPrefixAndOctets)
{
    KnownAddresses known;
    isRepeated(known, {});
    EXPECT_FALSE(isRepeated(known, {.index = 5}));
    EXPECT_FALSE(isRepeated(known, {.family = AF_INET, .octets = QByteArray(4, '\1')}));
    EXPECT_FALSE(isRepeated(known, {.prefix = 128}));
    EXPECT_FALSE(isRepeated(known, {.octets = QByteArray(16, '\2')}));
    EXPECT_TRUE(isRepeated(known, {})) << "the first one still";
}

TEST(KnownAddresses, AreNewAgainAfterTheyWereTakenAway)
{
    KnownAddresses known;
    isRepeated(known, {});
    EXPECT_FALSE(isRepeated(known, {.type = RTM_DELADDR}));
    EXPECT_FALSE(isRepeated(known, {.type = RTM_DELADDR})) << "whatever it tells of";
    EXPECT_FALSE(isRepeated(known, {}));
}

TEST(KnownAddresses, AreAllNewAfterMessagesWereLost)
{
    KnownAddresses known;
    isRepeated(known, {});
    known.forget();
    EXPECT_FALSE(isRepeated(known, {}));
}

TEST(KnownAddresses, NothingElseIsRepeated)
{
    KnownAddresses known;
    for (const quint16 type : {RTM_NEWLINK, RTM_DELLINK, RTM_NEWROUTE, RTM_DELROUTE}) {
        EXPECT_FALSE(isRepeated(known, {.type = type})) << type;
        EXPECT_FALSE(isRepeated(known, {.type = type})) << type;
    }
    NetlinkBytes bytes;
    bytes.message(RTM_NEWADDR, char{});
    EXPECT_FALSE(lastIsRepeated(known, bytes)) << "shorter than its header";
    EXPECT_FALSE(lastIsRepeated(known, bytes));
}

} // namespace quillon::test
