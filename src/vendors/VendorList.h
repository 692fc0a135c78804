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
/// that is shown: all of it, or what begins with the text that is typed.
///
/// It takes ten megabytes, so it is read when somebody first asks for one of its entries, which
/// blocks while the database answers, and is in memory until it is let go. Main thread.
class VendorList : public QObject
{
    Q_OBJECT

public:
    VendorList(Scheduler &scheduler, const VendorDatabase &database);

    /// Rebuilds the list whole. One that is in memory is what it was until it has been read anew in
    /// the background; any other is read by whoever asks next. Of several calls the last one
    /// counts.
    void loadVendorField();
    /// The whole list; a snapshot that stays as it is.
    std::shared_ptr<const VendorEntries> vendorItemArray() const;
    bool isInMemory() const { return m_entries != nullptr; }
    /// Nobody looks at the list any more: its memory goes back to the system. The filter stays.
    void letGo();

    // The arrangement: rows of the entries that are shown. Asking for them reads the list.
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
    void read() const;
    void arrange() const;

    Scheduler &m_scheduler;
    VendorDatabase m_database;
    QString m_filter;
    /// None while the list is not in memory.
    mutable std::shared_ptr<const VendorEntries> m_entries;
    /// The entries shown; none when all are.
    mutable std::optional<std::vector<qsizetype>> m_shown;
    quint64 m_load = 0;
};

} // namespace quillon
