// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/file/RowSelection.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <SQLiteCpp/Transaction.h>

namespace quillon {

namespace {

std::string selection(const Entity &entity)
{
    return "SELECT " + columnNames(entity) + " FROM " + quotedName(entity.name());
}

QList<RecordRow> allRows(SQLite::Statement &statement, const Entity &entity)
{
    QList<RecordRow> rows;
    while (statement.executeStep()) {
        rows << rowOf(statement, entity);
    }
    return rows;
}

} // namespace

std::string repeated(const std::string &text, qsizetype count)
{
    std::string all;
    for (qsizetype index = 0; index < count; ++index) {
        all += (index > 0 ? "," : "") + text;
    }
    return all;
}

std::string columnNames(const Entity &entity)
{
    std::string names = "pk, uuid";
    for (const Attribute &attribute : entity.attributes()) {
        names += ", " + quotedName(attribute.name);
    }
    return names;
}

SQLite::Statement prepared(SQLite::Database &database, const FetchSql &sql)
{
    SQLite::Statement statement(database, sql.text);
    int index = 1;
    for (const QVariant &value : sql.values) {
        bindValue(statement, index++, value);
    }
    return statement;
}

QList<RecordRow> rowsOfKeys(
    SQLite::Database &database, const Entity &entity, const QList<qint64> &keys)
{
    SQLite::Statement statement(
        database, selection(entity) + " WHERE pk IN (" + repeated("?", keys.size()) + ")");
    int index = 1;
    for (const qint64 key : keys) {
        statement.bind(index++, int64_t{key});
    }
    return allRows(statement, entity);
}

QList<RecordRow> rowsOfId(SQLite::Database &database, const Entity &entity, const QUuid &id)
{
    SQLite::Statement statement(database, selection(entity) + " WHERE uuid = ?");
    bindId(statement, 1, id);
    return allRows(statement, entity);
}

std::unique_ptr<SQLite::Transaction> overlaid(
    SQLite::Database &database, const Entity &entity, const QList<RowChange> &changes)
{
    const std::string table = overlayTable(entity);
    std::string columns = "pk INTEGER PRIMARY KEY, isDeleted";
    for (const Attribute &attribute : entity.attributes()) {
        columns += ", " + quotedName(attribute.name);
    }
    database.exec("CREATE TABLE IF NOT EXISTS " + table + " (" + columns + ")");
    auto transaction = std::make_unique<SQLite::Transaction>(database);
    SQLite::Statement insertion(database,
        "INSERT INTO " + table + " VALUES (" + repeated("?", 2 + entity.attributes().size()) + ")");
    for (const RowChange &change : changes) {
        insertion.bind(1, int64_t{change.row.key});
        insertion.bind(2, change.kind == RowChange::Kind::Delete ? 1 : 0);
        int index = 3;
        for (const QVariant &value : change.row.values) {
            bindValue(insertion, index++, value);
        }
        insertion.exec();
        insertion.reset();
    }
    return transaction;
}

} // namespace quillon
