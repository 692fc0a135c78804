// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/SnapshotParts.h"

#include "sync/ReplicaStorage.h"

namespace quillon {

namespace {

constexpr int recordsAtOnce = 200;

} // namespace

SnapshotParts::SnapshotParts(const ReplicaStorage &storage, qsizetype content)
    : m_storage(storage)
    , m_content(content)
    , m_settings(storage.settings())
{
}

std::optional<SyncChanges> SnapshotParts::next()
{
    SyncChanges part;
    qsizetype size = 0;
    addRecords(part, size);
    addSettings(part, size);
    return part.isEmpty() ? std::nullopt : std::optional(part);
}

void SnapshotParts::addRecords(SyncChanges &part, qsizetype &size)
{
    while (m_hasRecords && size < m_content) {
        const QList<RecordId> ids = m_storage.recordsAfter(m_last, recordsAtOnce);
        m_hasRecords = ids.size() == recordsAtOnce;
        for (const RecordId &id : ids) {
            const RecordState state = m_storage.record(id);
            size += approximateSize(state);
            part.records.insert(id, state);
            m_last = id;
            if (size >= m_content) {
                m_hasRecords = true; // there may be more of them
                break;
            }
        }
    }
}

void SnapshotParts::addSettings(SyncChanges &part, qsizetype &size)
{
    while (!m_hasRecords && size < m_content && !m_settings.isEmpty()) {
        const SettingId id = m_settings.takeLast();
        const SyncRegister value = m_storage.setting(id);
        size += approximateSize(value);
        part.settings.insert(id, value);
    }
}

} // namespace quillon
