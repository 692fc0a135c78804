// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/RecordMirror.h"

#include "RecordMirrorFixture.h"
#include "base/NotificationNames.h"
#include "devices/DeviceTable.h"
#include "fakes/FakeInterfaceAddresses.h"
#include "fakes/FakeNetworkHost.h"
#include "fakes/LogCapture.h"
#include "rules/RuleInvariants.h"
#include "rules/RuleQueries.h"
#include "store/RecordRemoval.h"

#include <QUndoStack>

#include <numeric>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using RecordMirrorTest = MirroringComputersFixture;

TEST_F(RecordMirrorTest, WhatIsSavedHereIsShownThere)
{
    launchBoth();
    shareRule(u"Home"_s);
    a.insert(
        model::Connection, {{u"date"_s, QDateTime::fromMSecsSinceEpoch(1'700'000'000'123, Qt::UTC)},
                               {u"address"_s, u"02:00:00:00:00:01"_s}, {u"ssid"_s, u"Café"_s}});
    a.saveAndSettle();
    a.send({&b});
    const auto rule = b.rule(u"Home"_s);
    ASSERT_TRUE(rule);
    EXPECT_EQ(rule->value(u"timerMins"_s), 5);
    const auto visit =
        b.find(model::Connection, Predicate::equal(u"address"_s, u"02:00:00:00:00:01"_s));
    ASSERT_TRUE(visit);
    EXPECT_EQ(visit->value(u"date"_s), QDateTime::fromMSecsSinceEpoch(1'700'000'000'123, Qt::UTC));
    EXPECT_EQ(visit->value(u"ssid"_s), u"Café"_s);
    EXPECT_EQ(visit->value(u"notes"_s), QVariant());
}

TEST_F(RecordMirrorTest, WhatCameFromElsewhereIsNoEditOfThisComputer)
{
    launchBoth();
    QObject::connect(&b.store, &RecordStore::objectsDidChange, &b.store,
        [] { ADD_FAILURE() << "nobody changed an object here"; });
    shareRule(u"Home"_s);
    EXPECT_EQ(b.names(), QStringList({u"Home"_s}));
    EXPECT_FALSE(b.replica.hasUnsent());
    EXPECT_FALSE(b.context().undoManager().canUndo());
    EXPECT_FALSE(b.context().hasChanges());
}

TEST_F(RecordMirrorTest, AHeldRecordFollowsAndListsAreToldToFetchAnew)
{
    launchBoth();
    shareRule(u"Home"_s);
    const auto held = b.rule(u"Home"_s);
    int merged = 0;
    QObject::connect(&b.store, &RecordStore::recordsMerged, &b.store, [&] { ++merged; });
    a.rule(u"Home"_s)->setValue(u"timerMins"_s, 9);
    a.saveAndSettle();
    a.send({&b});
    EXPECT_EQ(held->value(u"timerMins"_s), 9);
    EXPECT_EQ(merged, 1);
    a.context().deleteObject(a.rule(u"Home"_s));
    a.saveAndSettle();
    a.send({&b});
    EXPECT_TRUE(held->isDeleted());
}

TEST_F(RecordMirrorTest, SavesOfThisComputerAreNotTakenForWritesOfOthers)
{
    launchBoth();
    int merged = 0;
    QObject::connect(&a.store, &RecordStore::recordsMerged, &a.store, [&] { ++merged; });
    for (int i = 0; i < 3; ++i) {
        a.insert(model::Connection, {{u"address"_s, QString::number(i)}});
        a.saveAndSettle();
    }
    EXPECT_EQ(merged, 0) << "each would have every list fetched anew";
    EXPECT_TRUE(a.replica.hasUnsent());
}

TEST_F(RecordMirrorTest, AnEditAndItsNoteAreSavedTogetherOrNotAtAll)
{
    a.launch();
    a.sql("CREATE TRIGGER refuse BEFORE INSERT ON MirrorEdit BEGIN SELECT RAISE(ABORT, 'no'); END");
    a.insert(model::Rule, {{u"name"_s, u"Home"_s}});
    EXPECT_TRUE(a.context().save());
    EXPECT_EQ(a.number("SELECT count(*) FROM Rule"), 0);
    a.sql("DROP TRIGGER refuse");
    a.saveAndSettle();
    EXPECT_TRUE(a.replica.hasUnsent());
}

TEST_F(RecordMirrorTest, AProgramThatEndsAfterASaveTellsOfItWhenItIsBack)
{
    a.launch();
    a.insert(model::Rule, {{u"name"_s, u"Home"_s}});
    a.save();
    a.mirror.stop();
    a.settle();
    EXPECT_FALSE(a.replica.hasUnsent());
    a.launch();
    b.launch();
    a.send({&b});
    EXPECT_EQ(b.names(), QStringList({u"Home"_s}));
}

