// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/exposure/NetworkdSettings.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

using Answer = ExposureFacts::Answer;
using Made = ExposureFacts::Made;

NetworkdDhcp sent(const QByteArray &network, const QByteArray &general = {})
{
    return sentByNetworkd(IniText(network), IniText(general), {});
}

TEST(NetworkdSettings, AreTheUsualOnesUnlessTold)
{
    const auto usual = sent("[Network]\nDHCP=yes\n");
    EXPECT_EQ(usual.ipv4.isUsed, Answer::Yes);
    EXPECT_EQ(usual.ipv4.sendsName, Answer::Yes);
    EXPECT_EQ(usual.ipv4.name, QString());
    EXPECT_EQ(usual.ipv4.sendsIdentifier, Answer::Yes);
    EXPECT_EQ(usual.ipv4.identifierMade, Made::OfMachine);
    EXPECT_EQ(usual.ipv6.isUsed, Answer::Unknown) << "the router decides";
    EXPECT_EQ(usual.ipv6.identifierMade, Made::OfMachine);
}

TEST(NetworkdSettings, SayWhetherThereIsDhcp)
{
    EXPECT_EQ(sent("[Network]\nDHCP=ipv6\n").ipv4.isUsed, Answer::No);
    EXPECT_EQ(sent("[Network]\nDHCP=ipv4\n").ipv4.isUsed, Answer::Yes);
    EXPECT_EQ(sent("[Network]\nAddress=192.0.2.1/24\n").ipv4.isUsed, Answer::No);
    EXPECT_EQ(sent("[Network]\nDHCP=perhaps\n").ipv4.isUsed, Answer::Unknown);
    EXPECT_EQ(sent("[Network]\nIPv6AcceptRA=no\n").ipv6.isUsed, Answer::No);
    EXPECT_EQ(sent("[Network]\nDHCP=no\n").ipv6.isUsed, Answer::Unknown) << "a router may ask";
}

TEST(NetworkdSettings, SayWhatIsSent)
{
    const auto told = sent("[Network]\nDHCP=yes\n[DHCPv4]\nSendHostname=no\nHostname=other\n"
                           "ClientIdentifier=mac\n[DHCPv6]\nDUIDType=link-layer-time:x\n");
    EXPECT_EQ(told.ipv4.sendsName, Answer::No);
    EXPECT_EQ(told.ipv4.name, u"other"_s);
    EXPECT_EQ(told.ipv4.identifierMade, Made::OfAddressInUse);
    EXPECT_EQ(told.ipv6.identifierMade, Made::OfAddressInUse);
    EXPECT_EQ(sent("[DHCP]\nClientIdentifier=mac\n").ipv4.identifierMade, Made::OfAddressInUse)
        << "the old name of the section";
    EXPECT_EQ(
        sent("[DHCPv4]\nDUIDType=vendor\nDUIDRawData=00:00:ab\n").ipv4.identifierMade, Made::Fixed);
    EXPECT_EQ(sent("[DHCPv4]\nClientIdentifier=x\n").ipv4.identifierMade, Made::Unknown);
    EXPECT_EQ(sent("[DHCPv4]\nSendHostname=x\n").ipv4.sendsName, Answer::Unknown);
}

TEST(NetworkdSettings, GoByTheGeneralOnes)
{
    EXPECT_EQ(sent("[Network]\nDHCP=yes\n", "[DHCPv4]\nDUIDType=link-layer\n").ipv4.identifierMade,
        Made::OfAddressInUse);
    EXPECT_EQ(
        sent("[DHCPv4]\nDUIDType=uuid\n", "[DHCPv4]\nDUIDType=link-layer\n").ipv4.identifierMade,
        Made::OfMachine);
}

TEST(NetworkdSettings, MayHideTheMachine)
{
    const auto hidden = sent("[Network]\nDHCP=yes\n[DHCPv4]\nAnonymize=yes\n");
    EXPECT_EQ(hidden.ipv4.sendsName, Answer::No);
    EXPECT_EQ(hidden.ipv4.identifierMade, Made::OfAddressInUse);
}

TEST(NetworkdSettings, LeaveTheLeaseToTell)
{
    const IniText lease("ADDRESS=192.0.2.7\nCLIENTID=ffb6220feb00020000ab11\n");
    const auto told = sentByNetworkd(std::nullopt, {}, lease);
    EXPECT_EQ(told.ipv4.isUsed, Answer::Yes);
    EXPECT_EQ(told.ipv4.identifier.toHex(), "ffb6220feb00020000ab11");
    EXPECT_EQ(told.ipv4.sendsName, Answer::Unknown);
    EXPECT_EQ(sentByNetworkd(std::nullopt, {}, {}).ipv4, ExposureFacts::Dhcp());
}

} // namespace
} // namespace quillon::test
