// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "devices/DeviceTable.h"

#include "DeviceFixture.h"
#include "Places.h"
#include "fakes/FakeCommandRunner.h"
#include "platform/textual/TextualHost.h"

#include <QCoreApplication>
#include <QFile>
#include <QTranslator>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

/// Of the Wi-Fi interface, by whichever host it was read.
QVariantMap wholeRecord()
{
    return {
        {record::interface, u"Wi-Fi"_s},
        {record::localizedInterface, u"Wi-Fi"_s},
        {record::hardware, u"00:16:3e:44:55:66"_s},
        {record::current, u"02:16:3e:44:55:66"_s},
        {record::status, u"active"_s},
        {record::ipAddress, u"198.51.100.7"_s},
    };
}

class DeviceTableRefresh : public DeviceFixture
{
};

TEST_F(DeviceTableRefresh, KeepsEthernetWifiAndTheThunderboltBridgeOnly)
{
    table.updateNetWorkInterfaces();
    EXPECT_EQ(table.names(), (QStringList{u"bridge0"_s, u"en0"_s, u"en1"_s}));
}

TEST_F(DeviceTableRefresh, FillsEveryKeyOfARecord)
{
    table.updateNetWorkInterfaces();
    EXPECT_EQ(storedRecord(u"en1"_s), wholeRecord());
    EXPECT_EQ(recorded(u"bridge0"_s, record::ipAddress), QString());
    EXPECT_EQ(recorded(u"bridge0"_s, record::status), "inactive"_L1);
}

TEST_F(DeviceTableRefresh, WritesTheTableOnceAndFlushesOnce)
{
    table.updateNetWorkInterfaces();
    EXPECT_EQ(settings.journal(), (QStringList{u"set deviceDict"_s, u"synchronize"_s}));
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
    EXPECT_EQ(settings.journal(), QStringList{u"synchronize"_s});
}

TEST_F(DeviceTableRefresh, NeverForgetsADeviceThatWasUnplugged)
{
    table.updateNetWorkInterfaces();
    const QVariantMap last = storedRecord(u"en0"_s);
    host.unplug(u"en0"_s);
    table.updateNetWorkInterfaces();
    EXPECT_EQ(storedRecord(u"en0"_s), last);
}

TEST_F(DeviceTableRefresh, LeavesWhatOthersKeepInTheRecord)
{
    const QVariantMap rule = {{u"name"_s, u"home"_s}};
    storeRecord(u"en0"_s,
        {{record::vendor, u"Maker (A1B2C3)"_s}, {record::hasRule, u"1"_s}, {record::rule, rule},
            {record::loginRule, rule}, {u"future"_s, u"kept"_s}, {record::current, u"stale"_s}});
    table.updateNetWorkInterfaces();
    const QVariantMap record = storedRecord(u"en0"_s);
    EXPECT_EQ(record.value(record::vendor).toString(), "Maker (A1B2C3)"_L1);
    EXPECT_EQ(record.value(record::hasRule).toString(), "1"_L1);
    EXPECT_EQ(record.value(record::rule).toMap(), rule);
    EXPECT_EQ(record.value(record::loginRule).toMap(), rule);
    EXPECT_EQ(record.value(u"future"_s).toString(), "kept"_L1);
    EXPECT_EQ(record.value(record::current).toString(), "00:16:3e:11:22:33"_L1);
}

TEST_F(DeviceTableRefresh, RecordsADeviceThatAnswersNothingWithoutAddress)
{
    host.at(u"en0"_s).broken = true;
    table.updateNetWorkInterfaces();
    const QVariantMap record = storedRecord(u"en0"_s);
    EXPECT_EQ(record.value(record::current), QVariant(QString()));
    EXPECT_EQ(record.value(record::hardware).toString(), "00:16:3e:11:22:33"_L1);
}

TEST_F(DeviceTableRefresh, OfARenamedDeviceKeepsBothNames)
{
    table.updateNetWorkInterfaces();
    host.rename(u"en0"_s, u"lan0"_s);
    table.updateNetWorkInterfaces();
    EXPECT_TRUE(table.contains(u"en0"_s));
    EXPECT_EQ(recorded(u"lan0"_s, record::current), "00:16:3e:11:22:33"_L1);
}

