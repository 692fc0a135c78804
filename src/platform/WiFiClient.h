// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

namespace quillon {

/// What a Wi-Fi interface tells, numbered as the tables of networks/WiFiNetwork expect.
struct WiFiInterface
{
    /// How the network is protected.
    enum Security
    {
        None = 0,
        WEP = 1,
        WPAPersonal = 2,
        WPAPersonalMixed = 3,
        WPA2Personal = 4,
        Personal = 5,
        DynamicWEP = 6,
        WPAEnterprise = 7,
        WPAEnterpriseMixed = 8,
        WPA2Enterprise = 9,
        Enterprise = 10,
        WPA3Personal = 11,
        WPA3Enterprise = 12,
        WPA3Transition = 13,
        OWE = 14,
        OWETransition = 15,
        UnknownSecurity = -1,
    };
    /// band: 1 2.4 GHz, 2 5 GHz, 3 6 GHz; width: 1 20 MHz, 2 40 MHz, 3 80 MHz, 4 160 MHz; 0
    /// unknown.
    struct Channel
    {
        int number = 0;
        int band = 0;
        int width = 0;

        bool operator==(const Channel &) const = default;
    };

    QString device;
    QString ssid;  ///< "" when not associated, or when its name is hidden from us too
    QString bssid; ///< colon-separated octets, letter case as the platform gives it; "" as above
    int noise = 0; ///< dBm, 0 when not measured: noise is far below
    int rssi = 0;  ///< dBm, 0 when not known: no signal is as strong as that
    int security = UnknownSecurity;
    double transmitRate = 0; ///< Mbit/s
    Channel channel;
    QString countryCode;         ///< ISO 3166-1 alpha-2, "" when not known
    int activePHYMode = 0;       ///< 1 802.11a, 2 b, 3 g, 4 n, 5 ac, 6 ax, 7 be; 0 none
    std::optional<int> mcsIndex; ///< none when the platform does not tell

    bool operator==(const WiFiInterface &) const = default;
};

/// The machine's Wi-Fi. The call blocks for as long as the system takes to answer (milliseconds).
/// Main thread.
class WiFiClient
{
public:
    virtual ~WiFiClient() = default;

    /// The first Wi-Fi interface of the system that has joined a network, else the first one; none
    /// when there is none or it may not be read.
    virtual std::optional<WiFiInterface> firstInterface() = 0;
};

} // namespace quillon
