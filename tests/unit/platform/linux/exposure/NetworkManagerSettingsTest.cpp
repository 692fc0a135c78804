// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/exposure/NetworkManagerSettings.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

using Answer = ExposureFacts::Answer;
using Made = ExposureFacts::Made;

class NetworkManagerSettingsTest : public testing::Test
{
protected:
    NetworkManagerSettingsTest()
    {
        connection.settings = {{u"connection"_s, {{u"id"_s, u"Home"_s}}},
            {u"ipv4"_s, {{u"method"_s, u"auto"_s}}}, {u"ipv6"_s, {{u"method"_s, u"auto"_s}}}};
    }

    QVariantMap &ipv4() { return connection.settings[u"ipv4"_s]; }
    QVariantMap &ipv6() { return connection.settings[u"ipv6"_s]; }
    ExposureFacts facts(const QByteArray &defaults = {}) const
    {
        ExposureFacts found;
        takeConnection(found, connection, IniText(defaults));
        return found;
    }
    Made madeWith(const QString &clientId, const QByteArray &defaults = {})
    {
        ipv4()[u"dhcp-client-id"_s] = clientId;
        return facts(defaults).ipv4.identifierMade;
    }

    ConnectionInForce connection;
};

TEST_F(NetworkManagerSettingsTest, AreTheUsualOnesUnlessTold)
{
    const auto usual = facts();
    EXPECT_EQ(usual.ipv4.isUsed, Answer::Yes);
    EXPECT_EQ(usual.ipv4.sendsName, Answer::Yes);
    EXPECT_EQ(usual.ipv4.sendsIdentifier, Answer::Yes);
    EXPECT_EQ(usual.ipv4.identifierMade, Made::OfAddressInUse);
    EXPECT_EQ(usual.ipv6.isUsed, Answer::No) << "no router asks for it";
    EXPECT_EQ(usual.ipv6.identifierMade, Made::OfMachine);
    EXPECT_EQ(usual.login.isUsed, Answer::No);
}

TEST_F(NetworkManagerSettingsTest, AreNotKnownWhenTheyCouldNotBeRead)
{
    connection = {};
    EXPECT_EQ(facts(), ExposureFacts());
    connection.ipv4Lease = {{u"dhcp_client_identifier"_s, u"01:02:00:00:00:54:11"_s}};
    EXPECT_EQ(facts().ipv4.isUsed, Answer::Yes);
    EXPECT_EQ(facts().ipv4.identifier.toHex(), "01020000005411");
    EXPECT_EQ(facts().ipv4.sendsName, Answer::Unknown);
}

TEST_F(NetworkManagerSettingsTest, ReadIdentifiersInEverySpelling)
{
    const auto read = [this](const QString &written) {
        connection.ipv6Lease = {{u"dhcp6_client_id"_s, written}};
        return facts().ipv6.identifier.toHex();
    };
    EXPECT_EQ(read(u"0:4:4a:1"_s), "00044a01") << "as dhclient writes it";
    EXPECT_EQ(read(u"00:04:4A:01"_s), "00044a01");
    EXPECT_EQ(read(u"00:04:zz"_s), "");
    EXPECT_EQ(read(u"100:04"_s), "");
    EXPECT_EQ(read({}), "");
}

TEST_F(NetworkManagerSettingsTest, SayWhetherThereIsDhcp)
{
    for (const auto &method : {u"manual"_s, u"disabled"_s, u"link-local"_s, u"shared"_s}) {
        ipv4()[u"method"_s] = method;
        EXPECT_EQ(facts().ipv4.isUsed, Answer::No) << qPrintable(method);
    }
    ipv6()[u"method"_s] = u"dhcp"_s;
    EXPECT_EQ(facts().ipv6.isUsed, Answer::Yes);
    ipv6()[u"method"_s] = u"auto"_s;
    connection.ipv6Lease = {{u"dhcp6_client_id"_s, u"00:03:00:01:00:00:5e:00:53:01"_s}};
    EXPECT_EQ(facts().ipv6.isUsed, Answer::Yes);
    EXPECT_EQ(facts().ipv6.identifier.toHex(), "0003000100005e005301");
}

