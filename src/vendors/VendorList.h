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
inline const QString randomAddressChoice =
    QStringLiteral(QT_TRANSLATE_NOOP("Quillon", "Random Address"));

/// The list of manufacturers to choose from, with "Random Address" among them, and the part of it
/// that is shown: all of it, or what begins with the text that is typed.
///
/// It takes ten megabytes, so it is in memory only between open() and letGo(). It is read in the
/// background: until it is there, and while another program keeps the database locked, an opened
/// list holds "Random Address" alone. Main thread.
class VendorList : public QObject
{
    Q_OBJECT

public:
    VendorList(Scheduler &scheduler, const VendorDatabase &database);

    /// Somebody looks at the list: it is read, again and again until the database answers.
    void open();
    /// Nobody looks at the list any more: its memory goes back to the system. The filter stays.
    void letGo();
    bool isInMemory() const { return m_entries != nullptr; }
    /// It is open, and whole.
    bool isRead() const { return m_isRead; }
    /// Rebuilds the list whole. One that is in memory is what it was until it has been read anew;
    /// any other is read when it is opened. Of several calls the last one counts.
    void loadVendorField();
    /// The whole list, none while it is not in memory; a snapshot that stays as it is.
    std::shared_ptr<const VendorEntries> vendorItemArray() const { return m_entries; }

    // The arrangement: rows of the entries that are shown; none while the list is not in memory.
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
    using Entries = std::shared_ptr<const VendorEntries>;

    void read();
    void take(const Entries &entries);
    void arrange();

    Scheduler &m_scheduler;
    VendorDatabase m_database;
    QString m_filter;
    /// None while the list is not in memory.
    Entries m_entries;
    bool m_isRead = false;
    /// The entries shown; none when all are.
    std::optional<std::vector<qsizetype>> m_shown;
    /// rebuilt() is owed.
    bool m_rebuilds = false;
    quint64 m_load = 0;
};

} // namespace quillon
