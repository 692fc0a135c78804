// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/exposure/SettingsFiles.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

using Answer = ExposureFacts::Answer;
using Made = ExposureFacts::Made;

class SettingsFilesTest : public testing::Test
{
protected:
    void write(const QString &path, const QByteArray &text) const
    {
        const QString whole = root.path() + path;
        ASSERT_TRUE(QDir().mkpath(whole.section(u'/', 0, -2)));
        QFile file(whole);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    SettingsFiles read() const
    {
        return readSettingsFiles(root.path(), u"eth0"_s, 3, QByteArray::fromHex("00005e005301"));
    }

    QTemporaryDir root;
};

TEST_F(SettingsFilesTest, MayAllBeMissing)
{
    const SettingsFiles files = read();
    EXPECT_TRUE(files.networkManager.entries().isEmpty());
    EXPECT_TRUE(files.avahi.entries().isEmpty());
    EXPECT_FALSE(files.networkd.network);
    EXPECT_FALSE(files.dhclient);
}

TEST_F(SettingsFilesTest, AreInTheOrderThatNetworkManagerReadsThem)
{
    const QString key = u"ipv4.dhcp-client-id"_s;
    const auto value = [&] { return read().networkManager.value(u"connection"_s, key); };
    write(u"/etc/NetworkManager/NetworkManager.conf"_s, "[connection]\nipv4.dhcp-client-id=main\n");
    EXPECT_EQ(value(), u"main"_s);
    write(
        u"/usr/lib/NetworkManager/conf.d/20-a.conf"_s, "[connection]\nipv4.dhcp-client-id=usr20\n");
    EXPECT_EQ(value(), u"usr20"_s);
    write(u"/etc/NetworkManager/conf.d/10-a.conf"_s, "[connection]\nipv4.dhcp-client-id=etc10\n");
    EXPECT_EQ(value(), u"usr20"_s) << "names go before folders";
    write(u"/etc/NetworkManager/conf.d/20-a.conf"_s, "[connection]\nipv4.dhcp-client-id=etc20\n");
    EXPECT_EQ(value(), u"etc20"_s) << "in the place of its namesake";
    write(u"/etc/NetworkManager/conf.d/30-a.txt"_s, "[connection]\nipv4.dhcp-client-id=no\n");
    EXPECT_EQ(value(), u"etc20"_s);
}

TEST_F(SettingsFilesTest, AreThoseOfNetworkdForTheLink)
{
    write(u"/run/systemd/netif/links/3"_s, "NETWORK_FILE=/etc/systemd/network/w.network\n");
    EXPECT_FALSE(read().networkd.network) << "it cannot be read";
    write(u"/etc/systemd/network/w.network"_s, "[Network]\nDHCP=yes\n[DHCPv4]\nHostname=a\n");
    write(u"/run/systemd/netif/leases/3"_s, "CLIENTID=01aabb\n");
    write(u"/etc/systemd/networkd.conf.d/x.conf"_s, "[DHCPv4]\nDUIDType=uuid\n");
    write(u"/etc/systemd/network/w.network.d/x.conf"_s, "[DHCPv4]\nHostname=b\n");
    const auto networkd = read().networkd;
    ASSERT_TRUE(networkd.network);
    EXPECT_EQ(networkd.network->value(u"DHCPv4"_s, u"Hostname"_s), u"b"_s);
    EXPECT_EQ(networkd.lease.value({}, u"CLIENTID"_s), u"01aabb"_s);
    EXPECT_EQ(networkd.general.value(u"DHCPv4"_s, u"DUIDType"_s), u"uuid"_s);
}

TEST_F(SettingsFilesTest, AreThoseOfARunningDhclient)
{
    const QByteArray duid = R"(default-duid "\000\001\000\001\000\000\000\001\000\000^\000S\001";)";
    write(u"/proc/12/cmdline"_s, QByteArray("/sbin/dhclient\0-i\0eth0\0", 23));
    write(u"/proc/13/cmdline"_s, QByteArray("dhclient\0-6\0eth0\0", 17));
    write(u"/proc/14/cmdline"_s, QByteArray("dhclient\0eth1\0", 14));
    write(u"/proc/sys/cmdline"_s, QByteArray("dhclient\0eth0\0", 14));
    write(u"/var/lib/dhcp/dhclient.leases"_s, duid);
    write(u"/var/lib/dhcp/dhclient6.leases"_s, duid);
    write(u"/etc/dhcp/dhclient.conf"_s, "send host-name \"a\";");
    const auto dhclient = read().dhclient;
    ASSERT_TRUE(dhclient);
    EXPECT_EQ(dhclient->ipv4.name, u"a"_s);
    EXPECT_EQ(dhclient->ipv4.identifierMade, Made::OfHardwareAddress);
    EXPECT_EQ(dhclient->ipv6.isUsed, Answer::Yes);
    EXPECT_EQ(dhclient->ipv6.identifier.size(), 14);
}

TEST_F(SettingsFilesTest, AreAvahis)
{
    write(u"/etc/avahi/avahi-daemon.conf"_s, "[server]\ndeny-interfaces=eth0\n");
    EXPECT_EQ(read().avahi.value(u"server"_s, u"deny-interfaces"_s), u"eth0"_s);
}

} // namespace
} // namespace quillon::test
