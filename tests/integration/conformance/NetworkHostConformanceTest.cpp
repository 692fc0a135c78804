// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "FakeHostFixtures.h"
#include "LinuxHostFixture.h"
#include "fakes/QtPrinting.h"

#include <QSet>
#include <QStringList>
#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

/// What every host tells of the same machine, whatever else is plugged into it.
template <typename Fixture>
class NetworkHostConformance : public ::testing::Test
{
protected:
    // Empty when it is no port of the machine; the first when it is several, which is a fault.
    PortRecord portOf(const QString &device)
    {
        PortRecord found;
        int count = 0;
        const QList<PortRecord> ports = host.ports().value();
        for (const PortRecord &port : ports) {
            if (port.device == device && ++count == 1) {
                found = port;
            }
        }
        EXPECT_LE(count, 1) << qPrintable(device);
        return found;
    }
    // The tested ones of the machine's ports, in the host's order.
    QStringList order()
    {
        QStringList devices;
        const QList<PortRecord> ports = host.ports().value();
        for (const PortRecord &port : ports) {
            if (tested.contains(port.device)) {
                devices << port.device;
            }
        }
        return devices;
    }
    bool becomes(const QString &device, const char *status)
    {
        return machine.soon([&] { return host.info(device).status == QLatin1String(status); });
    }

    const QString card = u"en7"_s;
    const QString second = u"en8"_s;
    const QString renamed = u"en9"_s;
    const QString bridge = u"bridge7"_s;
    const QString containerEnd = u"veth7"_s;
    const QSet<QString> tested{card, second, renamed, bridge, containerEnd};
    const QString address = u"3c:22:fb:00:00:07"_s;
    const QString other = u"3c:22:fb:00:00:08"_s;
    Fixture made;
    HostFixture &machine = made;
    NetworkHost &host = machine.host();
};

using Fixtures = ::testing::Types<FakeHostFixture, TextualHostFixture, LinuxHostFixture>;
TYPED_TEST_SUITE(NetworkHostConformance, Fixtures);

TYPED_TEST(NetworkHostConformance, APluggedCardIsAPortWithItsFacts)
{
    this->machine.plugCard(this->card, this->address);
    const PortRecord port = this->portOf(this->card);
    EXPECT_EQ(port.interface, u"Ethernet"_s);
    const InterfaceInfo expected{{}, this->address, u"inactive"_s};
    EXPECT_EQ(port.info, expected);
    EXPECT_EQ(this->host.info(this->card), expected);
}

TYPED_TEST(NetworkHostConformance, ABridgeIsAPortToo)
{
    this->machine.plugBridge(this->bridge, this->address);
    EXPECT_EQ(this->portOf(this->bridge).interface, u"Bridge"_s);
    EXPECT_EQ(this->portOf(this->bridge).info.macAddress, this->address);
    EXPECT_EQ(this->portOf(this->bridge).info.status, u"inactive"_s);
}

TYPED_TEST(NetworkHostConformance, WhatIsNoPortIsNotListedButAnswers)
{
    this->machine.plugContainerEnd(this->containerEnd, this->address);
    EXPECT_EQ(this->order(), QStringList());
    EXPECT_EQ(this->host.info(this->containerEnd).macAddress, this->address);
}

TYPED_TEST(NetworkHostConformance, AddressesAreToldInLowerCaseWithTwoDigitsPerOctet)
{
    this->machine.plugCard(this->card, u"3C:22:FB:00:00:07"_s);
    EXPECT_EQ(this->host.info(this->card).macAddress, this->address);
    ASSERT_TRUE(this->machine.giveAddress(this->card, u"02:AB:CD:EF:00:01"_s));
    EXPECT_EQ(this->host.info(this->card).macAddress, u"02:ab:cd:ef:00:01"_s);
    ASSERT_TRUE(this->machine.giveAddress(this->card, u"2:0:0:0:BE:f"_s));
    EXPECT_EQ(this->host.info(this->card).macAddress, u"02:00:00:00:be:0f"_s);
}

TYPED_TEST(NetworkHostConformance, AnAddressThatNoInterfaceCanHaveChangesNothing)
{
    this->machine.plugCard(this->card, this->address);
    for (const char *refused : {"01:00:5e:00:00:01", "ff:ff:ff:ff:ff:ff", "00:00:00:00:00:00",
             "02:00:00:00:00", "no address"}) {
        EXPECT_FALSE(this->machine.giveAddress(this->card, QLatin1String(refused))) << refused;
        EXPECT_EQ(this->host.info(this->card).macAddress, this->address) << refused;
    }
    EXPECT_FALSE(this->machine.giveAddress(this->second, this->other));
}

TYPED_TEST(NetworkHostConformance, TheFactoryAddressDoesNotFollowTheOneInUse)
{
    this->machine.plugCard(this->card, this->address);
    this->machine.plugCard(this->second, this->other);
    const QString factory = this->portOf(this->second).hardware;
    ASSERT_TRUE(this->machine.giveAddress(this->card, u"02:00:00:00:00:01"_s));
    EXPECT_EQ(this->portOf(this->second).hardware, factory);
    EXPECT_EQ(this->portOf(this->second).info.macAddress, this->other);
    EXPECT_EQ(this->portOf(this->card).info.macAddress, u"02:00:00:00:00:01"_s);
}

