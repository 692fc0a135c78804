// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sync/SyncOutcome.h"
#include "sync/SyncPlan.h"

#include <QSet>

namespace quillon {

class AccountKey;
class KeyFileWatch;
class RandomSource;
class Replica;
class ReplicaStorage;

/// What a round works with. All of it outlives the round.
struct SyncDeps
{
    CloudStorage &account;
    ReplicaStorage &storage;
    Replica &replica;
    const AccountKey &key;
    RandomSource &random;
    KeyFileWatch *keyFile = nullptr; ///< none: whatever the key file holds is taken for ours
};

/// What the steps of one round share. Nothing in here is worth keeping when the program ends.
struct RoundState
{
    SyncDeps deps;
    SyncLimits limits;
    SyncOutcome outcome;
    std::optional<QList<CloudFile>> listing; ///< with what was written and removed since
    QSet<QString> tried;                     ///< not to be read a second time in this round
    bool isStopped = false;                  ///< nothing more can be done now
    bool refusesWrites = false;
    bool hasVanished = false; ///< a file was removed between listing and reading it

    /// Whether everything in this round went as it should.
    bool isUndisturbed() const { return outcome.isWell() && !hasVanished; }
    /// Takes note of an answer that is an error.
    void fail(const CloudError &error);
    /// The same for a request that was to write.
    void failWriting(const CloudError &error);
    /// This computer could not store something: nothing else is worth trying.
    void failStoring();
    /// Leaves a file alone, and tells of it when nobody has been told. `readRevision` is of what
    /// was read, if anything was: a server may list a file anew and give what it had cached.
    void refuse(const QString &name, FileProblem problem, const QByteArray &readRevision = {});

    const CloudFile *listed(const QString &name) const;
    void setListed(const QString &name, qint64 size, const QByteArray &revision);
    void setUnlisted(const QString &name);
};

} // namespace quillon
