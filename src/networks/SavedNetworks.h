// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "networks/SavedEntries.h"

namespace quillon {

class SettingsStore;
class WiFiNetwork;

// The list `savedNetworks`: lower-case BSSID to entry. Each of these reads it afresh.

/// The "BSSID" of every saved network.
QStringList favoriteNetworks(const SettingsStore &settings);
/// The "SSID" of the saved networks that are recognized by it.
QStringList ssidFavoriteNetworks(const SettingsStore &settings);

// By name, compared exactly; of several with one name the last in the list's order answers.

/// "" for an unknown name.
QString ssidForNetworkName(const SettingsStore &settings, const QString &name);
/// "Any Network" for an unknown name, as that is the rule editor's choice of no particular network.
QString bssidForNetworkName(const SettingsStore &settings, const QString &name);
/// Whether some network of that name is recognized by its SSID.
bool isNetWorkDefined(const SettingsStore &settings, const QString &name);

/// The saved networks, as far as they follow the network that the computer is on. Main thread.
class SavedNetworks
{
public:
    SavedNetworks(SettingsStore &settings, WiFiNetwork &wifi);

    /// Refreshes the Wi-Fi record and saves its network under its SSID as the name. One that is
    /// saved already is left as it is; without a network nothing happens.
    void addCurrentNetworkToSavedList();
    /// None when there is no network, or it is not saved.
    std::optional<RemovedEntry> removeCurrentNetworkFromSavedList();
    /// Whether the network of the Wi-Fi record, as it stands, is saved.
    bool isCurrentNetworkSaved() const;

private:
    SettingsStore &m_settings;
    WiFiNetwork &m_wifi;
};

} // namespace quillon
