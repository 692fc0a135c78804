// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Result.h"
#include "store/file/RecordRow.h"
#include "store/file/RecordSchema.h"
#include "store/model/FetchRequest.h"
#include "store/model/RecordFileError.h"

#include <memory>
#include <optional>
#include <vector>

namespace SQLite {
class Database;
} // namespace SQLite

namespace quillon {

/// The SQLite file of a store: rows by entity, read in part and written in whole transactions. What
/// write() reported as done survives a kill and a power cut. Other programs may read and write the
/// file meanwhile. Main thread.
class RecordFile
{
public:
    /// Opens the file, makes it, for its owner alone, when it is missing, and brings an older one
    /// up to date in one transaction. A file that is refused, whatever the reason, keeps its bytes.
    static Result<std::unique_ptr<RecordFile>> open(
        const Model &model, const QString &path, const RecordSchema &schema = quillonSchema());
    ~RecordFile();

    /// Of the matching rows, in the order asked for, as if `changes`, which are all of this entity,
    /// were written.
    Result<std::vector<qint64>> keys(const Entity &entity, const FetchRequest &request,
        const QList<RowChange> &changes = {}) const;
    /// The first of those keys, at most so many, found in a few milliseconds or not at all: none
    /// when there is more to look through.
    Result<std::optional<QList<qint64>>> keysAtOnce(const Entity &entity,
        const FetchRequest &request, const QList<RowChange> &changes, qsizetype most) const;
    /// In no certain order; a key that the file does not have is left out.
    Result<QList<RecordRow>> rows(const Entity &entity, const QList<qint64> &keys) const;
    /// None or one.
    Result<QList<RecordRow>> row(const Entity &entity, const QUuid &id) const;

    /// All or nothing: on an Error the file is as it was. Gives the key of each change's row.
    Result<QList<qint64>> write(const QList<RowChange> &changes);
    /// A number that changes with every commit of another program, and with no other.
    Result<qint64> versionOfOthers() const;

    /// The connection, for whoever keeps tables of its own beside the records and changes both in
    /// one transaction. What is written so is no write of others.
    std::shared_ptr<SQLite::Database> database() const;

private:
    explicit RecordFile(std::shared_ptr<SQLite::Database> database);

    std::shared_ptr<SQLite::Database> m_database;
};

} // namespace quillon
