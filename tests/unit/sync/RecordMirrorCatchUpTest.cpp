// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/RecordMirrorCatchUp.h"

#include "RecordMirrorFixture.h"
#include "fakes/LogCapture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using RecordMirrorCatchUpTest = MirroringComputersFixture;

TEST_F(RecordMirrorCatchUpTest, WhatWasThereWhenItIsSwitchedOnIsToldInSteps)
{
    a.sql("WITH RECURSIVE n(i) AS (VALUES (1) UNION ALL SELECT i + 1 FROM n LIMIT 600) "
          "INSERT INTO Connection (uuid, address) SELECT randomblob(16), 'x' FROM n");
    a.insert(model::Rule, {{u"name"_s, u"Home"_s}});
    a.save();
    a.mirror.containerOpened();
    ASSERT_TRUE(a.mirror.start(a.replica, "account"));
    int ready = 0;
    QObject::connect(&a.mirror, &RecordMirror::ready, &a.mirror, [&] { ++ready; });
    a.scheduler.runPending();
    EXPECT_FALSE(a.mirror.isReady());
    a.settle();
    EXPECT_TRUE(a.mirror.isReady());
    EXPECT_EQ(ready, 1);
    for (const SyncChanges &edit : a.mirror.storage().pending(100)) {
        EXPECT_LE(edit.records.size(), 250);
    }
    b.launch();
    a.send({&b});
    EXPECT_EQ(b.historyCount(), 600);
    EXPECT_EQ(b.names(), QStringList({u"Home"_s}));
}

TEST_F(RecordMirrorCatchUpTest, NothingIsMergedBeforeAllOfThisComputerIsKnown)
{
    a.insert(model::Rule, {{u"name"_s, u"Home"_s}});
    a.save();
    a.launch();
    ASSERT_TRUE(a.replica.sealPending());
    const auto files = a.mirror.storage().outgoing();
    ASSERT_EQ(files.size(), 1);
    b.insert(model::Rule, {{u"name"_s, u"Home"_s}});
    b.save();
    b.mirror.containerOpened();
    ASSERT_TRUE(b.mirror.start(b.replica, "account"));
    const LogCapture log;
    EXPECT_EQ(b.replica.receiveChange(files.firstKey(), files.first()), FileProblem::NotKept);
    b.settle();
    EXPECT_EQ(b.replica.receiveChange(files.firstKey(), files.first()), std::nullopt);
    EXPECT_EQ(b.names(), QStringList({u"Home"_s, u"Home (2)"_s}));
}

TEST_F(RecordMirrorCatchUpTest, KilledWhileItTellsItGoesOn)
{
    a.sql("WITH RECURSIVE n(i) AS (VALUES (1) UNION ALL SELECT i + 1 FROM n LIMIT 600) "
          "INSERT INTO Connection (uuid, address) SELECT randomblob(16), 'x' FROM n");
    a.mirror.containerOpened();
    ASSERT_TRUE(a.mirror.start(a.replica, "account"));
    a.scheduler.advance(std::chrono::milliseconds(20));
    a.mirror.stop();
    const qint64 told = a.number("SELECT count(*) FROM MirrorRecord");
    EXPECT_GT(told, 0);
    EXPECT_LT(told, 600);
    a.launch();
    b.launch();
    a.send({&b});
    EXPECT_EQ(b.historyCount(), 600);
    EXPECT_EQ(a.number("SELECT count(*) FROM MirrorRecord"), 600);
}

TEST_F(RecordMirrorCatchUpTest, SwitchingReplacesTheContainerAndLosesNothing)
{
    launchBoth();
    shareRule(u"Home"_s);
    int replaced = 0;
    QObject::connect(
        &a.store, &RecordStore::managedObjectContextReplaced, &a.store, [&] { ++replaced; });
    a.insert(model::Rule, {{u"name"_s, u"not saved yet"_s}});
    a.switchSync(false);
    EXPECT_EQ(a.names(), QStringList({u"Home"_s, u"not saved yet"_s}));
    a.switchSync(true);
    EXPECT_EQ(replaced, 2);
    EXPECT_EQ(a.names(), QStringList({u"Home"_s, u"not saved yet"_s}));
    a.send({&b});
    EXPECT_EQ(b.names(), QStringList({u"Home"_s, u"not saved yet"_s}));
}

