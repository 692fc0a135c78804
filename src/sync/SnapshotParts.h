// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sync/RecordState.h"

#include <QList>

#include <optional>

namespace quillon {

class ReplicaStorage;

/// All that this computer knows, deletions included, piece by piece. What changes meanwhile is in
/// a piece as it was or as it has become: either way it holds what was known at the beginning.
class SnapshotParts
{
public:
    /// `content` is about how many bytes a piece holds.
    SnapshotParts(const ReplicaStorage &storage, qsizetype content);

    /// None when that was all.
    std::optional<SyncChanges> next();

private:
    void addRecords(SyncChanges &part, qsizetype &size);
    void addSettings(SyncChanges &part, qsizetype &size);

    const ReplicaStorage &m_storage;
    qsizetype m_content;
    RecordId m_last;
    bool m_hasRecords = true;
    QList<SettingId> m_settings;
};

} // namespace quillon
