// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/file/FetchSql.h"

#include "store/model/Entity.h"
#include "store/model/RecordFileError.h"

#include <QDateTime>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

Error unknownAttribute(const Entity &entity, const QString &attribute)
{
    return recordFileError(RecordFileError::UnknownName,
        u"The entity \"%1\" has no attribute \"%2\"."_s.arg(entity.name(), attribute));
}

/// Whether an attribute of that type can equal `value` at all. Booleans are stored as numbers.
bool isComparable(AttributeType type, const QVariant &value)
{
    switch (type) {
    case AttributeType::Integer16:
    case AttributeType::Boolean:
        return value.typeId() == QMetaType::Bool || isNumber(value);
    case AttributeType::String:
        return value.typeId() == QMetaType::QString;
    case AttributeType::Date:
        return value.typeId() == QMetaType::QDateTime && value.toDateTime().isValid();
    }
    return false;
}

Result<std::string> comparison(
    const Entity &entity, const Predicate &predicate, QVariantList &values)
{
    const qsizetype index = entity.indexOf(predicate.attribute());
    if (index < 0) {
        return unknownAttribute(entity, predicate.attribute());
    }
    const AttributeType type = entity.attributes()[index].type;
    const bool isEqual = predicate.kind() == Predicate::Kind::Equal;
    if (!isComparable(type, predicate.value()) || (!isEqual && type != AttributeType::String)) {
        return std::string("0");
    }
    values << predicate.value();
    const std::string column = quotedName(predicate.attribute());
    const std::string parameter = "?" + std::to_string(values.size());
    if (isEqual) {
        return column + " = " + parameter;
    }
    if (predicate.kind() == Predicate::Kind::Contains) {
        return "instr(" + column + ", " + parameter + ") > 0";
    }
    values.last() = foldedText(wellFormedText(predicate.value().toString()));
    return "instr(" + std::string(foldedFunction) + "(" + column + "), " + parameter + ") = 1";
}

/// Adds its values to `values`, by whose places its parameters are numbered.
Result<std::string> condition(
    const Entity &entity, const Predicate &predicate, QVariantList &values)
{
    const bool isAnd = predicate.kind() == Predicate::Kind::And;
    if (!isAnd && predicate.kind() != Predicate::Kind::Or) {
        return comparison(entity, predicate, values);
    }
    std::string whole = isAnd ? "(1" : "(0";
    for (const Predicate &part : predicate.parts()) {
        const auto text = condition(entity, part, values);
        if (!text) {
            return text.error();
        }
        whole += (isAnd ? " AND " : " OR ") + text.value();
    }
    return whole + ')';
}

} // namespace

Result<FetchSql> fetchSql(const Entity &entity, const FetchRequest &request, bool withChanges)
{
    FetchSql sql;
    const auto matches =
        condition(entity, request.predicate.value_or(Predicate::all({})), sql.values);
    if (!matches) {
        return matches.error();
    }
    std::string columns = "pk";
    std::string order;
    for (const SortDescriptor &by : request.order) {
        if (entity.indexOf(by.attribute) < 0) {
            return unknownAttribute(entity, by.attribute);
        }
        columns += ", " + quotedName(by.attribute);
        order += quotedName(by.attribute) + (by.ignoresCase ? " COLLATE NOCASE" : "") +
                 (by.ascending ? ", " : " DESC, ");
    }
    const auto select = [&](const std::string &table) {
        return "SELECT " + columns + " FROM " + table + " WHERE " + matches.value();
    };
    sql.text = select("main." + quotedName(entity.name()));
    if (withChanges) {
        const std::string overlay = overlayTable(entity);
        sql.text += " AND pk NOT IN (SELECT pk FROM " + overlay + ") UNION ALL " + select(overlay) +
                    " AND NOT isDeleted";
    }
    sql.text += " ORDER BY " + order + (request.latestFirst ? "pk DESC" : "pk");
    return sql;
}

std::string quotedName(const QString &name)
{
    return '"' + QString(name).replace(u'"', u"\"\""_s).toStdString() + '"';
}

std::string overlayTable(const Entity &entity)
{
    return "temp." + quotedName(u"unsaved "_s + entity.name());
}

} // namespace quillon
