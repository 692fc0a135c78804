// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vendors/VendorTable.h"

#include "base/Log.h"
#include "vendors/RegistryCsv.h"
#include "vendors/VendorFiles.h"

#include <QFile>

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>
#include <optional>

namespace quillon {

namespace {

constexpr qint64 pieceSize = qint64{256} * 1024;

const char *const createStatement =
    "create table vendor (id integer primary key autoincrement not null, Assignment text, "
    "Organization_Address text, Organization_Name text, Registry text);";

/// Without a journal and without waiting; the exclusive lock saves asking for it at each insert.
SQLite::Database openedForFilling(const QString &path)
{
    SQLite::Database database(QFile::encodeName(path).constData(), SQLite::OPEN_READWRITE);
    database.exec("PRAGMA locking_mode=EXCLUSIVE; PRAGMA journal_mode=OFF; PRAGMA synchronous=OFF");
    return database;
}

} // namespace

bool createTempDbFile(const QString &path)
{
    // Removed first: whoever still has the old file open keeps that one.
    QFile::remove(path);
    QFile file(path);
    if (!removeCompanions(path) || !file.open(QIODevice::WriteOnly)) {
        return false;
    }
    file.close();
    try {
        openedForFilling(path).exec(createStatement);
        return true;
    } catch (const SQLite::Exception &error) {
        qCWarning(logVendors, "Vendor database not created: %s", error.what());
        return false;
    }
}

struct VendorRows::Connection
{
    explicit Connection(const QString &path)
        : database(openedForFilling(path))
        , statement(database,
              "INSERT INTO vendor (Assignment, Organization_Address, Organization_Name, Registry) "
              "values (?,?,?,?)")
    {
    }

    SQLite::Database database;
    SQLite::Statement statement;
};

VendorRows::VendorRows(const QString &path)
{
    try {
        m_connection = std::make_unique<Connection>(path);
    } catch (const SQLite::Exception &error) {
        qCWarning(logVendors, "Vendor database not opened: %s", error.what());
    }
}

VendorRows::~VendorRows() = default;

bool VendorRows::insert(const RegistryRow &row) noexcept
{
    if (!m_connection) {
        return false;
    }
    try {
        SQLite::Statement &statement = m_connection->statement;
        for (std::size_t index = 0; index < registryFieldCount; ++index) {
            const int position = static_cast<int>(index) + 1;
            if (row.present[index]) {
                statement.bindNoCopy(position, row.texts[index]);
            } else {
                statement.bind(position);
            }
        }
        statement.exec();
        statement.reset();
        return true;
    } catch (const SQLite::Exception &error) {
        qCWarning(logVendors, "Vendor not stored: %s", error.what());
        return false;
    }
}

bool fillVendorTable(const QString &csv, const QString &database)
{
    QFile file(csv);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        return false;
    }
    std::optional<VendorRows> rows;
    RegistryCsv reader([&](const RegistryRow &row) {
        if (!rows) {
            if (!createTempDbFile(database)) {
                return false;
            }
            rows.emplace(database);
        }
        return rows->insert(row);
    });
    QByteArray piece(pieceSize, Qt::Uninitialized);
    for (;;) {
        const qint64 size = file.read(piece.data(), piece.size());
        if (size < 0) {
            return false;
        }
        if (size == 0) {
            return reader.finish() && rows;
        }
        if (!reader.feed({piece.constData(), static_cast<std::size_t>(size)})) {
            return false;
        }
    }
}

} // namespace quillon
