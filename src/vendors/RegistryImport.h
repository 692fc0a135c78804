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
/// the one that has begun comes to its end by itself, and those that wait are dropped. The signals
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

Q_SIGNALS:
    void processingBegun();
    /// The live database is as it was, unless writing to it failed; then downloadCompleted()
    /// follows.
    void parsingFailed();
    /// `date` is when, for display; it is stored in `vendorIDUpdatedDate`.
    void downloadCompleted(const QString &date);
    /// After each of the two.
    void ended();

private:
    class Work;

    void reportFailure();
    void reportCompletion();

    Scheduler &m_scheduler;
    SettingsStore &m_settings;
    std::shared_ptr<Work> m_work;
    SerialQueue m_queue;
};

} // namespace quillon
