// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/history/HistorySelection.h"

#include "store/RecordListing.h"

#include <algorithm>

namespace quillon {

HistorySelection::HistorySelection(
    const RecordListing &rows, SettingsStore &settings, Scheduler &scheduler)
    : m_rows(rows)
    , m_saved(settings)
    , m_savedFromMany(settings, scheduler)
{
    connect(&m_savedFromMany, &SavedFromMany::looked, this, [this](const auto &news) {
        m_news = news;
        Q_EMIT looked();
    });
    connect(
        &m_savedFromMany, &SavedFromMany::progressed, this, [this](qsizetype done, qsizetype of) {
            if (m_progress) {
                m_progress = {done, of};
                Q_EMIT progressChanged();
            }
        });
    connect(&m_savedFromMany, &SavedFromMany::ended, this, [this](qsizetype added, bool hasMore) {
        m_progress.reset();
        Q_EMIT progressChanged();
        if (hasMore) {
            Q_EMIT cutAt(added);
        }
    });
    connect(&m_savedFromMany, &SavedFromMany::failed, this, &HistorySelection::failed);
}

void HistorySelection::set(const QList<Rows> &rows)
{
    m_selected = rows;
    m_news = {};
    lookAgain();
}

qsizetype HistorySelection::count() const
{
    qsizetype count = 0;
    for (const Rows &rows : m_selected) {
        count += std::max<qsizetype>(std::min(rows.last, m_rows.size() - 1) - rows.first + 1, 0);
    }
    return count;
}

std::optional<qsizetype> HistorySelection::first() const
{
    const auto topmost = std::ranges::min_element(m_selected, {}, &Rows::first);
    return topmost == m_selected.end() ? std::nullopt : std::optional(topmost->first);
}

QList<Connection> HistorySelection::records(qsizetype most) const
{
    QList<Connection> records;
    for (const Rows &rows : m_selected) {
        for (qsizetype row = rows.first; row <= rows.last && row < m_rows.size(); ++row) {
            if (records.size() == most) {
                return records;
            }
            if (const auto object = m_rows.at(row)) {
                records << Connection(object);
            }
        }
    }
    return records;
}

QList<qint64> HistorySelection::keys() const
{
    QList<qint64> keys;
    keys.reserve(count());
    for (const Rows &rows : m_selected) {
        for (qsizetype row = rows.first; row <= rows.last && row < m_rows.size(); ++row) {
            keys << m_rows.keyAt(row);
        }
    }
    return keys;
}

// MARK: saving

bool HistorySelection::hasNew(List list) const
{
    const bool isAddress = list == List::Addresses;
    if (isMany()) {
        return isAddress ? m_news.address : m_news.network;
    }
    const auto selected = records(mostAtOnce);
    return isAddress ? m_saved.hasNewAddress(selected) : m_saved.hasNewNetwork(selected);
}

void HistorySelection::lookAgain()
{
    if (isMany()) {
        m_savedFromMany.look(m_rows.snapshot().of(keys()));
    } else {
        m_savedFromMany.stopLooking();
    }
}

void HistorySelection::save(List list)
{
    if (isMany()) {
        if (!m_progress) {
            m_progress = {0, count()};
            Q_EMIT progressChanged();
            m_savedFromMany.add(list, m_rows.snapshot().of(keys()));
        }
    } else if (list == List::Addresses) {
        m_saved.addAddresses(records(mostAtOnce));
    } else {
        m_saved.addNetworks(records(mostAtOnce));
    }
}

void HistorySelection::stop()
{
    m_savedFromMany.cancel();
}

} // namespace quillon
