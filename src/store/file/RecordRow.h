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

/// Keys from here on stand for records that never were in the file; saving gives them others.
constexpr qint64 firstUnsavedKey = qint64{1} << 62;

/// One record as the file holds it.
struct RecordRow
{
    qint64 key = firstUnsavedKey; ///< its place in the order of creation
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

/// A value as Entity::converted() gives it, or a number or Boolean; `index` counts from 1.
void bindValue(SQLite::Statement &statement, int index, const QVariant &value);
void bindId(SQLite::Statement &statement, int index, const QUuid &id);
/// Of a statement that selects `pk`, `uuid` and the entity's attributes.
RecordRow rowOf(SQLite::Statement &statement, const Entity &entity);

} // namespace quillon
