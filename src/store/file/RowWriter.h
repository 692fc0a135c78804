// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/file/RecordRow.h"

#include <map>
#include <string>
#include <tuple>

namespace SQLite {
class Database;
class Statement;
} // namespace SQLite

namespace quillon {

/// Writes rows, each statement prepared once. SQLite::Exception as SQLiteCpp throws it.
class RowWriter
{
public:
    explicit RowWriter(SQLite::Database &database);
    ~RowWriter();

    /// Gives the key of the row.
    qint64 write(const RowChange &change);

private:
    SQLite::Statement &statement(const RowChange &change, RowChange::Kind kind);
    qint64 insert(const RowChange &change);
    bool update(const RowChange &change);
    void remove(const RowChange &change);

    using Key = std::tuple<RowChange::Kind, QString, QList<qsizetype>>;

    SQLite::Database &m_database;
    std::map<Key, SQLite::Statement> m_statements;
};

} // namespace quillon
