// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/RecordMirrorStorage.h"

#include "MemoryReplicaStorage.h"
#include "RecordMirrorFixture.h"
#include "fakes/LogCapture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

/// Does everything twice, over the storage in memory and over the one in the file, with the same
/// random numbers.
struct TwiceComputer
{
    TwiceComputer(const AccountKey &key, quint64 seed)
        : randomOfMemory(seed)
        , randomOfFile(seed)
        , inMemory(memory, key, randomOfMemory)
        , inFile(file, key, randomOfFile)
    {
        file.follow(records.context().database());
    }

    void edit(const QList<LocalEdit> &edits, qint64 now)
    {
        ASSERT_TRUE(inMemory.edit(edits, now));
        ASSERT_TRUE(inFile.edit(edits, now));
    }
    void seal()
    {
        ASSERT_TRUE(inMemory.sealPending());
        ASSERT_TRUE(inFile.sealPending());
    }
    void expectAgreement()
    {
        const auto &content = memory.content;
        for (auto it = content.records.begin(); it != content.records.end(); ++it) {
            EXPECT_EQ(file.record(it.key()), *it);
        }
        EXPECT_EQ(file.recordsAfter({}, 1000).size(), content.records.size());
        EXPECT_EQ(file.presentRecords(model::Rule), memory.presentRecords(model::Rule));
        EXPECT_EQ(file.settings(), memory.settings());
        for (auto it = content.settings.begin(); it != content.settings.end(); ++it) {
            EXPECT_EQ(file.setting(it.key()), *it);
        }
        EXPECT_EQ(file.hasPending(), memory.hasPending());
        EXPECT_EQ(file.pending(3), memory.pending(3));
        EXPECT_EQ(file.outgoing(), memory.outgoing());
        EXPECT_EQ(file.progress(), memory.progress());
        const Entity &rule = *quillonModel().entity(model::Rule);
        for (auto it = content.shown.begin(); it != content.shown.end(); ++it) {
            EXPECT_EQ(file.rows().values(it.key()), RecordMirrorRows::shown(rule, *it));
        }
        EXPECT_EQ(records.number("SELECT count(*) FROM Rule"), content.shown.size());
    }

    RecordsOfComputer records;
    MemoryReplicaStorage memory;
    RecordMirrorStorage file;
    SeededRandom randomOfMemory;
    SeededRandom randomOfFile;
    Replica inMemory;
    Replica inFile;
};

class RecordMirrorStorageTest : public ::testing::Test
{
protected:
    RecordMirrorStorageTest() { storage.follow(records.context().database()); }

    static RecordState stateOf(const QString &name)
    {
        RecordState state;
        state.inserted = {5, 0, 1};
        state.attributes.insert(model::rule::name, {name, {5, 0, 1}});
        return state;
    }
    qint64 notedEdits() { return records.number("SELECT count(*) FROM MirrorEdit"); }

    RecordsOfComputer records;
    RecordMirrorStorage storage;
};

LocalEdit randomEdit(SeededRandom &random, const ReplicaStorage &storage)
{
    const RecordId id = ruleId(random.below(6));
    if (random.oneIn(5)) {
        return {LocalEdit::Kind::Set, {}, {},
            {u"savedNetworks"_s, QString::number(random.below(4))}, randomValue(random)};
    }
    if (!storage.record(id).isPresent()) {
        return {LocalEdit::Kind::Insert, id,
            {{u"name"_s, u"rule %1"_s.arg(random.below(3))}, {u"enabled"_s, random.oneIn(2)},
                {u"device"_s, u"wlan0"_s}, {u"timerMins"_s, qint64(random.below(4))}},
            {}, {}};
    }
    if (random.oneIn(4)) {
        return {LocalEdit::Kind::Delete, id, {}, {}, {}};
    }
    // Of any type, also one that the row cannot hold.
    return {LocalEdit::Kind::Change, id,
        {{random.oneIn(2) ? u"timerMins"_s : u"enabled"_s, randomValue(random)}}, {}, {}};
}

TEST_F(RecordMirrorStorageTest, DoesWhatTheOneInMemoryDoes)
{
    for (const quint64 seed : {quint64{1}, quint64{2}, quint64{3}}) {
        SeededRandom random(seed);
        const AccountKey key = AccountKey::random(random).value();
        TwiceComputer a(key, 10 + seed);
        TwiceComputer b(key, 20 + seed);
        QMap<QString, QByteArray> account;
        for (int step = 0; step < 120 && !HasFailure(); ++step) {
            TwiceComputer &computer = random.oneIn(2) ? a : b;
            if (random.oneIn(2)) {
                computer.edit({randomEdit(random, computer.memory)}, 1000 + random.below(50));
            } else if (random.oneIn(2)) {
                computer.seal();
                const auto files = computer.memory.outgoing();
                for (auto it = files.begin(); it != files.end(); ++it) {
                    account.insert(it.key(), *it);
                    computer.inMemory.sent(it.key());
                    computer.inFile.sent(it.key());
                }
            } else if (!account.isEmpty()) {
                const QString name = account.keys().at(random.below(int(account.size())));
                EXPECT_EQ(computer.inFile.receiveChange(name, account[name]),
                    computer.inMemory.receiveChange(name, account[name]));
            }
            computer.expectAgreement();
        }
        EXPECT_GT(account.size(), 10);
    }
}

