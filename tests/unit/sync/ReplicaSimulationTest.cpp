// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "MemoryReplicaStorage.h"
#include "SyncExamples.h"
#include "sync/AccountFile.h"
#include "sync/AccountKey.h"
#include "sync/Replica.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

/// Some computers and an account's change files. What every computer did that was kept is merged
/// here too, in the order in which it happened: all must end there.
class World
{
public:
    explicit World(quint64 seed)
        : m_random(seed)
        , m_key(AccountKey::random(m_random).value())
    {
        const int count = 2 + m_random.below(4);
        for (int i = 0; i < count; ++i) {
            m_computers.push_back(std::make_unique<Computer>(m_key, seed * 100 + quint64(i)));
            // Wrong by up to a year either way.
            m_computers.back()->clock = 400LL * 86'400'000 + i * 100LL * 86'400'000;
        }
    }

    void step()
    {
        Computer &computer = *m_computers[std::size_t(m_random.below(int(m_computers.size())))];
        computer.clock += m_random.below(1000);
        // One transaction in ten is cut off by a crash.
        computer.storage.failNext = m_random.oneIn(10);
        switch (m_random.below(4)) {
        case 0:
        case 1:
            edit(computer);
            break;
        case 2:
            send(computer);
            break;
        default:
            receive(computer);
        }
        computer.storage.failNext = false;
    }

    void end()
    {
        for (const auto &computer : m_computers) {
            ASSERT_TRUE(computer->replica.sealPending());
            const auto files = computer->storage.outgoing();
            for (auto it = files.begin(); it != files.end(); ++it) {
                m_files.insert(it.key(), *it);
                ASSERT_TRUE(computer->replica.sent(it.key()));
            }
        }
        for (const auto &computer : m_computers) {
            for (auto it = m_files.begin(); it != m_files.end(); ++it) {
                if (!knows(*computer, it.key())) {
                    ASSERT_EQ(computer->replica.receiveChange(it.key(), *it), std::nullopt);
                }
            }
        }
    }

    void check()
    {
        const auto &first = m_computers.front()->storage.content;
        EXPECT_EQ(first.records, m_kept.records);
        EXPECT_EQ(first.settings, m_kept.settings);
        for (const auto &computer : m_computers) {
            const auto &content = computer->storage.content;
            EXPECT_EQ(content.records, first.records);
            EXPECT_EQ(content.settings, first.settings);
            EXPECT_EQ(content.shown, first.shown);
            EXPECT_FALSE(computer->replica.hasUnsent());
        }
        checkShown(first.shown);
    }

private:
    struct Computer
    {
        Computer(const AccountKey &key, quint64 seed)
            : random(seed)
            , replica(storage, key, random)
        {
        }

        MemoryReplicaStorage storage;
        SeededRandom random;
        Replica replica;
        qint64 clock = 0;
    };

    static bool knows(const Computer &computer, const QString &name)
    {
        const auto file = AccountFile::fromName(name);
        return computer.storage.progress().known.contains(file->writer, file->number);
    }

    void edit(Computer &computer)
    {
        QList<LocalEdit> edits;
        for (int i = 1 + m_random.below(3); i > 0; --i) {
            edits.append(randomEdit(computer));
        }
        const auto before = computer.storage.content.pending.size();
        if (!computer.replica.edit(edits, computer.clock)) {
            EXPECT_EQ(computer.storage.content.pending.size(), before);
            return;
        }
        if (computer.storage.content.pending.size() > before) {
            join(m_kept, computer.storage.content.pending.last());
        }
    }

    LocalEdit randomEdit(const Computer &computer)
    {
        const RecordId id = ruleId(m_random.below(8));
        const bool isThere = computer.storage.record(id).isPresent();
        if (m_random.oneIn(5)) {
            return {LocalEdit::Kind::Set, {}, {},
                {u"savedNetworks"_s, QString::number(m_random.below(4))}, randomValue(m_random)};
        }
        if (isThere && m_random.oneIn(5)) {
            return {LocalEdit::Kind::Delete, id, {}, {}, {}};
        }
        const RecordValues all{{u"name"_s, u"rule %1"_s.arg(m_random.below(3))},
            {u"enabled"_s, m_random.oneIn(2)}, {u"device"_s, u"wlan0"_s},
            {u"network"_s, QString::number(m_random.below(2))}};
        if (!isThere) {
            return {LocalEdit::Kind::Insert, id, all, {}, {}};
        }
        const QString attribute = all.keys().at(m_random.below(int(all.size())));
        return {LocalEdit::Kind::Change, id, {{attribute, all[attribute]}}, {}, {}};
    }

    /// Each file may reach the account without its sender being told.
    void send(Computer &computer)
    {
        computer.replica.sealPending();
        const auto files = computer.storage.outgoing();
        for (auto it = files.begin(); it != files.end(); ++it) {
            if (m_random.oneIn(3)) {
                continue;
            }
            // Written a second time it must be the same.
            EXPECT_EQ(m_files.value(it.key(), *it), *it);
            m_files.insert(it.key(), *it);
            if (!m_random.oneIn(3)) {
                computer.storage.failNext = m_random.oneIn(10);
                computer.replica.sent(it.key());
            }
        }
    }

    /// In any order, some twice, some cut, some swapped.
    void receive(Computer &computer)
    {
        for (int i = m_random.below(6); i > 0 && !m_files.isEmpty(); --i) {
            const QString name = m_files.keys().at(m_random.below(int(m_files.size())));
            QByteArray bytes = m_files[name];
            const bool isWhole = !m_random.oneIn(8);
            if (!isWhole) {
                bytes = m_random.oneIn(2) ? bytes.first(m_random.below(int(bytes.size())))
                                          : m_files.first();
            }
            const auto before = computer.storage.content.records;
            computer.storage.failNext = m_random.oneIn(10);
            if (computer.replica.receiveChange(name, bytes)) {
                EXPECT_EQ(computer.storage.content.records, before);
            }
            computer.storage.failNext = false;
        }
    }

    static void checkShown(const QMap<RecordId, RecordValues> &shown)
    {
        QSet<QString> names;
        QSet<QString> places;
        for (const RecordValues &rule : shown) {
            const QString name = std::get<QString>(rule[u"name"_s]);
            EXPECT_FALSE(names.contains(name)) << name.toStdString();
            names.insert(name);
            if (rule[u"enabled"_s] == SyncValue(true)) {
                const QString place = std::get<QString>(rule[u"network"_s]);
                EXPECT_FALSE(places.contains(place)) << place.toStdString();
                places.insert(place);
            }
        }
    }

    SeededRandom m_random;
    const AccountKey m_key;
    std::vector<std::unique_ptr<Computer>> m_computers;
    QMap<QString, QByteArray> m_files;
    SyncChanges m_kept;
};

TEST(ReplicaSimulationTest, AllComputersEndEqualAndWithEverythingThatWasKept)
{
    for (quint64 seed = 1; seed <= 40; ++seed) {
        World world(seed);
        for (int round = 0; round < 3; ++round) {
            for (int i = 0; i < 60; ++i) {
                world.step();
            }
            world.end();
            world.check();
            ASSERT_FALSE(::testing::Test::HasFailure()) << "seed " << seed;
        }
    }
}

} // namespace
} // namespace quillon::test
