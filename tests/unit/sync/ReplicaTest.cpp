// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/Replica.h"

#include "MemoryReplicaStorage.h"
#include "SyncExamples.h"
#include "sync/AccountFile.h"
#include "sync/AccountKey.h"
#include "sync/SealedFile.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using Kind = LocalEdit::Kind;

class Computer
{
public:
    Computer(const AccountKey &key, quint64 seed)
        : random(seed)
        , replica(storage, key, random)
    {
    }

    /// Writes what is unsent, and gives it to the others.
    void send(const QList<Computer *> &others)
    {
        ASSERT_TRUE(replica.sealPending());
        const auto files = storage.outgoing();
        for (auto it = files.begin(); it != files.end(); ++it) {
            ASSERT_TRUE(replica.sent(it.key()));
            for (Computer *other : others) {
                ASSERT_EQ(other->replica.receiveChange(it.key(), *it), std::nullopt);
            }
        }
    }
    QString name(int rule) const
    {
        const SyncValue value = storage.content.shown.value(ruleId(rule)).value(u"name"_s);
        return std::holds_alternative<QString>(value) ? std::get<QString>(value) : u"none"_s;
    }
    bool isEnabled(int rule) const
    {
        return storage.content.shown.value(ruleId(rule)).value(u"enabled"_s) == SyncValue(true);
    }

    MemoryReplicaStorage storage;
    SeededRandom random;
    Replica replica;
};

class ReplicaTest : public ::testing::Test
{
protected:
    static LocalEdit rule(int number, const QString &name, bool enabled = false)
    {
        return {Kind::Insert, ruleId(number),
            {{u"name"_s, name}, {u"enabled"_s, enabled}, {u"device"_s, u"wlan0"_s},
                {u"network"_s, u"Any Network"_s}, {u"active"_s, true}},
            {}, {}};
    }
    static LocalEdit change(int number, const QString &attribute, const SyncValue &value)
    {
        return {Kind::Change, ruleId(number), {{attribute, value}}, {}, {}};
    }
    static LocalEdit removal(int number) { return {Kind::Delete, ruleId(number), {}, {}, {}}; }
    static LocalEdit setting(const QString &entry, const SyncValue &value)
    {
        return {Kind::Set, {}, {}, {u"savedNetworks"_s, entry}, value};
    }

    SeededRandom random{7};
    const AccountKey key = AccountKey::random(random).value();
    Computer a{key, 11};
    Computer b{key, 12};
};

TEST_F(ReplicaTest, OtherComputerShowsWhatWasDoneHere)
{
    a.replica.edit({rule(1, u"Home"_s)}, 1000);
    a.send({&b});
    EXPECT_EQ(b.name(1), u"Home"_s);
    EXPECT_FALSE(b.storage.content.shown[ruleId(1)].contains(u"active"_s));
    b.replica.edit({removal(1)}, 1001);
    b.send({&a});
    EXPECT_FALSE(a.storage.content.shown.contains(ruleId(1)));
    EXPECT_FALSE(a.replica.hasUnsent());
}

TEST_F(ReplicaTest, ClockWrongByAYearLosesNoEditOfWhoSawIt)
{
    constexpr qint64 year = 365LL * 86'400'000;
    a.replica.edit({rule(1, u"Home"_s)}, 2 * year);
    a.send({&b});
    b.replica.edit({change(1, u"name"_s, u"Work"_s)}, year);
    b.send({&a});
    EXPECT_EQ(a.name(1), u"Work"_s);
    EXPECT_EQ(b.storage.content.records, a.storage.content.records);
}

TEST_F(ReplicaTest, ChangeOfADeletedRecordComesTooLate)
{
    a.replica.edit({rule(1, u"Home"_s)}, 1000);
    a.send({&b});
    a.replica.edit({removal(1)}, 1001);
    b.replica.edit({change(1, u"name"_s, u"Work"_s)}, 9000);
    a.send({&b});
    b.send({&a});
    EXPECT_FALSE(a.storage.content.shown.contains(ruleId(1)));
    EXPECT_FALSE(b.storage.content.shown.contains(ruleId(1)));
    EXPECT_EQ(b.storage.content.records, a.storage.content.records);
}