TEST_F(RecordMirrorTest, EditsOfSeveralSavesAreOfOneRecordAndKeepTheirOrder)
{
    launchBoth();
    const auto rule = a.insert(model::Rule, {{u"name"_s, u"one"_s}, {u"ssid"_s, u"x"_s}});
    a.save();
    rule->setValue(model::rule::name, u"two"_s);
    a.save();
    rule->setValue(u"ssid"_s, QVariant());
    a.saveAndSettle();
    const auto gone = a.insert(model::Rule, {{u"name"_s, u"gone"_s}});
    a.save();
    a.context().deleteObject(gone);
    a.saveAndSettle();
    a.send({&b});
    EXPECT_EQ(b.names(), QStringList({u"two"_s}));
    EXPECT_EQ(b.rule(u"two"_s)->value(u"ssid"_s), QVariant());
}

TEST_F(RecordMirrorTest, ADeletionThatIsUndoneBringsAllValuesBack)
{
    launchBoth();
    shareRule(u"Home"_s);
    a.context().deleteObject(a.rule(u"Home"_s));
    a.saveAndSettle();
    a.send({&b});
    EXPECT_EQ(b.names(), QStringList());
    a.context().undoManager().undo();
    a.saveAndSettle();
    a.send({&b});
    ASSERT_EQ(b.names(), QStringList({u"Home"_s}));
    EXPECT_EQ(b.rule(u"Home"_s)->value(u"timerMins"_s), 5);
}

TEST_F(RecordMirrorTest, WhatIsNotSavedYetIsNotLostByAnImport)
{
    launchBoth();
    shareRule(u"Home"_s);
    const auto rule = b.rule(u"Home"_s);
    rule->setValue(u"ssid"_s, u"typed"_s);
    a.rule(u"Home"_s)->setValue(u"ssid"_s, u"from elsewhere"_s);
    a.rule(u"Home"_s)->setValue(u"timerMins"_s, 9);
    a.saveAndSettle();
    a.send({&b});
    EXPECT_EQ(rule->value(u"ssid"_s), u"typed"_s);
    EXPECT_EQ(rule->value(u"timerMins"_s), 9);
    b.saveAndSettle();
    b.send({&a});
    EXPECT_EQ(a.rule(u"Home"_s)->value(u"ssid"_s), u"typed"_s);
    EXPECT_EQ(a.rule(u"Home"_s)->value(u"timerMins"_s), 9);
}

TEST_F(RecordMirrorTest, AnEditThatIsSavedAndNotTakenYetIsTakenBeforeAMerge)
{
    launchBoth();
    shareRule(u"Home"_s);
    a.rule(u"Home"_s)->setValue(u"ssid"_s, u"there"_s);
    a.saveAndSettle();
    b.scheduler.advance(std::chrono::minutes(5));
    b.rule(u"Home"_s)->setValue(u"ssid"_s, u"here, later"_s);
    b.save();
    a.send({&b});
    EXPECT_EQ(b.rule(u"Home"_s)->value(u"ssid"_s), u"here, later"_s);
    b.send({&a});
    EXPECT_EQ(a.rule(u"Home"_s)->value(u"ssid"_s), u"here, later"_s);
}

TEST_F(RecordMirrorTest, TwoRulesOfOneNameAreNamedApartAndNobodyWritesThat)
{
    launchBoth();
    a.insert(model::Rule, {{u"name"_s, u"Home"_s}});
    a.saveAndSettle();
    b.scheduler.advance(std::chrono::minutes(1));
    const auto second = b.insert(model::Rule, {{u"name"_s, u"Home"_s}});
    b.saveAndSettle();
    a.send({&b});
    b.send({&a});
    const QStringList both{u"Home"_s, u"Home (2)"_s};
    EXPECT_EQ(a.names(), both);
    EXPECT_EQ(b.names(), both);
    EXPECT_EQ(second->value(model::rule::name), u"Home (2)"_s);
    EXPECT_FALSE(a.replica.hasUnsent());
    EXPECT_FALSE(b.replica.hasUnsent());
    // And it is free again when the other one goes.
    a.context().deleteObject(a.rule(u"Home"_s));
    a.saveAndSettle();
    a.send({&b});
    EXPECT_EQ(b.names(), QStringList({u"Home"_s}));
    EXPECT_FALSE(b.replica.hasUnsent());
}

