// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vendors/VendorDatabase.h"

#include "base/Log.h"
#include "vendors/NullMarker.h"
#include "vendors/VendorFileWriting.h"
#include "vendors/VendorFiles.h"

#include <QFile>
#include <QFileInfo>

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>
#include <algorithm>
#include <mutex>
#include <shared_mutex>
#include <sqlite3.h>

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

// Questions are asked on the main thread too: another program's lock must not hold it up.
constexpr int readerPatience = 250; // milliseconds
// So often the rewriting tries: for about a second.
constexpr int rewriterTries = 20;
constexpr int pauseBetweenTries = 50; // milliseconds
constexpr int longestText = 4096;     // UTF-16 units
constexpr int longestUnit = 4;        // bytes of UTF-8, more than any takes

std::optional<QString> text(const SQLite::Statement &row, int column)
{
    if (row.isColumnNull(column)) {
        return std::nullopt;
    }
    const SQLite::Column cell = row.getColumn(column);
    const char *const bytes = cell.getText();
    QString text = QString::fromUtf8(bytes, std::min(cell.getBytes(), longestText * longestUnit));
    const bool cutsPair = text.size() > longestText && text.at(longestText - 1).isHighSurrogate();
    text.truncate(cutsPair ? longestText - 1 : longestText);
    return text;
}

} // namespace

QString vendorDisplayString(
    const std::optional<QString> &organizationName, const std::optional<QString> &assignment)
{
    QString text = organizationName.value_or(nullMarker);
    text += " ("_L1;
    text += assignment.value_or(nullMarker);
    text += u')';
    return text.trimmed();
}

struct VendorDatabase::File
{
    explicit File(const QString &filePath)
        : path(filePath)
    {
    }

    /// What `ask` answers about the open database, or the empty answer; for `wasRead` see count().
    template <typename Ask>
    auto inQueue(Ask ask, bool *wasRead = nullptr) const
        -> decltype(ask(std::declval<SQLite::Database &>()))
    {
        if (wasRead != nullptr) {
            *wasRead = true;
        }
        std::unique_lock turn(turnstile);
        const std::shared_lock lock(mutex);
        turn.unlock();
        if (!isOpenedAtOnce(path)) {
            if (wasRead != nullptr) {
                *wasRead = !QFile::exists(path);
            }
            return {};
        }
        try {
            SQLite::Database database(
                QFile::encodeName(path).constData(), SQLite::OPEN_READONLY, readerPatience);
            return ask(database);
        } catch (const SQLite::Exception &error) {
            qCDebug(logVendors, "Vendor database not read: %s", error.what());
            if (wasRead != nullptr) {
                *wasRead = meansNoVendorTable(error.getErrorCode()) || !QFile::exists(path);
            }
            return {};
        }
    }

    /// None when another program has locked the file.
    std::optional<Rewriting> tryRewriting(const QString &source, const QString &keptAs) const;

    const QString path;
    /// Readers wait for the whole rewriting, however long the disk takes: for SQLite's own lock
    /// they would wait a moment and then answer nothing.
    mutable std::shared_mutex mutex;
    /// Who waits for the whole file holds it, so that new questions queue up behind.
    mutable std::mutex turnstile;
};

VendorDatabase::VendorDatabase(const QString &path)
    : m_file(std::make_shared<File>(path))
{
}

const QString &VendorDatabase::path() const
{
    return m_file->path;
}

qlonglong VendorDatabase::count(bool *wasRead) const
{
    return m_file->inQueue(
        [](SQLite::Database &database) {
            SQLite::Statement statement(database, "SELECT COUNT(*) FROM vendor");
            qlonglong count = 0;
            while (statement.executeStep()) {
                count = statement.getColumn(0).getInt64();
            }
            return count;
        },
        wasRead);
}

