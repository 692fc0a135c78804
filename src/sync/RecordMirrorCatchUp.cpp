// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/RecordMirrorCatchUp.h"

#include "store/file/RecordRow.h"
#include "store/model/QuillonModel.h"
#include "sync/RecordMirrorStorage.h"
#include "sync/RuleProjection.h"

#include <algorithm>
#include <optional>

namespace quillon {

namespace {

/// As many as take a fraction of the time that somebody notices.
constexpr int recordsOfStep = 250;
// What one rule is shown as depends on the others: none may be shown before all were looked at.
constexpr int rulesOfStep = 1'000'000;

QMap<QUuid, RecordValues> rulesShown(const ReplicaStorage &storage)
{
    RuleStates rules;
    const QList<RecordId> ids = storage.presentRecords(model::Rule);
    for (const RecordId &id : ids) {
        rules.insert(id.id, storage.record(id));
    }
    return shownRules(rules);
}

/// What makes `before` what `now` is.
RecordValues difference(const RecordValues &before, const RecordValues &now)
{
    RecordValues changed;
    for (auto it = now.begin(); it != now.end(); ++it) {
        if (before.value(it.key()) != *it) {
            changed.insert(it.key(), *it);
        }
    }
    for (auto it = before.begin(); it != before.end(); ++it) {
        if (!now.contains(it.key())) {
            changed.insert(it.key(), SyncValue());
        }
    }
    return changed;
}

RecordState insertedAt(const Stamp &stamp, const RecordValues &values)
{
    RecordState state;
    state.inserted = stamp;
    for (auto it = values.begin(); it != values.end(); ++it) {
        state.attributes.insert(it.key(), {*it, stamp});
    }
    return state;
}

} // namespace

bool RecordMirrorCatchUp::step(Replica &replica, qint64 now)
{
    switch (m_phase) {
    case Phase::Rows:
        return stepOverRows(replica, now);
    case Phase::States:
        return stepOverStates(replica, now);
    case Phase::Done:
        break;
    }
    return true;
}

bool RecordMirrorCatchUp::stepOverRows(Replica &replica, qint64 now)
{
    const Entity &entity = quillonModel().entities[m_entity];
    const bool areRules = entity.name() == model::Rule;
    const int most = areRules ? rulesOfStep : recordsOfStep;
    const auto rows = m_storage.file().attempt<QList<RecordRow>>(
        [&] { return m_storage.rows().rowsAfter(entity, m_key, most); });
    const auto rules = areRules ? rulesShown(m_storage) : QMap<QUuid, RecordValues>();
    // Without edits it makes this computer a writer, where it is none yet.
    if (!replica.edit({}, now)) {
        return false;
    }
    const Stamp oldest{1, 0, m_storage.progress().writer};
    QList<LocalEdit> edits;
    SyncChanges told;
    for (const RecordRow &row : rows) {
        const RecordId id{entity.name(), row.id};
        const RecordValues values = RecordMirrorRows::values(entity, row);
        const RecordState state = m_storage.record(id);
        if (state == RecordState()) {
            told.records.insert(id, insertedAt(oldest, values));
            m_storage.setRecord(id, told.records[id]);
        } else if (!state.isPresent()) {
            edits.append({LocalEdit::Kind::Insert, id, values, {}, {}});
        } else {
            const RecordValues shown =
                RecordMirrorRows::shown(entity, rules.value(row.id, state.values()));
            if (const RecordValues changed = difference(shown, values); !changed.isEmpty()) {
                edits.append({LocalEdit::Kind::Change, id, changed, {}, {}});
            }
        }
        m_key = row.key;
    }
    if (!told.isEmpty()) {
        ReplicaProgress progress = m_storage.progress();
        progress.last = std::max(progress.last, oldest);
        m_storage.setProgress(progress);
        m_storage.appendPending(told);
    }
    if (rows.size() < most) {
        m_key = 0;
        ++m_entity;
        m_phase = m_entity < quillonModel().entities.size() ? Phase::Rows : Phase::States;
    }
    return edits.isEmpty() || replica.edit(edits, now);
}

bool RecordMirrorCatchUp::stepOverStates(Replica &replica, qint64 now)
{
    const QList<RecordId> ids = m_storage.recordsAfter(m_state, recordsOfStep);
    QList<LocalEdit> edits;
    for (const RecordId &id : ids) {
        const bool isKnown = quillonModel().entity(id.entity) != nullptr;
        if (isKnown && m_storage.record(id).isPresent() && !m_storage.rows().values(id)) {
            edits.append({LocalEdit::Kind::Delete, id, {}, {}, {}});
        }
        m_state = id;
    }
    if (!edits.isEmpty() && !replica.edit(edits, now)) {
        return false;
    }
    if (ids.size() < recordsOfStep) {
        m_phase = Phase::Done;
        showRules();
    }
    return true;
}

void RecordMirrorCatchUp::showRules()
{
    const auto rules = rulesShown(m_storage);
    for (auto it = rules.begin(); it != rules.end(); ++it) {
        m_storage.showRecord({model::Rule, it.key()}, *it);
    }
}

} // namespace quillon
