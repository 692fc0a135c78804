// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/textual/HardwarePortText.h"

#include "fakes/QtPrinting.h"
#include "unit/platform/textual/RecordedOutput.h"

namespace quillon {

using namespace Qt::StringLiterals;

void PrintTo(const HardwarePort &port, std::ostream *out)
{
    PrintTo(port.interface, out);
    PrintTo(port.device, out);
    PrintTo(port.hardware, out);
}

} // namespace quillon

namespace quillon::test {
namespace {

/// One chunk of the port list.
QString port(const char *name, const char *device, const char *address = "00:16:3e:11:22:33")
{
    return u"Hardware Port: %1\nDevice: %2\nEthernet Address: %3\n\n"_s.arg(
        QString::fromUtf8(name), QString::fromUtf8(device), QString::fromUtf8(address));
}

QStringList devicesIn(const QString &portList)
{
    QStringList devices;
    for (const HardwarePort &each : hardwarePorts(portList)) {
        devices << each.device;
    }
    return devices;
}

TEST(HardwarePortText, KeepsWifiEthernetAndTheThunderboltBridgeInTheirOrder)
{
    const QList<HardwarePort> expected = {
        {u"Wi-Fi"_s, u"en0"_s, u"00:16:3e:44:55:66"_s},
        {u"Ethernet"_s, u"en1"_s, u"00:16:3e:11:22:33"_s},
        {u"Thunderbolt Bridge"_s, u"bridge0"_s, u"00:16:3e:aa:bb:02"_s},
    };
    EXPECT_EQ(hardwarePorts(recordedOutput(u"listallhardwareports.txt"_s)), expected);
}

TEST(HardwarePortText, CutsEn10ToEn1)
{
    EXPECT_EQ(devicesIn(port("USB LAN", "en10")), QStringList{u"en1"_s});
    EXPECT_EQ(devicesIn(port("Big Bridge", "bridge12")), QStringList{u"bridge1"_s});
}

TEST(HardwarePortText, CutsThePortNameBeforeTheFirstParenthesis)
{
    EXPECT_EQ(hardwarePorts(port("USB 10/100/1000 LAN (2)", "en5")).value(0).interface,
        "USB 10/100/1000 LAN"_L1);
    EXPECT_EQ(hardwarePorts(port("LAN (a) (b)", "en5")).value(0).interface, "LAN"_L1);
    EXPECT_EQ(hardwarePorts(port("LAN(2)", "en5")).value(0).interface, "LAN(2)"_L1);
}

TEST(HardwarePortText, RemovesEveryLineBreakFromThePortName)
{
    const QString list =
        u"Hardware Port: USB\r\n LAN\r\nDevice: en5\r\nEthernet Address: 00:16:3e:11:22:33\r\n"_s;
    EXPECT_EQ(hardwarePorts(list).value(0).interface, "USB LAN"_L1);
    EXPECT_EQ(hardwarePorts(list).value(0).hardware, "00:16:3e:11:22:33"_L1);
}

TEST(HardwarePortText, SkipsByTheRawNameAndMindsTheCase)
{
    EXPECT_TRUE(devicesIn(port("Bluetooth PAN", "en3")).isEmpty());
    EXPECT_TRUE(devicesIn(port("Thunderbolt 1", "en4")).isEmpty());
    EXPECT_TRUE(devicesIn(port("LAN (Bluetooth)", "en4")).isEmpty()) << "before the cut";
    EXPECT_EQ(devicesIn(port("BLUETOOTH", "en3")).size(), 1);
    EXPECT_EQ(devicesIn(port("Thunderbolt Bridge", "bridge0")).size(), 1);
    EXPECT_EQ(devicesIn(port("Thunderbolt BRIDGE", "bridge0")).size(), 0);
}

TEST(HardwarePortText, KeepsOnlyEnAndBridgeDevices)
{
    EXPECT_TRUE(devicesIn(port("Modem", "ppp0")).isEmpty());
    EXPECT_TRUE(devicesIn(port("Modem", " en0")).isEmpty());
    EXPECT_TRUE(devicesIn(port("Modem", "EN0")).isEmpty());
    EXPECT_TRUE(devicesIn(port("Modem", "bridg")).isEmpty());
}

TEST(HardwarePortText, DropsAPortWithoutDeviceOrAddress)
{
    EXPECT_TRUE(devicesIn(u"Hardware Port: A\nEthernet Address: 00:16:3e:11:22:33\n"_s).isEmpty());
    EXPECT_TRUE(devicesIn(u"Hardware Port: A\nDevice: en0\n"_s).isEmpty());
}

TEST(HardwarePortText, TakesTheSeventeenCharactersOfTheAddressAsTheyStand)
{
    const QString last = port("A", "en0", "N/A") + u"VLAN Configurations\n"_s;
    EXPECT_EQ(hardwarePorts(last).value(0).hardware, "N/A\n\nVLAN Configu"_L1);
}

TEST(HardwarePortText, APortWithoutAddressBeforeAnotherPortIsTooShort)
{
    const QString list = port("A", "en0", "N/A") + port("B", "en1");
    EXPECT_EQ(devicesIn(list), QStringList{u"en1"_s});
}

TEST(HardwarePortText, AddressShorterThanSixCharactersDropsThePort)
{
    const QString head = u"Hardware Port: A\nDevice: en0\nEthernet Address: "_s;
    EXPECT_TRUE(devicesIn(head).isEmpty());
    EXPECT_TRUE(devicesIn(head + u"12345"_s).isEmpty());
    EXPECT_EQ(hardwarePorts(head + u"123456"_s).value(0).hardware, "123456"_L1);
    EXPECT_EQ(hardwarePorts(head + u"N/A\n\n\nrest and more text"_s).value(0).hardware,
        "N/A\n\n\nrest and mo"_L1);
    EXPECT_EQ(
        hardwarePorts(head + u"00:16:3e:11:22:33:44"_s).value(0).hardware, "00:16:3e:11:22:33"_L1);
}

TEST(HardwarePortText, DeviceNameAtTheVeryEndIsWhatThereIs)
{
    const QString list = u"Hardware Port: Ethernet Address: 00:16:3e:11:22:33 Device: en"_s;
    EXPECT_EQ(devicesIn(list), QStringList{u"en"_s});
}

TEST(HardwarePortText, ReadsATextBeforeTheFirstPortLikeAPort)
{
    EXPECT_EQ(
        devicesIn(u"Device: en7\nEthernet Address: 00:16:3e:11:22:33"_s), QStringList{u"en7"_s});
}

TEST(HardwarePortText, UnexpectedTextYieldsNoPorts)
{
    EXPECT_TRUE(hardwarePorts(QString()).isEmpty());
    EXPECT_TRUE(hardwarePorts(u"\n"_s).isEmpty());
    EXPECT_TRUE(hardwarePorts(u"\nHardware Port: \nHardware Port: "_s).isEmpty());
    EXPECT_TRUE(hardwarePorts(u"sh: 1: networksetup: not found"_s).isEmpty());
}

} // namespace
} // namespace quillon::test