TEST_F(ReplicaTest, DeletionTakenBackInTheSameActIsBack)
{
    a.replica.edit({rule(1, u"Home"_s)}, 1000);
    a.replica.edit({removal(1), rule(1, u"Again"_s)}, 1001);
    a.send({&b});
    EXPECT_EQ(b.name(1), u"Again"_s);
}

TEST_F(ReplicaTest, TwoComputersAddANetworkEachAndKeepBoth)
{
    a.replica.edit({setting(u"aa"_s, u"A"_s)}, 1000);
    b.replica.edit({setting(u"bb"_s, u"B"_s)}, 1000);
    a.send({&b});
    b.send({&a});
    EXPECT_EQ(a.storage.content.settings, b.storage.content.settings);
    EXPECT_EQ(a.storage.content.settings.size(), 2);
    EXPECT_EQ(a.storage.content.shownSettings.size(), 1); // its own is shown already
}

TEST_F(ReplicaTest, TwoRulesOfOneNameAreNamedAlikeOnBoth)
{
    a.replica.edit({rule(1, u"Home"_s)}, 1000);
    b.replica.edit({rule(2, u"Home"_s)}, 1001);
    a.send({&b});
    b.send({&a});
    EXPECT_EQ(a.name(1), u"Home"_s);
    EXPECT_EQ(a.name(2), u"Home (2)"_s);
    EXPECT_EQ(b.name(2), u"Home (2)"_s);
    EXPECT_FALSE(a.replica.hasUnsent());
    EXPECT_FALSE(b.replica.hasUnsent());
}

TEST_F(ReplicaTest, SwitchingTheOtherRuleOffSwitchesNothingOn)
{
    a.replica.edit({rule(1, u"one"_s, true)}, 1000);
    b.replica.edit({rule(2, u"two"_s, true)}, 1001);
    a.send({&b});
    b.send({&a});
    EXPECT_FALSE(a.isEnabled(1));
    EXPECT_TRUE(a.isEnabled(2));
    a.replica.edit({change(2, u"enabled"_s, false)}, 1002);
    a.send({&b});
    for (const Computer *computer : {&a, &b}) {
        EXPECT_FALSE(computer->isEnabled(1));
        EXPECT_FALSE(computer->isEnabled(2));
    }
}

TEST_F(ReplicaTest, SilencedRuleCanBeSwitchedOn)
{
    a.replica.edit({rule(1, u"one"_s, true)}, 1000);
    b.replica.edit({rule(2, u"two"_s, true)}, 1001);
    b.send({&a});
    a.replica.edit({change(1, u"enabled"_s, true), change(2, u"enabled"_s, false)}, 1002);
    a.send({&b});
    EXPECT_TRUE(b.isEnabled(1));
    EXPECT_FALSE(b.isEnabled(2));
}

TEST_F(ReplicaTest, FailedSaveLeavesNothingBehind)
{
    a.replica.edit({rule(1, u"one"_s)}, 1000);
    const auto before = a.storage.content;
    a.storage.failNext = true;
    EXPECT_FALSE(a.replica.edit({rule(2, u"two"_s)}, 1001));
    EXPECT_EQ(a.storage.content.records, before.records);
    EXPECT_EQ(a.storage.content.pending, before.pending);
    EXPECT_EQ(a.storage.content.progress, before.progress);
}

TEST_F(ReplicaTest, FileThatCouldNotBeStoredIsReadAgain)
{
    a.replica.edit({rule(1, u"one"_s)}, 1000);
    a.replica.sealPending();
    const auto files = a.storage.outgoing();
    b.storage.failNext = true;
    EXPECT_EQ(b.replica.receiveChange(files.firstKey(), files.first()), FileProblem::NotKept);
    EXPECT_TRUE(b.storage.progress().known.vector().isEmpty());
    EXPECT_EQ(b.replica.receiveChange(files.firstKey(), files.first()), std::nullopt);
    EXPECT_EQ(b.name(1), u"one"_s);
}

TEST_F(ReplicaTest, SettingBackMakesANewWriterThatKeepsWhatWasNotSent)
{
    a.replica.edit({rule(1, u"one"_s)}, 1000);
    const auto backup = a.storage.content;
    a.replica.edit({rule(2, u"lost with the disk"_s)}, 1001);
    a.replica.sealPending();
    const auto files = a.storage.outgoing();
    a.storage.content = backup;
    a.replica.edit({rule(3, u"three"_s)}, 1000);
    const WriterId writer = a.storage.progress().writer;
    for (auto it = files.begin(); it != files.end(); ++it) {
        EXPECT_EQ(a.replica.receiveChange(it.key(), *it), std::nullopt);
    }
    EXPECT_NE(a.storage.progress().writer, writer);
    EXPECT_EQ(a.name(2), u"lost with the disk"_s);
    a.send({&b});
    EXPECT_EQ(b.name(3), u"three"_s);
}

