// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Error.h"
#include "store/file/RecordSchema.h"
#include "store/model/Entity.h"

#include <memory>

namespace SQLite {
class Database;
class Exception;
} // namespace SQLite

namespace quillon {

/// Thrown by openedDatabase() alone.
struct RefusedFile
{
    Error error;
};

/// The database at `path`, known to be ours, undamaged as far as a quick look tells, of the
/// schema's version and ready for use. RefusedFile or SQLite::Exception otherwise.
std::unique_ptr<SQLite::Database> openedDatabase(
    const Model &model, const QString &path, const RecordSchema &schema);

/// Makes foldedFunction known to a connection.
void registerFolding(SQLite::Database &database);

/// What SQLite reports, in recordFileErrorDomain.
Error errorOf(const SQLite::Exception &exception);

} // namespace quillon
