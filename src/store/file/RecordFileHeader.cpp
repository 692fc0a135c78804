// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/file/RecordFileHeader.h"

#include "store/file/RecordFileOpening.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <SQLiteCpp/Database.h>
#include <array>
#include <cstring>
#include <optional>
#include <sqlite3.h>

namespace quillon {

using namespace Qt::StringLiterals;

void refuse(RecordFileError code, const QString &message)
{
    throw RefusedFile{recordFileError(code, message)};
}

void refuseForeign(const QString &path)
{
    refuse(RecordFileError::NotARecordFile,
        u"The database \"%1\" does not hold records of Quillon."_s.arg(path));
}

void refuseNewer(const QString &path, int version, int knownVersion)
{
    refuse(RecordFileError::Newer,
        u"The records in \"%1\" were written by a newer version of Quillon "
        "(version %2 of the file; this program knows versions up to %3)."_s.arg(path)
            .arg(version)
            .arg(knownVersion));
}

namespace {

using FileHeader = std::array<unsigned char, 100>;

QString journalOf(SQLite::Database &database)
{
    return QFile::decodeName(
        sqlite3_filename_journal(sqlite3_db_filename(database.getHandle(), "main")));
}

/// The journal of a file that was empty: whatever of the file has arrived on the disk is of a
/// transaction that never ended.
bool isJournalOfNewFile(const QString &path)
{
    constexpr std::array<unsigned char, 8> magic{0xd9, 0xd5, 0x05, 0xf9, 0x20, 0xa1, 0x63, 0xd7};
    constexpr qsizetype pagesBefore = 16; // a number of 32 bits
    QFile file(path);
    if (!file.open(QFile::ReadOnly)) {
        return false;
    }
    const QByteArray header = file.read(pagesBefore + 4);
    return header.size() == pagesBefore + 4 &&
           std::memcmp(header.constData(), magic.data(), magic.size()) == 0 &&
           qFromBigEndian<quint32>(header.constData() + pagesBefore) == 0;
}

/// As it is in the file itself, read by SQLite's own descriptor: a log or journal beside it counts
/// only once we know whose it is. Nothing while the file is empty, or when it was before a power
/// cut in the transaction that made it, of which the first page is not there.
std::optional<FileHeader> headerOf(SQLite::Database &database, const QString &path)
{
    const qint64 size = QFileInfo(path).size();
    if (size == 0) {
        return std::nullopt;
    }
    FileHeader header{};
    sqlite3_file *file = nullptr;
    // SQLite takes a file of one byte for an empty one.
    const bool isRead =
        size >= qint64{header.size()} &&
        sqlite3_file_control(database.getHandle(), "main", SQLITE_FCNTL_FILE_POINTER, &file) ==
            SQLITE_OK &&
        file->pMethods &&
        file->pMethods->xRead(file, header.data(), static_cast<int>(header.size()), 0) == SQLITE_OK;
    if (isRead && header == FileHeader{} && isJournalOfNewFile(journalOf(database))) {
        return std::nullopt;
    }
    if (!isRead || std::memcmp(header.data(), "SQLite format 3", 16) != 0) {
        refuse(RecordFileError::NotARecordFile, u"The file \"%1\" is not a database."_s.arg(path));
    }
    return header;
}

} // namespace

void refuseByHeader(SQLite::Database &database, const QString &path, int knownVersion)
{
    const auto header = headerOf(database, path);
    if (!header) {
        return;
    }
    const int version = qFromBigEndian<qint32>(header->data() + 60);
    const int owner = qFromBigEndian<qint32>(header->data() + 68);
    if (owner != applicationId && (owner != 0 || QFileInfo(journalOf(database)).size() > 0)) {
        refuseForeign(path);
    }
    if (owner == applicationId && version > knownVersion) {
        refuseNewer(path, version, knownVersion);
    }
}

} // namespace quillon
