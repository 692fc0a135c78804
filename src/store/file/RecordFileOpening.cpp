// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/file/RecordFileOpening.h"

#include "base/DurableFolder.h"
#include "store/file/FetchSql.h"
#include "store/file/RecordFile.h"
#include "store/file/RecordFileHeader.h"

#include <QFile>
#include <QFileInfo>

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <SQLiteCpp/Transaction.h>
#include <sqlite3.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

// A save that gives up is made again later.
constexpr int busyTimeoutMs = 1000;
// An opening that gives up ends the program, while another one may be making the file on a slow
// disk.
constexpr int openingTimeoutMs = 10'000;
// The change to WAL is tried so often, with pauses, as long as for any lock.
constexpr int pauseBetweenTriesMs = 50;
constexpr int logTries = openingTimeoutMs / pauseBetweenTriesMs;
// Reading a larger file whole would hold up the launch; its damage shows when the page is read.
constexpr qint64 largestQuickCheck = 16LL * 1024 * 1024;

int number(SQLite::Database &database, const std::string &query)
{
    return database.execAndGet(query).getInt();
}

/// Closing any descriptor of a file ends all locks that the process has on it, also those of an
/// older connection. So a file that exists is opened by SQLite alone, which knows of that; only a
/// new one, which nobody has open, is made here. An empty one is new too: a program that died right
/// after making it leaves that.
void makeWhenMissing(const QString &path)
{
    QFile file(path);
    if (!QFileInfo::exists(path)) {
        const bool isMade =
            file.open(QFile::WriteOnly | QFile::NewOnly, QFile::ReadOwner | QFile::WriteOwner);
        if (!isMade && !QFileInfo::exists(path)) {
            refuse(RecordFileError::CannotOpen,
                u"The file \"%1\" cannot be opened: %2"_s.arg(path, file.errorString()));
        }
        // Before anything is saved in it: SQLite cares for the names of its log and journal alone.
        syncFolder(QFileInfo(path).path());
    }
    const QFileInfo info(path);
    if (!info.isFile() || !info.isReadable()) {
        refuse(RecordFileError::CannotOpen,
            u"The file \"%1\" cannot be opened: %2"_s.arg(
                path, info.isFile() ? u"it may not be read"_s : u"it is not a file"_s));
    }
}

/// Whether the file has nothing in it yet; refuses what is not ours, or not for us. Within a
/// transaction: another program may be making the file, and half of its answers would be from
/// before, the other half from after.
bool looksNew(SQLite::Database &database, const QString &path, int knownVersion)
{
    const int version = number(database, "PRAGMA user_version");
    const int owner = number(database, "PRAGMA application_id");
    if (owner == 0 && version == 0 && number(database, "SELECT count(*) FROM sqlite_master") == 0) {
        return true;
    }
    if (owner != applicationId || version < 1) {
        refuseForeign(path);
    }
    if (version > knownVersion) {
        refuseNewer(path, version, knownVersion);
    }
    return false;
}

void checkTables(SQLite::Database &database, const Model &model, const QString &path)
{
    for (const Entity &entity : model.entities) {
        QStringList missing{u"pk"_s, u"uuid"_s};
        for (const Attribute &attribute : entity.attributes()) {
            missing << attribute.name;
        }
        SQLite::Statement columns(database, "SELECT name FROM pragma_table_info(?)");
        columns.bind(1, entity.name().toStdString());
        while (columns.executeStep()) {
            missing.removeAll(QString::fromStdString(columns.getColumn(0).getString()));
        }
        if (!missing.isEmpty()) {
            refuse(RecordFileError::Damaged,
                u"The records in \"%1\" are damaged: \"%2\" lacks \"%3\"."_s.arg(
                    path, entity.name(), missing.join(u"\", \""_s)));
        }
    }
}

void checkPages(SQLite::Database &database, const QString &path)
{
    if (QFileInfo(path).size() > largestQuickCheck) {
        return;
    }
    const auto verdict =
        QString::fromStdString(database.execAndGet("PRAGMA quick_check(1)").getString());
    if (verdict != u"ok"_s) {
        refuse(RecordFileError::Damaged,
            u"The records in \"%1\" are damaged: %2"_s.arg(path, verdict));
    }
}

/// Whether the file can be used as it is; refuses what is not ours, not for us, or damaged.
bool isUpToDate(
    SQLite::Database &database, const Model &model, const QString &path, const RecordSchema &schema)
{
    const SQLite::Transaction snapshot(database, SQLite::TransactionBehavior::DEFERRED);
    const bool isNew = looksNew(database, path, schema.version());
    checkPages(database, path);
    if (isNew || number(database, "PRAGMA user_version") < schema.version()) {
        return false;
    }
    checkTables(database, model, path);
    return true;
}

