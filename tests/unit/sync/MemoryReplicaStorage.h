// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sync/ReplicaStorage.h"

#include <utility>

namespace quillon::test {

/// Keeps everything in memory; a transaction can be made to fail as a kill in its middle would.
class MemoryReplicaStorage : public ReplicaStorage
{
public:
    struct Content
    {
        QMap<RecordId, RecordState> records;
        QMap<SettingId, SyncRegister> settings;
        QMap<RecordId, RecordValues> shown;
        QMap<SettingId, SyncValue> shownSettings;
        QList<SyncChanges> pending;
        QMap<QString, QByteArray> outgoing;
        QByteArray progress;
    };

    bool transaction(const std::function<void()> &work) override
    {
        if (m_depth > 0) {
            work();
            return true;
        }
        const Content before = content;
        ++m_depth;
        work();
        --m_depth;
        if (std::exchange(failNext, false)) {
            content = before;
            return false;
        }
        return true;
    }

    RecordState record(const RecordId &id) const override { return content.records.value(id); }
    void setRecord(const RecordId &id, const RecordState &state) override
    {
        content.records[id] = state;
    }
    QList<RecordId> recordsAfter(const RecordId &id, int count) const override
    {
        QList<RecordId> ids;
        for (auto it = content.records.upperBound(id);
            it != content.records.end() && ids.size() < count; ++it) {
            ids.append(it.key());
        }
        return ids;
    }
    QList<RecordId> presentRecords(const QString &entity) const override
    {
        QList<RecordId> ids;
        for (auto it = content.records.begin(); it != content.records.end(); ++it) {
            if (it.key().entity == entity && it->isPresent()) {
                ids.append(it.key());
            }
        }
        return ids;
    }
    SyncRegister setting(const SettingId &id) const override { return content.settings.value(id); }
    void setSetting(const SettingId &id, const SyncRegister &value) override
    {
        content.settings[id] = value;
    }
    QList<SettingId> settings() const override { return content.settings.keys(); }

    void showRecord(const RecordId &id, const std::optional<RecordValues> &values) override
    {
        if (values) {
            content.shown[id] = *values;
        } else {
            content.shown.remove(id);
        }
    }
    void showSetting(const SettingId &id, const SyncValue &value) override
    {
        content.shownSettings[id] = value;
    }

    void appendPending(const SyncChanges &edit) override { content.pending.append(edit); }
    bool hasPending() const override { return !content.pending.isEmpty(); }
    QList<SyncChanges> pending(int count) const override
    {
        return content.pending.first(std::min<qsizetype>(count, content.pending.size()));
    }
    void removePending(int count) override { content.pending.remove(0, count); }

    QMap<QString, QByteArray> outgoing() const override { return content.outgoing; }
    void addOutgoing(const QString &name, const QByteArray &bytes) override
    {
        content.outgoing.insert(name, bytes);
    }
    void removeOutgoing(const QString &name) override { content.outgoing.remove(name); }

    /// As it would come from a disk.
    ReplicaProgress progress() const override
    {
        return content.progress.isEmpty() ? ReplicaProgress()
                                          : readProgress(content.progress).value();
    }
    void setProgress(const ReplicaProgress &progress) override
    {
        content.progress = writtenProgress(progress);
    }

    Content content;
    bool failNext = false; ///< the next transaction keeps nothing

private:
    int m_depth = 0;
};

} // namespace quillon::test