TEST_F(RecordMirrorCatchUpTest, WhatChangedWhileItWasOffIsFoundAndNothingElseIsWritten)
{
    launchBoth();
    shareRule(u"Home"_s);
    shareRule(u"Work"_s);
    shareRule(u"Train"_s);
    a.switchSync(false);
    a.rule(u"Home"_s)->setValue(u"timerMins"_s, 11);
    a.context().deleteObject(a.rule(u"Train"_s));
    a.insert(model::Rule, {{u"name"_s, u"New"_s}});
    a.saveAndSettle();
    EXPECT_EQ(a.number("SELECT count(*) FROM MirrorEdit"), 0);
    EXPECT_FALSE(a.replica.hasUnsent());
    b.rule(u"Home"_s)->setValue(u"ssid"_s, u"there"_s);
    b.rule(u"Work"_s)->setValue(u"ssid"_s, u"there"_s);
    b.saveAndSettle();
    a.switchSync(true);
    a.send({&b});
    b.send({&a});
    for (MirroringComputer *computer : {&a, &b}) {
        ASSERT_EQ(computer->names(), QStringList({u"Home"_s, u"New"_s, u"Work"_s}));
        EXPECT_EQ(computer->rule(u"Home"_s)->value(u"timerMins"_s), 11);
        EXPECT_EQ(computer->rule(u"Home"_s)->value(u"ssid"_s), u"there"_s);
        EXPECT_EQ(computer->rule(u"Work"_s)->value(u"ssid"_s), u"there"_s);
    }
}

TEST_F(RecordMirrorCatchUpTest, SwitchingOffAndOnWithoutAChangeWritesNothing)
{
    launchBoth();
    a.insert(model::Rule, {{u"name"_s, u"Home"_s}, {u"enabled"_s, true}});
    a.saveAndSettle();
    b.insert(model::Rule, {{u"name"_s, u"Home"_s}, {u"enabled"_s, true}});
    b.saveAndSettle();
    a.send({&b});
    b.send({&a});
    a.switchSync(false);
    a.switchSync(true);
    EXPECT_TRUE(a.mirror.isReady());
    EXPECT_FALSE(a.replica.hasUnsent()) << "that a rule is shown otherwise is nobody's edit";
}

TEST_F(RecordMirrorCatchUpTest, AnAccountThatHasTheRecordsAlreadyKnowsBetter)
{
    a.insert(model::Rule, {{u"name"_s, u"Home"_s}, {u"timerMins"_s, 1}});
    a.insert(model::Rule, {{u"name"_s, u"Deleted"_s}});
    a.save();
    // Another computer that was set up with a copy of the file.
    b.sql("ATTACH '" + a.store.path().toStdString() +
          "' AS other; INSERT INTO Rule SELECT * FROM "
          "other.Rule; DETACH other");
    b.insert(model::Rule, {{u"name"_s, u"Only there"_s}});
    b.save();
    a.launch();
    a.rule(u"Home"_s)->setValue(u"timerMins"_s, 9);
    a.context().deleteObject(a.rule(u"Deleted"_s));
    a.saveAndSettle();
    b.scheduler.advance(std::chrono::hours(24));
    b.launch();
    a.send({&b});
    b.send({&a});
    for (MirroringComputer *computer : {&a, &b}) {
        ASSERT_EQ(computer->names(), QStringList({u"Home"_s, u"Only there"_s}));
        EXPECT_EQ(computer->rule(u"Home"_s)->value(u"timerMins"_s), 9);
    }
}

TEST_F(RecordMirrorCatchUpTest, AnotherAccountIsToldOfAllRecordsAndOfNoOldFile)
{
    a.launch();
    a.insert(model::Rule, {{u"name"_s, u"Home"_s}});
    a.saveAndSettle();
    ASSERT_TRUE(a.replica.sealPending());
    a.mirror.stop();
    ASSERT_TRUE(a.mirror.start(a.replica, "another account"));
    EXPECT_FALSE(a.replica.hasUnsent());
    a.settle();
    b.launch();
    a.send({&b});
    EXPECT_EQ(b.names(), QStringList({u"Home"_s}));
}

TEST_F(RecordMirrorCatchUpTest, IsOffWhileTheSettingIs)
{
    MirroringComputer off(key, 13, false);
    off.launch();
    off.insert(model::Rule, {{u"name"_s, u"Home"_s}});
    off.saveAndSettle();
    EXPECT_FALSE(off.mirror.isReady());
    EXPECT_FALSE(off.replica.hasUnsent());
    EXPECT_FALSE(off.mirror.edit({{LocalEdit::Kind::Set, {}, {}, {u"key"_s, {}}, true}}));
    off.switchSync(true);
    EXPECT_TRUE(off.mirror.isReady());
    EXPECT_TRUE(off.replica.hasUnsent());
}

} // namespace
} // namespace quillon::test