/// All missing steps in one transaction; looks again inside it, as another program may be doing the
/// same.
void migrate(
    SQLite::Database &database, const Model &model, const QString &path, const RecordSchema &schema)
{
    SQLite::Transaction transaction(database, SQLite::TransactionBehavior::IMMEDIATE);
    looksNew(database, path, schema.version());
    for (int from = number(database, "PRAGMA user_version"); from < schema.version(); ++from) {
        database.exec(schema.steps[from]);
    }
    database.exec("PRAGMA user_version = " + std::to_string(schema.version()));
    database.exec("PRAGMA application_id = " + std::to_string(applicationId));
    checkTables(database, model, path);
    transaction.commit();
}

/// SQLite does not wait, however patient it is otherwise, when somebody else uses the file at the
/// moment of this change.
void useLog(SQLite::Database &database)
{
    database.setBusyTimeout(0);
    int outcome = SQLITE_BUSY;
    for (int tries = 0; tries < logTries && outcome == SQLITE_BUSY; ++tries) {
        if (tries > 0) {
            sqlite3_sleep(pauseBetweenTriesMs);
        }
        outcome = database.tryExec("PRAGMA journal_mode = WAL") & 0xff;
    }
    if (outcome != SQLITE_OK) {
        throw SQLite::Exception(database.getHandle(), outcome);
    }
    database.setBusyTimeout(openingTimeoutMs);
}

} // namespace

void registerFolding(SQLite::Database &database)
{
    const auto fold = [](sqlite3_context *context, int, sqlite3_value **values) {
        if (sqlite3_value_type(values[0]) != SQLITE_TEXT) {
            return;
        }
        const auto *text = reinterpret_cast<const char *>(sqlite3_value_text(values[0]));
        const QByteArray folded =
            foldedText(QString::fromUtf8(text, sqlite3_value_bytes(values[0]))).toUtf8();
        sqlite3_result_text(
            context, folded.constData(), static_cast<int>(folded.size()), SQLITE_TRANSIENT);
    };
    database.createFunction(foldedFunction, 1, true, nullptr, fold);
}

std::unique_ptr<SQLite::Database> openedDatabase(
    const Model &model, const QString &path, const RecordSchema &schema)
{
    makeWhenMissing(path);
    auto database = std::make_unique<SQLite::Database>(
        QFile::encodeName(path).toStdString(), SQLite::OPEN_READWRITE, openingTimeoutMs);
    // A file that is refused keeps its bytes: closing must not move its log into it.
    sqlite3_db_config(
        database->getHandle(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, static_cast<int *>(nullptr));
    refuseByHeader(*database, path, schema.version());
    // Functions that a foreign hand put into the schema do not run.
    database->exec("PRAGMA trusted_schema = OFF");
    // FULL, and also the folder when a journal has been deleted.
    database->exec("PRAGMA synchronous = EXTRA");
    database->exec("PRAGMA foreign_keys = OFF");
    registerFolding(*database);
    if (!isUpToDate(*database, model, path, schema)) {
        migrate(*database, model, path, schema);
    }
    useLog(*database);
    // The first read makes the log and its index: a disk without room for them shows here.
    number(*database, "PRAGMA data_version");
    database->setBusyTimeout(busyTimeoutMs);
    sqlite3_db_config(
        database->getHandle(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 0, static_cast<int *>(nullptr));
    return database;
}

Error errorOf(const SQLite::Exception &exception)
{
    const auto code = [&exception] {
        // The index of the log is a file too, and the first that finds no room.
        if (exception.getExtendedErrorCode() == SQLITE_IOERR_SHMSIZE) {
            return RecordFileError::Full;
        }
        switch (exception.getErrorCode()) {
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            return RecordFileError::Locked;
        case SQLITE_FULL:
            return RecordFileError::Full;
        case SQLITE_IOERR:
            return RecordFileError::InputOutput;
        case SQLITE_NOTADB:
            return RecordFileError::NotARecordFile;
        case SQLITE_CORRUPT:
            return RecordFileError::Damaged;
        case SQLITE_CANTOPEN:
        case SQLITE_PERM:
        case SQLITE_AUTH:
        case SQLITE_READONLY:
            return RecordFileError::CannotOpen;
        default:
            return RecordFileError::Failed;
        }
    };
    return recordFileError(code(), u"%1 (SQLite %2)"_s.arg(QString::fromUtf8(exception.what()))
                                       .arg(exception.getExtendedErrorCode()));
}

} // namespace quillon
