// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/SerialQueue.h"
#include "vendors/VendorDatabase.h"
#include "vendors/VendorFiles.h"

#include <QObject>

class QFile;

namespace quillon {

class SettingsStore;

/// Turns a downloaded registry into the live vendor database: reads it into a new database in the
/// background and writes that over the live one. Imports run one after the other. When this dies,
/// the one that has begun comes to its end by itself, and those that wait are dropped. Keeps the
/// database of before, whatever the registry's text is worth, and can bring it back. The signals
/// come on the main thread. Main thread.
class RegistryImport : public QObject
{
    Q_OBJECT

public:
    RegistryImport(Scheduler &scheduler, SettingsStore &settings, const VendorFiles &files,
        const VendorDatabase &database);
    ~RegistryImport() override;

    /// Writes `body`, which is open for reading, over the registry text in the folder and imports
    /// that. A text that cannot be written counts as one that cannot be read.
    void importDownload(std::shared_ptr<QFile> body);
    /// Imports the registry text at `path`, whatever it holds.
    void parseDownloadedCSV(const QString &path);

    /// An import or a restoration runs or waits; no more when `ended` tells of the last one.
    bool isAtWork() const { return m_underway > 0; }
    /// Whether the database from before a refresh is there, and will still be that one when it is
    /// brought back: not while it isAtWork().
    bool canRestorePrevious() const;
    /// Brings it back, with its date and count. What it replaces is the previous one then. Nothing
    /// unless canRestorePrevious().
    void restorePrevious();

Q_SIGNALS:
    void processingBegun();
    /// The live database is as it was, unless writing to it failed; then downloadCompleted()
    /// follows.
    void parsingFailed();
    /// `date` is when, for display; it is stored in `vendorIDUpdatedDate`.
    void downloadCompleted(const QString &date);
    void restorationBegun();
    /// The live database is as it was, unless writing to it failed.
    void restorationFailed();
    /// `date` is when the restored database had become the live one; it is stored in
    /// `vendorIDUpdatedDate`.
    void databaseRestored(const QString &date);
    /// After each import and each restoration, whatever came of it; after an import that failed and
    /// still reports its completion, twice.
    void ended();

private:
    class Work;

    /// `isLast` unless the completion follows.
    void reportFailure(bool isLast);
    void reportCompletion();
    void reportRestorationFailure();
    void reportRestoration(qlonglong count, const QDateTime &since);

    Scheduler &m_scheduler;
    SettingsStore &m_settings;
    VendorFiles m_files;
    std::shared_ptr<Work> m_work;
    SerialQueue m_queue;
    int m_underway = 0; ///< imports and restorations
};

} // namespace quillon
