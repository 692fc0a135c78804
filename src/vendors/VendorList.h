// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "vendors/VendorDatabase.h"
#include "vendors/VendorEntries.h"

#include <QObject>

#include <memory>
#include <optional>

namespace quillon {

class Scheduler;

/// What a device's choice is called that means no manufacturer; the stored value.
inline const QString randomAddressChoice = QStringLiteral("Random Address");

/// The list of manufacturers to choose from, with "Random Address" among them, and the part of it
/// that is shown: all of it, or what begins with the text that is typed. Main thread.
class VendorList : public QObject
{
    Q_OBJECT

public:
    VendorList(Scheduler &scheduler, const VendorDatabase &database);

    /// Rebuilds the list whole, in the background; until then it is what it was. Of several calls
    /// the last one counts.
    void loadVendorField();
    /// The whole list; a snapshot that stays as it is.
    std::shared_ptr<const VendorEntries> vendorItemArray() const { return m_entries; }

    // The arrangement: rows of the entries that are shown.
    /// Shows what begins with `text`, ignoring case and diacritics; everything when it is empty.
    void filter(const QString &text);
    void clearFilter() { filter({}); }
    qsizetype rowCount() const;
    /// The entry of a row that is there.
    QString entry(qsizetype row) const;
    /// The first row with exactly this entry, -1 when it is not shown.
    qsizetype rowOf(const QString &entry) const;

Q_SIGNALS:
    /// Other rows are shown than before.
    void rearranged();
    /// The list was rebuilt, and arranged with the filter in force.
    void rebuilt();

private:
    void arrange();

    Scheduler &m_scheduler;
    VendorDatabase m_database;
    std::shared_ptr<const VendorEntries> m_entries = std::make_shared<VendorEntries>();
    QString m_filter;
    /// The entries shown; none when all are.
    std::optional<std::vector<qsizetype>> m_shown;
    quint64 m_load = 0;
};

} // namespace quillon
