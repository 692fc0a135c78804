// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/Connection.h"

#include "HistoryFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class ConnectionTest : public HistoryFixture
{
protected:
    ManagedObjectPtr record = context().insertNewObject(u"Connection"_s);
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
    connection.setDevice(u"a device"_s);
    connection.setInterface(u"an interface"_s);
    connection.setAddress(u"an address"_s);
    connection.setSsid(u"an ssid"_s);
    connection.setBssid(u"a bssid"_s);
    connection.setNotes(u"notes"_s);
    const QVariantMap expected = {{u"date"_s, date}, {u"device"_s, u"a device"_s},
        {u"interface"_s, u"an interface"_s}, {u"address"_s, u"an address"_s},
        {u"ssid"_s, u"an ssid"_s}, {u"bssid"_s, u"a bssid"_s}, {u"notes"_s, u"notes"_s}};
    for (auto attribute = expected.begin(); attribute != expected.end(); ++attribute) {
        EXPECT_EQ(record->value(attribute.key()), attribute.value());
    }
    EXPECT_EQ(connection.date(), date);
    EXPECT_EQ(connection.device(), u"a device"_s);
    EXPECT_EQ(connection.interface(), u"an interface"_s);
    EXPECT_EQ(connection.address(), u"an address"_s);
    EXPECT_EQ(connection.ssid(), u"an ssid"_s);
    EXPECT_EQ(connection.bssid(), u"a bssid"_s);
    EXPECT_EQ(connection.notes(), u"notes"_s);
}

TEST_F(ConnectionTest, IsFetchedByItsEntity)
{
    EXPECT_EQ(Connection::fetchRequest().entity, u"Connection"_s);
    EXPECT_EQ(recordsOf(context()).first().record(), record);
}

} // namespace
} // namespace quillon::test
