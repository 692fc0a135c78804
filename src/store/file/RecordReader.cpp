// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/file/RecordReader.h"

#include "store/file/Attempt.h"
#include "store/file/RowSelection.h"

#include <QFile>

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <SQLiteCpp/Transaction.h>
#include <algorithm>
#include <sqlite3.h>
#include <utility>

namespace quillon {

namespace {

// In WAL mode a reader waits for nobody, but for somebody who mends the log after a crash.
constexpr int busyTimeoutMs = 1000;
// So many steps of SQLite's machine take well under a millisecond.
constexpr int stepsBetweenLooks = 20'000;
// The parts grow with what was found: a list of a million is told of in a dozen of them.
constexpr qsizetype partOfFound = 2;
constexpr qsizetype largestPart = 100'000;

/// Collects keys, and hands them on in parts.
class Parts
{
public:
    Parts(const RecordReader::Progress &progress, const RecordReader::Take &take)
        : m_progress(progress)
        , m_take(take)
        , m_handed(progress.now())
    {
    }

    void add(qint64 key)
    {
        m_keys << key;
        if (m_keys.size() >= m_partSize) {
            hand();
        }
    }
    /// Whether the reading shall end.
    bool look()
    {
        if (!m_keys.isEmpty() && m_progress.now() - m_handed >= RecordReader::longestWait) {
            hand();
        }
        return m_progress.isCancelled;
    }
    void hand()
    {
        if (m_keys.isEmpty()) {
            return;
        }
        m_found += m_keys.size();
        m_partSize = std::clamp(m_found * partOfFound, RecordReader::firstKeys, largestPart);
        m_handed = m_progress.now();
        m_take(std::exchange(m_keys, {}));
    }

private:
    const RecordReader::Progress &m_progress;
    const RecordReader::Take &m_take;
    QList<qint64> m_keys;
    qsizetype m_found = 0;
    qsizetype m_partSize = RecordReader::firstKeys;
    std::chrono::milliseconds m_handed;
};

/// SQLite looks at `parts` every now and then while it lives, also where it finds nothing.
class Looking
{
public:
    Looking(SQLite::Database &database, Parts &parts)
        : m_database(database)
    {
        const auto look = [](void *asked) { return static_cast<Parts *>(asked)->look() ? 1 : 0; };
        sqlite3_progress_handler(m_database.getHandle(), stepsBetweenLooks, look, &parts);
    }
    ~Looking() { sqlite3_progress_handler(m_database.getHandle(), 0, nullptr, nullptr); }
    Looking(const Looking &) = delete;
    Looking &operator=(const Looking &) = delete;

private:
    SQLite::Database &m_database;
};

} // namespace

Result<std::unique_ptr<RecordReader>> RecordReader::open(const QString &path)
{
    return attempt<std::unique_ptr<RecordReader>>([&] {
        auto database = std::make_unique<SQLite::Database>(
            QFile::encodeName(path).toStdString(), SQLite::OPEN_READONLY, busyTimeoutMs);
        database->exec("PRAGMA trusted_schema = OFF");
        registerFolding(*database);
        return std::unique_ptr<RecordReader>(new RecordReader(std::move(database)));
    });
}

RecordReader::RecordReader(std::unique_ptr<SQLite::Database> database)
    : m_database(std::move(database))
{
}

RecordReader::~RecordReader() = default;

std::optional<Error> RecordReader::keys(const Entity &entity, const FetchRequest &request,
    const QList<RowChange> &changes, const Progress &progress, const Take &take)
{
    const auto sql = fetchSql(entity, request, !changes.isEmpty());
    if (!sql) {
        return sql.error();
    }
    const auto done = attempt<bool>([&] {
        const auto overlay = changes.isEmpty() ? nullptr : overlaid(*m_database, entity, changes);
        Parts parts(progress, take);
        const Looking looking(*m_database, parts);
        SQLite::Statement statement = prepared(*m_database, sql.value());
        while (!progress.isCancelled && statement.executeStep()) {
            parts.add(statement.getColumn(0).getInt64());
        }
        parts.hand();
        return true;
    });
    if (done || progress.isCancelled) {
        return std::nullopt;
    }
    return done.error();
}

Result<qint64> RecordReader::count(const Entity &entity, const QList<RowChange> &changes) const
{
    return attempt<qint64>([&] {
        qint64 count =
            m_database->execAndGet("SELECT count(*) FROM " + quotedName(entity.name())).getInt64();
        for (const RowChange &change : changes) {
            count += change.kind == RowChange::Kind::Insert   ? 1
                     : change.kind == RowChange::Kind::Delete ? -1
                                                              : 0;
        }
        return count;
    });
}

Result<QList<RecordRow>> RecordReader::rows(const Entity &entity, const QList<qint64> &keys) const
{
    return attempt<QList<RecordRow>>([&] { return rowsOfKeys(*m_database, entity, keys); });
}

} // namespace quillon
