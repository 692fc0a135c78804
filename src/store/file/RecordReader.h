// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Result.h"
#include "store/file/RecordRow.h"
#include "store/model/FetchRequest.h"

#include <QList>

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace SQLite {
class Database;
} // namespace SQLite

namespace quillon {

/// Reads a record file on a connection of its own, while RecordFile's is used on the main thread:
/// it holds up nobody's writes and never writes itself. Any thread, one at a time. The file is one
/// that RecordFile has opened.
class RecordReader
{
public:
    static Result<std::unique_ptr<RecordReader>> open(const QString &path);
    ~RecordReader();

    /// What reading is asked on its way: whether to go on, and what time it is.
    struct Progress
    {
        const std::atomic_bool &isCancelled;
        std::function<std::chrono::milliseconds()> now;
    };
    using Take = std::function<void(QList<qint64> keys)>;

    static constexpr qsizetype firstKeys = 50;
    /// How long a found key waits for more at most.
    static constexpr std::chrono::milliseconds longestWait{100};

    /// RecordFile::keys() in parts, as they are found: the first `firstKeys` by themselves. A
    /// reading that is cancelled ends without an Error, soon, and `take` may miss the rest.
    std::optional<Error> keys(const Entity &entity, const FetchRequest &request,
        const QList<RowChange> &changes, const Progress &progress, const Take &take);
    /// How many records of the entity there are, as if `changes` were written.
    Result<qint64> count(const Entity &entity, const QList<RowChange> &changes) const;
    /// As RecordFile::rows().
    Result<QList<RecordRow>> rows(const Entity &entity, const QList<qint64> &keys) const;

private:
    explicit RecordReader(std::unique_ptr<SQLite::Database> database);

    std::unique_ptr<SQLite::Database> m_database;
};

} // namespace quillon
