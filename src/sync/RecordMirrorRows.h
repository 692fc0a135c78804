// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/file/RowWriter.h"
#include "store/model/Entity.h"
#include "sync/RecordState.h"

#include <QHash>

#include <optional>

namespace quillon {

/// The records as the program shows them: their rows, read and written in the words of the sync.
/// Throws SQLite::Exception.
class RecordMirrorRows
{
public:
    explicit RecordMirrorRows(SQLite::Database &database);

    /// Whether the row was another one, or none, before. A value that the attribute cannot hold,
    /// and an attribute that the model does not have, show as nothing.
    bool show(const RecordId &id, const std::optional<RecordValues> &values);
    /// What the row has of the attributes that are synchronized; none when there is no row.
    std::optional<RecordValues> values(const RecordId &id);
    /// The same of a row that was read already.
    static RecordValues values(const Entity &entity, const RecordRow &row);
    /// What a row that shows `values` is read as.
    static RecordValues shown(const Entity &entity, const RecordValues &values);
    /// The next `count` rows behind that key, in the order of their creation.
    QList<RecordRow> rowsAfter(const Entity &entity, qint64 key, int count);

private:
    std::optional<RecordRow> row(const Entity &entity, const QUuid &id);

    SQLite::Database &m_database;
    RowWriter m_writer;
};

} // namespace quillon
