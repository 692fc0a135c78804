// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/textual/HardwarePortText.h"

#include "fakes/QtPrinting.h"
#include "unit/platform/textual/RecordedOutput.h"

namespace quillon {

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
    return QStringLiteral("Hardware Port: %1\nDevice: %2\nEthernet Address: %3\n\n")
        .arg(QString::fromUtf8(name), QString::fromUtf8(device), QString::fromUtf8(address));
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
        {QStringLiteral("Wi-Fi"), QStringLiteral("en0"), QStringLiteral("00:16:3e:44:55:66")},
        {QStringLiteral("Ethernet"), QStringLiteral("en1"), QStringLiteral("00:16:3e:11:22:33")},
        {QStringLiteral("Thunderbolt Bridge"), QStringLiteral("bridge0"),
            QStringLiteral("00:16:3e:aa:bb:02")},
    };
    EXPECT_EQ(hardwarePorts(recordedOutput(QStringLiteral("listallhardwareports.txt"))), expected);
}

TEST(HardwarePortText, CutsEn10ToEn1)
{
    EXPECT_EQ(devicesIn(port("USB LAN", "en10")), QStringList{QStringLiteral("en1")});
    EXPECT_EQ(devicesIn(port("Big Bridge", "bridge12")), QStringList{QStringLiteral("bridge1")});
}

TEST(HardwarePortText, CutsThePortNameBeforeTheFirstParenthesis)
{
    EXPECT_EQ(hardwarePorts(port("USB 10/100/1000 LAN (2)", "en5")).value(0).interface,
        QLatin1String("USB 10/100/1000 LAN"));
    EXPECT_EQ(hardwarePorts(port("LAN (a) (b)", "en5")).value(0).interface, QLatin1String("LAN"));
    EXPECT_EQ(hardwarePorts(port("LAN(2)", "en5")).value(0).interface, QLatin1String("LAN(2)"));
}

TEST(HardwarePortText, RemovesEveryLineBreakFromThePortName)
{
    const QString list = QStringLiteral(
        "Hardware Port: USB\r\n LAN\r\nDevice: en5\r\nEthernet Address: 00:16:3e:11:22:33\r\n");
    EXPECT_EQ(hardwarePorts(list).value(0).interface, QLatin1String("USB LAN"));
    EXPECT_EQ(hardwarePorts(list).value(0).hardware, QLatin1String("00:16:3e:11:22:33"));
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
    EXPECT_TRUE(devicesIn(QStringLiteral("Hardware Port: A\nEthernet Address: 00:16:3e:11:22:33\n"))
                    .isEmpty());
    EXPECT_TRUE(devicesIn(QStringLiteral("Hardware Port: A\nDevice: en0\n")).isEmpty());
}

TEST(HardwarePortText, TakesTheSeventeenCharactersOfTheAddressAsTheyStand)
{
    const QString last = port("A", "en0", "N/A") + QStringLiteral("VLAN Configurations\n");
    EXPECT_EQ(hardwarePorts(last).value(0).hardware, QLatin1String("N/A\n\nVLAN Configu"));
}

TEST(HardwarePortText, APortWithoutAddressBeforeAnotherPortIsTooShort)
{
    const QString list = port("A", "en0", "N/A") + port("B", "en1");
    EXPECT_EQ(devicesIn(list), QStringList{QStringLiteral("en1")});
}

TEST(HardwarePortText, AddressShorterThanSixCharactersDropsThePort)
{
    const QString head = QStringLiteral("Hardware Port: A\nDevice: en0\nEthernet Address: ");
    EXPECT_TRUE(devicesIn(head).isEmpty());
    EXPECT_TRUE(devicesIn(head + QStringLiteral("12345")).isEmpty());
    EXPECT_EQ(
        hardwarePorts(head + QStringLiteral("123456")).value(0).hardware, QLatin1String("123456"));
    EXPECT_EQ(hardwarePorts(head + QStringLiteral("N/A\n\n\nrest and more text")).value(0).hardware,
        QLatin1String("N/A\n\n\nrest and mo"));
    EXPECT_EQ(hardwarePorts(head + QStringLiteral("00:16:3e:11:22:33:44")).value(0).hardware,
        QLatin1String("00:16:3e:11:22:33"));
}

TEST(HardwarePortText, DeviceNameAtTheVeryEndIsWhatThereIs)
{
    const QString list =
        QStringLiteral("Hardware Port: Ethernet Address: 00:16:3e:11:22:33 Device: en");
    EXPECT_EQ(devicesIn(list), QStringList{QStringLiteral("en")});
}

TEST(HardwarePortText, ReadsATextBeforeTheFirstPortLikeAPort)
{
    EXPECT_EQ(devicesIn(QStringLiteral("Device: en7\nEthernet Address: 00:16:3e:11:22:33")),
        QStringList{QStringLiteral("en7")});
}

TEST(HardwarePortText, UnexpectedTextYieldsNoPorts)
{
    EXPECT_TRUE(hardwarePorts(QString()).isEmpty());
    EXPECT_TRUE(hardwarePorts(QStringLiteral("\n")).isEmpty());
    EXPECT_TRUE(hardwarePorts(QStringLiteral("\nHardware Port: \nHardware Port: ")).isEmpty());
    EXPECT_TRUE(hardwarePorts(QStringLiteral("sh: 1: networksetup: not found")).isEmpty());
}

} // namespace
} // namespace quillon::test
