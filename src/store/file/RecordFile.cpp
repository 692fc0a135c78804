// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/file/RecordFile.h"

#include "store/file/Attempt.h"
#include "store/file/FetchSql.h"
#include "store/file/RecordFileOpening.h"
#include "store/file/RowSelection.h"
#include "store/file/RowWriter.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <SQLiteCpp/Transaction.h>
#include <sqlite3.h>
#include <utility>

namespace quillon {

namespace {

/// While it lives, SQLite gives a statement up that takes more steps of its machine than are made
/// in about a millisecond.
class StepLimit
{
public:
    explicit StepLimit(SQLite::Database &database)
        : m_database(database)
    {
        const auto reach = [](void *limit) {
            static_cast<StepLimit *>(limit)->m_isReached = true;
            return 1;
        };
        sqlite3_progress_handler(m_database.getHandle(), steps, reach, this);
    }
    ~StepLimit() { sqlite3_progress_handler(m_database.getHandle(), 0, nullptr, nullptr); }
    StepLimit(const StepLimit &) = delete;
    StepLimit &operator=(const StepLimit &) = delete;

    bool isReached() const { return m_isReached; }

private:
    static constexpr int steps = 50'000;

    SQLite::Database &m_database;
    bool m_isReached = false;
};

} // namespace

Result<std::unique_ptr<RecordFile>> RecordFile::open(
    const Model &model, const QString &path, const RecordSchema &schema)
{
    return attempt<std::unique_ptr<RecordFile>>([&] {
        return std::unique_ptr<RecordFile>(new RecordFile(openedDatabase(model, path, schema)));
    });
}

RecordFile::RecordFile(std::shared_ptr<SQLite::Database> database)
    : m_database(std::move(database))
{
}

RecordFile::~RecordFile() = default;

Result<std::vector<qint64>> RecordFile::keys(
    const Entity &entity, const FetchRequest &request, const QList<RowChange> &changes) const
{
    const auto sql = fetchSql(entity, request, !changes.isEmpty());
    if (!sql) {
        return sql.error();
    }
    return attempt<std::vector<qint64>>([&] {
        const auto overlay = changes.isEmpty() ? nullptr : overlaid(*m_database, entity, changes);
        SQLite::Statement statement = prepared(*m_database, sql.value());
        std::vector<qint64> keys;
        while (statement.executeStep()) {
            keys.push_back(statement.getColumn(0).getInt64());
        }
        return keys;
    });
}

Result<std::optional<QList<qint64>>> RecordFile::keysAtOnce(const Entity &entity,
    const FetchRequest &request, const QList<RowChange> &changes, qsizetype most) const
{
    const auto sql = fetchSql(entity, request, !changes.isEmpty());
    if (!sql) {
        return sql.error();
    }
    StepLimit limit(*m_database);
    auto found = attempt<std::optional<QList<qint64>>>([&] {
        const auto overlay = changes.isEmpty() ? nullptr : overlaid(*m_database, entity, changes);
        SQLite::Statement statement = prepared(*m_database, sql.value());
        QList<qint64> keys;
        while (keys.size() < most && statement.executeStep()) {
            keys << statement.getColumn(0).getInt64();
        }
        return std::optional(keys);
    });
    if (!found && limit.isReached()) {
        return std::optional<QList<qint64>>();
    }
    return found;
}

Result<QList<RecordRow>> RecordFile::rows(const Entity &entity, const QList<qint64> &keys) const
{
    return attempt<QList<RecordRow>>([&] { return rowsOfKeys(*m_database, entity, keys); });
}

Result<QList<RecordRow>> RecordFile::row(const Entity &entity, const QUuid &id) const
{
    return attempt<QList<RecordRow>>([&] { return rowsOfId(*m_database, entity, id); });
}

Result<QList<qint64>> RecordFile::write(const QList<RowChange> &changes)
{
    return attempt<QList<qint64>>([&] {
        SQLite::Transaction transaction(*m_database, SQLite::TransactionBehavior::IMMEDIATE);
        QList<qint64> keys;
        {
            RowWriter writer(*m_database);
            for (const RowChange &change : changes) {
                keys << writer.write(change);
            }
        }
        transaction.commit();
        return keys;
    });
}

std::shared_ptr<SQLite::Database> RecordFile::database() const
{
    return m_database;
}

Result<qint64> RecordFile::versionOfOthers() const
{
    return attempt<qint64>(
        [&] { return m_database->execAndGet("PRAGMA data_version").getInt64(); });
}

} // namespace quillon
