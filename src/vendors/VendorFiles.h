// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quillon {

/// Where the vendor registry keeps its files: a folder of the user's, which need not exist yet, and
/// the database that the program is shipped with.
struct VendorFiles
{
    QString folder;
    QString seed;

    QString liveDatabase() const { return folder + QStringLiteral("/oui.db"); }
    /// The live database as it was before the last refresh, in a folder of its own.
    QString previousDatabase() const { return folder + QStringLiteral("/previous/oui.db"); }
    /// The database that is being built during a refresh.
    QString newDatabase() const { return folder + QStringLiteral("/temp.db"); }
    /// The downloaded registry.
    QString registryText() const { return folder + QStringLiteral("/oui.csv"); }
};

/// Removes the log, its index and the journal that SQLite may have left beside the database at
/// `path`: what takes the place of that database must not be read through them. False when one of
/// them stays.
bool removeCompanions(const QString &path);

/// The same for the log and its index alone.
bool removeLog(const QString &path);

/// Whether the database at `path` is a file, and no pipe lies beside it: to open a pipe would wait
/// until somebody writes into it.
bool isOpenedAtOnce(const QString &path);

/// The shipped database as seen from the folder of the running program: that of the installation
/// ("../share/quillon4/oui.db"), else that of the build folder ("../data/oui.db"). Empty when there
/// is none.
QString shippedVendorDatabase(const QString &programFolder);

} // namespace quillon
