// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/netlink/NetlinkHost.h"

#include "integration/platform/linux/Commands.h"
#include "platform/linux/netlink/GetifaddrsAddresses.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <sys/resource.h>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

QStringList devices(const QList<PortRecord> &ports)
{
    QStringList names;
    for (const PortRecord &port : ports) {
        names.append(port.device);
    }
    return names;
}

PortRecord portOf(const QString &device)
{
    const QList<PortRecord> ports = NetlinkHost().ports().value();
    const auto found =
        std::ranges::find_if(ports, [&](const PortRecord &port) { return port.device == device; });
    return found == ports.end() ? PortRecord{} : *found;
}

// What the kernel says, by another program.
QHash<QString, InterfaceInfo> interfacesByIp()
{
    QHash<QString, InterfaceInfo> interfaces;
    const auto list = QJsonDocument::fromJson(command(u"ip -j addr"_s)).array();
    for (const QJsonValue &entry : list) {
        InterfaceInfo info;
        info.macAddress = entry["address"_L1].toString();
        info.status = entry["operstate"_L1] == "UP"_L1 ? u"active"_s : u"inactive"_s;
        const auto addresses = entry["addr_info"_L1].toArray();
        for (const QJsonValue &address : addresses) {
            if (address["family"_L1] == "inet"_L1 && info.ipAddress.isEmpty()) {
                info.ipAddress = address["local"_L1].toString();
            }
        }
        interfaces.insert(entry["ifname"_L1].toString(), info);
    }
    return interfaces;
}

/// Processor time that `work` takes of this process (RUSAGE_SELF) or of those that it starts
/// (RUSAGE_CHILDREN), in milliseconds: how busy the machine is does not count.
double processorMilliseconds(int who, const std::function<void()> &work)
{
    const auto used = [who] {
        rusage usage{};
        EXPECT_EQ(getrusage(who, &usage), 0);
        const auto milliseconds = [](const timeval &time) {
            return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
        };
        return milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime);
    };
    const double before = used();
    for (int i = 0; i < 15; ++i) {
        work();
    }
    return used() - before;
}

} // namespace

// The sandbox has enp1s0 with 192.0.2.10, enp2s0 and br0.

TEST(NetlinkHost, ListsThePortsOfTheMachineAndNothingElse)
{
    command(u"ip link add ifb7 type ifb"_s);
    command(u"ip link add vethhost type veth peer name eth0 netns 1"_s);
    command(u"ip link add docker0 type bridge"_s);
    command(u"ip tuntap add tap0 mode tap"_s);
    const QList<PortRecord> ports = NetlinkHost().ports().value();
    QStringList names = devices(ports);
    names.sort();
    EXPECT_EQ(names, (QStringList{u"br0"_s, u"enp1s0"_s, u"enp2s0"_s, u"eth0"_s}));
    EXPECT_EQ(portOf(u"enp1s0"_s).interface, u"Ethernet"_s);
    EXPECT_EQ(portOf(u"br0"_s).interface, u"Bridge"_s);
}

TEST(NetlinkHost, SaysTheSameAsIp)
{
    command(u"ip addr add 198.51.100.7/24 dev enp1s0"_s);
    command(u"ip addr add 203.0.113.9/24 dev enp2s0"_s);
    const QHash<QString, InterfaceInfo> expected = interfacesByIp();
    NetlinkHost host;
    const QList<PortRecord> ports = host.ports().value();
    ASSERT_GE(ports.size(), 3);
    for (const PortRecord &port : ports) {
        EXPECT_EQ(port.info, expected.value(port.device)) << qPrintable(port.device);
        EXPECT_EQ(port.info, host.info(port.device)) << qPrintable(port.device);
        EXPECT_EQ(port.info.macAddress.size(), 17);
        EXPECT_EQ(port.hardware, QString()) << "a virtual device has no factory address";
    }
    EXPECT_EQ(host.info(u"enp1s0"_s).ipAddress, u"192.0.2.10"_s);
    EXPECT_EQ(host.info(u"lo"_s).ipAddress, u"127.0.0.1"_s);
}

TEST(NetlinkHost, AnInterfaceThatIsNotThereHasNothing)
{
    NetlinkHost host;
    for (const QString &name : {u"eth99"_s, QString(), u"../../etc"_s,
             u"a-name-that-is-too-long-for-the-kernel"_s, QString(QChar(0))}) {
        EXPECT_EQ(host.info(name), InterfaceInfo{}) << qPrintable(name);
    }
}

TEST(NetlinkHost, SeesPlugRenameAddressAndUnplug)
{
    NetlinkHost host;
    command(u"ip link add eth5 address 02:00:00:00:00:05 type veth peer name far5"_s);
    EXPECT_EQ(portOf(u"eth5"_s).info.macAddress, u"02:00:00:00:00:05"_s);
    EXPECT_EQ(host.info(u"eth5"_s).status, u"inactive"_s);

    command(u"ip link set eth5 name enp9s0"_s);
    EXPECT_EQ(host.info(u"eth5"_s), InterfaceInfo{});
    EXPECT_EQ(portOf(u"enp9s0"_s).info.macAddress, u"02:00:00:00:00:05"_s);

    command(u"ip link set enp9s0 address 02:AB:cd:00:00:06"_s);
    EXPECT_EQ(host.info(u"enp9s0"_s).macAddress, u"02:ab:cd:00:00:06"_s);

    command(u"ip link del enp9s0"_s);
    EXPECT_EQ(host.info(u"enp9s0"_s), InterfaceInfo{});
    EXPECT_EQ(portOf(u"enp9s0"_s), PortRecord{});
}

