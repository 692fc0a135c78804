// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quillon {

class SettingsStore;

/// The Wi-Fi network that the computer was on at the last refresh, as texts to be shown; "" is what
/// is not known. Stored under `currentWiFiDict`.
struct WiFiRecord
{
    QString name = {}; ///< the saved network's name, else the SSID
    QString ssid = {};
    QString bssid = {}; ///< in lower case
    QString ipAddress = {};
    QString noise = {};
    QString rssi = {};
    QString security = {};
    QString txRate = {};
    QString channel = {};
    QString country = {};
    QString phyMode = {};
    QString mcs = {};
    /// The interface that is on it, where there are several or the device table does not know it
    /// yet; else "".
    QString device = {};

    /// `name`, which is a word of ours while it is on no network, in the user's language.
    QString shownName() const;
    /// What is no text reads as "".
    static WiFiRecord stored(const SettingsStore &settings);
    /// Rewrites the stored record; keys that are not ours survive.
    void store(SettingsStore &settings) const;
    /// Whether it is the network of the Wi-Fi interface `one`: another's may be on another network.
    bool isOf(const QString &one) const { return device.isEmpty() || device == one; }
};

} // namespace quillon
