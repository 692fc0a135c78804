// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include <vector>

namespace quillon {

/// Manufacturers to choose from: display strings in plain order, duplicates and all, and the quick
/// answer to which of them begin with a text. Does not change; any thread.
class VendorEntries
{
public:
    VendorEntries() = default;
    /// Takes the texts in any order.
    explicit VendorEntries(QStringList texts);

    const QStringList &texts() const { return m_texts; }
    qsizetype size() const { return m_texts.size(); }

    /// The first entry that is exactly `text`, -1 when none is.
    qsizetype indexOf(const QString &text) const;
    /// The entries that begin with `text` without regard to case and diacritics, in their order.
    std::vector<qsizetype> beginningWith(const QString &text) const;

private:
    QStringList m_texts;
    /// The texts without case and diacritics, one behind the other so that a search reads memory in
    /// one sweep, and where each ends.
    QString m_folded;
    std::vector<qsizetype> m_ends;
};

} // namespace quillon
