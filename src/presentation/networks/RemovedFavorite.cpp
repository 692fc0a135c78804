// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/networks/RemovedFavorite.h"

#include "base/Localized.h"
#include "base/SettingsKeys.h"
#include "networks/WiFiNetwork.h"

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

void RemovedFavorite::remember(const std::optional<RemovedEntry> &removed)
{
    if (removed) {
        m_entry.update([&](std::optional<RemovedEntry> &entry) { entry = removed; });
    }
}

void RemovedFavorite::undo()
{
    const std::optional<RemovedEntry> entry = m_entry.get();
    if (!entry) {
        return;
    }
    m_entry.update([](std::optional<RemovedEntry> &back) { back.reset(); });
    if (restoreEntry(m_settings, *entry) && entry->list == keys::savedNetworks) {
        m_wifi.updateWiFiNetwork();
    }
}

void RemovedFavorite::look()
{
    const auto &entry = m_entry.get();
    if (entry && isSaved(m_settings, entry->list, entry->key)) {
        m_entry.update([](std::optional<RemovedEntry> &back) { back.reset(); });
    }
}

} // namespace quillon
