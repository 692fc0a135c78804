// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/Connection.h"

#include "HistoryFixture.h"

namespace quillon::test {
namespace {

class ConnectionTest : public HistoryFixture
{
protected:
    ManagedObjectPtr record = context().insertNewObject(QStringLiteral("Connection"));
    Connection connection{record};
};

TEST_F(ConnectionTest, ReadsEmptyBeforeAnythingIsSet)
{
    EXPECT_FALSE(connection.date().isValid());
    EXPECT_EQ(connection.device(), QString());
    EXPECT_EQ(connection.interface(), QString());
    EXPECT_EQ(connection.address(), QString());
    EXPECT_EQ(connection.ssid(), QString());
    EXPECT_EQ(connection.bssid(), QString());
    EXPECT_EQ(connection.notes(), QString());
}

TEST_F(ConnectionTest, KeepsEachAttributeUnderItsName)
{
    const QDateTime date = QDateTime::fromMSecsSinceEpoch(1'750'000'000'123, Qt::UTC);
    connection.setDate(date);
    connection.setDevice(QStringLiteral("a device"));
    connection.setInterface(QStringLiteral("an interface"));
    connection.setAddress(QStringLiteral("an address"));
    connection.setSsid(QStringLiteral("an ssid"));
    connection.setBssid(QStringLiteral("a bssid"));
    connection.setNotes(QStringLiteral("notes"));
    const QVariantMap expected = {{QStringLiteral("date"), date},
        {QStringLiteral("device"), QStringLiteral("a device")},
        {QStringLiteral("interface"), QStringLiteral("an interface")},
        {QStringLiteral("address"), QStringLiteral("an address")},
        {QStringLiteral("ssid"), QStringLiteral("an ssid")},
        {QStringLiteral("bssid"), QStringLiteral("a bssid")},
        {QStringLiteral("notes"), QStringLiteral("notes")}};
    for (auto attribute = expected.begin(); attribute != expected.end(); ++attribute) {
        EXPECT_EQ(record->value(attribute.key()), attribute.value());
    }
    EXPECT_EQ(connection.date(), date);
    EXPECT_EQ(connection.device(), QStringLiteral("a device"));
    EXPECT_EQ(connection.interface(), QStringLiteral("an interface"));
    EXPECT_EQ(connection.address(), QStringLiteral("an address"));
    EXPECT_EQ(connection.ssid(), QStringLiteral("an ssid"));
    EXPECT_EQ(connection.bssid(), QStringLiteral("a bssid"));
    EXPECT_EQ(connection.notes(), QStringLiteral("notes"));
}

TEST_F(ConnectionTest, IsFetchedByItsEntity)
{
    EXPECT_EQ(Connection::fetchRequest().entity, QStringLiteral("Connection"));
    EXPECT_EQ(recordsOf(context()).first().record(), record);
}

} // namespace
} // namespace quillon::test
