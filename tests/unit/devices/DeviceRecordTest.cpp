// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "devices/DeviceRecord.h"

#include "base/SettingsKeys.h"
#include "fakes/QtPrinting.h"

#include <gtest/gtest.h>

namespace quillon::test {
namespace {

TEST(DeviceRecord, HoldsEveryKeyAndComesBackAsItWas)
{
    const QVariantMap rule{{QStringLiteral("name"), QStringLiteral("home")}};
    const QVariantMap stored{
        {record::device, QStringLiteral("en1")},
        {record::interface, QStringLiteral("Wi-Fi")},
        {record::localizedInterface, QStringLiteral("WLAN")},
        {record::hardware, QStringLiteral("00:16:3e:44:55:66")},
        {record::current, QStringLiteral("02:16:3e:44:55:66")},
        {record::status, QStringLiteral("active")},
        {record::ipAddress, QStringLiteral("198.51.100.7")},
        {record::vendor, QStringLiteral("Maker (A1B2C3)")},
        {record::hasRule, qlonglong(2)},
        {record::rule, rule},
        {record::loginRule, QVariantMap()},
    };
    const DeviceRecord record = DeviceRecord::fromPropertyList(stored);
    EXPECT_EQ(record.device, QStringLiteral("en1"));
    EXPECT_EQ(record.interface, QStringLiteral("Wi-Fi"));
    EXPECT_EQ(record.localizedInterface, QStringLiteral("WLAN"));
    EXPECT_EQ(record.hardware, QStringLiteral("00:16:3e:44:55:66"));
    EXPECT_EQ(record.current, QStringLiteral("02:16:3e:44:55:66"));
    EXPECT_EQ(record.status, QStringLiteral("active"));
    EXPECT_EQ(record.ipAddress, QStringLiteral("198.51.100.7"));
    EXPECT_EQ(record.vendor, QStringLiteral("Maker (A1B2C3)"));
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
    const QVariantMap stored{{QStringLiteral("future"), true}, {record::current, qlonglong(7)},
        {record::hasRule, QStringLiteral("1")}, {record::rule, QStringLiteral("text")}};
    DeviceRecord record = DeviceRecord::fromPropertyList(stored);
    EXPECT_FALSE(record.current);
    EXPECT_FALSE(record.hasRule);
    EXPECT_FALSE(record.rule);
    EXPECT_EQ(record.toPropertyList(), stored);

    record.current = QStringLiteral("02:00:00:00:00:01");
    QVariantMap changed = stored;
    changed[record::current] = QStringLiteral("02:00:00:00:00:01");
    EXPECT_EQ(record.toPropertyList(), changed);
}

TEST(DeviceRecord, IsEmptyWhereThereIsNoDictionary)
{
    for (const QVariant &stored : {QVariant(), QVariant(7), QVariant(QStringLiteral("text"))}) {
        EXPECT_EQ(DeviceRecord::fromPropertyList(stored), DeviceRecord());
    }
}

TEST(DeviceRecord, IsWifiAndUpByTheExactTexts)
{
    DeviceRecord record;
    EXPECT_FALSE(record.isWifi());
    EXPECT_FALSE(record.isUp());
    record.interface = QStringLiteral("Wi-Fi");
    record.status = QStringLiteral("active");
    EXPECT_TRUE(record.isWifi());
    EXPECT_TRUE(record.isUp());
    record.interface = QStringLiteral("wi-fi");
    record.status = QStringLiteral("Active");
    EXPECT_FALSE(record.isWifi());
    EXPECT_FALSE(record.isUp());
}

TEST(DeviceRecordFirstChanged, IsTheFirstByNameWhoseRecordDiffers)
{
    const DeviceRecord one{.status = QStringLiteral("active")};
    const DeviceRecord other{.status = QStringLiteral("inactive")};
    const QString en0 = QStringLiteral("en0");
    const QString en1 = QStringLiteral("en1");
    EXPECT_EQ(firstChangedDevice({}, {}), QString());
    EXPECT_EQ(firstChangedDevice({{en0, one}, {en1, one}}, {{en0, one}, {en1, one}}), QString());
    EXPECT_EQ(firstChangedDevice({{en0, one}, {en1, one}}, {{en0, one}, {en1, other}}), en1);
    EXPECT_EQ(firstChangedDevice({{en1, one}, {en0, one}}, {{en0, other}, {en1, other}}), en0);
    EXPECT_EQ(firstChangedDevice({{en0, one}}, {}), en0);
    EXPECT_EQ(firstChangedDevice({{en0, one}}, {{en0, one}, {en1, one}}), QString())
        << "a device that is new has not changed";
}

} // namespace
} // namespace quillon::test
