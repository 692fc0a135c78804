// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/Replica.h"

#include "platform/RandomSource.h"
#include "store/model/QuillonModel.h"
#include "sync/AccountFile.h"
#include "sync/ChangesFormat.h"
#include "sync/HybridClock.h"
#include "sync/ReplicaStorage.h"
#include "sync/RuleProjection.h"
#include "sync/SealedFile.h"

#include <QSet>
#include <QtEndian>

#include <algorithm>

namespace quillon {

namespace {

/// Edits that share a file at most; a file of more would only take longer to start with.
constexpr int mostEditsInFile = 2000;
/// About how many bytes of values share a file, before they are packed.
constexpr qsizetype contentOfFile = qsizetype{1} << 20;

/// Which rule is in force is a fact of each computer's own network, and no choice of the person's.
bool isSynchronized(const RecordId &record, const QString &attribute)
{
    return record.entity != model::Rule || attribute != model::rule::active;
}

struct SizeOf
{
    qsizetype operator()(const QString &text) const { return text.size(); }
    qsizetype operator()(const QByteArray &bytes) const { return bytes.size(); }
    qsizetype operator()(const SyncTree &tree) const { return tree.bytes.size(); }
    template <typename T>
    qsizetype operator()(const T &) const
    {
        return 8;
    }
};

qsizetype sizeOf(const SyncChanges &changes)
{
    qsizetype size = 0;
    for (const RecordState &record : changes.records) {
        size += 40;
        for (const SyncRegister &attribute : record.attributes) {
            size += std::visit(SizeOf(), attribute.value);
        }
    }
    for (const SyncRegister &setting : changes.settings) {
        size += 40 + std::visit(SizeOf(), setting.value);
    }
    return size;
}

WriterId randomWriter(RandomSource &random)
{
    const QByteArray bytes = random.bytes(sizeof(WriterId));
    return bytes.size() == sizeof(WriterId) ? qFromBigEndian<WriterId>(bytes.constData()) : 0;
}

RuleStates presentRules(const ReplicaStorage &storage)
{
    RuleStates rules;
    const QList<RecordId> ids = storage.presentRecords(model::Rule);
    for (const RecordId &id : ids) {
        rules.insert(id.id, storage.record(id));
    }
    return rules;
}

bool touchesRules(const SyncChanges &changes)
{
    return std::any_of(changes.records.keyBegin(), changes.records.keyEnd(),
        [](const RecordId &id) { return id.entity == model::Rule; });
}

/// Whether the edit decides which rule of a place is enabled.
bool changesPlaces(const LocalEdit &edit)
{
    return edit.kind != LocalEdit::Kind::Set && edit.record.entity == model::Rule &&
           (edit.kind != LocalEdit::Kind::Change || edit.values.contains(model::rule::enabled) ||
               edit.values.contains(model::rule::device) ||
               edit.values.contains(model::rule::network));
}

/// What the edit writes at the moment of the stamp; nothing where it comes too late.
SyncChanges writtenBy(const LocalEdit &edit, const Stamp &stamp, const ReplicaStorage &storage)
{
    SyncChanges changes;
    if (edit.kind == LocalEdit::Kind::Set) {
        changes.settings.insert(edit.setting, {edit.value, stamp});
        return changes;
    }
    RecordState state;
    if (edit.kind == LocalEdit::Kind::Delete) {
        state.deleted = stamp;
    } else if (edit.kind == LocalEdit::Kind::Insert) {
        state.inserted = stamp;
    } else if (!storage.record(edit.record).isPresent()) {
        return changes;
    }
    if (edit.kind != LocalEdit::Kind::Delete) {
        for (auto it = edit.values.begin(); it != edit.values.end(); ++it) {
            if (isSynchronized(edit.record, it.key())) {
                state.attributes.insert(it.key(), {*it, stamp});
            }
        }
    }
    changes.records.insert(edit.record, state);
    return changes;
}

} // namespace

Replica::Replica(ReplicaStorage &storage, const AccountKey &key, RandomSource &random)
    : m_storage(storage)
    , m_key(key)
    , m_random(random)
{
}

bool Replica::edit(const QList<LocalEdit> &edits, qint64 now)
{
    if (m_storage.progress().writer == 0 && !becomeNewWriter()) {
        return false;
    }
    return m_storage.transaction([&] {
        ReplicaProgress progress = m_storage.progress();
        HybridClock clock(progress.writer, progress.last);
        const RuleStates before = presentRules(m_storage);
        QList<QUuid> placed;
        QSet<QUuid> switched;
        SyncChanges all;
        const auto write = [&](const LocalEdit &edit) {
            // Each write has a stamp of its own: a record that is deleted and taken back in one act
            // is there again.
            const SyncChanges written = writtenBy(edit, clock.next(now), m_storage);
            apply(written);
            join(all, written);
        };
        for (const LocalEdit &edit : edits) {
            write(edit);
            if (changesPlaces(edit)) {
                placed.append(edit.record.id);
            }
            if (edit.values.contains(model::rule::enabled)) {
                switched.insert(edit.record.id);
            }
        }
        if (!placed.isEmpty()) {
            const QList<QUuid> silenced = silencedRules(before, presentRules(m_storage), placed);
            for (const QUuid &id : silenced) {
                if (!switched.contains(id)) {
                    write({LocalEdit::Kind::Change, {model::Rule, id},
                        {{model::rule::enabled, false}}, {}, {}});
                }
            }
        }
        progress.last = clock.last();
        m_storage.setProgress(progress);
        if (!all.isEmpty()) {
            m_storage.appendPending(all);
        }
        if (touchesRules(all)) {
            showRules(shownRules(before));
        }
    });
}

void Replica::apply(const SyncChanges &changes)
{
    for (auto it = changes.records.begin(); it != changes.records.end(); ++it) {
        RecordState state = m_storage.record(it.key());
        if (join(state, *it)) {
            m_storage.setRecord(it.key(), state);
        }
    }
    for (auto it = changes.settings.begin(); it != changes.settings.end(); ++it) {
        SyncRegister value = m_storage.setting(it.key());
        if (join(value, *it)) {
            m_storage.setSetting(it.key(), value);
        }
    }
}

void Replica::showRules(const QMap<QUuid, RecordValues> &shownBefore)
{
    const QMap<QUuid, RecordValues> shown = shownRules(presentRules(m_storage));
    for (auto it = shownBefore.begin(); it != shownBefore.end(); ++it) {
        if (!shown.contains(it.key())) {
            m_storage.showRecord({model::Rule, it.key()}, std::nullopt);
        }
    }
    for (auto it = shown.begin(); it != shown.end(); ++it) {
        const auto before = shownBefore.find(it.key());
        if (before == shownBefore.end() || *before != *it) {
            m_storage.showRecord({model::Rule, it.key()}, *it);
        }
    }
}

bool Replica::hasUnsent() const
{
    return m_storage.hasPending() || !m_storage.outgoing().isEmpty();
}

bool Replica::sealPending()
{
    bool done = true;
    while (done && m_storage.hasPending()) {
        const QList<SyncChanges> pending = m_storage.pending(mostEditsInFile);
        SyncChanges changes;
        int count = 0;
        for (qsizetype size = 0; count < pending.size() && (count == 0 || size < contentOfFile);
            ++count) {
            size += sizeOf(pending[count]);
            join(changes, pending[count]);
        }
        ReplicaProgress progress = m_storage.progress();
        const QString name =
            AccountFile{AccountFile::Kind::Change, progress.writer, ++progress.lastNumber}.name();
        const QByteArray file = sealed(writtenChanges(changes), name, m_key, m_random);
        done = !file.isEmpty() && m_storage.transaction([&] {
            m_storage.addOutgoing(name, file);
            m_storage.removePending(count);
            m_storage.setProgress(progress);
        });
    }
    return done;
}

bool Replica::sent(const QString &name)
{
    const auto file = AccountFile::fromName(name);
    return m_storage.transaction([&] {
        ReplicaProgress progress = m_storage.progress();
        if (file && file->kind == AccountFile::Kind::Change) {
            progress.known.add(file->writer, file->number);
        }
        progress.isHeadDue = true;
        m_storage.setProgress(progress);
        m_storage.removeOutgoing(name);
    });
}

bool Replica::becomeNewWriter()
{
    const WriterId writer = randomWriter(m_random);
    return writer != 0 && m_storage.transaction([&] {
        ReplicaProgress progress = m_storage.progress();
        progress.writer = writer;
        progress.lastNumber = 0;
        m_storage.setProgress(progress);
        // What was made under the old numbers may stand there already, or something else may. To
        // write it once more under a new number costs nothing but room.
        const QMap<QString, QByteArray> outgoing = m_storage.outgoing();
        for (auto it = outgoing.begin(); it != outgoing.end(); ++it) {
            const auto changes = readSealed(it.key(), *it);
            if (const auto *edits = std::get_if<SyncChanges>(&changes)) {
                m_storage.appendPending(*edits);
            }
            m_storage.removeOutgoing(it.key());
        }
    });
}

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
    const bool kept = m_storage.transaction([&] {
        ReplicaProgress progress = m_storage.progress();
        progress.snapshots.insert(name, std::get<SnapshotManifest>(manifest));
        progress.ignored.remove(name);
        m_storage.setProgress(progress);
    });
    return kept ? std::nullopt : std::optional(FileProblem::NotKept);
}

bool Replica::finishSnapshot(const QString &manifest)
{
    const ReplicaProgress now = m_storage.progress();
    const VersionVector vector = now.snapshots.value(manifest).vector;
    // Somebody who knew more of our own files than we do: this computer was set back.
    if (now.writer != 0 && vector.value(now.writer) > now.lastNumber && !becomeNewWriter()) {
        return false;
    }
    return m_storage.transaction([&] {
        ReplicaProgress progress = m_storage.progress();
        progress.known.add(vector);
        m_storage.setProgress(progress);
    });
}

bool Replica::ignore(const QString &name, FileProblem problem, const QByteArray &revision)
{
    return m_storage.transaction([&] {
        ReplicaProgress progress = m_storage.progress();
        progress.ignored.insert(name, {problem, revision, syncFormatVersion});
        m_storage.setProgress(progress);
    });
}

} // namespace quillon
