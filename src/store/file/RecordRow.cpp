// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/file/RecordRow.h"

#include <QDateTime>

#include <SQLiteCpp/Column.h>
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

namespace quillon {

void bindValue(SQLite::Statement &statement, int index, const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        statement.bind(index);
        break;
    case QMetaType::QString:
        statement.bind(index, value.toString().toStdString());
        break;
    case QMetaType::QDateTime:
        statement.bind(index, int64_t{value.toDateTime().toMSecsSinceEpoch()});
        break;
    default:
        statement.bind(index, int64_t{value.toLongLong()});
    }
}

void bindId(SQLite::Statement &statement, int index, const QUuid &id)
{
    const QByteArray bytes = id.toRfc4122();
    statement.bind(index, bytes.constData(), static_cast<int>(bytes.size()));
}

namespace {

QVariant valueOf(const SQLite::Column &column, AttributeType type)
{
    const bool isText = type == AttributeType::String;
    if (column.getType() != (isText ? SQLite::TEXT : SQLite::INTEGER)) {
        return {};
    }
    switch (type) {
    case AttributeType::Integer16:
        return QVariant(qlonglong{column.getInt64()});
    case AttributeType::Boolean:
        return column.getInt64() != 0;
    case AttributeType::String:
        return QString::fromUtf8(column.getText(), column.getBytes());
    case AttributeType::Date:
        return QDateTime::fromMSecsSinceEpoch(column.getInt64(), Qt::UTC);
    }
    return {};
}

} // namespace

RecordRow rowOf(SQLite::Statement &statement, const Entity &entity)
{
    const SQLite::Column id = statement.getColumn(1);
    RecordRow row{statement.getColumn(0).getInt64(),
        QUuid::fromRfc4122(QByteArrayView(static_cast<const char *>(id.getBlob()), id.getBytes())),
        {}};
    int column = 2;
    for (const Attribute &attribute : entity.attributes()) {
        row.values << valueOf(statement.getColumn(column++), attribute.type);
    }
    return row;
}

} // namespace quillon