std::optional<VendorRecord> VendorDatabase::lookup(const QString &assignment) const
{
    return m_file->inQueue([&](SQLite::Database &database) {
        SQLite::Statement statement(database, "SELECT * FROM vendor WHERE Assignment = (?)");
        statement.bind(1, assignment.toStdString());
        const int assignmentColumn = statement.getColumnIndex("Assignment");
        const int addressColumn = statement.getColumnIndex("Organization_Address");
        const int nameColumn = statement.getColumnIndex("Organization_Name");
        const int registryColumn = statement.getColumnIndex("Registry");
        std::optional<VendorRecord> found;
        while (statement.executeStep()) {
            found = VendorRecord{text(statement, assignmentColumn), text(statement, addressColumn),
                text(statement, nameColumn), text(statement, registryColumn)};
        }
        return found;
    });
}

QStringList VendorDatabase::displayStrings(bool *wasRead) const
{
    return m_file->inQueue(
        [](SQLite::Database &database) {
            SQLite::Statement statement(database, "SELECT * FROM vendor");
            const int nameColumn = statement.getColumnIndex("Organization_Name");
            const int assignmentColumn = statement.getColumnIndex("Assignment");
            QStringList all;
            while (statement.executeStep()) {
                all.append(vendorDisplayString(
                    text(statement, nameColumn), text(statement, assignmentColumn)));
            }
            return all;
        },
        wasRead);
}

VendorDatabase::Rewriting VendorDatabase::rewriteFrom(const QString &source, const QString &keptAs)
{
    for (int tries = 0; tries < rewriterTries; ++tries) {
        if (const auto outcome = m_file->tryRewriting(source, keptAs)) {
            return *outcome;
        }
        // Between two tries nothing is held: questions need not wait for the other program too.
        sqlite3_sleep(pauseBetweenTries);
    }
    qCWarning(logVendors, "Vendor database is locked by another program");
    return Rewriting::Failed;
}

std::optional<VendorDatabase::Rewriting> VendorDatabase::File::tryRewriting(
    const QString &source, const QString &keptAs) const
{
    const std::unique_lock turn(turnstile);
    const std::unique_lock lock(mutex);
    const bool changesPlaces = source == keptAs;
    const bool isThere = QFile::exists(path);
    if (!isThere && !changesPlaces) {
        return Rewriting::FileMissing;
    }
    QFile fresh(source);
    if (!QFileInfo(source).isFile() || !fresh.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        return Rewriting::Failed;
    }
    if (!isThere) {
        const bool isMade =
            VendorFileWriting::makeFrom(fresh, path, VendorFileWriting::TimeOfChange::OfTheSource);
        return isMade ? Rewriting::Done : Rewriting::Failed;
    }
    if (!QFileInfo(path).isFile()) {
        qCWarning(logVendors, "Vendor database is no file");
        return Rewriting::Failed;
    }
    if (!isOpenedAtOnce(path)) {
        qCWarning(logVendors, "Vendor database not opened: there is a pipe beside it");
        return Rewriting::NotKept;
    }
    VendorFileWriting live(path);
    if (live.isLockedByAnother()) {
        return std::nullopt;
    }
    if (!live.isWritable()) {
        return Rewriting::Failed;
    }
    const std::optional<qlonglong> worth = live.identifiers();
    if (!worth) {
        return Rewriting::NotKept;
    }
    // What is left after a page that is no registry, or a cut, takes no whole one's place.
    const qlonglong keptWorth = changesPlaces ? 0 : VendorFileWriting::identifiersIn(keptAs);
    const bool keeps = !keptAs.isEmpty() && *worth > 0 && 2 * *worth >= keptWorth;
    if (keeps && !(live.copyTo(keptAs) && (changesPlaces || VendorFileWriting::keepCopy(keptAs)))) {
        return Rewriting::NotKept;
    }
    if (!live.rewriteFrom(fresh)) {
        return Rewriting::Failed;
    }
    if (keeps && changesPlaces) {
        // Without the name the file is what was asked for all the same; that is logged.
        VendorFileWriting::keepCopy(keptAs);
    }
    return Rewriting::Done;
}

} // namespace quillon
