// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/RecordMirrorFile.h"

#include "base/Log.h"
#include "store/file/RecordFileOpening.h"
#include "store/model/RecordFileError.h"

#include <QScopedValueRollback>

#include <SQLiteCpp/Column.h>
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Transaction.h>
#include <utility>

namespace quillon {

RecordMirrorFile::Use::~Use()
{
    m_statement.tryReset();
    try {
        m_statement.clearBindings();
    } catch (const SQLite::Exception &exception) {
        qCDebug(logRecords, "A statement keeps its values: %s", exception.what());
    }
}

RecordMirrorFile::Impatience::Impatience(RecordMirrorFile &file)
    : m_database(file.m_database)
{
    if (m_database) {
        m_patience = m_database->execAndGet("PRAGMA busy_timeout").getInt();
        m_database->setBusyTimeout(0);
    }
}

RecordMirrorFile::Impatience::~Impatience()
{
    if (m_database) {
        m_database->setBusyTimeout(m_patience);
    }
}

RecordMirrorFile::RecordMirrorFile() = default;
RecordMirrorFile::~RecordMirrorFile() = default;

void RecordMirrorFile::follow(std::shared_ptr<SQLite::Database> database)
{
    m_statements.clear();
    m_database = std::move(database);
    m_hasFailed = false;
}

bool RecordMirrorFile::transaction(
    const std::function<void()> &first, const std::function<void()> &work)
{
    if (m_isOpen) {
        work();
        return true;
    }
    m_wasHeldUp = false;
    if (!m_database || std::exchange(m_hasFailed, false)) {
        return false;
    }
    try {
        SQLite::Transaction transaction(*m_database, SQLite::TransactionBehavior::IMMEDIATE);
        {
            const QScopedValueRollback open(m_isOpen, true);
            first();
            work();
        }
        if (std::exchange(m_hasFailed, false)) {
            return false;
        }
        transaction.commit();
        return true;
    } catch (const SQLite::Exception &exception) {
        m_hasFailed = false;
        m_wasHeldUp = isRecordFileError(errorOf(exception), RecordFileError::Locked);
        if (!m_wasHeldUp) {
            qCWarning(
                logRecords, "The mirror of the records cannot be written: %s", exception.what());
        }
        return false;
    }
}

void RecordMirrorFile::fail(const char *why) const
{
    if (!std::exchange(m_hasFailed, true)) {
        qCWarning(logRecords, "The mirror of the records does not go on: %s", why);
    }
}

RecordMirrorFile::Use RecordMirrorFile::use(const std::string &sql) const
{
    if (!m_database) {
        throw SQLite::Exception("there is no record file");
    }
    auto found = m_statements.find(sql);
    if (found == m_statements.end()) {
        found = m_statements.try_emplace(sql, *m_database, sql).first;
    }
    return Use(found->second);
}

} // namespace quillon
