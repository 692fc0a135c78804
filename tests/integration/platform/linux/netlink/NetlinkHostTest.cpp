// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/netlink/NetlinkHost.h"

#include "integration/platform/linux/Commands.h"
#include "platform/linux/netlink/GetifaddrsAddresses.h"

#include <QElapsedTimer>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>

namespace quillon::test {

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
    const QList<PortRecord> ports = NetlinkHost().ports();
    const auto found =
        std::ranges::find_if(ports, [&](const PortRecord &port) { return port.device == device; });
    return found == ports.end() ? PortRecord{} : *found;
}

// What the kernel says, by another program.
QHash<QString, InterfaceInfo> interfacesByIp()
{
    QHash<QString, InterfaceInfo> interfaces;
    const auto list = QJsonDocument::fromJson(command(QStringLiteral("ip -j addr"))).array();
    for (const QJsonValue &entry : list) {
        InterfaceInfo info;
        info.macAddress = entry[QLatin1String("address")].toString();
        info.status = entry[QLatin1String("operstate")] == QLatin1String("UP")
                          ? QStringLiteral("active")
                          : QStringLiteral("inactive");
        const auto addresses = entry[QLatin1String("addr_info")].toArray();
        for (const QJsonValue &address : addresses) {
            if (address[QLatin1String("family")] == QLatin1String("inet") &&
                info.ipAddress.isEmpty()) {
                info.ipAddress = address[QLatin1String("local")].toString();
            }
        }
        interfaces.insert(entry[QLatin1String("ifname")].toString(), info);
    }
    return interfaces;
}

double medianMilliseconds(const std::function<void()> &work)
{
    std::array<qint64, 15> times{};
    for (qint64 &time : times) {
        QElapsedTimer timer;
        timer.start();
        work();
        time = timer.nsecsElapsed();
    }
    std::ranges::sort(times);
    return static_cast<double>(times[times.size() / 2]) / 1e6;
}

} // namespace

// The sandbox has enp1s0 with 192.0.2.10, enp2s0 and br0.

TEST(NetlinkHost, ListsThePortsOfTheMachineAndNothingElse)
{
    command(QStringLiteral("ip link add ifb7 type ifb"));
    command(QStringLiteral("ip link add vethhost type veth peer name eth0 netns 1"));
    command(QStringLiteral("ip link add docker0 type bridge"));
    command(QStringLiteral("ip tuntap add tap0 mode tap"));
    const QList<PortRecord> ports = NetlinkHost().ports();
    QStringList names = devices(ports);
    names.sort();
    EXPECT_EQ(names, (QStringList{QStringLiteral("br0"), QStringLiteral("enp1s0"),
                         QStringLiteral("enp2s0"), QStringLiteral("eth0")}));
    EXPECT_EQ(portOf(QStringLiteral("enp1s0")).interface, QStringLiteral("Ethernet"));
    EXPECT_EQ(portOf(QStringLiteral("br0")).interface, QStringLiteral("Bridge"));
}

TEST(NetlinkHost, SaysTheSameAsIp)
{
    command(QStringLiteral("ip addr add 198.51.100.7/24 dev enp1s0"));
    command(QStringLiteral("ip addr add 203.0.113.9/24 dev enp2s0"));
    const QHash<QString, InterfaceInfo> expected = interfacesByIp();
    NetlinkHost host;
    const QList<PortRecord> ports = host.ports();
    ASSERT_GE(ports.size(), 3);
    for (const PortRecord &port : ports) {
        EXPECT_EQ(port.info, expected.value(port.device)) << qPrintable(port.device);
        EXPECT_EQ(port.info, host.info(port.device)) << qPrintable(port.device);
        EXPECT_EQ(port.info.macAddress.size(), 17);
        EXPECT_EQ(port.hardware, QString()) << "a virtual device has no factory address";
    }
    EXPECT_EQ(host.info(QStringLiteral("enp1s0")).ipAddress, QStringLiteral("192.0.2.10"));
    EXPECT_EQ(host.info(QStringLiteral("lo")).ipAddress, QStringLiteral("127.0.0.1"));
}

