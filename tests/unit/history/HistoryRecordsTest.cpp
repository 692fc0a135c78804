// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/HistoryRecords.h"

#include "HistoryFixture.h"
#include "fakes/LogCapture.h"

#include <QUndoStack>

#include <SQLiteCpp/SQLiteCpp.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class HistoryRecordsTest : public HistoryFixture
{
protected:
    Connection onlyRecord()
    {
        const QList<Connection> all = recordsOf(context());
        EXPECT_EQ(all.size(), 1);
        return all.isEmpty() ? Connection(context().insertNewObject(u"Connection"_s)) : all.first();
    }
    void change(const char *statement)
    {
        SQLite::Database database(file().toStdString(), SQLite::OPEN_READWRITE);
        database.exec(statement);
    }
};

TEST_F(HistoryRecordsTest, TellsWhatHappenedOnAWiredPort)
{
    const QDateTime now = scheduler.now();
    history->addHistoryItemForDeviceWithNewAddress(wired, address);
    const Connection made = onlyRecord();
    EXPECT_EQ(made.date(), now);
    EXPECT_EQ(made.device(), wired);
    EXPECT_EQ(made.interface(), u"Ethernet"_s);
    EXPECT_EQ(made.address(), address) << "the letters as they were asked for";
    EXPECT_FALSE(made.record()->value(u"notes"_s).isValid());
}

TEST_F(HistoryRecordsTest, NeverTellsTheWiFiNetworkOfAWiredPort)
{
    history->addHistoryItemForDeviceWithNewAddress(wired, address);
    const Connection made = onlyRecord();
    EXPECT_EQ(made.record()->value(u"ssid"_s), QVariant(u""_s));
    EXPECT_EQ(made.record()->value(u"bssid"_s), QVariant(u""_s));
}

TEST_F(HistoryRecordsTest, TellsTheNetworkOfTheWiFiPort)
{
    history->addHistoryItemForDeviceWithNewAddress(wifi, address);
    const Connection made = onlyRecord();
    EXPECT_EQ(made.interface(), u"Wi-Fi"_s);
    EXPECT_EQ(made.ssid(), u"Home"_s);
    EXPECT_EQ(made.bssid(), u"a4:2b:b0:11:22:33"_s);
}

TEST_F(HistoryRecordsTest, TellsTheAccessPointInLowerCase)
{
    join(u"HOME"_s, u"A4:2B:B0:11:22:33"_s);
    history->addHistoryItemForDeviceWithNewAddress(wifi, address);
    EXPECT_EQ(onlyRecord().bssid(), u"a4:2b:b0:11:22:33"_s);
    EXPECT_EQ(onlyRecord().ssid(), u"HOME"_s);
}

TEST_F(HistoryRecordsTest, TellsNoNetworkWhileTheWiFiPortIsOnNone)
{
    join(QString(), QString());
    history->addHistoryItemForDeviceWithNewAddress(wifi, address);
    const Connection made = onlyRecord();
    EXPECT_EQ(made.record()->value(u"ssid"_s), QVariant(u""_s));
    EXPECT_EQ(made.record()->value(u"bssid"_s), QVariant(u""_s));
}

TEST_F(HistoryRecordsTest, TellsAlsoOfADeviceThatIsNotKnown)
{
    history->addHistoryItemForDeviceWithNewAddress(u"en9"_s, address);
    const Connection made = onlyRecord();
    EXPECT_EQ(made.device(), u"en9"_s);
    for (const char *attribute : {"interface", "ssid", "bssid"}) {
        EXPECT_EQ(made.record()->value(QString::fromLatin1(attribute)), QVariant(u""_s));
    }
}

TEST_F(HistoryRecordsTest, TakesOnlyThePortThatIsExactlyWiFiForWiFi)
{
    for (const char *port : {"wi-fi", "Wi-Fi 2", "WiFi"}) {
        storeRecord(wifi, {{record::interface, QString::fromLatin1(port)}});
        history->addHistoryItemForDeviceWithNewAddress(wifi, address);
    }
    const QList<Connection> made = recordsOf(context());
    ASSERT_EQ(made.size(), 3);
    for (const Connection &connection : made) {
        EXPECT_EQ(connection.ssid(), QString());
    }
}

TEST_F(HistoryRecordsTest, IsInTheFileAtOnce)
{
    history->addHistoryItemForDeviceWithNewAddress(wifi, address);
    EXPECT_FALSE(context().hasChanges());
    // Nothing is said to the store that could make it write more.
    RecordStore other(scheduler, folder.path());
    const QList<Connection> found = recordsOf(other.managedObjectContext());
    ASSERT_EQ(found.size(), 1);
    EXPECT_EQ(found.first().date(), scheduler.now());
    EXPECT_EQ(found.first().address(), address);
    EXPECT_EQ(found.first().ssid(), u"Home"_s);
}

TEST_F(HistoryRecordsTest, SavesWhatElseIsPending)
{
    const ManagedObjectPtr rule = context().insertNewObject(u"Rule"_s);
    history->addHistoryItemForDeviceWithNewAddress(wired, address);
    EXPECT_FALSE(rule->hasChanges());
}

