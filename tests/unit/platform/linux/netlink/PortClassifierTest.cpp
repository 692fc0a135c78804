// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/netlink/PortClassifier.h"

#include <gtest/gtest.h>

#include <linux/if.h>
#include <linux/if_arp.h>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

LinkInfo link(const char *name, const char *kind = "", const char *bus = "")
{
    LinkInfo facts;
    facts.index = 2;
    facts.type = ARPHRD_ETHER;
    facts.name = QLatin1String(name);
    facts.kind = kind;
    facts.parentBus = bus;
    return facts;
}

HardwareInfo deviceType(const char *type)
{
    return {QLatin1String(type), false};
}

} // namespace

TEST(PortClassifier, HardwareIsNamedByItsTypeAndBus)
{
    struct Case
    {
        LinkInfo link;
        HardwareInfo hardware;
        const char *name;
    };
    const Case cases[]{
        {link("enp3s0", "", "pci"), {}, "Ethernet"},
        {link("eth0", "", "virtio"), {}, "Ethernet"},
        {link("eth0"), {}, "Ethernet"},
        {link("enx0050b6000001", "", "usb"), {}, "USB Ethernet"},
        {link("wlp2s0", "", "pci"), deviceType("wlan"), "Wi-Fi"},
        {link("wlx0050b6000002", "", "usb"), deviceType("wlan"), "Wi-Fi"},
        {link("wlan0", "", "sdio"), {QString(), true}, "Wi-Fi"},
        {link("bnep0", "", "bluetooth"), deviceType("bluetooth"), "Bluetooth PAN"},
        {link("thunderbolt0", "", "thunderbolt"), {}, "Thunderbolt Ethernet"},
        {link("lan1", "dsa"), {}, "Ethernet"},
        {link("wwan0", "", "usb"), deviceType("wwan"), ""},
        {link("vmnet8"), {}, ""},
        {link("vboxnet0"), {}, ""},
    };
    for (const Case &c : cases) {
        EXPECT_EQ(portName(c.link, c.hardware), QLatin1String(c.name)) << qPrintable(c.link.name);
    }
}

TEST(PortClassifier, PortsWhoseNamesAreSkippedAreNotOffered)
{
    EXPECT_EQ(offeredPortName(link("bnep0", "", "bluetooth"), deviceType("bluetooth")), QString());
    EXPECT_EQ(offeredPortName(link("thunderbolt0", "", "thunderbolt"), {}), QString());
    EXPECT_EQ(offeredPortName(link("enp3s0", "", "pci"), {}), u"Ethernet"_s);
    EXPECT_EQ(offeredPortName(link("wlp2s0", "", "pci"), deviceType("wlan")), u"Wi-Fi"_s);
    EXPECT_EQ(offeredPortName(link("lo"), deviceType("wwan")), QString());
}

TEST(PortClassifier, BridgesThatAPersonMade)
{
    for (const char *name : {"br0", "bridge0", "lan", "vmbr0", "br-lan", "br-0123456789abc"}) {
        EXPECT_EQ(portName(link(name, "bridge"), {}), u"Bridge"_s) << name;
    }
    for (const char *name : {"docker0", "docker_gwbridge", "br-0123456789ab", "virbr0", "lxcbr0",
             "lxdbr0", "incusbr0", "cni0", "cni-podman0", "podman1", "waydroid0", "mpqemubr0"}) {
        EXPECT_EQ(portName(link(name, "bridge"), {}), QString()) << name;
    }
}

TEST(PortClassifier, AContainersUplinkButNotItsHostsEnd)
{
    for (const char *name : {"eth0", "enp1s0", "ens3", "enx0050b6000001"}) {
        EXPECT_EQ(portName(link(name, "veth"), {}), u"Ethernet"_s) << name;
    }
    for (const char *name : {"veth12ab", "vethweepl", "cali01", "lxc0a", "vnet0", "host0"}) {
        EXPECT_EQ(portName(link(name, "veth"), {}), QString()) << name;
    }
}

TEST(PortClassifier, WhatSoftwareStacksUpIsNoPort)
{
    for (const char *kind : {"tun", "dummy", "ifb", "vlan", "macvlan", "macvtap", "ipvlan", "bond",
             "team", "vxlan", "gretap", "wireguard", "vrf", "macsec", "veth-like", "virt_wifi"}) {
        EXPECT_EQ(portName(link("eth7", kind), {}), QString()) << kind;
        EXPECT_FALSE(hasHardware(link("eth7", kind))) << kind;
    }
}

TEST(PortClassifier, OnlyEthernetFramesCount)
{
    LinkInfo loopback = link("lo");
    loopback.type = ARPHRD_LOOPBACK;
    loopback.flags = IFF_LOOPBACK;
    LinkInfo monitor = link("wlan0mon");
    monitor.type = ARPHRD_IEEE80211_RADIOTAP;
    LinkInfo infiniband = link("ib0", "", "pci");
    infiniband.type = ARPHRD_INFINIBAND;
    LinkInfo ethernetLoop = link("loop0");
    ethernetLoop.flags = IFF_LOOPBACK;
    for (const LinkInfo &none : {loopback, monitor, infiniband, ethernetLoop}) {
        EXPECT_EQ(portName(none, deviceType("wlan")), QString()) << qPrintable(none.name);
        EXPECT_FALSE(hasHardware(none)) << qPrintable(none.name);
    }
    EXPECT_TRUE(hasHardware(link("enp3s0", "", "pci")));
}

TEST(PortClassifierHardware, ReadFromTheUeventOfThatInterface)
{
    const QByteArray uevent = "DEVTYPE=wlan\nINTERFACE=wlp2s0\nIFINDEX=2\n";
    const auto facts = hardwareInfoFromUevent(uevent, 2);
    ASSERT_TRUE(facts);
    EXPECT_EQ(facts->deviceType, u"wlan"_s);
    EXPECT_EQ(hardwareInfoFromUevent("INTERFACE=eth0\nIFINDEX=2\n", 2)->deviceType, QString());
}

TEST(PortClassifierHardware, AnotherNetworkNamespacesUeventSaysNothing)
{
    EXPECT_FALSE(hardwareInfoFromUevent("DEVTYPE=wlan\nINTERFACE=eth0\nIFINDEX=12\n", 2));
    EXPECT_FALSE(hardwareInfoFromUevent("", 2));
    EXPECT_FALSE(hardwareInfoFromUevent("DEVTYPE=wlan\n", 2));
}

} // namespace quillon::test