TEST_F(RecordMirrorTest, OfTwoRulesEnabledAtOnePlaceOneIsShownAsOff)
{
    launchBoth();
    for (MirroringComputer *computer : {&a, &b}) {
        computer->insert(
            model::Rule, {{u"name"_s, computer == &a ? u"a"_s : u"b"_s}, {u"device"_s, u"wlan0"_s},
                             {u"network"_s, u"Any Network"_s}, {u"enabled"_s, true}});
        computer->saveAndSettle();
        b.scheduler.advance(std::chrono::minutes(1));
    }
    a.send({&b});
    b.send({&a});
    for (MirroringComputer *computer : {&a, &b}) {
        EXPECT_EQ(computer->rule(u"a"_s)->value(u"enabled"_s), false);
        EXPECT_EQ(computer->rule(u"b"_s)->value(u"enabled"_s), true);
        EXPECT_FALSE(computer->replica.hasUnsent());
    }
    a.rule(u"b"_s)->setValue(u"enabled"_s, false);
    a.saveAndSettle();
    a.send({&b});
    for (MirroringComputer *computer : {&a, &b}) {
        EXPECT_EQ(computer->rule(u"a"_s)->value(u"enabled"_s), false);
        EXPECT_EQ(computer->rule(u"b"_s)->value(u"enabled"_s), false);
    }
}

/// What the program keeps of rules on one computer.
struct Invariants
{
    explicit Invariants(MirroringComputer &computer)
        : devices(computer.settings, host, addresses)
        , queries(computer.store, computer.settings, devices)
        , invariants({computer.store, computer.scheduler, computer.notifications, queries})
    {
        queries.updateNamesArray();
        QObject::connect(&computer.store, &RecordStore::objectsDidChange, &invariants,
            [this](const ObjectsDidChange &change) { invariants.contextDidChange(change); });
        QObject::connect(&computer.store, &RecordStore::recordsMerged, &invariants,
            [this] { queries.updateNamesArray(); });
        computer.notifications.addObserver(
            notifications::updateNamesArray, [this](const auto &) { queries.updateNamesArray(); });
    }

    FakeNetworkHost host;
    FakeInterfaceAddresses addresses{host};
    DeviceTable devices;
    RuleQueries queries;
    RuleInvariants invariants;
};

TEST_F(RecordMirrorTest, WhatKeepsNamesUniqueHereDoesNotFightWithWhatDoesAmongComputers)
{
    launchBoth();
    shareRule(u"one"_s);
    shareRule(u"two"_s);
    const Invariants ofA(a);
    const Invariants ofB(b);
    a.rule(u"one"_s)->setValue(model::rule::name, u"Home"_s);
    a.saveAndSettle();
    b.scheduler.advance(std::chrono::minutes(1));
    b.rule(u"two"_s)->setValue(model::rule::name, u"Home"_s);
    b.saveAndSettle();
    a.send({&b});
    b.send({&a});
    const QStringList both{u"Home"_s, u"Home (2)"_s};
    for (MirroringComputer *computer : {&a, &b}) {
        EXPECT_EQ(computer->names(), both);
        EXPECT_FALSE(computer->replica.hasUnsent());
        EXPECT_FALSE(computer->context().hasChanges());
    }
    // An edit of something else sends that alone; one of the name goes by what is shown.
    b.rule(u"Home (2)"_s)->setValue(u"timerMins"_s, 8);
    b.saveAndSettle();
    b.send({&a});
    EXPECT_EQ(a.names(), both);
    a.rule(u"Home (2)"_s)->setValue(model::rule::name, u"Home"_s);
    a.saveAndSettle();
    a.send({&b});
    // Its own name until then counts as taken, here as without a mirror.
    const QStringList renamed{u"Home"_s, u"Home (3)"_s};
    EXPECT_EQ(b.names(), renamed);
    EXPECT_EQ(a.names(), renamed);
    EXPECT_FALSE(b.replica.hasUnsent());
}

TEST_F(RecordMirrorTest, WhichRuleIsInForceIsNeitherSentNorTaken)
{
    launchBoth();
    shareRule(u"Home"_s);
    a.rule(u"Home"_s)->setValue(model::rule::active, true);
    a.saveAndSettle();
    EXPECT_FALSE(a.replica.hasUnsent());
    b.rule(u"Home"_s)->setValue(u"timerMins"_s, 7);
    b.saveAndSettle();
    b.send({&a});
    EXPECT_EQ(a.rule(u"Home"_s)->value(model::rule::active), true);
    EXPECT_EQ(b.rule(u"Home"_s)->value(model::rule::active), false);
}

// MARK: many

