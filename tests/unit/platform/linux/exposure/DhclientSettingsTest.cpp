// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/exposure/DhclientSettings.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

using Answer = ExposureFacts::Answer;
using Made = ExposureFacts::Made;

const QString device = u"eth0"_s;

QByteArray commandLine(QByteArray words)
{
    return words.replace(' ', '\0') + '\0';
}

ExposureFacts::Dhcp sent(const QByteArray &settings)
{
    return sentByDhclient({}, settings, {}, device, {});
}

TEST(DhclientSettingsCommand, IsOneForTheInterface)
{
    const auto found = dhclientCommand(
        commandLine("/sbin/dhclient -4 -v -i -pf /run/x.pid -lf /var/lib/a.leases -I -df "
                    "/var/lib/b.leases -cf /etc/c.conf eth0"),
        device);
    ASSERT_TRUE(found);
    EXPECT_TRUE(found->sendsDuid);
    EXPECT_FALSE(found->isIpv6);
    EXPECT_EQ(found->settingsFile, u"/etc/c.conf"_s);
    EXPECT_EQ(found->leaseFiles, QStringList({u"/var/lib/a.leases"_s, u"/var/lib/b.leases"_s}));
    const auto plain = dhclientCommand(commandLine("dhclient -6 eth0"), device);
    ASSERT_TRUE(plain);
    EXPECT_TRUE(plain->isIpv6);
    EXPECT_FALSE(plain->sendsDuid);
    EXPECT_EQ(plain->settingsFile, u"/etc/dhcp/dhclient.conf"_s);
    EXPECT_EQ(plain->leaseFiles, QStringList(u"/var/lib/dhcp/dhclient6.leases"_s));
}

TEST(DhclientSettingsCommand, IsNoOther)
{
    for (const char *other : {"", "dhclient", "dhclient eth01", "vi eth0", "dhclient-script eth0",
             "eth0 dhclient eth0", "/tmp/dhclient/other eth0"}) {
        EXPECT_FALSE(dhclientCommand(commandLine(other), device)) << other;
    }
    EXPECT_TRUE(dhclientCommand(commandLine("dhclient eth0 -lf"), device)) << "cut short";
}

TEST(DhclientSettingsDuid, IsTheLastOneInEitherSpelling)
{
    const QByteArray octal = R"(default-duid "\000\001\000\001,\011\"\\b\000\000^\000S\001";)";
    EXPECT_EQ(duidInLeases(octal).toHex(), "000100012c09225c6200005e005301");
    EXPECT_EQ(duidInLeases(octal + "\nlease { }\ndefault-duid 0:3:0:1:0:0:5e:0:53:1;").toHex(),
        "0003000100005e005301");
    for (const char *none : {"", "default-duid ;", "default-duid \"", "default-duid 1:zz;",
             "default-duid 1:2", "default-duid 100:2;"}) {
        EXPECT_EQ(duidInLeases(none), QByteArray()) << none;
    }
    EXPECT_LE(duidInLeases("default-duid \"" + QByteArray(5000, 'x') + "\";").size(), 255);
}

TEST(DhclientSettings, TellTheName)
{
    EXPECT_EQ(sent("send host-name = gethostname();").sendsName, Answer::Yes);
    EXPECT_EQ(sent("send host-name = gethostname();").name, QString());
    EXPECT_EQ(sent("send host-name \"desk; top\";").name, u"desk; top"_s);
    EXPECT_EQ(sent("send fqdn.fqdn \"a.example\";").name, u"a.example"_s);
    EXPECT_EQ(sent("send host-name = pick(option a, b);").sendsName, Answer::Unknown);
    EXPECT_EQ(sent("# send host-name \"x\";\nrequest host-name;").sendsName, Answer::No);
    EXPECT_EQ(sent("").sendsName, Answer::No);
    EXPECT_EQ(sentByDhclient({}, std::nullopt, {}, device, {}).sendsName, Answer::Unknown);
}

TEST(DhclientSettings, AreThoseOfTheInterface)
{
    const QByteArray settings = "interface \"eth1\" { send host-name \"one\"; }\n"
                                "interface \"eth0\" { send host-name \"zero\"; }\n";
    EXPECT_EQ(sent(settings).name, u"zero"_s);
    EXPECT_EQ(sent("interface \"eth1\" { send host-name \"one\"; }").sendsName, Answer::No);
}

TEST(DhclientSettings, TellTheIdentifier)
{
    EXPECT_EQ(sent("").sendsIdentifier, Answer::No);
    EXPECT_EQ(sent("send dhcp-client-identifier = hardware;").identifierMade, Made::OfAddressInUse);
    const auto chosen = sent("send dhcp-client-identifier 1:0:0:5e:0:53:1;");
    EXPECT_EQ(chosen.identifier.toHex(), "0100005e005301");
    EXPECT_EQ(chosen.identifierMade, Made::Fixed);
    EXPECT_EQ(sent("send dhcp-client-identifier = binary(x);").identifierMade, Made::Unknown);
    EXPECT_EQ(sentByDhclient({}, std::nullopt, {}, device, {}).sendsIdentifier, Answer::Unknown);
}

TEST(DhclientSettings, TellOfADuid)
{
    const QByteArray hardware = QByteArray::fromHex("00005e005301");
    const QByteArray duid = QByteArray::fromHex("000100012d000001") + hardware;
    const auto ipv4 = sentByDhclient({.sendsDuid = true}, "", duid, device, hardware);
    EXPECT_EQ(ipv4.sendsIdentifier, Answer::Yes);
    EXPECT_EQ(ipv4.identifierMade, Made::OfHardwareAddress);
    EXPECT_EQ(
        sentByDhclient({.sendsDuid = true}, "", duid.chopped(1), device, hardware).identifierMade,
        Made::OfMachine);
    EXPECT_EQ(sentByDhclient({.sendsDuid = true}, "", {}, device, hardware).identifierMade,
        Made::Unknown);
    EXPECT_EQ(sentByDhclient({.isIpv6 = true}, "", duid, device, hardware).identifier, duid);
}

} // namespace
} // namespace quillon::test