TEST(NetlinkHost, StatusFollowsTheLinkAndItsCarrier)
{
    NetlinkHost host;
    command(u"ip link add eth5 type veth peer name far5"_s);
    command(u"ip link set eth5 up"_s);
    EXPECT_EQ(host.info(u"eth5"_s).status, u"inactive"_s) << "no carrier";
    command(u"ip link set far5 up"_s);
    EXPECT_EQ(host.info(u"eth5"_s).status, u"active"_s);
    command(u"ip link set eth5 down"_s);
    EXPECT_EQ(host.info(u"eth5"_s).status, u"inactive"_s);
    EXPECT_EQ(host.info(u"lo"_s).status, u"active"_s) << "a driver without operational state";
}

TEST(NetlinkHost, FirstAddressWhereTheListOfAddressesHasAll)
{
    command(u"ip addr add 198.51.100.7/24 dev enp1s0 label enp1s0:1"_s);
    EXPECT_EQ(NetlinkHost().info(u"enp1s0"_s).ipAddress, u"192.0.2.10"_s);
    QStringList listed;
    for (const auto &entry : GetifaddrsAddresses().ipv4()) {
        if (entry.device == "enp1s0"_L1) {
            listed.append(entry.ipv4);
        }
    }
    EXPECT_EQ(listed, (QStringList{u"192.0.2.10"_s, u"198.51.100.7"_s}));
}

TEST(NetlinkHost, RoutersAreThoseOfEveryKindOfDefaultRoute)
{
    const auto router = [](const char *device = "enp1s0") {
        return portOf(QLatin1String(device)).router;
    };
    EXPECT_EQ(router(), u"192.0.2.1"_s);
    EXPECT_EQ(router("enp2s0"), QString());
    command(u"ip -6 addr add 2001:db8::2/64 dev enp1s0 nodad"_s);
    command(u"ip -6 route add default via fe80::1 dev enp1s0 metric 100"_s);
    EXPECT_EQ(router(), u"192.0.2.1 fe80::1"_s);
    command(u"ip route del default"_s);
    EXPECT_EQ(router(), u"fe80::1"_s) << "IPv6 alone";
    command(u"ip -6 route del default via fe80::1 dev enp1s0"_s);
    EXPECT_EQ(router(), QString());
    command(u"ip route add default dev enp1s0"_s);
    EXPECT_EQ(router(), u"direct"_s);
    command(u"ip route add default via 192.0.2.3 dev enp1s0 metric 50"_s);
    EXPECT_EQ(router(), u"192.0.2.3 direct"_s);
    command(u"ip route flush exact default"_s);
    command(u"ip addr add 198.51.100.2/24 dev enp2s0"_s);
    command(u"ip route add default nexthop via 192.0.2.4 dev enp1s0 "
            "nexthop via 198.51.100.1 dev enp2s0"_s);
    EXPECT_EQ(router(), u"192.0.2.4"_s);
    EXPECT_EQ(router("enp2s0"), u"198.51.100.1"_s);
    command(u"ip route flush exact default"_s);
    command(u"ip route add 203.0.113.0/24 via 192.0.2.9"_s);
    command(u"ip route add default via 192.0.2.9 table 51820"_s);
    command(u"ip route add unreachable default metric 10"_s);
    EXPECT_EQ(router(), QString()) << "none of these is a way out for everything";
}

TEST(NetlinkHost, RoutersAreFoundBehindObjectsThatRoutesLeadTo)
{
    command(u"ip route flush exact default"_s);
    command(u"ip addr add 198.51.100.2/24 dev enp2s0"_s);
    command(u"ip nexthop add id 7 via 192.0.2.5 dev enp1s0"_s);
    command(u"ip nexthop add id 8 via 198.51.100.1 dev enp2s0"_s);
    command(u"ip nexthop add id 9 group 7/8"_s);
    command(u"ip route add default nhid 9"_s);
    for (const char *tells : {"1", "0"}) { // whether routes tell their hops beside the object
        command(u"sysctl -qw net.ipv4.nexthop_compat_mode=%1"_s.arg(QLatin1String(tells)));
        EXPECT_EQ(portOf(u"enp1s0"_s).router, u"192.0.2.5"_s) << tells;
        EXPECT_EQ(portOf(u"enp2s0"_s).router, u"198.51.100.1"_s) << tells;
    }
    command(u"ip nexthop replace id 7 via 192.0.2.6 dev enp1s0"_s);
    EXPECT_EQ(portOf(u"enp1s0"_s).router, u"192.0.2.6"_s);
}

TEST(NetlinkHost, ReadsAThousandInterfacesFasterThanIp)
{
    QByteArray batch;
    for (int i = 0; i < 500; ++i) {
        const QByteArray number = QByteArray::number(i);
        batch += "link add eth1" + number + " type veth peer name enp" + number + "s1\n";
    }
    command(u"ip -batch -"_s, batch);
    NetlinkHost host;
    EXPECT_GE(host.ports().value().size(), 1000);
    const double ours = processorMilliseconds(RUSAGE_SELF, [&host] { host.ports(); });
    const double ip = processorMilliseconds(RUSAGE_CHILDREN, [] { command(u"ip -j addr"_s); });
    EXPECT_LT(ours, ip);
}

} // namespace quillon::test
