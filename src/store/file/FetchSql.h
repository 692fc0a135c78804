// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Result.h"
#include "store/model/FetchRequest.h"

#include <QVariantList>

#include <string>

namespace quillon {

class Entity;

/// A fetch in SQL: a SELECT whose first column is `pk`.
struct FetchSql
{
    std::string text;
    QVariantList values; ///< of its parameters, in order
};

/// Names come from the entity and values are bound, so no text of a user becomes SQL. With changes,
/// the rows of overlayTable() stand over those of the file. Error: an attribute that the entity
/// does not have (RecordFileError::UnknownName).
Result<FetchSql> fetchSql(const Entity &entity, const FetchRequest &request, bool withChanges);

/// `name` as an SQL identifier.
std::string quotedName(const QString &name);
/// The temporary table of rows that are not written yet: `pk`, `isDeleted` and the attributes.
std::string overlayTable(const Entity &entity);
/// The SQL function that BeginsWith needs: foldedText() of its one text.
inline constexpr auto foldedFunction = "folded";

} // namespace quillon
