// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vendors/VendorList.h"

#include "base/FreedMemory.h"
#include "base/Localized.h"
#include "platform/Scheduler.h"

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

using Entries = std::shared_ptr<const VendorEntries>;

Entries entriesOf(const VendorDatabase &database)
{
    QStringList texts{localized(randomAddressChoice)};
    texts += database.displayStrings();
    return std::make_shared<const VendorEntries>(std::move(texts));
}

} // namespace

VendorList::VendorList(Scheduler &scheduler, const VendorDatabase &database)
    : m_scheduler(scheduler)
    , m_database(database)
{
}

void VendorList::loadVendorField()
{
    const auto show =
        m_scheduler.replyOnMain<Entries>(this, [this, load = ++m_load](const Entries &entries) {
            if (m_load != load) {
                return;
            }
            // It may have been let go meanwhile.
            if (isInMemory() && entries) {
                m_entries = entries;
                arrange();
                Q_EMIT rearranged();
            }
            Q_EMIT rebuilt();
        });
    if (isInMemory()) {
        m_scheduler.inBackground([show, database = m_database] { show(entriesOf(database)); });
    } else {
        show(nullptr);
    }
}

void VendorList::letGo()
{
    if (isInMemory()) {
        m_entries.reset();
        m_shown.reset();
        returnFreedMemory();
    }
}

void VendorList::read() const
{
    if (!isInMemory()) {
        m_entries = entriesOf(m_database);
        arrange();
    }
}

void VendorList::arrange() const
{
    m_shown.reset();
    if (!m_filter.isEmpty()) {
        m_shown = m_entries->beginningWith(m_filter);
    }
}

std::shared_ptr<const VendorEntries> VendorList::vendorItemArray() const
{
    read();
    return m_entries;
}

void VendorList::filter(const QString &text)
{
    if (text.isEmpty() && m_filter.isEmpty()) {
        return;
    }
    m_filter = text;
    if (isInMemory()) {
        arrange();
    } else if (!text.isEmpty()) {
        read();
    }
    Q_EMIT rearranged();
}

qsizetype VendorList::rowCount() const
{
    read();
    return m_shown ? static_cast<qsizetype>(m_shown->size()) : m_entries->size();
}

QString VendorList::entry(qsizetype row) const
{
    read();
    return m_entries->texts().at(m_shown ? m_shown->at(static_cast<std::size_t>(row)) : row);
}

qsizetype VendorList::rowOf(const QString &entry) const
{
    read();
    const qsizetype index = m_entries->indexOf(entry);
    if (index < 0 || !m_shown) {
        return index;
    }
    // Equal entries stand together, and are shown together.
    const auto found = std::lower_bound(m_shown->begin(), m_shown->end(), index);
    return found != m_shown->end() && *found == index ? found - m_shown->begin() : -1;
}

} // namespace quillon
