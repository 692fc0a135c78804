// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/RecordMirrorRows.h"

#include "base/Log.h"
#include "store/file/FetchSql.h"
#include "store/file/RowSelection.h"
#include "store/model/QuillonModel.h"
#include "sync/SynchronizedAttribute.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

namespace quillon {

namespace {

/// What a record that comes from elsewhere holds in an attribute that is never sent.
QVariant firstValue(const Attribute &attribute)
{
    return attribute.type == AttributeType::Boolean ? QVariant(false) : QVariant();
}

QVariant shownValue(const Entity &entity, qsizetype index, const SyncValue &value)
{
    const auto plain = fromSyncValue(value);
    const auto converted = plain ? entity.converted(index, *plain) : std::nullopt;
    return converted.value_or(QVariant());
}

} // namespace

RecordMirrorRows::RecordMirrorRows(SQLite::Database &database)
    : m_database(database)
    , m_writer(database)
{
}

std::optional<RecordRow> RecordMirrorRows::row(const Entity &entity, const QUuid &id)
{
    const QList<RecordRow> rows = rowsOfId(m_database, entity, id);
    return rows.isEmpty() ? std::nullopt : std::optional(rows.first());
}

bool RecordMirrorRows::show(const RecordId &id, const std::optional<RecordValues> &values)
{
    const Entity *const entity = quillonModel().entity(id.entity);
    if (!entity) {
        return false;
    }
    const auto before = row(*entity, id.id);
    if (!values) {
        if (before) {
            m_writer.write({RowChange::Kind::Delete, *entity, *before, {}});
        }
        return before.has_value();
    }
    RowChange change{before ? RowChange::Kind::Update : RowChange::Kind::Insert, *entity,
        before.value_or(RecordRow{firstUnsavedKey, id.id, {}}), {}};
    change.row.values.resize(entity->attributes().size());
    for (qsizetype index = 0; index < entity->attributes().size(); ++index) {
        const Attribute &attribute = entity->attributes()[index];
        QVariant &value = change.row.values[index];
        if (!isSynchronized(id.entity, attribute.name)) {
            value = before ? value : firstValue(attribute);
            continue;
        }
        const QVariant shown = shownValue(*entity, index, values->value(attribute.name));
        if (value != shown) {
            change.columns << index;
            value = shown;
        }
    }
    if (before && change.columns.isEmpty()) {
        return false;
    }
    m_writer.write(change);
    return true;
}

std::optional<RecordValues> RecordMirrorRows::values(const RecordId &id)
{
    const Entity *const entity = quillonModel().entity(id.entity);
    const auto found = entity ? row(*entity, id.id) : std::nullopt;
    return found ? std::optional(values(*entity, *found)) : std::nullopt;
}

RecordValues RecordMirrorRows::values(const Entity &entity, const RecordRow &row)
{
    RecordValues values;
    for (qsizetype index = 0; index < entity.attributes().size(); ++index) {
        const QString &name = entity.attributes()[index].name;
        if (!isSynchronized(entity.name(), name)) {
            continue;
        }
        const auto value = syncValue(row.values[index]);
        if (!value) {
            qCWarning(logRecords, "What %s.%s holds is too long to be sent",
                qUtf8Printable(entity.name()), qUtf8Printable(name));
        } else if (*value != SyncValue()) {
            values.insert(name, *value);
        }
    }
    return values;
}

RecordValues RecordMirrorRows::shown(const Entity &entity, const RecordValues &values)
{
    RecordRow row;
    for (qsizetype index = 0; index < entity.attributes().size(); ++index) {
        row.values << shownValue(entity, index, values.value(entity.attributes()[index].name));
    }
    return RecordMirrorRows::values(entity, row);
}

QList<RecordRow> RecordMirrorRows::rowsAfter(const Entity &entity, qint64 key, int count)
{
    SQLite::Statement statement(m_database, "SELECT " + columnNames(entity) + " FROM " +
                                                quotedName(entity.name()) +
                                                " WHERE pk > ? ORDER BY pk LIMIT ?");
    statement.bind(1, int64_t{key});
    statement.bind(2, count);
    QList<RecordRow> rows;
    while (statement.executeStep()) {
        rows << rowOf(statement, entity);
    }
    return rows;
}

} // namespace quillon
