// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/SavedFromHistory.h"

#include "base/SettingsKeys.h"
#include "networks/SavedEntry.h"
#include "platform/SettingsStore.h"

#include <algorithm>

namespace quillon {

namespace {

template <typename EntryOf>
void add(
    SettingsStore &settings, const QString &list, const QList<Connection> &records, EntryOf entryOf)
{
    QVariantMap stored = settings.getDictionary(list);
    const qsizetype before = stored.size();
    for (const Connection &record : records) {
        const auto [key, entry] = entryOf(record);
        if (!stored.contains(key)) {
            stored.insert(key, entry.toPropertyList());
        }
    }
    if (stored.size() > before) {
        settings.set(list, stored);
        settings.synchronize();
    }
}

} // namespace

SavedFromHistory::SavedFromHistory(SettingsStore &settings)
    : m_settings(settings)
{
}

void SavedFromHistory::addAddresses(const QList<Connection> &records)
{
    add(m_settings, keys::savedAddresses, records, [](const Connection &record) {
        const QString address = record.address();
        return std::pair(address, SavedEntry::ofAddress(address));
    });
}

void SavedFromHistory::addNetworks(const QList<Connection> &records)
{
    add(m_settings, keys::savedNetworks, records, [](const Connection &record) {
        return std::pair(
            record.bssid().toLower(), SavedEntry::ofNetwork(record.bssid(), record.ssid()));
    });
}

bool SavedFromHistory::hasNewAddress(const QList<Connection> &records) const
{
    const QVariantMap stored = m_settings.getDictionary(keys::savedAddresses);
    return std::ranges::any_of(records,
        [&stored](const Connection &record) { return !stored.contains(record.address()); });
}

bool SavedFromHistory::hasNewNetwork(const QList<Connection> &records) const
{
    const QVariantMap stored = m_settings.getDictionary(keys::savedNetworks);
    return std::ranges::any_of(records, [&stored](const Connection &record) {
        const QString bssid = record.bssid().toLower();
        return !bssid.isEmpty() && !stored.contains(bssid);
    });
}

} // namespace quillon
