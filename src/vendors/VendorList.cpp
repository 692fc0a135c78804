// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vendors/VendorList.h"

#include "base/Localized.h"
#include "platform/Scheduler.h"

#include <algorithm>
#include <utility>

namespace quillon {

VendorList::VendorList(Scheduler &scheduler, const VendorDatabase &database)
    : m_scheduler(scheduler)
    , m_database(database)
{
}

void VendorList::loadVendorField()
{
    using Entries = std::shared_ptr<const VendorEntries>;
    const auto show =
        m_scheduler.replyOnMain<Entries>(this, [this, load = ++m_load](const Entries &entries) {
            if (m_load == load) {
                m_entries = entries;
                arrange();
                Q_EMIT rebuilt();
            }
        });
    m_scheduler.inBackground([show, database = m_database] {
        QStringList texts{localized(randomAddressChoice)};
        texts += database.displayStrings();
        show(std::make_shared<const VendorEntries>(std::move(texts)));
    });
}

void VendorList::filter(const QString &text)
{
    if (text.isEmpty() && m_filter.isEmpty()) {
        return;
    }
    m_filter = text;
    arrange();
}

void VendorList::arrange()
{
    m_shown.reset();
    if (!m_filter.isEmpty()) {
        m_shown = m_entries->beginningWith(m_filter);
    }
    Q_EMIT rearranged();
}

qsizetype VendorList::rowCount() const
{
    return m_shown ? static_cast<qsizetype>(m_shown->size()) : m_entries->size();
}

QString VendorList::entry(qsizetype row) const
{
    return m_entries->texts().at(m_shown ? m_shown->at(static_cast<std::size_t>(row)) : row);
}

qsizetype VendorList::rowOf(const QString &entry) const
{
    const qsizetype index = m_entries->indexOf(entry);
    if (index < 0 || !m_shown) {
        return index;
    }
    // Equal entries stand together, and are shown together.
    const auto found = std::lower_bound(m_shown->begin(), m_shown->end(), index);
    return found != m_shown->end() && *found == index ? found - m_shown->begin() : -1;
}

} // namespace quillon
