// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Result.h"
#include "store/model/FetchRequest.h"

#include <QVariantList>

#include <string>

namespace quillon {

class Entity;

/// A condition in SQL; `values` belong to its question marks, in order.
struct SqlCondition
{
    std::string text;
    QVariantList values;
};

/// The SQL function that BeginsWith needs: foldedText() of its one text.
inline constexpr auto foldedFunction = "folded";

/// `name` as an SQL identifier.
std::string quotedName(const QString &name);
/// Names come from the entity and values are bound, so no text of a user becomes SQL. Error: an
/// attribute that the entity does not have (RecordFileError::UnknownName).
Result<SqlCondition> sqlCondition(const Entity &entity, const Predicate &predicate);
/// What follows ORDER BY; equal records in the order of their creation.
Result<std::string> sqlOrder(const Entity &entity, const QList<SortDescriptor> &order);

} // namespace quillon
