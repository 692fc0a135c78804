// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/file/RowRemoval.h"

#include "store/file/Attempt.h"
#include "store/file/FetchSql.h"

#include <QFile>

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <SQLiteCpp/Transaction.h>
#include <algorithm>
#include <sqlite3.h>

namespace quillon {

namespace {

constexpr int busyTimeoutMs = 10'000;
// As many as are deleted in a fraction of the second that somebody else's save waits.
constexpr qsizetype rowsOfOnePart = 5000;
// The main thread's save gets its turn.
constexpr int pauseMs = 5;

} // namespace

std::optional<Error> removeRows(const QString &path, const Entity &entity,
    const QList<qint64> &keys, const std::atomic_bool &isCancelled,
    const std::function<void(qsizetype done)> &progress)
{
    const auto done = attempt<bool>([&] {
        SQLite::Database database(
            QFile::encodeName(path).toStdString(), SQLite::OPEN_READWRITE, busyTimeoutMs);
        database.exec("PRAGMA trusted_schema = OFF");
        database.exec("PRAGMA synchronous = EXTRA");
        SQLite::Statement removal(
            database, "DELETE FROM " + quotedName(entity.name()) + " WHERE pk = ?");
        for (qsizetype from = 0; from < keys.size() && !isCancelled; from += rowsOfOnePart) {
            const qsizetype end = std::min(keys.size(), from + rowsOfOnePart);
            SQLite::Transaction transaction(database, SQLite::TransactionBehavior::IMMEDIATE);
            for (qsizetype index = from; index < end; ++index) {
                removal.bind(1, int64_t{keys[index]});
                removal.exec();
                removal.reset();
            }
            transaction.commit();
            progress(end);
            sqlite3_sleep(pauseMs);
        }
        return true;
    });
    return done ? std::nullopt : std::optional(done.error());
}

} // namespace quillon
