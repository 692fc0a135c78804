// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/model/QuillonModel.h"
#include "sync/AccountFile.h"
#include "sync/ChangesFormat.h"
#include "sync/Replica.h"
#include "sync/ReplicaRules.h"
#include "sync/ReplicaStorage.h"
#include "sync/SealedFile.h"

#include <algorithm>

namespace quillon {

namespace {

/// More files that were left alone are not remembered: they are looked at again.
constexpr qsizetype mostIgnored = 2000;

} // namespace

ReadResult<SyncChanges> Replica::readSealed(const QString &name, const QByteArray &bytes) const
{
    const ReadResult<QByteArray> content = opened(bytes, name, m_key);
    if (const auto *problem = std::get_if<FileProblem>(&content)) {
        return *problem;
    }
    return readChanges(std::get<QByteArray>(content));
}

bool Replica::merge(const SyncChanges &changes, const std::function<void(ReplicaProgress &)> &then)
{
    // A stamp of ours that we did not make: this computer was set back, and made it before that.
    const ReplicaProgress now = m_storage.progress();
    if (now.writer != 0 && hasUnknownStamp(changes, now) && !becomeNewWriter()) {
        return false;
    }
    return m_storage.transaction([&] {
        const bool withRules = touchesRules(changes);
        const QMap<QUuid, RecordValues> before =
            withRules ? shownRules(presentRules(m_storage)) : QMap<QUuid, RecordValues>();
        mergeRecords(changes);
        mergeSettings(changes);
        if (withRules) {
            showRules(before);
        }
        ReplicaProgress progress = m_storage.progress();
        progress.last = std::max(progress.last, latestStamp(changes));
        then(progress);
        m_storage.setProgress(progress);
    });
}

bool Replica::hasUnknownStamp(const SyncChanges &changes, const ReplicaProgress &progress)
{
    const auto isUnknown = [&progress](const Stamp &stamp) {
        return stamp.writer == progress.writer && stamp > progress.last;
    };
    for (const RecordState &record : changes.records) {
        if (isUnknown(record.inserted) || isUnknown(record.deleted) ||
            std::ranges::any_of(record.attributes, isUnknown, &SyncRegister::stamp)) {
            return true;
        }
    }
    return std::ranges::any_of(changes.settings, isUnknown, &SyncRegister::stamp);
}

void Replica::mergeRecords(const SyncChanges &changes)
{
    for (auto it = changes.records.begin(); it != changes.records.end(); ++it) {
        const RecordState before = m_storage.record(it.key());
        RecordState state = before;
        if (!join(state, *it)) {
            continue;
        }
        m_storage.setRecord(it.key(), state);
        const bool shows = before.isPresent() || state.isPresent();
        if (it.key().entity != model::Rule && shows) {
            m_storage.showRecord(
                it.key(), state.isPresent() ? std::optional(state.values()) : std::nullopt);
        }
    }
}

void Replica::mergeSettings(const SyncChanges &changes)
{
    for (auto it = changes.settings.begin(); it != changes.settings.end(); ++it) {
        SyncRegister value = m_storage.setting(it.key());
        const SyncValue before = value.value;
        if (join(value, *it)) {
            m_storage.setSetting(it.key(), value);
            if (value.value != before) {
                m_storage.showSetting(it.key(), value.value);
            }
        }
    }
}

std::optional<FileProblem> Replica::receiveChange(const QString &name, const QByteArray &bytes)
{
    const auto file = AccountFile::fromName(name);
    const ReadResult<SyncChanges> read = readSealed(name, bytes);
    if (const auto *problem = std::get_if<FileProblem>(&read)) {
        return *problem;
    }
    // A file of ours that we do not know: this computer was set back, and wrote it before that.
    const ReplicaProgress now = m_storage.progress();
    if (now.writer != 0 && file->writer == now.writer &&
        !now.known.contains(file->writer, file->number) && !becomeNewWriter()) {
        return FileProblem::NotKept;
    }
    const bool kept = merge(std::get<SyncChanges>(read), [&](ReplicaProgress &progress) {
        progress.known.add(file->writer, file->number);
        progress.ignored.remove(name);
    });
    return kept ? std::nullopt : std::optional(FileProblem::NotKept);
}

std::optional<FileProblem> Replica::receivePart(const QString &name, const QByteArray &bytes)
{
    const ReadResult<SyncChanges> read = readSealed(name, bytes);
    if (const auto *problem = std::get_if<FileProblem>(&read)) {
        return *problem;
    }
    const bool kept = merge(std::get<SyncChanges>(read), [](ReplicaProgress &) {});
    return kept ? std::nullopt : std::optional(FileProblem::NotKept);
}

std::optional<FileProblem> Replica::receiveManifest(const QString &name, const QByteArray &bytes)
{
    const ReadResult<QByteArray> content = opened(bytes, name, m_key);
    if (const auto *problem = std::get_if<FileProblem>(&content)) {
        return *problem;
    }
    const auto manifest = readManifest(std::get<QByteArray>(content));
    if (const auto *problem = std::get_if<FileProblem>(&manifest)) {
        return *problem;
    }
    const SnapshotManifest &snapshot = std::get<SnapshotManifest>(manifest);
    // Somebody knew more of our own files than we do: this computer was set back.
    const ReplicaProgress now = m_storage.progress();
    if (now.writer != 0 && snapshot.files.last(now.writer) > now.lastNumber && !becomeNewWriter()) {
        return FileProblem::NotKept;
    }
    const bool kept = m_storage.transaction([&] {
        ReplicaProgress progress = m_storage.progress();
        progress.snapshots.insert(name, snapshot);
        progress.ignored.remove(name);
        m_storage.setProgress(progress);
    });
    return kept ? std::nullopt : std::optional(FileProblem::NotKept);
}

bool Replica::finishSnapshot(const QString &manifest)
{
    return m_storage.transaction([&] {
        ReplicaProgress progress = m_storage.progress();
        progress.known.add(progress.snapshots.value(manifest).files);
        m_storage.setProgress(progress);
    });
}

bool Replica::ignore(const QString &name, FileProblem problem, const QByteArray &revision)
{
    return m_storage.transaction([&] {
        ReplicaProgress progress = m_storage.progress();
        progress.ignored.insert(name, {problem, revision, syncFormatVersion});
        // Somebody who fills the account with rubbish shall not fill this computer.
        while (progress.ignored.size() > mostIgnored) {
            progress.ignored.erase(progress.ignored.begin());
        }
        m_storage.setProgress(progress);
    });
}

} // namespace quillon
