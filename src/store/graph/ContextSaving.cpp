// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The part of ManagedObjectContext that writes changes to the file and merges those of others.
#include "base/Log.h"
#include "store/file/RecordFile.h"
#include "store/graph/ManagedObjectContext.h"

#include <QPointer>

#include <algorithm>

namespace quillon {

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
    const auto keys = m_file->write(changes);
    if (!keys) {
        return keys.error();
    }
    for (qsizetype index = 0; index < objects.size(); ++index) {
        ManagedObject &object = *objects[index];
        object.m_key = keys.value()[index];
        object.m_isInFile = !object.m_isDeleted;
        object.m_stored = object.m_values;
    }
    m_unsaved.clear();
    const auto version = m_file->versionOfOthers();
    if (!version || version.value() != m_mergedVersion) {
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
    ManagedObjectList inFile;
    for (ManagedObject *const object : std::as_const(m_registered)) {
        if (object->m_isInFile) {
            inFile << object->shared_from_this();
        }
    }
    for (const ManagedObjectPtr &object : std::as_const(inFile)) {
        const auto rows = m_file->row(object->m_entity, object->m_id);
        if (!rows) {
            qCWarning(logRecords, "Changes of other programs cannot be read: %s",
                qUtf8Printable(rows.error().message));
            return;
        }
        merge(object, rows.value().isEmpty() ? nullptr : &rows.value().first());
    }
    if (version) {
        m_mergedVersion = version.value();
    }
    Q_EMIT recordsMerged();
}

std::shared_ptr<SQLite::Database> ManagedObjectContext::database() const
{
    return m_file->database();
}

void ManagedObjectContext::merge(const ManagedObjectPtr &object, const RecordRow *row)
{
    if (row) {
        object->m_key = row->key;
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
