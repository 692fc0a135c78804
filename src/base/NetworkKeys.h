// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#define QUILLON_KEY(name) inline const QString name = QStringLiteral(#name)

/// The keys inside `currentWiFiDict`. Every value is a string.
namespace quillon::wifirecord {

QUILLON_KEY(name);
QUILLON_KEY(SSID);
QUILLON_KEY(BSSID);
QUILLON_KEY(ipAddress);
QUILLON_KEY(noise);
QUILLON_KEY(RSSI);
QUILLON_KEY(security);
QUILLON_KEY(txRate);
QUILLON_KEY(channel);
QUILLON_KEY(country);
QUILLON_KEY(phyMode);
QUILLON_KEY(mcs);
QUILLON_KEY(device);

} // namespace quillon::wifirecord

/// The keys inside the entries of `savedNetworks` and `savedAddresses`. All hold strings, except
/// `ssidDefined`, whose mere presence counts.
namespace quillon::savedentry {

QUILLON_KEY(name);
QUILLON_KEY(SSID);
QUILLON_KEY(BSSID);
QUILLON_KEY(ssidDefined);
QUILLON_KEY(address);

} // namespace quillon::savedentry

#undef QUILLON_KEY
