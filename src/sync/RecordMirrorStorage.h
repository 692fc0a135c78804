// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sync/RecordMirrorFile.h"
#include "sync/RecordMirrorRows.h"
#include "sync/ReplicaStorage.h"

#include <QSet>

#include <memory>
#include <optional>

namespace quillon {

/// ReplicaStorage in tables beside the records, in one transaction with them. Rows that it changes
/// are not noted as edits. Identities come in the order in which the file keeps them. Main thread.
class RecordMirrorStorage : public ReplicaStorage
{
public:
    /// What a transaction showed.
    struct Shown
    {
        bool rows = false;        ///< some were changed
        QSet<QString> settings{}; ///< keys
    };
    /// Runs at the beginning of each transaction; answers whether states of records may be written
    /// in it. Otherwise the transaction keeps nothing when it tries to.
    using Beginning = std::function<bool()>;
    /// Runs after a transaction that showed something.
    using Committed = std::function<void(const Shown &shown)>;

    RecordMirrorStorage();
    ~RecordMirrorStorage() override;
    /// From now on it is the file of this connection.
    void follow(std::shared_ptr<SQLite::Database> database);
    void setObserver(Beginning beginning, Committed committed);
    RecordMirrorFile &file() { return m_file; }
    RecordMirrorRows &rows() { return *m_rows; }

    bool transaction(const std::function<void()> &work) override;
    RecordState record(const RecordId &id) const override;
    void setRecord(const RecordId &id, const RecordState &state) override;
    QList<RecordId> recordsAfter(const RecordId &id, int count) const override;
    QList<RecordId> presentRecords(const QString &entity) const override;
    SyncRegister setting(const SettingId &id) const override;
    void setSetting(const SettingId &id, const SyncRegister &value) override;
    QList<SettingId> settings() const override;
    void showRecord(const RecordId &id, const std::optional<RecordValues> &values) override;
    void showSetting(const SettingId &id, const SyncValue &value) override;
    void appendPending(const SyncChanges &edit) override;
    bool hasPending() const override;
    /// Fewer than `count` where together they are long.
    QList<SyncChanges> pending(int count) const override;
    void removePending(int count) override;
    QMap<QString, QByteArray> outgoing() const override;
    void addOutgoing(const QString &name, const QByteArray &bytes) override;
    void removeOutgoing(const QString &name) override;
    ReplicaProgress progress() const override;
    void setProgress(const ReplicaProgress &progress) override;

    /// Forgets everything but the records that are shown.
    void clear();

private:
    std::optional<SyncChanges> changesOf(const QByteArray &bytes) const;
    /// For statements that give nothing.
    template <typename Bind>
    void run(const char *sql, const Bind &bind);

    RecordMirrorFile m_file;
    std::unique_ptr<RecordMirrorRows> m_rows;
    Beginning m_beginning;
    Committed m_committed;
    bool m_mayWriteRecords = true; ///< in this transaction
    bool m_isMerging = false;      ///< the file knows, in this transaction, that rows are no edits
    Shown m_shown;
};

} // namespace quillon
