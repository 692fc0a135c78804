// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "devices/DeviceTable.h"

#include "DeviceFixture.h"
#include "fakes/FakeCommandRunner.h"
#include "platform/textual/TextualHost.h"

#include <QCoreApplication>
#include <QFile>
#include <QTranslator>

#include <atomic>
#include <thread>
#include <vector>

namespace quillon::test {
namespace {

QVariantMap wifi()
{
    return {{record::interface, QStringLiteral("Wi-Fi")}};
}

QVariantMap wired()
{
    return {{record::interface, QStringLiteral("Ethernet")}};
}

class DeviceTableRefresh : public DeviceFixture
{
};

TEST_F(DeviceTableRefresh, KeepsEthernetWifiAndTheThunderboltBridgeOnly)
{
    table.updateNetWorkInterfaces();
    EXPECT_EQ(table.names(),
        (QStringList{QStringLiteral("bridge0"), QStringLiteral("en0"), QStringLiteral("en1")}));
}

TEST_F(DeviceTableRefresh, FillsEveryKeyOfARecord)
{
    table.updateNetWorkInterfaces();
    const QVariantMap expected = {
        {record::interface, QStringLiteral("Wi-Fi")},
        {record::localizedInterface, QStringLiteral("Wi-Fi")},
        {record::hardware, QStringLiteral("00:16:3e:44:55:66")},
        {record::current, QStringLiteral("02:16:3e:44:55:66")},
        {record::status, QStringLiteral("active")},
        {record::ipAddress, QStringLiteral("198.51.100.7")},
    };
    EXPECT_EQ(storedRecord(QStringLiteral("en1")), expected);
    EXPECT_EQ(recorded(QStringLiteral("bridge0"), record::ipAddress), QString());
    EXPECT_EQ(recorded(QStringLiteral("bridge0"), record::status), QLatin1String("inactive"));
}

TEST_F(DeviceTableRefresh, WritesTheTableOnceAndFlushesOnce)
{
    table.updateNetWorkInterfaces();
    EXPECT_EQ(settings.journal(),
        (QStringList{QStringLiteral("set deviceDict"), QStringLiteral("synchronize")}));
}

TEST_F(DeviceTableRefresh, OfAMachineWithoutPortsFlushesAndKeepsTheTable)
{
    table.updateNetWorkInterfaces();
    const QVariantMap before = storedTable();
    for (const QString &device : before.keys()) {
        host.unplug(device);
    }
    settings.clearJournal();
    table.updateNetWorkInterfaces();
    EXPECT_EQ(storedTable(), before);
    EXPECT_EQ(settings.journal(), QStringList{QStringLiteral("synchronize")});
}

TEST_F(DeviceTableRefresh, NeverForgetsADeviceThatWasUnplugged)
{
    table.updateNetWorkInterfaces();
    const QVariantMap last = storedRecord(QStringLiteral("en0"));
    host.unplug(QStringLiteral("en0"));
    table.updateNetWorkInterfaces();
    EXPECT_EQ(storedRecord(QStringLiteral("en0")), last);
}

TEST_F(DeviceTableRefresh, LeavesWhatOthersKeepInTheRecord)
{
    const QVariantMap rule = {{QStringLiteral("name"), QStringLiteral("home")}};
    storeRecord(QStringLiteral("en0"),
        {{record::vendor, QStringLiteral("Maker (A1B2C3)")}, {record::hasRule, QStringLiteral("1")},
            {record::rule, rule}, {record::loginRule, rule},
            {QStringLiteral("future"), QStringLiteral("kept")},
            {record::current, QStringLiteral("stale")}});
    table.updateNetWorkInterfaces();
    const QVariantMap record = storedRecord(QStringLiteral("en0"));
    EXPECT_EQ(record.value(record::vendor).toString(), QLatin1String("Maker (A1B2C3)"));
    EXPECT_EQ(record.value(record::hasRule).toString(), QLatin1String("1"));
    EXPECT_EQ(record.value(record::rule).toMap(), rule);
    EXPECT_EQ(record.value(record::loginRule).toMap(), rule);
    EXPECT_EQ(record.value(QStringLiteral("future")).toString(), QLatin1String("kept"));
    EXPECT_EQ(record.value(record::current).toString(), QLatin1String("00:16:3e:11:22:33"));
}

TEST_F(DeviceTableRefresh, RecordsADeviceThatAnswersNothingWithoutAddress)
{
    host.at(QStringLiteral("en0")).broken = true;
    table.updateNetWorkInterfaces();
    const QVariantMap record = storedRecord(QStringLiteral("en0"));
    EXPECT_EQ(record.value(record::current), QVariant(QString()));
    EXPECT_EQ(record.value(record::hardware).toString(), QLatin1String("00:16:3e:11:22:33"));
}

TEST_F(DeviceTableRefresh, OfARenamedDeviceKeepsBothNames)
{
    table.updateNetWorkInterfaces();
    host.rename(QStringLiteral("en0"), QStringLiteral("lan0"));
    table.updateNetWorkInterfaces();
    EXPECT_TRUE(table.contains(QStringLiteral("en0")));
    EXPECT_EQ(
        recorded(QStringLiteral("lan0"), record::current), QLatin1String("00:16:3e:11:22:33"));
}

TEST_F(DeviceTableRefresh, ShowsWifiInTheUsersLanguageAndNothingElse)
{
    class Everything : public QTranslator
    {
    public:
        QString translate(const char *, const char *text, const char *, int) const override
        {
            return QStringLiteral("<%1>").arg(QString::fromUtf8(text));
        }
        bool isEmpty() const override { return false; }
    } translator;
    QCoreApplication::installTranslator(&translator);
    table.updateNetWorkInterfaces();
    QCoreApplication::removeTranslator(&translator);

    EXPECT_EQ(recorded(QStringLiteral("en1"), record::interface), QLatin1String("Wi-Fi"));
    EXPECT_EQ(
        recorded(QStringLiteral("en1"), record::localizedInterface), QLatin1String("<Wi-Fi>"));
    EXPECT_EQ(
        recorded(QStringLiteral("en0"), record::localizedInterface), QLatin1String("Ethernet"));
}

class DeviceTableFactoryAddressUntold : public DeviceFixture
{
protected:
    DeviceTableFactoryAddressUntold()
        : DeviceFixture(QStringLiteral("laptop"))
    {
    }
    const QString bridge = QStringLiteral("br0");
};

TEST_F(DeviceTableFactoryAddressUntold, IsTheAddressFirstSeen)
{
    table.updateNetWorkInterfaces();
    EXPECT_EQ(recorded(bridge, record::hardware), QLatin1String("c6:01:02:03:04:05"));
    host.giveAddress(bridge, QStringLiteral("02:00:00:00:00:01"));
    table.updateNetWorkInterfaces();
    EXPECT_EQ(recorded(bridge, record::hardware), QLatin1String("c6:01:02:03:04:05"));
    EXPECT_EQ(recorded(bridge, record::current), QLatin1String("02:00:00:00:00:01"));
}

TEST_F(DeviceTableFactoryAddressUntold, IsUnknownUntilAnAddressWasSeen)
{
    host.at(bridge).broken = true;
    table.updateNetWorkInterfaces();
    EXPECT_EQ(recorded(bridge, record::hardware), QString());
    host.at(bridge).broken = false;
    table.updateNetWorkInterfaces();
    EXPECT_EQ(recorded(bridge, record::hardware), QLatin1String("c6:01:02:03:04:05"));
}

class DeviceTableOfATextualHost : public DeviceFixture
{
protected:
    DeviceTableOfATextualHost()
    {
        QFile ports(QStringLiteral(QUILLON_TEST_DATA "/commands/listallhardwareports.txt"));
        QFile query(QStringLiteral(QUILLON_TEST_DATA "/commands/ifconfig-en0.txt"));
        EXPECT_TRUE(ports.open(QIODevice::ReadOnly) && query.open(QIODevice::ReadOnly));
        commands.teach(list, QString::fromUtf8(ports.readAll()));
        commands.teach(QStringLiteral("ifconfig en0"), QString::fromUtf8(query.readAll()));
    }

