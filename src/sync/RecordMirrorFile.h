// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <SQLiteCpp/Statement.h>
#include <functional>
#include <map>
#include <memory>
#include <string>

namespace SQLite {
class Database;
} // namespace SQLite

namespace quillon {

/// The record file's connection as the mirror uses it: statements that are prepared once, and
/// transactions that keep all or nothing. What goes wrong is logged and remembered: whoever reads
/// gets the default, and the transaction, or the next one, keeps nothing. Main thread.
class RecordMirrorFile
{
public:
    /// A statement in use; it holds nothing of the file up when that ends.
    class Use
    {
    public:
        explicit Use(SQLite::Statement &statement)
            : m_statement(statement)
        {
        }
        ~Use();
        Use(const Use &) = delete;
        Use &operator=(const Use &) = delete;
        SQLite::Statement *operator->() const { return &m_statement; }
        SQLite::Statement &operator*() const { return m_statement; }

    private:
        SQLite::Statement &m_statement;
    };

    RecordMirrorFile();
    ~RecordMirrorFile();

    /// From now on it is this connection; not within a transaction.
    void follow(std::shared_ptr<SQLite::Database> database);
    SQLite::Database &database() const { return *m_database; }

    /// Runs `first` and `work` and keeps what they changed, or nothing: false. `first` runs in
    /// the outermost transaction only.
    bool transaction(const std::function<void()> &first, const std::function<void()> &work);
    bool isInTransaction() const { return m_isOpen; }
    /// While one exists, a transaction that somebody else's write would hold up fails at once.
    class [[nodiscard]] Impatience
    {
    public:
        explicit Impatience(RecordMirrorFile &file);
        ~Impatience();
        Impatience(const Impatience &) = delete;
        Impatience &operator=(const Impatience &) = delete;

    private:
        std::shared_ptr<SQLite::Database> m_database;
        int m_patience = 0; ///< in milliseconds
    };
    /// The last transaction failed because somebody else was writing.
    bool wasHeldUp() const { return m_wasHeldUp; }
    /// The transaction, or the next one, keeps nothing.
    void fail(const char *why) const;

    /// `work` may throw SQLite::Exception; the default is what it gives then.
    template <typename T, typename Work>
    T attempt(const Work &work) const
    {
        try {
            return work();
        } catch (const std::exception &exception) {
            fail(exception.what());
            return T();
        }
    }
    /// Throws SQLite::Exception.
    Use use(const std::string &sql) const;

private:
    std::shared_ptr<SQLite::Database> m_database;
    mutable std::map<std::string, SQLite::Statement> m_statements; ///< go before the connection
    bool m_isOpen = false;
    bool m_wasHeldUp = false;
    mutable bool m_hasFailed = false;
};

} // namespace quillon
