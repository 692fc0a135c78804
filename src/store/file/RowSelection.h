// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/file/FetchSql.h"
#include "store/file/RecordRow.h"

#include <memory>
#include <string>

namespace SQLite {
class Database;
class Statement;
class Transaction;
} // namespace SQLite

namespace quillon {

// How rows are asked for, on whichever connection. All of these throw SQLite::Exception as
// SQLiteCpp does.

/// `text` once for each of `count`, with commas between.
std::string repeated(const std::string &text, qsizetype count);
/// `pk`, `uuid` and the entity's attributes.
std::string columnNames(const Entity &entity);

/// With its values bound.
SQLite::Statement prepared(SQLite::Database &database, const FetchSql &sql);
/// In no certain order; a key that the file does not have is left out.
QList<RecordRow> rowsOfKeys(
    SQLite::Database &database, const Entity &entity, const QList<qint64> &keys);
/// None or one.
QList<RecordRow> rowsOfId(SQLite::Database &database, const Entity &entity, const QUuid &id);

/// Fills overlayTable() for as long as the transaction lives: it is never committed, and the table
/// is empty before and after it. Nothing of the file is written or locked.
std::unique_ptr<SQLite::Transaction> overlaid(
    SQLite::Database &database, const Entity &entity, const QList<RowChange> &changes);

} // namespace quillon
