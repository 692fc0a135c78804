// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/NetworkKeys.h"
#include "history/Connection.h"
#include "history/HistoryRecords.h"
#include "store/RecordStore.h"
#include "unit/devices/AddressChangeFixture.h"

#include <QTemporaryDir>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

/// The road from a request to the file, with the history connected as the program connects it.
class HistoryOfChanges : public AddressChangeFixture
{
protected:
    HistoryOfChanges()
    {
        settings.set(keys::currentWiFiDict, QVariantMap{{wifirecord::SSID, u"Home"_s},
                                                {wifirecord::BSSID, u"a4:2b:b0:11:22:33"_s}});
        QObject::connect(
            changer.get(), &AddressChanger::addressChanged, changer.get(),
            [this](const QString &device, const QString &address) {
                history.addHistoryItemForDeviceWithNewAddress(device, address);
            },
            Qt::DirectConnection);
    }

    QList<Connection> recordsInFile()
    {
        RecordStore other(scheduler, folder.path());
        const Result<ManagedObjectList> fetched =
            other.managedObjectContext().fetch(Connection::fetchRequest());
        EXPECT_TRUE(fetched);
        QList<Connection> connections;
        if (fetched) {
            for (const ManagedObjectPtr &record : fetched.value()) {
                connections.append(Connection(record));
            }
        }
        return connections;
    }

    QTemporaryDir folder;
    RecordStore records{scheduler, folder.path()};
    HistoryRecords history{records, table, settings, scheduler};
};

TEST_F(HistoryOfChanges, HasOneRecordForEachThatWasMade)
{
    change(en1, wanted);
    change(en0, u"02:AA:BB:CC:DD:02"_s);
    const QList<Connection> made = recordsInFile();
    ASSERT_EQ(made.size(), 2);
    EXPECT_EQ(made.at(0).device(), en1);
    EXPECT_EQ(made.at(0).interface(), u"Wi-Fi"_s);
    EXPECT_EQ(made.at(0).address(), wanted) << "as it was asked for";
    EXPECT_EQ(made.at(0).ssid(), u"Home"_s);
    EXPECT_EQ(made.at(0).bssid(), u"a4:2b:b0:11:22:33"_s);
    EXPECT_EQ(made.at(1).device(), en0);
    EXPECT_EQ(made.at(1).ssid(), QString());
}

TEST_F(HistoryOfChanges, HasNoneForAChangeThatWasNot)
{
    host.at(en1).keepsAddress = true;
    change(en1, wanted);
    change(en0, host.addressOf(en0));
    EXPECT_TRUE(recordsInFile().isEmpty());
}

} // namespace
} // namespace quillon::test
