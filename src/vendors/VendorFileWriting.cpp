// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vendors/VendorFileWriting.h"

#include "base/DurableFolder.h"
#include "base/Log.h"
#include "vendors/VendorFiles.h"

#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <cstdio>
#include <sqlite3.h>
#include <unistd.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 pieceSize = qint64{1024} * 1024;

using TimeOfChange = VendorFileWriting::TimeOfChange;

/// The copied bytes have arrived on the disk.
bool copyWhole(QFile &source, QFile &target, TimeOfChange time = TimeOfChange::OfTheSource)
{
    QByteArray piece(pieceSize, Qt::Uninitialized);
    for (;;) {
        const qint64 size = source.read(piece.data(), piece.size());
        if (size == 0) {
            // The time tells when the content became what it is.
            if (time == TimeOfChange::OfTheSource) {
                target.setFileTime(source.fileTime(QFileDevice::FileModificationTime),
                    QFileDevice::FileModificationTime);
            }
            return fsync(target.handle()) == 0;
        }
        if (size < 0 || target.write(piece.constData(), size) != size) {
            return false;
        }
    }
}

/// What lies there is left of a copy that was not finished, or is none, and is removed first.
QString copyBeside(const QString &place)
{
    return place + u".new"_s;
}

/// By the header, a database keeps a rollback journal and no log.
bool hasNoLog(const QString &path)
{
    constexpr qsizetype readVersion = 19;
    QFile file(path);
    const bool isOpen = file.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    const QByteArray header = isOpen ? file.read(readVersion + 1) : QByteArray();
    return header.size() == readVersion + 1 && header.startsWith("SQLite format 3") &&
           header.at(readVersion) == 1;
}

/// For identifiers(); `opened` may throw as well.
template <typename Opened>
std::optional<qlonglong> askForIdentifiers(Opened opened)
{
    try {
        SQLite::Database &database = opened();
        // One that was cut short or torn may still answer the second question.
        if (database.execAndGet("PRAGMA quick_check(1)").getString() != "ok") {
            return 0;
        }
        return database
            .execAndGet("SELECT count(*) FROM vendor WHERE Assignment IS NOT NULL AND "
                        "Assignment <> ''")
            .getInt64();
    } catch (const SQLite::Exception &error) {
        qCWarning(logVendors, "Vendor database not read: %s", error.what());
        return meansNoVendorTable(error.getErrorCode()) ? std::optional(0) : std::nullopt;
    }
}

} // namespace

bool meansNoVendorTable(int sqliteError)
{
    // The general error is that of a question about a table or a column that is not there.
    const int code = sqliteError & 0xff;
    return code == SQLITE_NOTADB || code == SQLITE_CORRUPT || code == SQLITE_ERROR;
}

VendorFileWriting::VendorFileWriting(const QString &path)
    : m_file(path)
{
    m_isWithoutStaleLog = dropStaleLog();
    if (!m_file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly | QIODevice::Unbuffered)) {
        qCWarning(
            logVendors, "Vendor database not opened: %s", qUtf8Printable(m_file.errorString()));
    }
    try {
        m_guard = std::make_unique<SQLite::Database>(
            QFile::encodeName(path).constData(), SQLite::OPEN_READWRITE);
        lock();
    } catch (const SQLite::Exception &error) {
        qCWarning(logVendors, "Vendor database not locked: %s", error.what());
    }
}

VendorFileWriting::~VendorFileWriting() = default;

/// SQLite reads a file through any log beside it, also through one that was left by a program that
/// died and is of what the file was before, or of another file.
bool VendorFileWriting::dropStaleLog()
{
    const QString path = m_file.fileName();
    if (!hasNoLog(path) || removeLog(path)) {
        return true;
    }
    qCWarning(logVendors, "Vendor database not opened: there is a log beside it");
    return false;
}

void VendorFileWriting::lock()
{
    // The first brings in what a program that died has left; the second makes an end of a log, and
    // waits for nobody who uses it.
    for (const char *const step :
        {"SELECT 1 FROM sqlite_master", "PRAGMA journal_mode = DELETE", "BEGIN EXCLUSIVE"}) {
        const int outcome = m_guard->tryExec(step) & 0xff;
        if (outcome == SQLITE_BUSY) {
            m_isLockedByAnother = true;
            return;
        }
        if (outcome != SQLITE_OK) {
            qCWarning(logVendors, "Vendor database not locked: %s", m_guard->getErrorMsg());
            m_hasAnswered = meansNoVendorTable(outcome);
            return;
        }
    }
    m_hasAnswered = true;
}

std::optional<qlonglong> VendorFileWriting::identifiers() const
{
    return m_hasAnswered ? askForIdentifiers([this]() -> SQLite::Database & { return *m_guard; })
                         : std::nullopt;
}

qlonglong VendorFileWriting::identifiersIn(const QString &path)
{
    if (!QFileInfo(path).isFile()) {
        return 0;
    }
    std::optional<SQLite::Database> database;
    return askForIdentifiers([&]() -> SQLite::Database & {
        // It takes no lock and reads no journal.
        const QByteArray uri = QUrl::fromLocalFile(path).toEncoded() + "?immutable=1";
        return database.emplace(uri.constData(), SQLite::OPEN_READONLY | SQLite::OPEN_URI);
    }).value_or(0);
}

bool VendorFileWriting::copyTo(const QString &place)
{
    makeFolder(QFileInfo(place).path());
    QFile copy(copyBeside(place));
    copy.remove();
    const bool isCopied = m_file.seek(0) &&
                          copy.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
                          copyWhole(m_file, copy);
    if (!isCopied) {
        qCWarning(logVendors, "Vendor database not kept: %s", qUtf8Printable(copy.errorString()));
        copy.remove();
    }
    return isCopied;
}

bool VendorFileWriting::keepCopy(const QString &place)
{
    const bool isNamed =
        removeCompanions(place) && std::rename(QFile::encodeName(copyBeside(place)).constData(),
                                       QFile::encodeName(place).constData()) == 0;
    if (!isNamed) {
        qCWarning(logVendors, "Vendor database not kept as %s", qUtf8Printable(place));
        QFile::remove(copyBeside(place));
        return false;
    }
    syncFolder(QFileInfo(place).path());
    return true;
}

bool VendorFileWriting::makeFrom(QFile &source, const QString &path, TimeOfChange time)
{
    QFile copy(copyBeside(path));
    copy.remove();
    const bool isCopied =
        copy.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && copyWhole(source, copy, time);
    if (!isCopied) {
        qCWarning(logVendors, "Vendor database not made: %s", qUtf8Printable(copy.errorString()));
        copy.remove();
    }
    return isCopied && keepCopy(path);
}

bool VendorFileWriting::rewriteFrom(QFile &source)
{
    const QString path = m_file.fileName();
    if (!removeCompanions(path)) {
        qCWarning(logVendors, "Vendor database not written: there is a log beside it");
        return false;
    }
    // Or one of them could come back with a power cut, beside the new content.
    syncFolder(QFileInfo(path).path());
    const bool isEmptied = (m_file.pos() == 0 || m_file.seek(0)) && m_file.resize(0);
    if (!isEmptied || !copyWhole(source, m_file)) {
        qCWarning(
            logVendors, "Vendor database not written: %s", qUtf8Printable(m_file.errorString()));
        return false;
    }
    return true;
}

} // namespace quillon
