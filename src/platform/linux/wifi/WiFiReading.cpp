// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/wifi/WiFiReading.h"

#include "platform/linux/wifi/WiFiSecurity.h"

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

using Table = Nl80211Request::Table;

enum Band
{
    UnknownBand = 0,
    Band2GHz = 1,
    Band5GHz = 2,
    Band6GHz = 3,
};

enum PHYMode
{
    NoMode = 0,
    Mode11a = 1,
    Mode11b = 2,
    Mode11g = 3,
    Mode11n = 4,
    Mode11ac = 5,
    Mode11ax = 6,
    Mode11be = 7,
};

/// A band's channels: the first and last frequency, and the one that would be channel 0. MHz.
struct ChannelRange
{
    quint32 first;
    quint32 last;
    quint32 zero;
    Band band;
};

constexpr quint32 channelStep = 5;
constexpr ChannelRange channelRanges[] = {
    {.first = 2412, .last = 2472, .zero = 2407, .band = Band2GHz},
    {.first = 4915, .last = 4980, .zero = 4000, .band = Band5GHz},
    {.first = 5035, .last = 5895, .zero = 5000, .band = Band5GHz},
    {.first = 5955, .last = 7115, .zero = 5950, .band = Band6GHz},
};
// Two channels stand outside the step of their band.
constexpr quint32 channel14 = 2484;
constexpr quint32 channel2Of6GHz = 5935;

int widthNumber(int width)
{
    switch (width) {
    case 20:
        return 1;
    case 40:
        return 2;
    case 80:
        return 3;
    case 160:
        return 4;
    default:
        return 0;
    }
}

int legacyMode(int band, bool orthogonalRates)
{
    if (band == Band5GHz) {
        return Mode11a;
    }
    if (band == Band2GHz) {
        return orthogonalRates ? Mode11g : Mode11b;
    }
    return NoMode;
}

int modeOf(WiFiGeneration generation, int band, bool orthogonalRates)
{
    switch (generation) {
    case WiFiGeneration::Legacy:
        return legacyMode(band, orthogonalRates);
    case WiFiGeneration::HighThroughput:
        return Mode11n;
    case WiFiGeneration::VeryHighThroughput:
        return Mode11ac;
    case WiFiGeneration::HighEfficiency:
        return Mode11ax;
    case WiFiGeneration::ExtremelyHighThroughput:
        return Mode11be;
    }
    return NoMode;
}

/// What was asked about one connection.
struct Connection
{
    StationInterface interface;
    JoinedNetwork network;
    RemoteStation station;
};

// The rates in use tell what both ends speak. A connection that has only just begun, or sleeps, has
// sent its last frame at an old rate: then the newest that the network offers counts, unless the
// channel is one for old rates.
WiFiGeneration generationOf(const Connection &connection)
{
    const WiFiGeneration used =
        std::max(connection.station.transmit.generation, connection.station.receive.generation);
    if (used != WiFiGeneration::Legacy || connection.interface.legacyChannel) {
        return used;
    }
    return connection.network.elements.generation;
}

WiFiInterface::Channel channelInUse(const Connection &connection)
{
    const StationInterface &interface = connection.interface;
    const quint32 frequency =
        interface.frequency ? interface.frequency : connection.network.frequency;
    const int width = interface.width ? interface.width
                                      : std::max(connection.station.transmit.width,
                                            connection.station.receive.width);
    return channelOf(frequency, width);
}

int noiseAt(quint32 frequency, const QList<ChannelNoise> &noises)
{
    const ChannelNoise *best = nullptr;
    for (const ChannelNoise &noise : noises) {
        if (noise.frequency == frequency && (!best || noise.inUse)) {
            best = &noise;
        }
    }
    return best ? best->noise : 0;
}

// Behind several links (802.11be) the station goes by the address of the device, not of a link.
std::optional<RemoteStation> stationOf(
    const JoinedNetwork &network, const QList<RemoteStation> &stations)
{
    for (const RemoteStation &station : stations) {
        if (station.address == network.bssid || station.address == network.linkDevice) {
            return station;
        }
    }
    return std::nullopt;
}

WiFiInterface described(const Connection &connection)
{
    const JoinedNetwork &network = connection.network;
    const RemoteStation &station = connection.station;
    WiFiInterface wifi;
    wifi.device = connection.interface.name;
    wifi.ssid = networkName(
        connection.interface.ssid.isEmpty() ? network.elements.ssid : connection.interface.ssid);
    wifi.bssid = network.bssid;
    wifi.rssi = station.signal.value_or(network.signal.value_or(0));
    wifi.security = security(network.elements, network.privacy);
    wifi.transmitRate = station.transmit.hundredKilobits / 10.0;
    wifi.channel = channelInUse(connection);
    wifi.activePHYMode =
        modeOf(generationOf(connection), wifi.channel.band, network.elements.orthogonalRates);
    wifi.mcsIndex = station.transmit.mcs;
    return wifi;
}

WiFiInterface joined(
    Nl80211Exchange &exchange, const StationInterface &interface, const JoinedNetwork &network)
{
    const QList<RemoteStation> stations = exchange.ask({Table::Stations, interface.index}).stations;
    WiFiInterface wifi =
        described({interface, network, stationOf(network, stations).value_or(RemoteStation{})});
    const quint32 frequency = interface.frequency ? interface.frequency : network.frequency;
    wifi.noise = noiseAt(frequency, exchange.ask({Table::Noises, interface.index}).noises);
    wifi.countryCode = exchange.ask({Table::RegulatoryDomain, interface.radio}).countryCode;
    return wifi;
}

} // namespace

std::optional<WiFiInterface> readWiFi(Nl80211Exchange &exchange)
{
    QList<StationInterface> interfaces = exchange.ask({Table::Interfaces, 0}).interfaces;
    if (interfaces.isEmpty()) {
        return std::nullopt;
    }
    std::ranges::sort(interfaces, {}, &StationInterface::index);
    for (const StationInterface &interface : std::as_const(interfaces)) {
        const auto networks = exchange.ask({Table::Networks, interface.index}).networks;
        if (!networks.isEmpty()) {
            return joined(exchange, interface, networks.first());
        }
    }
    const StationInterface &first = interfaces.first();
    WiFiInterface wifi;
    wifi.device = first.name;
    wifi.countryCode = exchange.ask({Table::RegulatoryDomain, first.radio}).countryCode;
    return wifi;
}

WiFiInterface::Channel channelOf(quint32 frequency, int width)
{
    WiFiInterface::Channel channel{.number = 0, .band = UnknownBand, .width = widthNumber(width)};
    if (frequency == channel14) {
        channel.number = 14;
        channel.band = Band2GHz;
    } else if (frequency == channel2Of6GHz) {
        channel.number = 2;
        channel.band = Band6GHz;
    }
    for (const ChannelRange &range : channelRanges) {
        if (frequency >= range.first && frequency <= range.last &&
            (frequency - range.zero) % channelStep == 0) {
            channel.number = static_cast<int>((frequency - range.zero) / channelStep);
            channel.band = range.band;
        }
    }
    return channel;
}

} // namespace quillon
