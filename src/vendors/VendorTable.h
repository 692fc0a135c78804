// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <memory>

namespace quillon {

struct RegistryRow;

/// A new vendor database at `path` with its empty table, in place of any file there. False when it
/// cannot be made.
///
/// A database that is being filled is thrown away on any failure, so that nothing of it needs to
/// survive a crash: here, and in VendorRows, SQLite neither keeps a journal nor waits for the disk.
bool createTempDbFile(const QString &path);

/// Adds rows to a new vendor database; each insert commits by itself. The file is closed when this
/// dies. Any thread, one at a time.
class VendorRows
{
public:
    explicit VendorRows(const QString &path);
    ~VendorRows();
    VendorRows(const VendorRows &) = delete;
    VendorRows &operator=(const VendorRows &) = delete;

    /// False when the row could not be stored, or the file could not be opened.
    bool insert(const RegistryRow &row) noexcept;

private:
    struct Connection;
    std::unique_ptr<Connection> m_connection;
};

/// Reads the registry's text at `csv` into a new vendor database at `database`. True when there was
/// at least one record and every record was stored; otherwise what `database` holds is of no use,
/// and there is no such file when the text has no record.
bool fillVendorTable(const QString &csv, const QString &database);

} // namespace quillon