TEST_F(DeviceTableRefresh, ShowsWifiInTheUsersLanguageAndNothingElse)
{
    class Everything : public QTranslator
    {
    public:
        QString translate(const char *, const char *text, const char *, int) const override
        {
            return u"<%1>"_s.arg(QString::fromUtf8(text));
        }
        bool isEmpty() const override { return false; }
    } translator;
    QCoreApplication::installTranslator(&translator);
    table.updateNetWorkInterfaces();
    QCoreApplication::removeTranslator(&translator);

    EXPECT_EQ(recorded(u"en1"_s, record::interface), "Wi-Fi"_L1);
    EXPECT_EQ(recorded(u"en1"_s, record::localizedInterface), "<Wi-Fi>"_L1);
    EXPECT_EQ(recorded(u"en0"_s, record::localizedInterface), "Ethernet"_L1);

    table.forgetAllNews();
    table.updateNetWorkInterfaces();
    EXPECT_EQ(recorded(u"en1"_s, record::localizedInterface), "Wi-Fi"_L1);
    EXPECT_EQ(table.devicesWithNews(), QStringList()) << "another language is no other network";
}

TEST_F(DeviceTableRefresh, HoldsTheRouterOnlyWhileThereIsOne)
{
    table.updateNetWorkInterfaces();
    EXPECT_FALSE(storedRecord(u"en0"_s).contains(record::router));
    host.at(u"en0"_s).router = u"192.0.2.1"_s;
    table.updateNetWorkInterfaces();
    EXPECT_EQ(recorded(u"en0"_s, record::router), "192.0.2.1"_L1);
    host.at(u"en0"_s).router.clear();
    table.updateNetWorkInterfaces();
    EXPECT_FALSE(storedRecord(u"en0"_s).contains(record::router));
}

TEST_F(DeviceTableRefresh, ThatFailsSaysNothingOfAnyDevice)
{
    table.updateNetWorkInterfaces();
    const QVariantMap before = storedTable();
    host.setUnreadable(true);
    table.updateNetWorkInterfaces();
    EXPECT_EQ(storedTable(), before);
    EXPECT_TRUE(table.isPresent(u"en0"_s)) << "it was not taken away";
    EXPECT_EQ(table.devicesWithNews(), QStringList());
    host.setUnreadable(false);
    host.unplug(u"en0"_s);
    table.updateNetWorkInterfaces();
    EXPECT_FALSE(table.isPresent(u"en0"_s));
}

TEST_F(DeviceTableRefresh, KnowsWhatIsGoneOnceItHasLooked)
{
    EXPECT_FALSE(table.isGone(u"en0"_s)) << "nobody has looked";
    EXPECT_FALSE(table.isPresent(u"en0"_s));
    table.updateNetWorkInterfaces();
    EXPECT_FALSE(table.isGone(u"en0"_s));
    EXPECT_TRUE(table.isGone(u"en7"_s));
    host.unplug(u"en0"_s);
    table.updateNetWorkInterfaces();
    EXPECT_TRUE(table.isGone(u"en0"_s));
    host.setUnreadable(true);
    table.updateNetWorkInterfaces();
    EXPECT_TRUE(table.isGone(u"en0"_s));
}

class DeviceTableFactoryAddressUntold : public DeviceFixture
{
protected:
    DeviceTableFactoryAddressUntold()
        : DeviceFixture(u"laptop"_s)
    {
    }
    const QString bridge = u"br0"_s;
};

TEST_F(DeviceTableFactoryAddressUntold, IsTheAddressFirstSeen)
{
    table.updateNetWorkInterfaces();
    EXPECT_EQ(recorded(bridge, record::hardware), "c6:01:02:03:04:05"_L1);
    host.giveAddress(bridge, u"02:00:00:00:00:01"_s);
    table.updateNetWorkInterfaces();
    EXPECT_EQ(recorded(bridge, record::hardware), "c6:01:02:03:04:05"_L1);
    EXPECT_EQ(recorded(bridge, record::current), "02:00:00:00:00:01"_L1);
}

TEST_F(DeviceTableFactoryAddressUntold, IsUnknownUntilAnAddressWasSeen)
{
    host.at(bridge).broken = true;
    table.updateNetWorkInterfaces();
    EXPECT_EQ(recorded(bridge, record::hardware), QString());
    host.at(bridge).broken = false;
    table.updateNetWorkInterfaces();
    EXPECT_EQ(recorded(bridge, record::hardware), "c6:01:02:03:04:05"_L1);
}

