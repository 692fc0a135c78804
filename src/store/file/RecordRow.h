// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "store/model/Entity.h"

#include <QUuid>
#include <QVariantList>

namespace SQLite {
class Statement;
} // namespace SQLite

namespace quillon {

/// One record as the file holds it.
struct RecordRow
{
    qint64 key = 0; ///< its place in the order of creation; 0 until it was in the file
    QUuid id;
    QVariantList values; ///< in the order of the entity's attributes
};

/// What a save does to one row.
struct RowChange
{
    enum class Kind
    {
        Insert,
        Update, ///< `columns` alone; the whole row when it is not in the file any more
        Delete,
    };

    Kind kind = Kind::Insert;
    Entity entity;
    RecordRow row;
    QList<qsizetype> columns;
};

// Values cross into SQLite and back here and nowhere else; SQLite::Exception as SQLiteCpp throws
// it.

/// `index` counts from 1.
void bindValue(SQLite::Statement &statement, int index, const QVariant &value);
void bindId(SQLite::Statement &statement, int index, const QUuid &id);
/// Of a statement that selects `pk`, `uuid` and the entity's attributes.
RecordRow rowOf(SQLite::Statement &statement, const Entity &entity);

} // namespace quillon
