// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

#include <optional>

namespace quillon {

class DeviceTable;
class SettingsStore;
class WiFiClient;

/// What the Wi-Fi interface is associated with, of several the first one that is, kept as display
/// strings in the settings under `currentWiFiDict`. The record is as old as the last refresh. Main
/// thread.
class WiFiNetwork : public QObject
{
    Q_OBJECT

public:
    /// Neither is empty.
    struct Identity
    {
        QString ssid;
        QString bssid; ///< in lower case
    };

    WiFiNetwork(SettingsStore &settings, WiFiClient &client, const DeviceTable &devices);

    /// Reads the radio, rewrites the record whole (keys that are not ours survive) and flushes.
    /// Returns none when there is no association, no Wi-Fi, or no permission to see the network.
    std::optional<Identity> updateWiFiNetwork();

Q_SIGNALS:
    /// Before the record is stored: the network-information button is shown exactly while the
    /// computer is on a network.
    void networkButtonShown(bool shown);

private:
    SettingsStore &m_settings;
    WiFiClient &m_client;
    const DeviceTable &m_devices;
};

} // namespace quillon