TEST(NetlinkHost, AnInterfaceThatIsNotThereHasNothing)
{
    NetlinkHost host;
    for (const QString &name : {QStringLiteral("eth99"), QString(), QStringLiteral("../../etc"),
             QStringLiteral("a-name-that-is-too-long-for-the-kernel"), QString(QChar(0))}) {
        EXPECT_EQ(host.info(name), InterfaceInfo{}) << qPrintable(name);
    }
}

TEST(NetlinkHost, SeesPlugRenameAddressAndUnplug)
{
    NetlinkHost host;
    command(QStringLiteral("ip link add eth5 address 02:00:00:00:00:05 type veth peer name far5"));
    EXPECT_EQ(portOf(QStringLiteral("eth5")).info.macAddress, QStringLiteral("02:00:00:00:00:05"));
    EXPECT_EQ(host.info(QStringLiteral("eth5")).status, QStringLiteral("inactive"));

    command(QStringLiteral("ip link set eth5 name enp9s0"));
    EXPECT_EQ(host.info(QStringLiteral("eth5")), InterfaceInfo{});
    EXPECT_EQ(
        portOf(QStringLiteral("enp9s0")).info.macAddress, QStringLiteral("02:00:00:00:00:05"));

    command(QStringLiteral("ip link set enp9s0 address 02:AB:cd:00:00:06"));
    EXPECT_EQ(host.info(QStringLiteral("enp9s0")).macAddress, QStringLiteral("02:ab:cd:00:00:06"));

    command(QStringLiteral("ip link del enp9s0"));
    EXPECT_EQ(host.info(QStringLiteral("enp9s0")), InterfaceInfo{});
    EXPECT_EQ(portOf(QStringLiteral("enp9s0")), PortRecord{});
}

TEST(NetlinkHost, StatusFollowsTheLinkAndItsCarrier)
{
    NetlinkHost host;
    command(QStringLiteral("ip link add eth5 type veth peer name far5"));
    command(QStringLiteral("ip link set eth5 up"));
    EXPECT_EQ(host.info(QStringLiteral("eth5")).status, QStringLiteral("inactive")) << "no carrier";
    command(QStringLiteral("ip link set far5 up"));
    EXPECT_EQ(host.info(QStringLiteral("eth5")).status, QStringLiteral("active"));
    command(QStringLiteral("ip link set eth5 down"));
    EXPECT_EQ(host.info(QStringLiteral("eth5")).status, QStringLiteral("inactive"));
    EXPECT_EQ(host.info(QStringLiteral("lo")).status, QStringLiteral("active"))
        << "a driver without operational state";
}

TEST(NetlinkHost, FirstAddressWhereTheListOfAddressesHasAll)
{
    command(QStringLiteral("ip addr add 198.51.100.7/24 dev enp1s0 label enp1s0:1"));
    EXPECT_EQ(NetlinkHost().info(QStringLiteral("enp1s0")).ipAddress, QStringLiteral("192.0.2.10"));
    QStringList listed;
    for (const auto &entry : GetifaddrsAddresses().ipv4()) {
        if (entry.device == QLatin1String("enp1s0")) {
            listed.append(entry.ipv4);
        }
    }
    EXPECT_EQ(listed, (QStringList{QStringLiteral("192.0.2.10"), QStringLiteral("198.51.100.7")}));
}

TEST(NetlinkHost, ReadsAThousandInterfacesFasterThanIp)
{
    QByteArray batch;
    for (int i = 0; i < 500; ++i) {
        const QByteArray number = QByteArray::number(i);
        batch += "link add eth1" + number + " type veth peer name enp" + number + "s1\n";
    }
    command(QStringLiteral("ip -batch -"), batch);
    NetlinkHost host;
    EXPECT_GE(host.ports().size(), 1000);
    const double ours = medianMilliseconds([&host] { host.ports(); });
    const double ip = medianMilliseconds([] { command(QStringLiteral("ip -j addr")); });
    EXPECT_LT(ours, ip);
}

} // namespace quillon::test