TEST_F(ReplicaTest, SettingBackIsNoticedThoughLaterStampsOfOthersWereSeen)
{
    a.replica.edit({rule(1, u"one"_s)}, 1000);
    a.send({&b});
    const auto backup = a.storage.content;
    a.replica.edit({rule(2, u"lost with the disk"_s)}, 1001);
    a.replica.sealPending();
    const auto files = a.storage.outgoing();
    a.storage.content = backup;
    b.replica.edit({rule(3, u"later"_s)}, 9000);
    b.send({&a});
    const WriterId writer = a.storage.progress().writer;
    EXPECT_EQ(a.replica.receiveChange(files.firstKey(), files.first()), std::nullopt);
    EXPECT_NE(a.storage.progress().writer, writer);
}

TEST_F(ReplicaTest, SettingBackIsNoticedByASnapshotThatCoversMore)
{
    a.replica.edit({rule(1, u"one"_s)}, 1000);
    a.send({});
    const WriterId writer = a.storage.progress().writer;
    const QString name = AccountFile{AccountFile::Kind::Snapshot, 5, 0}.name();
    const auto manifest = [&](const KnownFiles &known) {
        return sealed(writtenManifest({known, {}}), name, key, random);
    };
    EXPECT_EQ(
        a.replica.receiveManifest(name, manifest(KnownFiles({{writer, 1}}, {}))), std::nullopt);
    EXPECT_EQ(a.storage.progress().writer, writer);
    EXPECT_EQ(a.replica.receiveManifest(name, manifest(KnownFiles({{writer, 1}}, {{writer, {3}}}))),
        std::nullopt);
    EXPECT_NE(a.storage.progress().writer, writer);
}

TEST_F(ReplicaTest, ActOfMoreThanAFileHoldsIsSplit)
{
    QList<LocalEdit> edits;
    const QString text(200'000, u'x');
    for (int i = 0; i < 12; ++i) {
        edits.append(rule(i, text + QString::number(i)));
    }
    ASSERT_TRUE(a.replica.edit(edits, 1000));
    ASSERT_GT(a.storage.content.pending.size(), 1);
    for (const SyncChanges &piece : std::as_const(a.storage.content.pending)) {
        EXPECT_LE(approximateSize(piece), 1 << 20);
    }
    a.send({&b});
    EXPECT_EQ(b.storage.content.records, a.storage.content.records);
}

TEST_F(ReplicaTest, ManySmallActsShareAFile)
{
    for (int i = 0; i < 1000; ++i) {
        a.replica.edit({setting(QString::number(i), qint64(i))}, 1000 + i);
    }
    EXPECT_TRUE(a.replica.sealNext());
    EXPECT_FALSE(a.storage.hasPending());
    EXPECT_EQ(a.storage.outgoing().size(), 1);
    a.send({&b});
    EXPECT_EQ(b.storage.content.settings, a.storage.content.settings);
}

TEST_F(ReplicaTest, OnlySoManyRefusedFilesAreRemembered)
{
    for (int i = 0; i < 2100; ++i) {
        a.replica.ignore(QString::number(i), FileProblem::Damaged, "r");
    }
    EXPECT_EQ(a.storage.progress().ignored.size(), 2000);
}

TEST_F(ReplicaTest, ForeignFileChangesNothing)
{
    a.replica.edit({rule(1, u"one"_s)}, 1000);
    a.replica.sealPending();
    const QString name = a.storage.outgoing().firstKey();
    const auto before = b.storage.content;
    EXPECT_EQ(b.replica.receiveChange(name, "not ours"), FileProblem::Damaged);
    QByteArray newer = a.storage.outgoing().first();
    newer[3] = 9;
    EXPECT_EQ(b.replica.receiveChange(name, newer), FileProblem::Newer);
    EXPECT_EQ(b.storage.content.progress, before.progress);
    EXPECT_TRUE(b.storage.content.records.isEmpty());
}

} // namespace
} // namespace quillon::test