TEST_F(RecordMirrorStorageTest, WhatItShowsIsARowAndNoEdit)
{
    records.sql("UPDATE Mirror SET isRecording = 1");
    ASSERT_TRUE(storage.transaction([&] {
        storage.setRecord(ruleId(1), stateOf(u"Home"_s));
        storage.showRecord(ruleId(1), stateOf(u"Home"_s).values());
    }));
    EXPECT_EQ(notedEdits(), 0);
    const auto rule = records.rule(u"Home"_s);
    ASSERT_TRUE(rule);
    EXPECT_EQ(rule->value(model::rule::active), QVariant(false)) << "as every new rule";
    rule->setValue(model::rule::name, u"Work"_s);
    records.save();
    EXPECT_EQ(notedEdits(), 1) << "what the person does afterwards is one";
}

TEST_F(RecordMirrorStorageTest, WhatHoldsOnThisComputerAloneStays)
{
    const auto rule = records.insert(model::Rule, {{u"name"_s, u"Home"_s}, {u"active"_s, true}});
    records.save();
    const RecordId id{model::Rule, QUuid(rule->uriRepresentation().section(u'/', -1))};
    ASSERT_TRUE(
        storage.transaction([&] { storage.showRecord(id, RecordValues{{u"name"_s, u"Work"_s}}); }));
    records.context().mergeChangesFromStore();
    EXPECT_EQ(rule->value(model::rule::name), u"Work"_s);
    EXPECT_EQ(rule->value(model::rule::active), QVariant(true));
}

TEST_F(RecordMirrorStorageTest, KeepsNothingOfATransactionThatFails)
{
    records.sql("CREATE TRIGGER refuse BEFORE INSERT ON MirrorProgress BEGIN SELECT "
                "RAISE(ABORT, 'refused by the file'); END");
    int told = 0;
    storage.setObserver({}, [&](const auto &) { ++told; });
    const LogCapture log;
    EXPECT_FALSE(storage.transaction([&] {
        storage.setRecord(ruleId(1), stateOf(u"Home"_s));
        storage.showRecord(ruleId(1), stateOf(u"Home"_s).values());
        storage.setProgress({});
    }));
    EXPECT_EQ(told, 0);
    EXPECT_EQ(storage.record(ruleId(1)), RecordState());
    EXPECT_FALSE(records.rule(u"Home"_s));
    const QString lines = LogCapture::taken().join(u'\n');
    EXPECT_TRUE(lines.contains(u"refused by the file"_s)) << lines.toStdString();
    EXPECT_EQ(records.number("SELECT isMerging FROM Mirror"), 0);
    EXPECT_TRUE(storage.transaction([&] { storage.setRecord(ruleId(1), stateOf(u"Home"_s)); }));
}

TEST_F(RecordMirrorStorageTest, WhatIsDamagedIsNotTakenForNothing)
{
    ASSERT_TRUE(storage.transaction([&] {
        storage.setRecord(ruleId(1), stateOf(u"Home"_s));
        storage.setProgress({});
    }));
    records.sql("UPDATE MirrorProgress SET progress = x'00'");
    const LogCapture log;
    EXPECT_EQ(storage.progress(), ReplicaProgress());
    EXPECT_FALSE(storage.transaction([&] { storage.setProgress({}); }))
        << "it would be written upon what could not be read";
    EXPECT_EQ(records.number("SELECT length(progress) FROM MirrorProgress"), 1);
}

TEST_F(RecordMirrorStorageTest, ReadsALongOutboxInParts)
{
    SyncChanges edit;
    QByteArray noise;
    SeededRandom random(1);
    noise = random.bytes(300'000);
    edit.settings.insert({u"key"_s, {}}, {noise, {1, 0, 1}});
    ASSERT_TRUE(storage.transaction([&] {
        for (int i = 0; i < 10; ++i) {
            storage.appendPending(edit);
        }
    }));
    EXPECT_EQ(storage.pending(10).size(), 4);
    ASSERT_TRUE(storage.transaction([&] { storage.removePending(9); }));
    EXPECT_EQ(storage.pending(10), QList<SyncChanges>({edit}));
}

TEST_F(RecordMirrorStorageTest, FollowsTheFileToAnotherConnection)
{
    ASSERT_TRUE(storage.transaction([&] { storage.setRecord(ruleId(1), stateOf(u"Home"_s)); }));
    records.store.refreshPersistentContainer();
    storage.follow(records.context().database());
    EXPECT_EQ(storage.record(ruleId(1)), stateOf(u"Home"_s));
}

} // namespace
} // namespace quillon::test