    const QString list = QStringLiteral("networksetup -listallhardwareports");
    FakeCommandRunner commands;
    TextualHost textualHost{commands};
    DeviceTable textualTable{settings, textualHost, addresses};
};

TEST_F(DeviceTableOfATextualHost, FillTheSameRecords)
{
    textualTable.updateNetWorkInterfaces();
    EXPECT_EQ(textualTable.names(),
        (QStringList{QStringLiteral("bridge0"), QStringLiteral("en0"), QStringLiteral("en1")}));
    const QVariantMap expected = {
        {record::interface, QStringLiteral("Wi-Fi")},
        {record::localizedInterface, QStringLiteral("Wi-Fi")},
        {record::hardware, QStringLiteral("00:16:3e:44:55:66")},
        {record::current, QStringLiteral("02:16:3e:44:55:66")},
        {record::status, QStringLiteral("active")},
        {record::ipAddress, QStringLiteral("198.51.100.7")},
    };
    EXPECT_EQ(storedRecord(QStringLiteral("en0")), expected);
}

TEST_F(DeviceTableOfATextualHost, En10OverwritesTheRecordOfEn1)
{
    commands.teach(
        list, QStringLiteral(
                  "Hardware Port: Ethernet\nDevice: en1\nEthernet Address: 00:16:3e:00:00:01\n\n"
                  "Hardware Port: USB LAN\nDevice: en10\nEthernet Address: 00:16:3e:00:00:10\n\n"));
    storeRecord(QStringLiteral("en1"), {{record::vendor, QStringLiteral("Maker (A1B2C3)")}});
    textualTable.updateNetWorkInterfaces();
    EXPECT_EQ(textualTable.names(), QStringList{QStringLiteral("en1")});
    EXPECT_EQ(recorded(QStringLiteral("en1"), record::interface), QLatin1String("USB LAN"));
    EXPECT_EQ(
        recorded(QStringLiteral("en1"), record::hardware), QLatin1String("00:16:3e:00:00:10"));
    EXPECT_EQ(recorded(QStringLiteral("en1"), record::vendor), QLatin1String("Maker (A1B2C3)"));
}

class DeviceTableQueries : public DeviceFixture
{
};

TEST_F(DeviceTableQueries, ReadBackStoresNothing)
{
    const InterfaceInfo info = table.getInfoForDevice(QStringLiteral("en1"));
    EXPECT_EQ(info.macAddress, QLatin1String("02:16:3e:44:55:66"));
    EXPECT_TRUE(settings.journal().isEmpty());
}

TEST_F(DeviceTableQueries, OfTwoIpAddressesOneQueryTellsTheLastTheOtherTheFirst)
{
    EXPECT_EQ(table.ipAddressForDevice(QStringLiteral("en0")), QLatin1String("192.0.2.11"));
    EXPECT_EQ(table.getInfoForDevice(QStringLiteral("en0")).ipAddress, QLatin1String("192.0.2.10"));
}

TEST_F(DeviceTableQueries, ADeviceWithoutIpAddressHasAnEmptyOne)
{
    EXPECT_EQ(table.ipAddressForDevice(QStringLiteral("en3")), QString());
    EXPECT_EQ(table.ipAddressForDevice(QStringLiteral("en")), QString()) << "names match whole";
    addresses.fail();
    EXPECT_EQ(table.ipAddressForDevice(QStringLiteral("en0")), QString());
}

TEST_F(DeviceTableQueries, WifiIsWhatIsCalledExactlyThat)
{
    store({{QStringLiteral("a"), wifi()}, {QStringLiteral("b"), wired()},
        {QStringLiteral("c"), QVariantMap{{record::interface, QStringLiteral("Wi-Fi 2")}}},
        {QStringLiteral("d"), QVariantMap{{record::interface, QStringLiteral("wi-fi")}}}});
    EXPECT_TRUE(table.isDeviceWifi(QStringLiteral("a")));
    EXPECT_FALSE(table.isDeviceWifi(QStringLiteral("b")));
    EXPECT_FALSE(table.isDeviceWifi(QStringLiteral("c")));
    EXPECT_FALSE(table.isDeviceWifi(QStringLiteral("d")));
    EXPECT_FALSE(table.isDeviceWifi(QStringLiteral("unknown")));
}

TEST_F(DeviceTableQueries, WithoutWifiTheWifiDeviceIsEmptyAndNothingIsForcedToTheFront)
{
    store({{QStringLiteral("bridge0"), wired()}, {QStringLiteral("en0"), wired()}});
    EXPECT_EQ(table.getWifiDevice(), QString());
    EXPECT_EQ(table.sortedDevicesArray(),
        (QStringList{QStringLiteral("en0"), QStringLiteral("bridge0")}));
    store({});
    EXPECT_EQ(table.getWifiDevice(), QString());
    EXPECT_TRUE(table.sortedDevicesArray().isEmpty());
}

TEST_F(DeviceTableQueries, ListsShowWifiFirstThenEthernetThenBridges)
{
    store({{QStringLiteral("bridge0"), wired()}, {QStringLiteral("en2"), wired()},
        {QStringLiteral("en1"), wifi()}, {QStringLiteral("en0"), wired()}});
    EXPECT_EQ(table.getWifiDevice(), QLatin1String("en1"));
    EXPECT_EQ(table.sortedDevicesArray(), (QStringList{QStringLiteral("en1"), QStringLiteral("en0"),
                                              QStringLiteral("en2"), QStringLiteral("bridge0")}));
}

TEST_F(DeviceTableQueries, ListsSortByCharacterAndPutOneWifiInFront)
{
    store({{QStringLiteral("wlp2s0"), wifi()}, {QStringLiteral("wlp1s0"), wifi()},
        {QStringLiteral("eth0"), wired()}, {QStringLiteral("enp1s0"), wired()},
        {QStringLiteral("Eth1"), wired()}, {QStringLiteral("br0"), wired()}});
    EXPECT_EQ(table.getWifiDevice(), QLatin1String("wlp1s0"));
    EXPECT_EQ(table.sortedDevicesArray(),
        (QStringList{QStringLiteral("wlp1s0"), QStringLiteral("enp1s0"), QStringLiteral("eth0"),
            QStringLiteral("Eth1"), QStringLiteral("br0"), QStringLiteral("wlp2s0")}));
}

/// Notices callers who do not wait for each other.
class TouchyHost : public NetworkHost
{
public:
    QList<PortRecord> ports() override
    {
        occupied();
        return {};
    }
    InterfaceInfo info(const QString &) override
    {
        occupied();
        return {};
    }
    bool wasCrowded() const { return m_crowded; }

private:
    void occupied()
    {
        if (m_inside.fetch_add(1) != 0) {
            m_crowded = true;
        }
        std::this_thread::yield();
        m_inside.fetch_sub(1);
    }

