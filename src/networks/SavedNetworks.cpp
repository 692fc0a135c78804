// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "networks/SavedNetworks.h"

#include "base/SettingsKeys.h"
#include "networks/SpecialNetworks.h"
#include "networks/WiFiNetwork.h"
#include "networks/WiFiRecord.h"

#include <algorithm>

namespace quillon {

namespace {

SavedEntries savedNetworks(const SettingsStore &settings)
{
    return savedEntries(settings, keys::savedNetworks);
}

} // namespace

QStringList favoriteNetworks(const SettingsStore &settings)
{
    return fieldOfEach(savedNetworks(settings), &SavedEntry::bssid);
}

QStringList ssidFavoriteNetworks(const SettingsStore &settings)
{
    SavedEntries networks = savedNetworks(settings);
    networks.removeIf([](const SavedEntries::iterator &entry) { return !entry->isSsidDefined(); });
    return fieldOfEach(networks, &SavedEntry::ssid);
}

QString ssidForNetworkName(const SettingsStore &settings, const QString &name)
{
    return fieldOfNamed(savedNetworks(settings), name, &SavedEntry::ssid).value_or(QString());
}

QString bssidForNetworkName(const SettingsStore &settings, const QString &name)
{
    return fieldOfNamed(savedNetworks(settings), name, &SavedEntry::bssid).value_or(anyNetwork);
}

bool isNetWorkDefined(const SettingsStore &settings, const QString &name)
{
    const SavedEntries networks = savedNetworks(settings);
    return std::any_of(networks.begin(), networks.end(), [&name](const SavedEntry &network) {
        return network.isSsidDefined() && network.name == name;
    });
}

SavedNetworks::SavedNetworks(SettingsStore &settings, WiFiNetwork &wifi)
    : m_settings(settings)
    , m_wifi(wifi)
{
}

void SavedNetworks::addCurrentNetworkToSavedList()
{
    const auto network = m_wifi.updateWiFiNetwork();
    if (network && !isSaved(m_settings, keys::savedNetworks, network->bssid)) {
        saveEntry(m_settings, keys::savedNetworks, network->bssid,
            SavedEntry::ofNetwork(network->bssid, network->ssid));
    }
}

std::optional<RemovedEntry> SavedNetworks::removeCurrentNetworkFromSavedList()
{
    const auto network = m_wifi.updateWiFiNetwork();
    if (!network || !isSaved(m_settings, keys::savedNetworks, network->bssid)) {
        return std::nullopt;
    }
    return removeEntry(m_settings, keys::savedNetworks, network->bssid);
}

bool SavedNetworks::isCurrentNetworkSaved() const
{
    const QString bssid = WiFiRecord::stored(m_settings).bssid;
    return !bssid.isEmpty() && isSaved(m_settings, keys::savedNetworks, bssid.toLower());
}

} // namespace quillon
