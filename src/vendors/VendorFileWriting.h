// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFile>

#include <memory>
#include <optional>

namespace SQLite {
class Database;
} // namespace SQLite

namespace quillon {

/// SQLite's answer, an error code, is that the file holds no vendor table; it will not a moment
/// later. Every other error says nothing of what the file holds.
bool meansNoVendorTable(int sqliteError);

/// A vendor database file that is about to be written over, locked against other programs while
/// this lives. No connection of this process may have it open meanwhile: closing any descriptor of
/// a file ends all locks of the process on it. Any thread; blocks.
class VendorFileWriting
{
public:
    /// The file exists. One that is no database (any more) cannot be locked, but neither can it be
    /// read.
    explicit VendorFileWriting(const QString &path);
    ~VendorFileWriting();
    VendorFileWriting(const VendorFileWriting &) = delete;
    VendorFileWriting &operator=(const VendorFileWriting &) = delete;

    bool isLockedByAnother() const { return m_isLockedByAnother; }
    /// It is open, and no stale log lies beside it.
    bool isWritable() const { return m_file.isOpen() && m_isWithoutStaleLog; }
    /// How many rows with an identifier are in it; 0 when it is damaged. Reads it whole. None when
    /// it does not answer at the moment: it may hold everything.
    std::optional<qlonglong> identifiers() const;
    /// The same of the bytes of a file, whatever lies beside it; 0 also when it is not there or
    /// cannot be read.
    static qlonglong identifiersIn(const QString &path);
    /// Makes a copy beside `place`, on the disk, with the file's time of change. The folder is made
    /// when it is missing. False, and no copy, when that fails.
    bool copyTo(const QString &place);
    /// Gives the copy that was made beside `place` that name, atomically.
    static bool keepCopy(const QString &place);
    enum class TimeOfChange
    {
        OfTheSource,
        Now
    };
    /// Makes a file that is missing at `path`, atomically: the content of `source`, on the disk.
    static bool makeFrom(QFile &source, const QString &path, TimeOfChange time);
    /// Writes the content of `source` over the file, with its time of change, and waits for the
    /// disk.
    bool rewriteFrom(QFile &source);

private:
    bool dropStaleLog();
    void lock();

    /// Open from before the lock until after it, for the same reason.
    QFile m_file;
    std::unique_ptr<SQLite::Database> m_guard; ///< null when it could not be opened
    bool m_isWithoutStaleLog = false;
    bool m_isLockedByAnother = false;
    bool m_hasAnswered = false; ///< it is locked, or it is no database
};

} // namespace quillon
