// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vendors/RegistryImport.h"

#include "base/DateStamp.h"
#include "base/Log.h"
#include "base/SettingsKeys.h"
#include "platform/Scheduler.h"
#include "platform/SettingsStore.h"
#include "vendors/VendorTable.h"

#include <QFile>
#include <QFileInfo>
#include <QPointer>

#include <functional>
#include <utility>

namespace quillon {

namespace {

constexpr qint64 pieceSize = qint64{1024} * 1024;

} // namespace

/// What runs in the background. It shares nothing with its owner but the way back.
class RegistryImport::Work
{
public:
    Work(RegistryImport &owner, Scheduler &scheduler, VendorFiles files, VendorDatabase database)
        : m_owner(&owner)
        , m_scheduler(scheduler)
        , m_files(std::move(files))
        , m_database(std::move(database))
    {
    }

    void importDownload(QFile &body);
    void parseDownloadedCSV(const QString &csv);
    void restorePrevious();

private:
    bool save(QFile &body) const;
    void replaceDBFile();
    void cleanupTempDBFile() const { QFile::remove(m_files.newDatabase()); }
    void parseFailed(bool isLast = true);
    void downloadCompleted();
    qlonglong putPreviousInPlace();
    void tellOwner(std::function<void(RegistryImport &)> what);

    QPointer<RegistryImport> m_owner;
    Scheduler &m_scheduler;
    VendorFiles m_files;
    VendorDatabase m_database;
};

void RegistryImport::Work::importDownload(QFile &body)
{
    if (save(body)) {
        parseDownloadedCSV(m_files.registryText());
    } else {
        parseFailed();
    }
}

bool RegistryImport::Work::save(QFile &body) const
{
    // To open a pipe would wait for somebody who reads it.
    const QFileInfo there(m_files.registryText());
    if (there.exists() && !there.isFile()) {
        qCWarning(logVendors, "Registry not saved: there is something in its place");
        return false;
    }
    QFile text(m_files.registryText());
    if (!text.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        qCWarning(logVendors, "Registry not saved: %s", qUtf8Printable(text.errorString()));
        return false;
    }
    QByteArray piece(pieceSize, Qt::Uninitialized);
    for (;;) {
        const qint64 size = body.read(piece.data(), piece.size());
        if (size == 0) {
            return true;
        }
        if (size < 0) {
            qCWarning(logVendors, "Registry not read: %s", qUtf8Printable(body.errorString()));
            return false;
        }
        if (text.write(piece.constData(), size) != size) {
            qCWarning(logVendors, "Registry not saved: %s", qUtf8Printable(text.errorString()));
            return false;
        }
    }
}

void RegistryImport::Work::parseDownloadedCSV(const QString &csv)
{
    if (fillVendorTable(csv, m_files.newDatabase())) {
        replaceDBFile();
    } else {
        parseFailed();
    }
}

void RegistryImport::Work::replaceDBFile()
{
    using enum VendorDatabase::Rewriting;
    const auto outcome = m_database.rewriteFrom(m_files.newDatabase(), m_files.previousDatabase());
    if (outcome == NotKept || outcome == Failed) {
        parseFailed(outcome == NotKept);
    }
    if (outcome != NotKept) {
        downloadCompleted();
        cleanupTempDBFile();
    }
}

void RegistryImport::Work::restorePrevious()
{
    const qlonglong count = putPreviousInPlace();
    if (count == 0) {
        tellOwner(&RegistryImport::reportRestorationFailure);
        return;
    }
    tellOwner([count, since = QFileInfo(m_files.liveDatabase()).lastModified()](
                  RegistryImport &owner) { owner.reportRestoration(count, since); });
}

/// How many vendors are back; 0 when that failed. Counted beforehand: once it is the live database
/// another program may lock it.
qlonglong RegistryImport::Work::putPreviousInPlace()
{
    const QString previous = m_files.previousDatabase();
    const qlonglong count = VendorDatabase(previous).count();
    const bool isBack =
        count > 0 && m_database.rewriteFrom(previous, previous) == VendorDatabase::Rewriting::Done;
    return isBack ? count : 0;
}

void RegistryImport::Work::parseFailed(bool isLast)
{
    // Here and not after the report: by then the next import may be building its own.
    cleanupTempDBFile();
    tellOwner([isLast](RegistryImport &owner) { owner.reportFailure(isLast); });
}

void RegistryImport::Work::downloadCompleted()
{
    QFile::remove(m_files.registryText());
    tellOwner(&RegistryImport::reportCompletion);
}

void RegistryImport::Work::tellOwner(std::function<void(RegistryImport &)> what)
{
    m_scheduler.onMain([owner = m_owner, what = std::move(what)] {
        if (auto *const that = owner.data()) {
            what(*that);
        }
    });
}

RegistryImport::RegistryImport(Scheduler &scheduler, SettingsStore &settings,
    const VendorFiles &files, const VendorDatabase &database)
    : m_scheduler(scheduler)
    , m_settings(settings)
    , m_files(files)
    , m_work(std::make_shared<Work>(*this, scheduler, files, database))
    , m_queue(scheduler)
{
}

RegistryImport::~RegistryImport() = default;

void RegistryImport::importDownload(std::shared_ptr<QFile> body)
{
    ++m_underway;
    Q_EMIT processingBegun();
    m_queue.add([work = m_work, body = std::move(body)] { work->importDownload(*body); });
}

void RegistryImport::parseDownloadedCSV(const QString &path)
{
    ++m_underway;
    Q_EMIT processingBegun();
    m_queue.add([work = m_work, path] { work->parseDownloadedCSV(path); });
}

bool RegistryImport::canRestorePrevious() const
{
    return !isAtWork() && isOpenedAtOnce(m_files.previousDatabase());
}

void RegistryImport::restorePrevious()
{
    if (!canRestorePrevious()) {
        return;
    }
    ++m_underway;
    Q_EMIT restorationBegun();
    m_queue.add([work = m_work] { work->restorePrevious(); });
}

void RegistryImport::reportFailure(bool isLast)
{
    Q_EMIT parsingFailed();
    m_underway -= isLast ? 1 : 0;
    Q_EMIT ended();
}

void RegistryImport::reportCompletion()
{
    const QString date = mediumDateShortTime(m_scheduler.now().toLocalTime(), QLocale());
    m_settings.set(keys::vendorIDUpdatedDate, date);
    Q_EMIT downloadCompleted(date);
    --m_underway;
    Q_EMIT ended();
}

void RegistryImport::reportRestorationFailure()
{
    Q_EMIT restorationFailed();
    --m_underway;
    Q_EMIT ended();
}

void RegistryImport::reportRestoration(qlonglong count, const QDateTime &since)
{
    const QString date = mediumDateShortTime(since.toLocalTime(), QLocale());
    // Known beforehand: vendors that are back are not noted as new ones.
    m_settings.set(keys::vendorCountValue, count);
    m_settings.set(keys::vendorIDUpdatedDate, date);
    Q_EMIT databaseRestored(date);
    --m_underway;
    Q_EMIT ended();
}

} // namespace quillon
