// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "exposure/LinkIdentifiers.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

using Lasts = Trace::Lasts;
using Made = ExposureFacts::Made;

QByteArray hex(const char *text)
{
    return QByteArray::fromHex(text);
}

class LinkIdentifiersTest : public testing::Test
{
protected:
    Lasts ofIdentifier(const char *octets, Made made = Made::Unknown) const
    {
        return lastingOfClientIdentifier(hex(octets), made, link);
    }
    Lasts ofDuid(const char *octets, Made made = Made::Unknown) const
    {
        return lastingOfDuid(hex(octets), made, link);
    }

    LinkAddresses link{.inUse = hex("020000005411"), .hardware = hex("00005e005301")};
};

TEST_F(LinkIdentifiersTest, ReadAnAddress)
{
    EXPECT_EQ(linkOctets(u"00:00:5E:00:53:01"_s), link.hardware);
    EXPECT_EQ(linkOctets(u"00:00:5e:00:53"_s), QByteArray());
    EXPECT_EQ(linkOctets({}), QByteArray());
}

TEST_F(LinkIdentifiersTest, FollowTheAddressThatTheyAreMadeOf)
{
    EXPECT_EQ(ofIdentifier("01020000005411"), Lasts::FollowsAddress);
    EXPECT_EQ(ofDuid("00030001020000005411", Made::OfAddressInUse), Lasts::FollowsAddress);
    link.hardware = link.inUse;
    EXPECT_EQ(ofIdentifier("01020000005411"), Lasts::FollowsAddress);
}

TEST_F(LinkIdentifiersTest, NameTheHardwareAddress)
{
    EXPECT_EQ(ofIdentifier("0100005e005301"), Lasts::NamesHardwareAddress);
    EXPECT_EQ(ofIdentifier("0100005e005301", Made::OfAddressInUse), Lasts::NamesHardwareAddress)
        << "what is sent counts, not what the settings say";
    EXPECT_EQ(ofDuid("0003000100005e005301"), Lasts::NamesHardwareAddress);
    EXPECT_EQ(ofDuid("000100012d00000100005e005301"), Lasts::NamesHardwareAddress);
    EXPECT_EQ(ofIdentifier("ff5e005301000100012d00000100005e005301"), Lasts::NamesHardwareAddress);
    link.inUse = link.hardware;
    EXPECT_EQ(ofDuid("000100012d00000100005e005301"), Lasts::NamesHardwareAddress)
        << "it is kept in a file";
    EXPECT_EQ(ofIdentifier("0100005e005301", Made::OfHardwareAddress), Lasts::NamesHardwareAddress);
}

TEST_F(LinkIdentifiersTest, NameAnotherAddress)
{
    EXPECT_EQ(ofIdentifier("01020000005422"), Lasts::NamesOtherAddress);
    EXPECT_EQ(ofDuid("00030001020000005422"), Lasts::NamesOtherAddress);
    EXPECT_EQ(ofIdentifier("01020000005422", Made::Fixed), Lasts::Always)
        << "somebody has chosen it";
    EXPECT_EQ(ofDuid("00030001020000005422", Made::OfConnection), Lasts::OnThisNetwork)
        << "it only looks like an address";
}

TEST_F(LinkIdentifiersTest, AreTheMachinesOrTheConnections)
{
    EXPECT_EQ(ofDuid("0004000102030405060708090a0b0c0d0e0f"), Lasts::Always);
    EXPECT_EQ(ofDuid("00020000ab11deadbeefdeadbeef"), Lasts::Always);
    EXPECT_EQ(ofIdentifier("ffb6220feb00020000ab11deadbeefdeadbeef"), Lasts::Always);
    EXPECT_EQ(ofIdentifier("00deadbeef", Made::OfConnection), Lasts::OnThisNetwork);
    EXPECT_EQ(
        ofDuid("0004000102030405060708090a0b0c0d0e0f", Made::OfConnection), Lasts::OnThisNetwork);
    EXPECT_EQ(ofIdentifier("006c6170746f70", Made::Fixed), Lasts::Always);
}

TEST_F(LinkIdentifiersTest, AreNotTakenForSafeWhenTheyAreNotKnown)
{
    EXPECT_EQ(ofIdentifier(""), Lasts::Unknown);
    EXPECT_EQ(ofDuid(""), Lasts::Unknown);
    EXPECT_EQ(ofIdentifier("006c6170746f70"), Lasts::Unknown);
    EXPECT_EQ(ofDuid("00030001020000005411"), Lasts::Unknown)
        << "made of the address in use, and perhaps kept";
    EXPECT_EQ(lastingOfDuid(hex("0003000100005e005301"), Made::Unknown, {}), Lasts::Unknown);
}

TEST_F(LinkIdentifiersTest, AreMadeOfWhatTheSettingsSayWhereNothingWasSeen)
{
    EXPECT_EQ(ofIdentifier("", Made::OfAddressInUse), Lasts::FollowsAddress);
    EXPECT_EQ(ofIdentifier("", Made::OfHardwareAddress), Lasts::NamesHardwareAddress);
    EXPECT_EQ(ofDuid("", Made::OfMachine), Lasts::Always);
    EXPECT_EQ(ofDuid("", Made::OfConnection), Lasts::OnThisNetwork);
}

TEST_F(LinkIdentifiersTest, MayBeCutAnywhere)
{
    const QByteArray whole = hex("ff5e005301000100012d00000100005e005301");
    for (qsizetype length = 0; length <= whole.size(); ++length) {
        const QByteArray cut = whole.left(length);
        const Lasts lasts = lastingOfClientIdentifier(cut, Made::Unknown, link);
        EXPECT_EQ(lasts == Lasts::NamesHardwareAddress, length == whole.size()) << length;
        lastingOfDuid(cut, Made::Unknown, link);
        EXPECT_EQ(linkAddressIn(cut), QByteArray()) << length;
    }
}

TEST_F(LinkIdentifiersTest, FindTheAddressInAnIpv6Address)
{
    EXPECT_EQ(linkAddressIn(hex("fe80000000000000 02005efffe005301")), link.hardware);
    EXPECT_EQ(linkAddressIn(hex("20010db800000000 00000 0fffe005411")), link.inUse);
    EXPECT_EQ(linkAddressIn(hex("20010db800000000 1234567890abcdef")), QByteArray());
}

} // namespace
} // namespace quillon::test
