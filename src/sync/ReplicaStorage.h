// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sync/RecordState.h"
#include "sync/ReplicaProgress.h"

#include <QList>
#include <QMap>
#include <QString>

#include <functional>
#include <optional>

namespace quillon {

/// Where a computer keeps what it knows of an account, beside the records that the program shows.
/// Everything but reading happens inside of transactions. Main thread.
class ReplicaStorage
{
public:
    virtual ~ReplicaStorage() = default;

    /// Runs `work`, then keeps all that it changed, records that are shown included, or nothing of
    /// it. False when nothing was kept (no space, the disk fails). Within a transaction that runs
    /// already, `work` belongs to that one.
    virtual bool transaction(const std::function<void()> &work) = 0;

    /// The default for a record of which nothing is known.
    virtual RecordState record(const RecordId &id) const = 0;
    virtual void setRecord(const RecordId &id, const RecordState &state) = 0;
    /// The next `count` records behind `id` (all, for a default one) in the order of their
    /// identities, present or not.
    virtual QList<RecordId> recordsAfter(const RecordId &id, int count) const = 0;
    /// The records of one entity that are present.
    virtual QList<RecordId> presentRecords(const QString &entity) const = 0;
    virtual SyncRegister setting(const SettingId &id) const = 0;
    virtual void setSetting(const SettingId &id, const SyncRegister &value) = 0;
    virtual QList<SettingId> settings() const = 0;

    /// What the program is to see from now on: values, or that there is no such record. What is not
    /// among the values holds nothing; attributes that are not synchronized stay as they are.
    virtual void showRecord(const RecordId &id, const std::optional<RecordValues> &values) = 0;
    virtual void showSetting(const SettingId &id, const SyncValue &value) = 0;

    /// The edits that are in no file yet, in their order.
    virtual void appendPending(const SyncChanges &edit) = 0;
    virtual bool hasPending() const = 0;
    /// The oldest, at most `count` of them.
    virtual QList<SyncChanges> pending(int count) const = 0;
    virtual void removePending(int count) = 0;

    /// Files that were made and are not known to be in the account, by name.
    virtual QMap<QString, QByteArray> outgoing() const = 0;
    virtual void addOutgoing(const QString &name, const QByteArray &bytes) = 0;
    virtual void removeOutgoing(const QString &name) = 0;

    virtual ReplicaProgress progress() const = 0;
    virtual void setProgress(const ReplicaProgress &progress) = 0;
};

} // namespace quillon