class DeviceTableOfATextualHost : public DeviceFixture
{
protected:
    DeviceTableOfATextualHost()
    {
        QFile ports(testData() + u"/commands/listallhardwareports.txt"_s);
        QFile query(testData() + u"/commands/ifconfig-en0.txt"_s);
        EXPECT_TRUE(ports.open(QIODevice::ReadOnly) && query.open(QIODevice::ReadOnly));
        commands.teach(list, QString::fromUtf8(ports.readAll()));
        commands.teach(u"ifconfig en0"_s, QString::fromUtf8(query.readAll()));
    }

    const QString list = u"networksetup -listallhardwareports"_s;
    FakeCommandRunner commands;
    TextualHost textualHost{commands};
    DeviceTable textualTable{settings, textualHost, addresses};
};

TEST_F(DeviceTableOfATextualHost, FillTheSameRecords)
{
    textualTable.updateNetWorkInterfaces();
    EXPECT_EQ(textualTable.names(), (QStringList{u"bridge0"_s, u"en0"_s, u"en1"_s}));
    EXPECT_EQ(storedRecord(u"en0"_s), wholeRecord());
}

TEST_F(DeviceTableOfATextualHost, SkipsPortsByTheNameAsTheSystemWritesIt)
{
    commands.teach(list,
        u"Hardware Port: Thunderbolt (the Bridge)\nDevice: bridge0\n"
        "Ethernet Address: 00:16:3e:00:00:01\n\n"
        "Hardware Port: LAN (Bluetooth)\nDevice: en3\nEthernet Address: 00:16:3e:00:00:03\n\n"_s);
    textualTable.updateNetWorkInterfaces();
    EXPECT_EQ(textualTable.names(), QStringList{u"bridge0"_s});
    EXPECT_EQ(recorded(u"bridge0"_s, record::interface), "Thunderbolt"_L1);
}

TEST_F(DeviceTableOfATextualHost, En10OverwritesTheRecordOfEn1)
{
    commands.teach(list,
        u"Hardware Port: Ethernet\nDevice: en1\nEthernet Address: 00:16:3e:00:00:01\n\n"
        "Hardware Port: USB LAN\nDevice: en10\nEthernet Address: 00:16:3e:00:00:10\n\n"_s);
    storeRecord(u"en1"_s, {{record::vendor, u"Maker (A1B2C3)"_s}});
    textualTable.updateNetWorkInterfaces();
    EXPECT_EQ(textualTable.names(), QStringList{u"en1"_s});
    EXPECT_EQ(recorded(u"en1"_s, record::interface), "USB LAN"_L1);
    EXPECT_EQ(recorded(u"en1"_s, record::hardware), "00:16:3e:00:00:10"_L1);
    EXPECT_EQ(recorded(u"en1"_s, record::vendor), "Maker (A1B2C3)"_L1);
}

class DeviceTableUpdate : public DeviceFixture
{
protected:
    const QString en0 = u"en0"_s;
};

TEST_F(DeviceTableUpdate, ChangesOneRecordAndFlushes)
{
    const QVariantMap other{{record::interface, u"Wi-Fi"_s}};
    QVariantMap expected{{record::interface, u"Ethernet"_s}};
    store({{en0, expected}, {u"en1"_s, other}, {u"en2"_s, u"text"_s}});
    settings.clearJournal();
    const DeviceRecord changed =
        table.update(en0, [](DeviceRecord &record) { record.vendor = u"Maker (A1B2C3)"_s; });
    expected[record::vendor] = u"Maker (A1B2C3)"_s;
    EXPECT_EQ(storedRecord(en0), expected);
    EXPECT_EQ(changed, table.record(en0));
    EXPECT_EQ(storedRecord(u"en1"_s), other);
    EXPECT_EQ(storedTable().value(u"en2"_s), QVariant(u"text"_s));
    EXPECT_EQ(settings.journal(), (QStringList{u"set deviceDict"_s, u"synchronize"_s}));
}

TEST_F(DeviceTableUpdate, MakesTheRecordOfADeviceThatHadNone)
{
    table.update(en0, [](DeviceRecord &record) { record.status = u"active"_s; });
    EXPECT_EQ(storedRecord(en0), (QVariantMap{{record::status, u"active"_s}}));
}

} // namespace
} // namespace quillon::test
