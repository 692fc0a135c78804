// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "netlink/ByteSpan.h"
#include "platform/linux/wifi/InformationElements.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace quillon {

/// A wireless interface of the kind that joins networks (NL80211_CMD_NEW_INTERFACE).
struct StationInterface
{
    quint32 index = 0; ///< of the network interface
    quint32 radio = 0; ///< the number of its wiphy
    QString name;
    QByteArray ssid;            ///< octets of the network that it has joined or is joining
    quint32 frequency = 0;      ///< MHz of the primary channel, 0 when not told
    int width = 0;              ///< MHz, 0 when not told
    bool legacyChannel = false; ///< a channel for 802.11a, b and g only

    bool operator==(const StationInterface &) const = default;
};

/// The network that an interface has joined (NL80211_CMD_NEW_SCAN_RESULTS).
struct JoinedNetwork
{
    QString bssid;         ///< as addressText() gives it
    QString linkDevice;    ///< the same for the device behind several links (802.11be), else empty
    quint32 frequency = 0; ///< MHz
    std::optional<bool> privacy; ///< the bit of its capability field
    std::optional<int> signal;   ///< dBm
    InformationElements elements;

    bool operator==(const JoinedNetwork &) const = default;
};

/// A rate of transfer and what it was made with.
struct Rate
{
    quint32 hundredKilobits = 0; ///< 100 kbit/s
    WiFiGeneration generation = WiFiGeneration::Legacy;
    std::optional<int> mcs;
    int width = 0; ///< MHz, 0 when not told

    bool operator==(const Rate &) const = default;
};

/// The other end of an interface's connection (NL80211_CMD_NEW_STATION).
struct RemoteStation
{
    QString address;
    std::optional<int> signal; ///< dBm
    Rate transmit;
    Rate receive;

    bool operator==(const RemoteStation &) const = default;
};

/// The noise on one channel (NL80211_CMD_NEW_SURVEY_RESULTS).
struct ChannelNoise
{
    quint32 frequency = 0; ///< MHz
    int noise = 0;         ///< dBm
    bool inUse = false;    ///< some drivers never say so

    bool operator==(const ChannelNoise &) const = default;
};

// Each from the attributes of one message, aligned as nlattr; none when what makes it one is
// missing.

/// None also for an interface of another kind: access point, monitor, mesh …
std::optional<StationInterface> stationInterface(ByteSpan attributes);
/// None also for a network that is only near.
std::optional<JoinedNetwork> joinedNetwork(ByteSpan attributes);
std::optional<RemoteStation> remoteStation(ByteSpan attributes);
std::optional<ChannelNoise> channelNoise(ByteSpan attributes);
/// The regulatory domain's country: two capital letters; empty for the world and other domains that
/// are none.
QString regulatoryCountry(ByteSpan attributes);

} // namespace quillon
