// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "devices/DeviceRecord.h"

#include "base/SettingsKeys.h"
#include "fakes/QtPrinting.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

TEST(DeviceRecord, HoldsEveryKeyAndComesBackAsItWas)
{
    const QVariantMap rule{{u"name"_s, u"home"_s}};
    const QVariantMap stored{
        {record::device, u"en1"_s},
        {record::interface, u"Wi-Fi"_s},
        {record::localizedInterface, u"WLAN"_s},
        {record::hardware, u"00:16:3e:44:55:66"_s},
        {record::current, u"02:16:3e:44:55:66"_s},
        {record::status, u"active"_s},
        {record::ipAddress, u"198.51.100.7"_s},
        {record::router, u"198.51.100.1 fe80::1"_s},
        {record::vendor, u"Maker (A1B2C3)"_s},
        {record::hasRule, qlonglong(2)},
        {record::rule, rule},
        {record::loginRule, QVariantMap()},
    };
    const DeviceRecord record = DeviceRecord::fromPropertyList(stored);
    EXPECT_EQ(record.device, u"en1"_s);
    EXPECT_EQ(record.interface, u"Wi-Fi"_s);
    EXPECT_EQ(record.localizedInterface, u"WLAN"_s);
    EXPECT_EQ(record.hardware, u"00:16:3e:44:55:66"_s);
    EXPECT_EQ(record.current, u"02:16:3e:44:55:66"_s);
    EXPECT_EQ(record.status, u"active"_s);
    EXPECT_EQ(record.ipAddress, u"198.51.100.7"_s);
    EXPECT_EQ(record.router, u"198.51.100.1 fe80::1"_s);
    EXPECT_EQ(record.vendor, u"Maker (A1B2C3)"_s);
    EXPECT_EQ(record.hasRule, 2);
    EXPECT_EQ(record.rule, rule);
    EXPECT_EQ(record.loginRule, QVariantMap());
    EXPECT_TRUE(record.other.isEmpty());
    EXPECT_EQ(record.toPropertyList(), stored);
}

TEST(DeviceRecord, KeepsWhatIsMissingApartFromWhatIsEmpty)
{
    const QVariantMap stored{{record::ipAddress, QString()}, {record::rule, QVariantMap()}};
    const DeviceRecord record = DeviceRecord::fromPropertyList(stored);
    EXPECT_EQ(record.ipAddress, QString());
    EXPECT_FALSE(record.current);
    EXPECT_TRUE(record.rule);
    EXPECT_FALSE(record.loginRule);
    EXPECT_EQ(record.toPropertyList(), stored);
}

TEST(DeviceRecord, KeepsButDoesNotReadWhatIsOfAnotherType)
{
    const QVariantMap stored{{u"future"_s, true}, {record::current, qlonglong(7)},
        {record::hasRule, u"1"_s}, {record::rule, u"text"_s}};
    DeviceRecord record = DeviceRecord::fromPropertyList(stored);
    EXPECT_FALSE(record.current);
    EXPECT_FALSE(record.hasRule);
    EXPECT_FALSE(record.rule);
    EXPECT_EQ(record.toPropertyList(), stored);

    record.current = u"02:00:00:00:00:01"_s;
    QVariantMap changed = stored;
    changed[record::current] = u"02:00:00:00:00:01"_s;
    EXPECT_EQ(record.toPropertyList(), changed);
}

TEST(DeviceRecord, IsEmptyWhereThereIsNoDictionary)
{
    for (const QVariant &stored : {QVariant(), QVariant(7), QVariant(u"text"_s)}) {
        EXPECT_EQ(DeviceRecord::fromPropertyList(stored), DeviceRecord());
    }
}

TEST(DeviceRecord, IsWifiAndUpByTheExactTexts)
{
    DeviceRecord record;
    EXPECT_FALSE(record.isWifi());
    EXPECT_FALSE(record.isUp());
    record.interface = u"Wi-Fi"_s;
    record.status = u"active"_s;
    EXPECT_TRUE(record.isWifi());
    EXPECT_TRUE(record.isUp());
    record.interface = u"wi-fi"_s;
    record.status = u"Active"_s;
    EXPECT_FALSE(record.isWifi());
    EXPECT_FALSE(record.isUp());
}

TEST(DeviceRecord, IsTheSameInterfaceUnlessSomethingOfTheInterfaceDiffers)
{
    const DeviceRecord record{.interface = u"Ethernet"_s, .status = u"active"_s};
    DeviceRecord other = record;
    other.localizedInterface = u"Réseau"_s;
    other.vendor = u"Maker (A1B2C3)"_s;
    other.hasRule = 1;
    other.rule = QVariantMap{{u"name"_s, u"home"_s}};
    other.loginRule = QVariantMap();
    other.other = {{u"future"_s, true}};
    EXPECT_TRUE(isSameInterface(record, other)) << "what the program keeps there";
    for (std::optional<QString> DeviceRecord::*field :
        {&DeviceRecord::interface, &DeviceRecord::hardware, &DeviceRecord::current,
            &DeviceRecord::status, &DeviceRecord::ipAddress, &DeviceRecord::router}) {
        DeviceRecord changed = record;
        changed.*field = u"other"_s;
        EXPECT_FALSE(isSameInterface(record, changed));
    }
}

} // namespace
} // namespace quillon::test
