// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "vendors/VendorDatabase.h"

#include <QObject>

namespace quillon {

class Scheduler;
class SettingsStore;

/// The keys of the vendor information record, `currentVendorData`. Its texts are stored in English.
namespace vendordata {
inline const QString vendorCurrentString = QStringLiteral("vendorCurrentString");
inline const QString vendorCurrentAddress = QStringLiteral("vendorCurrentAddress");
inline const QString vendorCurrentAssignment = QStringLiteral("vendorCurrentAssignment");
inline const QString vendorCurrentRegistry = QStringLiteral("vendorCurrentRegistry");
} // namespace vendordata

/// Who made the interface with the current address.
class VendorLookup : public QObject
{
    Q_OBJECT

public:
    VendorLookup(SettingsStore &settings, Scheduler &scheduler, const VendorDatabase &database);

    /// Fills `currentVendorData` for `address` and flushes. The identifier is the first six
    /// characters of the upper-case address without its colons, whatever they are; an address of
    /// fewer than six characters leaves the texts of a pending lookup. Any thread; blocks while the
    /// database answers.
    void updateVendor(const QString &address);

Q_SIGNALS:
    /// Whether there is anything to show about the vendor; on the main thread.
    void vendorButtonShown(bool shown);

private:
    void showVendorButton(bool shown);

    SettingsStore &m_settings;
    Scheduler &m_scheduler;
    VendorDatabase m_database;
};

} // namespace quillon