    std::atomic_int m_inside{0};
    std::atomic_bool m_crowded{false};
};

TEST_F(DeviceTableQueries, FromManyThreadsReachTheHostOneAtATime)
{
    TouchyHost touchy;
    DeviceTable shared(settings, touchy, addresses);
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&shared, i] {
            for (int n = 0; n < 2000; ++n) {
                i % 2 == 0 ? shared.updateNetWorkInterfaces()
                           : static_cast<void>(shared.getInfoForDevice(QStringLiteral("en0")));
            }
        });
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
    EXPECT_FALSE(touchy.wasCrowded());
}

class DeviceTableUpdate : public DeviceFixture
{
protected:
    const QString en0 = QStringLiteral("en0");
};

TEST_F(DeviceTableUpdate, ChangesOneRecordAndFlushes)
{
    const QVariantMap other = wifi();
    store({{en0, wired()}, {QStringLiteral("en1"), other},
        {QStringLiteral("en2"), QStringLiteral("text")}});
    settings.clearJournal();
    const DeviceRecord changed = table.update(
        en0, [](DeviceRecord &record) { record.vendor = QStringLiteral("Maker (A1B2C3)"); });
    QVariantMap expected = wired();
    expected[record::vendor] = QStringLiteral("Maker (A1B2C3)");
    EXPECT_EQ(storedRecord(en0), expected);
    EXPECT_EQ(changed, table.record(en0));
    EXPECT_EQ(storedRecord(QStringLiteral("en1")), other);
    EXPECT_EQ(storedTable().value(QStringLiteral("en2")), QVariant(QStringLiteral("text")));
    EXPECT_EQ(settings.journal(),
        (QStringList{QStringLiteral("set deviceDict"), QStringLiteral("synchronize")}));
}

TEST_F(DeviceTableUpdate, MakesTheRecordOfADeviceThatHadNone)
{
    table.update(en0, [](DeviceRecord &record) { record.status = QStringLiteral("active"); });
    EXPECT_EQ(storedRecord(en0), (QVariantMap{{record::status, QStringLiteral("active")}}));
}

} // namespace
} // namespace quillon::test
