// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/SnapshotWriting.h"

#include "platform/RandomSource.h"
#include "sync/AccountFile.h"
#include "sync/ChangesFormat.h"
#include "sync/Replica.h"
#include "sync/ReplicaStorage.h"
#include "sync/SealedFile.h"

#include <QPointer>
#include <QtEndian>

#include <utility>

namespace quillon {

SnapshotWriting::SnapshotWriting(RoundState &state)
    : m_state(state)
    , m_queue(state.limits.requests)
    , m_reading(state)
{
}

void SnapshotWriting::write(Finished finished)
{
    const SyncDeps &deps = m_state.deps;
    const QByteArray random = deps.random.bytes(sizeof(m_id));
    const bool begun = random.size() == sizeof(m_id) && deps.storage.transaction([&] {
        ReplicaProgress progress = deps.storage.progress();
        m_id = qFromBigEndian<quint64>(random.constData());
        m_manifest = {progress.known, {}};
        progress.unfinishedSnapshot = m_id;
        deps.storage.setProgress(progress);
    });
    if (!begun) {
        m_state.failStoring();
        finished(false);
        return;
    }
    m_failed = false;
    m_parts.emplace(deps.storage, m_state.limits.partContent);
    m_queue.run([this] { return nextPart(); },
        [this](const QString &name, const auto &answered) { put(name, answered); },
        [this, finished = std::move(finished)] {
            if (m_failed) {
                finished(false);
            } else {
                writeManifest(finished);
            }
        });
}

std::optional<QString> SnapshotWriting::nextPart()
{
    const auto content = m_failed ? std::nullopt : m_parts->next();
    if (!content) {
        return std::nullopt;
    }
    const QString name =
        AccountFile{AccountFile::Kind::Part, m_id, quint64(m_manifest.partSizes.size())}.name();
    const QByteArray file =
        sealed(writtenChanges(*content), name, m_state.deps.key, m_state.deps.random);
    if (file.isEmpty()) {
        m_state.failStoring();
        m_failed = true;
        return std::nullopt;
    }
    m_manifest.partSizes.append(file.size());
    m_made.insert(name, file);
    return name;
}

void SnapshotWriting::put(const QString &name, const RequestQueue::Answered &answered)
{
    m_state.deps.account.create(
        name, m_made.take(name), [this, alive = QPointer(&m_queue), answered](const auto &result) {
            if (!alive) {
                return;
            }
            const auto *error = std::get_if<CloudError>(&result);
            // Nobody else uses the name: a request was carried out twice. What is there, will be
            // read before anything depends on it.
            if (error && error->problem != CloudProblem::Changed) {
                m_state.failWriting(*error);
                m_failed = true;
            }
            answered();
        });
}

void SnapshotWriting::writeManifest(const Finished &finished)
{
    // What was done meanwhile is in some parts, and in no file: if this computer were set back now,
    // those who read the snapshot would know it, and those who need not would never hear of it.
    if (m_state.deps.replica.hasUnsent()) {
        m_state.outcome.wantsListing = true;
        finished(false);
        return;
    }
    const QString name = AccountFile{AccountFile::Kind::Snapshot, m_id, 0}.name();
    const QByteArray file =
        sealed(writtenManifest(m_manifest), name, m_state.deps.key, m_state.deps.random);
    if (file.isEmpty()) {
        m_state.failStoring();
        finished(false);
        return;
    }
    m_made.insert(name, file);
    put(name, [this, finished] { finished(!m_failed); });
}

void SnapshotWriting::verify(const SnapshotFiles &files, Finished finished)
{
    m_reading.run(
        files.parts + QStringList{files.manifest},
        [this](const QString &name, const QByteArray &bytes) -> std::optional<FileProblem> {
            // It opens only if it is what was written here for that name.
            const auto content = opened(bytes, name, m_state.deps.key);
            const auto *problem = std::get_if<FileProblem>(&content);
            return problem ? std::optional(*problem) : std::nullopt;
        },
        [this, files, finished = std::move(finished)](bool all) {
            if (all) {
                end(files, finished);
            } else {
                finished(false);
            }
        });
}

void SnapshotWriting::end(const SnapshotFiles &files, const Finished &finished)
{
    ReplicaStorage &storage = m_state.deps.storage;
    const bool kept = storage.transaction([&] {
        ReplicaProgress progress = storage.progress();
        progress.ownSnapshots.insert(files.manifest);
        progress.unfinishedSnapshot.reset();
        storage.setProgress(progress);
    });
    if (kept) {
        m_state.outcome.wroteSnapshot = true;
    } else {
        m_state.failStoring();
    }
    finished(kept);
}

} // namespace quillon
