// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/file/RowWriter.h"

#include "store/file/FetchSql.h"
#include "store/file/RowSelection.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

namespace quillon {

namespace {

std::string text(const RowChange &change, RowChange::Kind kind)
{
    const Entity &entity = change.entity;
    const std::string table = quotedName(entity.name());
    std::string set;
    switch (kind) {
    case RowChange::Kind::Insert:
        for (const Attribute &attribute : entity.attributes()) {
            const std::string name = quotedName(attribute.name);
            set += (set.empty() ? "" : ", ") + name + " = excluded." + name;
        }
        // A record that another program has brought back already keeps its row.
        return "INSERT INTO " + table + " (" + columnNames(entity) + ") VALUES (" +
               repeated("?", 2 + entity.attributes().size()) +
               ") ON CONFLICT (uuid) DO UPDATE SET " + set + " RETURNING pk";
    case RowChange::Kind::Update:
        for (const qsizetype column : change.columns) {
            set +=
                (set.empty() ? "" : ", ") + quotedName(entity.attributes()[column].name) + " = ?";
        }
        return "UPDATE " + table + " SET " + set + " WHERE uuid = ?";
    case RowChange::Kind::Delete:
        return "DELETE FROM " + table + " WHERE uuid = ?";
    }
    return {};
}

} // namespace

RowWriter::RowWriter(SQLite::Database &database)
    : m_database(database)
{
}

RowWriter::~RowWriter() = default;

qint64 RowWriter::write(const RowChange &change)
{
    switch (change.kind) {
    case RowChange::Kind::Insert:
        return insert(change);
    case RowChange::Kind::Update:
        return update(change) ? change.row.key : insert(change);
    case RowChange::Kind::Delete:
        remove(change);
        return change.row.key;
    }
    return 0;
}

/// Making the text costs more than running it, so that is done once too.
SQLite::Statement &RowWriter::statement(const RowChange &change, RowChange::Kind kind)
{
    const Key key(kind, change.entity.name(), change.columns);
    auto found = m_statements.find(key);
    if (found == m_statements.end()) {
        found = m_statements.try_emplace(key, m_database, text(change, kind)).first;
    }
    found->second.reset();
    return found->second;
}

qint64 RowWriter::insert(const RowChange &change)
{
    auto &sql = statement(change, RowChange::Kind::Insert);
    if (change.row.key < firstUnsavedKey) {
        sql.bind(1, int64_t{change.row.key});
    } else {
        sql.bind(1);
    }
    bindId(sql, 2, change.row.id);
    int index = 3;
    for (const QVariant &value : change.row.values) {
        bindValue(sql, index++, value);
    }
    sql.executeStep();
    const qint64 key = sql.getColumn(0).getInt64();
    sql.executeStep();
    return key;
}

bool RowWriter::update(const RowChange &change)
{
    auto &sql = statement(change, RowChange::Kind::Update);
    int index = 1;
    for (const qsizetype column : change.columns) {
        bindValue(sql, index++, change.row.values[column]);
    }
    bindId(sql, index, change.row.id);
    return sql.exec() > 0;
}

void RowWriter::remove(const RowChange &change)
{
    auto &sql = statement(change, RowChange::Kind::Delete);
    bindId(sql, 1, change.row.id);
    sql.exec();
}

} // namespace quillon
