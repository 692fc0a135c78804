// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The part of ManagedObjectContext that exchanges changes with the file.
#include "base/Log.h"
#include "store/file/RecordFile.h"
#include "store/graph/ManagedObjectContext.h"

#include <QPointer>

#include <algorithm>

namespace quillon {

namespace {

constexpr qsizetype rowsAtOnce = 100;

} // namespace

RowChange ManagedObjectContext::changeOf(const ManagedObject &object)
{
    using enum RowChange::Kind;
    RowChange change{object.m_isDeleted ? Delete : (object.m_isInFile ? Update : Insert),
        object.m_entity, {object.m_key, object.m_id, object.m_values}, {}};
    for (qsizetype index = 0; change.kind == Update && index < object.m_values.size(); ++index) {
        if (object.m_values[index] != object.m_stored[index]) {
            change.columns << index;
        }
    }
    return change;
}

std::optional<Error> ManagedObjectContext::save()
{
    const QPointer self(this);
    processPendingChanges();
    if (!self) {
        return std::nullopt;
    }
    if (m_unsaved.isEmpty()) {
        return std::nullopt;
    }
    ManagedObjectList objects = m_unsaved.values();
    std::ranges::sort(objects, {}, [](const ManagedObjectPtr &object) { return object->m_key; });
    QList<RowChange> changes;
    for (const ManagedObjectPtr &object : std::as_const(objects)) {
        changes << changeOf(*object);
    }
    const auto written = m_file->write(changes);
    if (!written) {
        return written.error();
    }
    for (qsizetype index = 0; index < objects.size(); ++index) {
        ManagedObject &object = *objects[index];
        object.m_key = written.value().keys[index];
        object.m_isInFile = !object.m_isDeleted;
        object.m_stored = object.m_values;
    }
    m_unsaved.clear();
    if (written.value().othersWrote) {
        mergeChangesFromStore();
    }
    if (self) {
        Q_EMIT saved();
    }
    return std::nullopt;
}

void ManagedObjectContext::mergeChangesFromStore()
{
    // What comes while we read is for the next time.
    const auto version = m_file->versionOfOthers();
    QHash<QString, ManagedObjectList> known;
    for (ManagedObject *const object : std::as_const(m_registered)) {
        if (object->m_isInFile) {
            known[object->m_entity.name()] << object->shared_from_this();
        }
    }
    for (const ManagedObjectList &objects : std::as_const(known)) {
        for (qsizetype first = 0; first < objects.size(); first += rowsAtOnce) {
            const ManagedObjectList some = objects.mid(first, rowsAtOnce);
            QList<qint64> keys;
            for (const ManagedObjectPtr &object : some) {
                keys << object->m_key;
            }
            const auto rows = m_file->rows(some.first()->m_entity, keys);
            if (!rows) {
                qCWarning(logRecords, "Changes of other programs cannot be read: %s",
                    qUtf8Printable(rows.error().message));
                return;
            }
            QHash<QUuid, const RecordRow *> byId;
            for (const RecordRow &row : rows.value()) {
                byId.insert(row.id, &row);
            }
            for (const ManagedObjectPtr &object : some) {
                takeOver(object, byId.value(object->m_id));
            }
        }
    }
    if (version) {
        m_file->acknowledgeOthers(version.value());
    }
    Q_EMIT recordsMerged();
}

void ManagedObjectContext::takeOver(const ManagedObjectPtr &object, const RecordRow *row)
{
    if (row) {
        for (qsizetype index = 0; index < row->values.size(); ++index) {
            if (object->m_values[index] == object->m_stored[index]) {
                object->m_values[index] = row->values[index];
            }
        }
        object->m_stored = row->values;
    } else {
        // Deleted by somebody else: gone here too, unless it was changed here, which brings it
        // back.
        object->m_isDeleted = object->m_isDeleted || !object->hasChanges();
        object->m_isInFile = false;
    }
    noteUnsaved(object);
}

} // namespace quillon
