// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "vendors/VendorDatabase.h"
#include "vendors/VendorFiles.h"

#include <QObject>

namespace quillon {

class Scheduler;
class SettingsStore;

/// How many vendors the live database holds, and how many the last refresh added. The signals come
/// on the main thread: at once when it asked, else in a later turn of its loop.
class VendorCount : public QObject
{
    Q_OBJECT

public:
    VendorCount(SettingsStore &settings, Scheduler &scheduler, const VendorFiles &files,
        const VendorDatabase &database);

    /// First-run preparation: makes the folder, and installs the shipped database when there is
    /// none; whatever fails is ignored. Then counts. Main thread.
    void createSupportFolderAndVendorDatabase();
    /// Counts the rows into `vendorCountValue` and flushes. When there are more than before,
    /// `vendorIDUpdatedDate` says so: what it held before its first "(", a blank, and
    /// "(added %ld new Identifiers)". When the database does not answer at the moment, the last
    /// count stands and both settings stay as they are. Any thread; blocks while the database
    /// answers.
    void updateVendorCount();

Q_SIGNALS:
    /// The first count is about to begin.
    void firstCountBegun();
    /// `vendorIDUpdatedDate` is now `note`.
    void additionNoted(const QString &note);
    /// `count` is what is stored now.
    void counted(qlonglong count);

private:
    void installSeed();
    void onMain(std::function<void(VendorCount &)> report);

    SettingsStore &m_settings;
    Scheduler &m_scheduler;
    VendorFiles m_files;
    VendorDatabase m_database;
};

/// The text of `vendorIDUpdatedDate`, or the null marker.
QString storedUpdateDate(const SettingsStore &settings);

} // namespace quillon
