// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/file/SqlPredicate.h"

#include "store/file/RecordFile.h"
#include "store/model/Entity.h"
#include "store/model/ValueComparison.h"

namespace quillon {

namespace {

Error unknownAttribute(const Entity &entity, const QString &attribute)
{
    return recordFileError(RecordFileError::UnknownName,
        QStringLiteral("The entity \"%1\" has no attribute \"%2\".").arg(entity.name(), attribute));
}

/// The type of comparableValue() of such an attribute's values.
int comparableType(AttributeType type)
{
    switch (type) {
    case AttributeType::Integer16:
    case AttributeType::Boolean:
        return QMetaType::LongLong;
    case AttributeType::String:
        return QMetaType::QString;
    case AttributeType::Date:
        return QMetaType::QDateTime;
    }
    return QMetaType::UnknownType;
}

Result<SqlCondition> comparison(const Entity &entity, const Predicate &predicate)
{
    const qsizetype index = entity.indexOf(predicate.attribute());
    if (index < 0) {
        return unknownAttribute(entity, predicate.attribute());
    }
    const int type = comparableType(entity.attributes()[index].type);
    QVariant value = comparableValue(predicate.value());
    const std::string column = quotedName(predicate.attribute());
    std::string text;
    switch (predicate.kind()) {
    case Predicate::Kind::Equal:
        text = column + " = ?";
        break;
    case Predicate::Kind::Contains:
        text = "instr(" + column + ", ?) > 0";
        break;
    case Predicate::Kind::BeginsWith:
        text = "instr(" + std::string(foldedFunction) + "(" + column + "), ?) = 1";
        value = foldedText(value.toString());
        break;
    case Predicate::Kind::And:
    case Predicate::Kind::Or:
        break;
    }
    const bool wantsText = predicate.kind() != Predicate::Kind::Equal;
    if (value.typeId() != type || (wantsText && type != QMetaType::QString)) {
        return SqlCondition{"0", {}};
    }
    return SqlCondition{text, {value}};
}

} // namespace

std::string quotedName(const QString &name)
{
    return '"' + QString(name).replace(QLatin1Char('"'), QStringLiteral("\"\"")).toStdString() +
           '"';
}

Result<SqlCondition> sqlCondition(const Entity &entity, const Predicate &predicate)
{
    const bool isAnd = predicate.kind() == Predicate::Kind::And;
    if (!isAnd && predicate.kind() != Predicate::Kind::Or) {
        return comparison(entity, predicate);
    }
    SqlCondition whole{isAnd ? "(1" : "(0", {}};
    for (const Predicate &part : predicate.parts()) {
        const auto condition = sqlCondition(entity, part);
        if (!condition) {
            return condition.error();
        }
        whole.text += (isAnd ? " AND " : " OR ") + condition.value().text;
        whole.values += condition.value().values;
    }
    whole.text += ')';
    return whole;
}

Result<std::string> sqlOrder(const Entity &entity, const QList<SortDescriptor> &order)
{
    std::string text;
    for (const SortDescriptor &by : order) {
        if (entity.indexOf(by.attribute) < 0) {
            return unknownAttribute(entity, by.attribute);
        }
        text += quotedName(by.attribute) + (by.ascending ? ", " : " DESC, ");
    }
    return text + "pk";
}

} // namespace quillon
