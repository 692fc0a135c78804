// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/networks/RemovedFavorite.h"

#include "base/Localized.h"
#include "base/SettingsKeys.h"
#include "networks/WiFiNetwork.h"

#include <algorithm>

namespace quillon {

RemovedFavorite::RemovedFavorite(SettingsStore &settings, WiFiNetwork &wifi)
    : m_settings(settings)
    , m_wifi(wifi)
{
    for (const QString &list : {keys::savedNetworks, keys::savedAddresses}) {
        m_observed.push_back(m_settings.addObserver(list, [this](const auto &) { look(); }));
    }
}

RemovedFavorite::~RemovedFavorite()
{
    for (const auto token : m_observed) {
        m_settings.removeObserver(token);
    }
}

QString RemovedFavorite::message()
{
    return localized("Favorite removed");
}

std::optional<RemovedEntry> RemovedFavorite::entry() const
{
    const Entries &entries = m_entries.get();
    return entries.isEmpty() ? std::nullopt : std::optional(entries.last());
}

void RemovedFavorite::remember(const std::optional<RemovedEntry> &removed)
{
    if (!removed) {
        return;
    }
    m_entries.update([&](Entries &entries) {
        entries.append(*removed);
        if (entries.size() > most) {
            entries.removeFirst();
        }
    });
    Q_EMIT remembered();
}

void RemovedFavorite::undo()
{
    if (!m_entries->isEmpty()) {
        restore(m_entries->size() - 1);
    }
}

bool RemovedFavorite::putBack(const QString &list, const QString &key)
{
    const Entries &entries = m_entries.get();
    const auto found = std::find_if(entries.begin(), entries.end(),
        [&](const RemovedEntry &entry) { return entry.list == list && entry.key == key; });
    if (found == entries.end()) {
        return false;
    }
    restore(found - entries.begin());
    return true;
}

void RemovedFavorite::restore(qsizetype index)
{
    const RemovedEntry entry = m_entries->at(index);
    m_entries.update([index](Entries &entries) { entries.removeAt(index); });
    if (restoreEntry(m_settings, entry) && entry.list == keys::savedNetworks) {
        m_wifi.updateWiFiNetwork();
    }
}

void RemovedFavorite::forget()
{
    m_entries.update([](Entries &entries) { entries.clear(); });
}

void RemovedFavorite::look()
{
    m_entries.update([this](Entries &entries) {
        entries.removeIf([this](const RemovedEntry &entry) {
            return isSaved(m_settings, entry.list, entry.key);
        });
    });
}

} // namespace quillon
