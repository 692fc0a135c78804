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

constexpr std::chrono::seconds pauseBeforeReadingAgain{1};

Entries entriesOf(const QStringList &vendors)
{
    return std::make_shared<const VendorEntries>(
        QStringList(localized(randomAddressChoice)) + vendors);
}

/// None when the database does not answer at the moment.
Entries readEntries(const VendorDatabase &database)
{
    bool wasRead = true;
    const QStringList vendors = database.displayStrings(&wasRead);
    return wasRead ? entriesOf(vendors) : nullptr;
}

} // namespace

VendorList::VendorList(Scheduler &scheduler, const VendorDatabase &database)
    : m_scheduler(scheduler)
    , m_database(database)
{
}

void VendorList::open()
{
    if (!isInMemory()) {
        m_entries = entriesOf({});
        arrange();
        read();
    }
}

void VendorList::letGo()
{
    if (isInMemory()) {
        m_entries.reset();
        m_isRead = false;
        m_shown.reset();
        returnFreedMemory();
    }
}

void VendorList::loadVendorField()
{
    m_rebuilds = true;
    read();
}

void VendorList::read()
{
    const auto reply =
        m_scheduler.replyOnMain<Entries>(this, [this, load = ++m_load](const Entries &entries) {
            if (m_load == load) {
                take(entries);
            }
        });
    if (isInMemory()) {
        m_scheduler.inBackground([reply, database = m_database] { reply(readEntries(database)); });
    } else {
        reply(nullptr);
    }
}

void VendorList::take(const Entries &entries)
{
    // It may have been let go meanwhile.
    if (isInMemory()) {
        if (!entries) {
            m_scheduler.onMainAfter(pauseBeforeReadingAgain, this, [this, load = m_load] {
                if (m_load == load) {
                    read();
                }
            });
            return;
        }
        m_entries = entries;
        m_isRead = true;
        arrange();
        Q_EMIT rearranged();
    }
    if (std::exchange(m_rebuilds, false)) {
        Q_EMIT rebuilt();
    }
}

void VendorList::arrange()
{
    m_shown.reset();
    if (!m_filter.isEmpty()) {
        m_shown = m_entries->beginningWith(m_filter);
    }
}

void VendorList::filter(const QString &text)
{
    if (text.isEmpty() && m_filter.isEmpty()) {
        return;
    }
    m_filter = text;
    if (isInMemory()) {
        arrange();
    }
    Q_EMIT rearranged();
}

qsizetype VendorList::rowCount() const
{
    if (!isInMemory()) {
        return 0;
    }
    return m_shown ? static_cast<qsizetype>(m_shown->size()) : m_entries->size();
}

QString VendorList::entry(qsizetype row) const
{
    return m_entries->texts().at(m_shown ? m_shown->at(static_cast<std::size_t>(row)) : row);
}

qsizetype VendorList::rowOf(const QString &entry) const
{
    const qsizetype index = isInMemory() ? m_entries->indexOf(entry) : -1;
    if (index < 0 || !m_shown) {
        return index;
    }
    // Equal entries stand together, and are shown together.
    const auto found = std::lower_bound(m_shown->begin(), m_shown->end(), index);
    return found != m_shown->end() && *found == index ? found - m_shown->begin() : -1;
}

} // namespace quillon
