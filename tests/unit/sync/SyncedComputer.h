// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MemoryReplicaStorage.h"
#include "SyncExamples.h"
#include "fakes/FakeCloudStorage.h"
#include "sync/AccountFile.h"
#include "sync/AccountKey.h"
#include "sync/Replica.h"
#include "sync/SyncRound.h"

#include <memory>

namespace quillon::test {

/// One computer with its own copy of what is in an account, and its own way there.
class SyncedComputer
{
public:
    SyncedComputer(FakeCloudAccount &inAccount, const AccountKey &key, quint64 seed)
        : account(inAccount)
        , random(seed)
        , cloud(inAccount)
        , replica(storage, key, random)
        , deps{cloud, storage, replica, key, random}
    {
    }

    /// One round, with nothing that goes wrong.
    SyncOutcome round(SyncRound::Look look = SyncRound::Look::Listing)
    {
        begin(look);
        cloud.answerAll();
        return std::exchange(outcome, std::nullopt).value();
    }
    void begin(SyncRound::Look look)
    {
        outcome.reset();
        running = std::make_unique<SyncRound>(deps, limits);
        running->start(look, [this](const SyncOutcome &made) { outcome = made; });
    }
    /// The program ends here and now.
    void kill(bool requestsArrive = false)
    {
        running.reset();
        cloud.abandon(requestsArrive);
    }

    void insert(int rule, const QString &name)
    {
        replica.edit(
            {{LocalEdit::Kind::Insert, ruleId(rule), {{QStringLiteral("name"), name}}, {}, {}}},
            ++now);
    }
    void remove(int rule)
    {
        replica.edit({{LocalEdit::Kind::Delete, ruleId(rule), {}, {}, {}}}, ++now);
    }
    QString name(int rule) const
    {
        const SyncValue value =
            storage.content.shown.value(ruleId(rule)).value(QStringLiteral("name"));
        return std::holds_alternative<QString>(value) ? std::get<QString>(value)
                                                      : QStringLiteral("none");
    }
    ReplicaProgress progress() const { return storage.progress(); }
    QString change(quint64 number) const
    {
        return AccountFile{AccountFile::Kind::Change, progress().writer, number}.name();
    }
    bool isLike(const SyncedComputer &other) const
    {
        return storage.content.records == other.storage.content.records &&
               storage.content.settings == other.storage.content.settings &&
               storage.content.shown == other.storage.content.shown;
    }

    FakeCloudAccount &account;
    MemoryReplicaStorage storage;
    SeededRandom random;
    FakeCloudStorage cloud;
    Replica replica;
    SyncDeps deps;
    SyncLimits limits;
    std::unique_ptr<SyncRound> running;
    std::optional<SyncOutcome> outcome; ///< of the round that ended last
    qint64 now = 1000;
};

/// How many of the account's files have that ending.
inline int countOf(const FakeCloudAccount &account, const QString &ending)
{
    return int(std::count_if(account.files.keyBegin(), account.files.keyEnd(),
        [&ending](const QString &name) { return name.endsWith(ending); }));
}

} // namespace quillon::test
