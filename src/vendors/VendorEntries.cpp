// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vendors/VendorEntries.h"

#include "base/FoldedText.h"

#include <algorithm>
#include <utility>

namespace quillon {

VendorEntries::VendorEntries(QStringList texts)
    : m_texts(std::move(texts))
{
    std::sort(m_texts.begin(), m_texts.end());
    m_ends.reserve(static_cast<std::size_t>(m_texts.size()));
    for (const QString &text : std::as_const(m_texts)) {
        m_folded += foldedText(text);
        m_ends.push_back(m_folded.size());
    }
}

qsizetype VendorEntries::indexOf(const QString &text) const
{
    const auto found = std::lower_bound(m_texts.begin(), m_texts.end(), text);
    return found != m_texts.end() && *found == text ? found - m_texts.begin() : -1;
}

std::vector<qsizetype> VendorEntries::beginningWith(const QString &text) const
{
    const QString wanted = foldedText(text);
    const QStringView folded(m_folded);
    std::vector<qsizetype> found;
    qsizetype begin = 0;
    for (std::size_t index = 0; index < m_ends.size(); ++index) {
        if (folded.sliced(begin, m_ends[index] - begin).startsWith(wanted)) {
            found.push_back(static_cast<qsizetype>(index));
        }
        begin = m_ends[index];
    }
    return found;
}

} // namespace quillon
