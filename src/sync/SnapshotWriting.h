// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sync/FileReading.h"
#include "sync/RequestQueue.h"
#include "sync/RoundState.h"
#include "sync/SnapshotParts.h"

#include <QMap>

namespace quillon {

/// Writes all that this computer knows into the account, the manifest last, and reads it back: only
/// then it may take the place of other files. Whatever ends it half-way leaves files that nobody
/// takes for a snapshot, and that this computer removes later. Main thread.
class SnapshotWriting
{
public:
    /// Whether it is done, as far as the account said.
    using Finished = std::function<void(bool done)>;

    explicit SnapshotWriting(RoundState &state);

    void write(Finished finished);
    /// Of the snapshot that was written here last, and that a listing has shown whole.
    void verify(const SnapshotFiles &files, Finished finished);

private:
    std::optional<QString> nextPart();
    void put(const QString &name, const RequestQueue::Answered &answered);
    void writeManifest(const Finished &finished);
    void end(const SnapshotFiles &files, const Finished &finished);

    RoundState &m_state;
    RequestQueue m_queue;
    FileReading m_reading;
    std::optional<SnapshotParts> m_parts;
    quint64 m_id = 0;
    SnapshotManifest m_manifest;
    QMap<QString, QByteArray> m_made; ///< that are not on their way yet
    bool m_failed = false;
};

} // namespace quillon