TEST_F(NetworkManagerSettingsTest, SayWhetherTheNameIsSent)
{
    ipv4()[u"dhcp-send-hostname"_s] = false;
    EXPECT_EQ(facts().ipv4.sendsName, Answer::No);
    ipv4()[u"dhcp-send-hostname-v2"_s] = 1;
    EXPECT_EQ(facts().ipv4.sendsName, Answer::Yes) << "the newer key counts";
    ipv4()[u"dhcp-send-hostname-v2"_s] = -1;
    ipv4().remove(u"dhcp-send-hostname"_s);
    EXPECT_EQ(facts("[connection]\nipv4.dhcp-send-hostname=0\n").ipv4.sendsName, Answer::No);
    EXPECT_EQ(
        facts("[connection-x]\nmatch-device=type:wifi\nipv4.dhcp-send-hostname=0\n").ipv4.sendsName,
        Answer::Unknown)
        << "for some devices";
    ipv4()[u"dhcp-send-hostname"_s] = u"no"_s;
    EXPECT_EQ(facts().ipv4.sendsName, Answer::Yes) << "a value of another type is none";
}

TEST_F(NetworkManagerSettingsTest, SayWhichNameIsSent)
{
    connection.hostName = u"laptop"_s;
    EXPECT_EQ(facts().hostName, u"laptop"_s);
    ipv4()[u"dhcp-fqdn"_s] = u"a.example"_s;
    EXPECT_EQ(facts().ipv4.name, u"a.example"_s);
    ipv4()[u"dhcp-hostname"_s] = QString(1000, u'x');
    EXPECT_EQ(facts().ipv4.name.size(), 255);
}

TEST_F(NetworkManagerSettingsTest, SayWhatTheIdentifierIsMadeOf)
{
    EXPECT_EQ(madeWith(u"mac"_s), Made::OfAddressInUse);
    EXPECT_EQ(madeWith(u"perm-mac"_s), Made::OfHardwareAddress);
    EXPECT_EQ(madeWith(u"duid"_s), Made::OfMachine);
    EXPECT_EQ(madeWith(u"ipv6-duid"_s), Made::OfMachine);
    EXPECT_EQ(madeWith(u"stable"_s), Made::OfConnection);
    EXPECT_EQ(madeWith(u"01:02:03"_s), Made::Fixed);
    EXPECT_EQ(madeWith(u"none"_s), Made::Unknown);
    EXPECT_EQ(facts().ipv4.sendsIdentifier, Answer::No);
    const QByteArray perm = "[connection]\nipv4.dhcp-client-id=perm-mac\n";
    EXPECT_EQ(madeWith({}, perm), Made::OfHardwareAddress);
    EXPECT_EQ(madeWith(u"mac"_s, perm), Made::OfAddressInUse);
    EXPECT_EQ(madeWith({}, "[main]\ndhcp=dhclient\n"), Made::Unknown);
    EXPECT_EQ(madeWith({}, perm + "match-device=*\n"), Made::Unknown);
}

TEST_F(NetworkManagerSettingsTest, GoByTheStableIdentity)
{
    connection.settings[u"connection"_s][u"stable-id"_s] = u"${CONNECTION}/${RANDOM}"_s;
    EXPECT_EQ(madeWith(u"stable"_s), Made::OfAddressInUse) << "another one for each connection";
    connection.settings[u"connection"_s].remove(u"stable-id"_s);
    EXPECT_EQ(
        madeWith(u"stable"_s, "[connection]\nconnection.stable-id=${MAC}\n"), Made::OfAddressInUse);
    ipv6()[u"dhcp-duid"_s] = u"stable-uuid"_s;
    EXPECT_EQ(facts().ipv6.identifierMade, Made::OfConnection);
    ipv6()[u"dhcp-duid"_s] = u"llt"_s;
    EXPECT_EQ(facts().ipv6.identifierMade, Made::OfAddressInUse);
    ipv6()[u"dhcp-duid"_s] = u"00:01:02"_s;
    EXPECT_EQ(facts().ipv6.identifierMade, Made::Fixed);
}

TEST_F(NetworkManagerSettingsTest, TellTheLogin)
{
    connection.settings[u"802-1x"_s] = {
        {u"identity"_s, u"alice"_s}, {u"anonymous-identity"_s, u"nobody"_s}};
    EXPECT_EQ(facts().login.isUsed, Answer::Yes);
    EXPECT_EQ(facts().login.identity, u"alice"_s);
    EXPECT_EQ(facts().login.anonymousIdentity, u"nobody"_s);
    connection.settings[u"802-1x"_s] = {{u"identity"_s, QByteArray("alice")}};
    EXPECT_EQ(facts().login.isUsed, Answer::Yes);
    EXPECT_EQ(facts().login.identity, QString()) << "a value of another type is none";
}

} // namespace
} // namespace quillon::test
