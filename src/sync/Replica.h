// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sync/FileProblem.h"
#include "sync/RecordState.h"
#include "sync/ReplicaProgress.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <functional>
#include <optional>

namespace quillon {

class AccountKey;
class RandomSource;
class ReplicaStorage;

/// One thing that the person did on this computer.
struct LocalEdit
{
    enum class Kind
    {
        Insert, ///< a new record, or one whose deletion is taken back: all its values
        Change, ///< some attributes of a record
        Delete,
        Set, ///< a setting: the value, nothing when it was removed
    };

    Kind kind = Kind::Change;
    RecordId record = {};
    RecordValues values = {};
    SettingId setting = {};
    SyncValue value = {};
};

/// This computer's copy of what an account holds: takes what the person does here into files, and
/// what came in files from other computers into the records. Holds nothing in memory between two
/// calls, so a program that ends at any moment goes on from where its storage stands. Main thread.
class Replica
{
public:
    Replica(ReplicaStorage &storage, const AccountKey &key, RandomSource &random);

    /// What was done in one act. Belongs to the transaction that saves it, and fails with it:
    /// false. Changes of a record that is not there any more are dropped; attributes that are not
    /// synchronized are left out. `now` in milliseconds since 1970 UTC.
    bool edit(const QList<LocalEdit> &edits, qint64 now);

    /// Whether something waits to be written into the account.
    bool hasUnsent() const;
    /// Makes one file of the oldest pending edits, of which there are some; all of them, if that
    /// is not too much for a file. False when that failed.
    bool sealNext();
    /// Makes files of all pending edits. False when that failed.
    bool sealPending();
    /// The file is in the account.
    bool sent(const QString &name);
    /// Goes on as another writer, with everything that is not in the account yet. Necessary when
    /// this writer's numbers were used by somebody else: the computer was set back to an older
    /// state.
    bool becomeNewWriter();

    /// Merges a change file that is in the account. Nothing when that is done; it is left alone
    /// otherwise.
    std::optional<FileProblem> receiveChange(const QString &name, const QByteArray &bytes);
    /// Reads what a snapshot covers.
    std::optional<FileProblem> receiveManifest(const QString &name, const QByteArray &bytes);
    std::optional<FileProblem> receivePart(const QString &name, const QByteArray &bytes);
    /// All parts of the snapshot were merged.
    bool finishSnapshot(const QString &manifest);
    /// The file of that revision is left alone from now on.
    bool ignore(const QString &name, FileProblem problem, const QByteArray &revision);

private:
    void apply(const SyncChanges &changes);
    SyncChanges nextPending(int &count) const;
    void showRules(const QMap<QUuid, RecordValues> &shownBefore);
    bool merge(const SyncChanges &changes, const std::function<void(ReplicaProgress &)> &then);
    static bool hasUnknownStamp(const SyncChanges &changes, const ReplicaProgress &progress);
    void mergeRecords(const SyncChanges &changes);
    void mergeSettings(const SyncChanges &changes);
    ReadResult<SyncChanges> readSealed(const QString &name, const QByteArray &bytes) const;

    ReplicaStorage &m_storage;
    const AccountKey &m_key;
    RandomSource &m_random;
};

} // namespace quillon