TEST_F(RecordMirrorTest, ARemovalInTheBackgroundIsToldInSteps)
{
    launchBoth();
    a.sql("WITH RECURSIVE n(i) AS (VALUES (1) UNION ALL SELECT i + 1 FROM n LIMIT 1200) "
          "INSERT INTO Connection (uuid, address) SELECT randomblob(16), 'x' FROM n");
    a.mirror.takeEdits();
    a.settle();
    a.send({&b});
    EXPECT_EQ(b.historyCount(), 1200);
    QList<qint64> keys(1200);
    std::iota(keys.begin(), keys.end(), 1);
    RecordRemoval removal(a.store, a.scheduler);
    removal.remove(model::Connection, keys);
    a.scheduler.runPending();
    EXPECT_EQ(a.historyCount(), 0);
    EXPECT_GT(a.number("SELECT count(*) FROM MirrorEdit"), 0) << "the main thread has other work";
    a.settle();
    EXPECT_EQ(a.number("SELECT count(*) FROM MirrorEdit"), 0);
    const auto pending = a.mirror.storage().pending(100);
    EXPECT_GT(pending.size(), 1);
    for (const SyncChanges &edit : pending) {
        EXPECT_LE(edit.records.size(), 250);
    }
    a.send({&b});
    EXPECT_EQ(b.historyCount(), 0);
}

TEST_F(RecordMirrorTest, NothingIsMergedWhileMoreIsNotedThanAStepTakes)
{
    launchBoth();
    shareRule(u"Home"_s);
    a.rule(u"Home"_s)->setValue(u"ssid"_s, u"there"_s);
    a.saveAndSettle();
    ASSERT_TRUE(a.replica.sealPending());
    const auto files = a.mirror.storage().outgoing();
    b.sql("WITH RECURSIVE n(i) AS (VALUES (1) UNION ALL SELECT i + 1 FROM n LIMIT 700) "
          "INSERT INTO Connection (uuid, address) SELECT randomblob(16), 'x' FROM n");
    const LogCapture log;
    EXPECT_EQ(b.replica.receiveChange(files.firstKey(), files.first()), FileProblem::NotKept);
    EXPECT_EQ(b.rule(u"Home"_s)->value(u"ssid"_s), QVariant());
    b.mirror.takeEdits();
    b.settle();
    EXPECT_EQ(b.replica.receiveChange(files.firstKey(), files.first()), std::nullopt);
    b.send({&a});
    EXPECT_EQ(a.historyCount(), 700);
}

// MARK: the event

TEST_F(RecordMirrorTest, TellsWhenAnImportBeginsAndWhenItHasEnded)
{
    launchBoth();
    QList<QVariantMap> events;
    b.notifications.addObserver(
        notifications::cloudContainerChanged, [&](const auto &event) { events << event.userInfo; });
    b.mirror.endImport(true);
    EXPECT_TRUE(events.isEmpty()) << "nothing came";
    shareRule(u"Home"_s);
    ASSERT_EQ(events.size(), 2);
    EXPECT_EQ(events[0].value(u"type"_s), 1);
    EXPECT_FALSE(events[0].contains(u"endDate"_s));
    EXPECT_EQ(events[1].value(u"type"_s), 1);
    EXPECT_EQ(events[1].value(u"succeeded"_s), true);
    EXPECT_TRUE(events[1].value(u"endDate"_s).toDateTime().isValid());
    b.rule(u"Home"_s)->setValue(u"ssid"_s, u"x"_s);
    b.saveAndSettle();
    b.mirror.endImport(true);
    EXPECT_EQ(events.size(), 2) << "an edit of this computer is no import";
}

TEST_F(RecordMirrorTest, AFailureIsTriedAgain)
{
    a.launch();
    a.insert(model::Rule, {{u"name"_s, u"Home"_s}});
    a.sql("CREATE TRIGGER refuse BEFORE INSERT ON MirrorPending BEGIN SELECT RAISE(ABORT, 'no'); "
          "END");
    const LogCapture log;
    a.save();
    a.scheduler.advance(std::chrono::seconds(10));
    EXPECT_FALSE(a.replica.hasUnsent());
    EXPECT_EQ(a.number("SELECT count(*) FROM MirrorEdit"), 1);
    a.sql("DROP TRIGGER refuse");
    a.settle();
    EXPECT_TRUE(a.replica.hasUnsent());
    EXPECT_EQ(a.number("SELECT count(*) FROM MirrorEdit"), 0);
}

TEST_F(RecordMirrorTest, DoesNotWaitForSomebodyWhoWrites)
{
    a.launch();
    a.insert(model::Rule, {{u"name"_s, u"Home"_s}});
    a.save();
    {
        SQLite::Database other(a.store.path().toStdString(), SQLite::OPEN_READWRITE);
        other.exec("BEGIN IMMEDIATE");
        const QDateTime begin = QDateTime::currentDateTimeUtc();
        a.scheduler.advance(std::chrono::milliseconds(100));
        EXPECT_LT(begin.msecsTo(QDateTime::currentDateTimeUtc()), 900);
        EXPECT_FALSE(a.replica.hasUnsent());
        EXPECT_GT(a.number("PRAGMA busy_timeout"), 0) << "a save still does";
    }
    a.scheduler.advance(std::chrono::milliseconds(200));
    EXPECT_TRUE(a.replica.hasUnsent());
}

} // namespace
} // namespace quillon::test