TYPED_TEST(NetworkHostConformance, TheFirstIPv4AddressIsTold)
{
    this->machine.plugCard(this->card, this->address);
    this->machine.giveIPv4(this->card, u"203.0.113.9"_s);
    this->machine.giveIPv4(this->card, u"192.0.2.77"_s);
    EXPECT_EQ(this->host.info(this->card).ipAddress, u"203.0.113.9"_s);
    EXPECT_EQ(this->portOf(this->card).info.ipAddress, u"203.0.113.9"_s);
    this->machine.takeIPv4(this->card, u"203.0.113.9"_s);
    EXPECT_EQ(this->host.info(this->card).ipAddress, u"192.0.2.77"_s);
    this->machine.takeIPv4(this->card, u"192.0.2.77"_s);
    EXPECT_EQ(this->host.info(this->card).ipAddress, QString());
}

TYPED_TEST(NetworkHostConformance, TheStatusFollowsTheLinkAndTheAddressesStay)
{
    this->machine.plugCard(this->card, this->address);
    this->machine.giveIPv4(this->card, u"203.0.113.9"_s);
    EXPECT_EQ(this->host.info(this->card).status, u"inactive"_s);
    this->machine.setLink(this->card, true);
    EXPECT_TRUE(this->becomes(this->card, "active"));
    EXPECT_EQ(this->portOf(this->card).info.status, u"active"_s);
    this->machine.setLink(this->card, false);
    EXPECT_TRUE(this->becomes(this->card, "inactive"));
    EXPECT_EQ(this->host.info(this->card),
        (InterfaceInfo{u"203.0.113.9"_s, this->address, u"inactive"_s}));
}

TYPED_TEST(NetworkHostConformance, AnUnknownDeviceHasOnlyEmptyTexts)
{
    this->machine.plugCard(this->card, this->address);
    for (const QString &device : {this->second, this->card.toUpper(), this->card.left(2),
             this->card + u'7', QString(), u"../en7"_s, u"en7 "_s,
             u"a-name-that-is-too-long-for-any-kernel"_s, QString(QChar(0))}) {
        EXPECT_EQ(this->host.info(device), InterfaceInfo{}) << qPrintable(device);
    }
}

TYPED_TEST(NetworkHostConformance, AVanishedDeviceIsUnknown)
{
    this->machine.plugCard(this->card, this->address);
    this->machine.plugCard(this->second, this->other);
    this->machine.unplug(this->card);
    EXPECT_EQ(this->host.info(this->card), InterfaceInfo{});
    EXPECT_EQ(this->order(), QStringList(this->second));
}

TYPED_TEST(NetworkHostConformance, PortsComeOnceEachInTheOrderInWhichTheyWerePlugged)
{
    this->machine.plugCard(this->second, this->other);
    this->machine.plugBridge(this->bridge, u"3c:22:fb:00:00:09"_s);
    this->machine.plugCard(this->card, this->address);
    EXPECT_EQ(this->order(), (QStringList{this->second, this->bridge, this->card}));
    EXPECT_EQ(this->order(), (QStringList{this->second, this->bridge, this->card}));
    this->machine.unplug(this->second);
    this->machine.plugCard(this->second, this->other);
    EXPECT_EQ(this->order(), (QStringList{this->bridge, this->card, this->second}));
}

TYPED_TEST(NetworkHostConformance, ARenamedDeviceKeepsItsPlaceAndItsFacts)
{
    this->machine.plugCard(this->card, this->address);
    this->machine.plugCard(this->second, this->other);
    this->machine.giveIPv4(this->card, u"203.0.113.9"_s);
    const PortRecord before = this->portOf(this->card);
    ASSERT_TRUE(this->machine.rename(this->card, this->renamed));
    EXPECT_EQ(this->host.info(this->card), InterfaceInfo{});
    EXPECT_EQ(this->host.info(this->renamed), before.info);
    EXPECT_EQ(this->order(), (QStringList{this->renamed, this->second}));
    const PortRecord after = this->portOf(this->renamed);
    EXPECT_EQ(after.interface, before.interface);
    EXPECT_EQ(after.hardware, before.hardware);
    EXPECT_EQ(after.info, before.info);
}

TYPED_TEST(NetworkHostConformance, ANameThatIsTakenIsNotGivenTwice)
{
    this->machine.plugCard(this->card, this->address);
    this->machine.plugCard(this->second, this->other);
    EXPECT_FALSE(this->machine.rename(this->card, this->second));
    EXPECT_EQ(this->order(), (QStringList{this->card, this->second}));
    EXPECT_EQ(this->host.info(this->card).macAddress, this->address);
    EXPECT_EQ(this->host.info(this->second).macAddress, this->other);
}

TYPED_TEST(NetworkHostConformance, TheListSaysOfEachPortWhatTheDeviceSaysItself)
{
    this->machine.plugCard(this->card, this->address);
    this->machine.plugCard(this->second, this->other);
    this->machine.plugBridge(this->bridge, u"3c:22:fb:00:00:09"_s);
    this->machine.giveIPv4(this->second, u"203.0.113.9"_s);
    this->machine.setLink(this->second, true);
    ASSERT_TRUE(this->becomes(this->second, "active"));
    const QList<PortRecord> ports = this->host.ports().value();
    EXPECT_GE(ports.size(), 3);
    for (const PortRecord &port : ports) {
        EXPECT_EQ(port.info, this->host.info(port.device)) << qPrintable(port.device);
    }
}

} // namespace
} // namespace quillon::test