TEST_F(HistoryRecordsTest, IsNoEditThatCouldBeUndone)
{
    history->addHistoryItemForDeviceWithNewAddress(wired, address);
    context().processPendingChanges();
    EXPECT_FALSE(context().undoManager().canUndo());
    Connection made = onlyRecord();
    made.setNotes(u"at the fair"_s);
    context().processPendingChanges();
    ASSERT_TRUE(context().undoManager().canUndo());
    context().undoManager().undo();
    EXPECT_EQ(made.notes(), QString());
    EXPECT_FALSE(context().undoManager().canUndo());
    EXPECT_EQ(onlyRecord().address(), address);
}

TEST_F(HistoryRecordsTest, IsToldToThoseWhoShowIt)
{
    qsizetype inserted = 0;
    QObject::connect(records.get(), &RecordStore::objectsDidChange,
        [&](const ObjectsDidChange &change) { inserted += change.inserted.size(); });
    history->addHistoryItemForDeviceWithNewAddress(wired, address);
    scheduler.runPending();
    EXPECT_EQ(inserted, 1);
}

TEST_F(HistoryRecordsTest, KeepsARecordThatCannotBeSavedForTheNextTime)
{
    context();
    change("ALTER TABLE Connection RENAME TO Away");
    {
        const LogCapture log;
        history->addHistoryItemForDeviceWithNewAddress(wired, address);
        EXPECT_TRUE(LogCapture::taken().contains(u"quillon.history: Rule not added..."_s));
    }
    EXPECT_TRUE(context().hasChanges());
    change("ALTER TABLE Away RENAME TO Connection");
    history->addHistoryItemForDeviceWithNewAddress(wifi, address);
    EXPECT_FALSE(context().hasChanges());
    EXPECT_EQ(recordsOf(context()).size(), 2);
}

TEST_F(HistoryRecordsTest, TakesTheFactsAtOnceOnAnotherThread)
{
    const QDateTime moment = scheduler.now();
    scheduler.asBackground([&] { history->addHistoryItemForDeviceWithNewAddress(wifi, address); });
    EXPECT_FALSE(records->hasManagedObjectContext()) << "records belong to the main thread";
    join(u"Elsewhere"_s, u"ff:ff:ff:ff:ff:ff"_s);
    storeRecord(wifi, {{record::interface, u"Ethernet"_s}});
    scheduler.advance(std::chrono::seconds(0));
    const Connection made = onlyRecord();
    EXPECT_EQ(made.date(), moment);
    EXPECT_EQ(made.interface(), u"Wi-Fi"_s);
    EXPECT_EQ(made.ssid(), u"Home"_s);
    EXPECT_EQ(made.bssid(), u"a4:2b:b0:11:22:33"_s);
    EXPECT_FALSE(context().hasChanges());
}

TEST_F(HistoryRecordsTest, RecordsInTheCallersTurnOnTheMainThread)
{
    history->addHistoryItemForDeviceWithNewAddress(wifi, address);
    EXPECT_EQ(recordsOf(context()).size(), 1);
}

TEST_F(HistoryRecordsTest, MayBeGoneWhenAnotherThreadsRecordIsDue)
{
    scheduler.asBackground([&] { history->addHistoryItemForDeviceWithNewAddress(wifi, address); });
    history.reset();
    scheduler.runPending();
    EXPECT_TRUE(recordsOf(context()).isEmpty());
}

TEST_F(HistoryRecordsTest, PassesOverSettingsThatAreNone)
{
    for (const QVariant &hostile : {QVariant(u"text"_s), QVariant(QVariantList{1}),
             QVariant(QVariantMap{{wifirecord::SSID, 5}, {wifirecord::BSSID, QVariantMap{}}})}) {
        settings.set(keys::currentWiFiDict, hostile);
        history->addHistoryItemForDeviceWithNewAddress(wifi, address);
    }
    for (const QVariant &hostile : {QVariant(5), QVariant(QVariantMap{{wifi, 5}}),
             QVariant(QVariantMap{{wifi, QVariantMap{{record::interface, 7}}}})}) {
        settings.set(keys::deviceDict, hostile);
        history->addHistoryItemForDeviceWithNewAddress(wifi, address);
    }
    const QList<Connection> made = recordsOf(context());
    ASSERT_EQ(made.size(), 6);
    for (const Connection &connection : made) {
        EXPECT_EQ(connection.ssid(), QString());
        EXPECT_EQ(connection.bssid(), QString());
        EXPECT_EQ(connection.address(), address);
    }
    EXPECT_EQ(made.first().interface(), u"Wi-Fi"_s);
    EXPECT_EQ(made.last().interface(), QString());
}

TEST_F(HistoryRecordsTest, AsAnArrayIsAnEntityThatDoesNotExist)
{
    history->addHistoryItemForDeviceWithNewAddress(wired, address);
    const LogCapture log;
    EXPECT_TRUE(history->managedHistoryArray().isEmpty());
    const QStringList lines = LogCapture::taken();
    ASSERT_GE(lines.size(), 2);
    EXPECT_EQ(lines.at(lines.size() - 2), u"quillon.history: Unable to execute fetch request."_s);
    EXPECT_TRUE(lines.last().startsWith(u"quillon.history: "_s));
    EXPECT_TRUE(lines.last().contains(u", "_s));
}

} // namespace
} // namespace quillon::test
