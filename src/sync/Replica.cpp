// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/Replica.h"

#include "platform/RandomSource.h"
#include "store/model/QuillonModel.h"
#include "sync/AccountFile.h"
#include "sync/ChangesFormat.h"
#include "sync/HybridClock.h"
#include "sync/ReplicaRules.h"
#include "sync/ReplicaStorage.h"
#include "sync/SealedFile.h"
#include "sync/SynchronizedAttribute.h"

#include <QSet>
#include <QtEndian>

#include <algorithm>

namespace quillon {

namespace {

/// Edits that share a file at most; a file of more would only take longer to start with.
constexpr int mostEditsInFile = 2048;
constexpr int fewEdits = 32;
/// About how many bytes of values share a file, before they are packed.
constexpr qsizetype contentOfFile = qsizetype{1} << 20;

/// The changes in pieces of about that size, so that no act is too large for a file.
QList<SyncChanges> inPieces(const SyncChanges &changes)
{
    QList<SyncChanges> pieces(1);
    qsizetype size = 0;
    const auto room = [&](qsizetype more) -> SyncChanges & {
        if (size > 0 && size + more > contentOfFile) {
            pieces.append(SyncChanges());
            size = 0;
        }
        size += more;
        return pieces.last();
    };
    for (auto it = changes.records.begin(); it != changes.records.end(); ++it) {
        room(approximateSize(*it)).records.insert(it.key(), *it);
    }
    for (auto it = changes.settings.begin(); it != changes.settings.end(); ++it) {
        room(approximateSize(*it)).settings.insert(it.key(), *it);
    }
    return pieces;
}

WriterId randomWriter(RandomSource &random)
{
    const QByteArray bytes = random.bytes(sizeof(WriterId));
    return bytes.size() == sizeof(WriterId) ? qFromBigEndian<WriterId>(bytes.constData()) : 0;
}

bool isOfRule(const LocalEdit &edit)
{
    return edit.kind != LocalEdit::Kind::Set && edit.record.entity == model::Rule;
}

/// Whether the edit decides which rule of a place is enabled.
bool changesPlaces(const LocalEdit &edit)
{
    return isOfRule(edit) &&
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
            if (isSynchronized(edit.record.entity, it.key())) {
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
        const bool ofRules = std::ranges::any_of(edits, isOfRule);
        const RuleStates before = ofRules ? presentRules(m_storage) : RuleStates();
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
            const QList<SyncChanges> pieces = inPieces(all);
            for (const SyncChanges &piece : pieces) {
                m_storage.appendPending(piece);
            }
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

SyncChanges Replica::nextPending(int &count) const
{
    SyncChanges changes;
    qsizetype size = 0;
    count = 0;
    // A few first: each may be as large as a file.
    for (int asked = fewEdits; size < contentOfFile && asked <= mostEditsInFile; asked *= 4) {
        const QList<SyncChanges> pending = m_storage.pending(asked);
        for (; count < pending.size() && (count == 0 || size < contentOfFile); ++count) {
            size += approximateSize(pending[count]);
            join(changes, pending[count]);
        }
        if (pending.size() < asked) {
            break;
        }
    }
    return changes;
}

bool Replica::sealNext()
{
    int count = 0;
    const SyncChanges changes = nextPending(count);
    ReplicaProgress progress = m_storage.progress();
    const QString name =
        AccountFile{AccountFile::Kind::Change, progress.writer, ++progress.lastNumber}.name();
    const QByteArray file = sealed(writtenChanges(changes), name, m_key, m_random);
    return !file.isEmpty() && m_storage.transaction([&] {
        m_storage.addOutgoing(name, file);
        m_storage.removePending(count);
        m_storage.setProgress(progress);
    });
}

bool Replica::sealPending()
{
    bool done = true;
    while (done && m_storage.hasPending()) {
        done = sealNext();
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
            if (file->writer == progress.writer) {
                progress.sentSizes[file->number] = m_storage.outgoing().value(name).size();
            }
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
        progress.sentSizes.clear();
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

} // namespace quillon
