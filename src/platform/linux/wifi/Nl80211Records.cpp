// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/wifi/Nl80211Records.h"

#include "platform/linux/netlink/LinkMessages.h"

#include <algorithm>
#include <linux/if.h>
#include <linux/nl80211.h>
#include <utility>

namespace quillon {

namespace {

constexpr std::size_t longestSsid = 32;

quint32 number(ByteSpan value)
{
    return hostNumber<quint32>(value).value_or(0);
}

// Levels in dBm travel as one octet, in two's complement.
std::optional<int> level(ByteSpan value)
{
    const auto octet = hostNumber<quint8>(value);
    return octet ? std::optional(static_cast<int>(static_cast<qint8>(*octet))) : std::nullopt;
}

QString address(ByteSpan value)
{
    return addressText({reinterpret_cast<const unsigned char *>(value.data()), value.size()});
}

QByteArray octets(ByteSpan value)
{
    return {reinterpret_cast<const char *>(value.data()), static_cast<qsizetype>(value.size())};
}

// Up to the terminating zero.
QString text(ByteSpan value)
{
    const auto end = std::ranges::find(value, std::byte{0});
    return QString::fromUtf8(reinterpret_cast<const char *>(value.data()), end - value.begin());
}

int widthOf(quint32 channelWidth)
{
    switch (channelWidth) {
    case NL80211_CHAN_WIDTH_20_NOHT:
    case NL80211_CHAN_WIDTH_20:
        return 20;
    case NL80211_CHAN_WIDTH_40:
        return 40;
    case NL80211_CHAN_WIDTH_80:
        return 80;
    case NL80211_CHAN_WIDTH_80P80:
    case NL80211_CHAN_WIDTH_160:
        return 160;
    case NL80211_CHAN_WIDTH_320:
        return 320;
    default:
        return 0;
    }
}

// What kernels and drivers tell that know no wider channels.
int widthOfType(quint32 channelType)
{
    return channelType == NL80211_CHAN_HT40MINUS || channelType == NL80211_CHAN_HT40PLUS ? 40 : 20;
}

ByteSpan attribute(ByteSpan attributes, int wanted)
{
    ByteSpan found;
    forEachAttribute(attributes, [&](int type, ByteSpan value) {
        if (type == wanted) {
            found = value;
        }
    });
    return found;
}

Rate rate(ByteSpan info)
{
    Rate found;
    const auto index = [&](WiFiGeneration generation, ByteSpan value) {
        if (const auto octet = hostNumber<quint8>(value)) {
            found.generation = generation;
            found.mcs = *octet;
        }
    };
    forEachAttribute(info, [&](int type, ByteSpan value) {
        switch (type) {
        case NL80211_RATE_INFO_BITRATE: // too narrow for fast rates, which then have the other
            if (found.hundredKilobits == 0) {
                found.hundredKilobits = hostNumber<quint16>(value).value_or(0);
            }
            break;
        case NL80211_RATE_INFO_BITRATE32:
            found.hundredKilobits = number(value);
            break;
        case NL80211_RATE_INFO_MCS:
            index(WiFiGeneration::HighThroughput, value);
            break;
        case NL80211_RATE_INFO_VHT_MCS:
            index(WiFiGeneration::VeryHighThroughput, value);
            break;
        case NL80211_RATE_INFO_HE_MCS:
            index(WiFiGeneration::HighEfficiency, value);
            break;
        case NL80211_RATE_INFO_EHT_MCS:
            index(WiFiGeneration::ExtremelyHighThroughput, value);
            break;
        case NL80211_RATE_INFO_40_MHZ_WIDTH:
            found.width = 40;
            break;
        case NL80211_RATE_INFO_80_MHZ_WIDTH:
            found.width = 80;
            break;
        case NL80211_RATE_INFO_80P80_MHZ_WIDTH:
        case NL80211_RATE_INFO_160_MHZ_WIDTH:
            found.width = 160;
            break;
        case NL80211_RATE_INFO_320_MHZ_WIDTH:
            found.width = 320;
            break;
        default:
            break;
        }
    });
    return found;
}

} // namespace

std::optional<StationInterface> stationInterface(ByteSpan attributes)
{
    StationInterface found;
    quint32 kind = NL80211_IFTYPE_UNSPECIFIED;
    std::optional<quint32> width;
    std::optional<quint32> channelType;
    forEachAttribute(attributes, [&](int type, ByteSpan value) {
        switch (type) {
        case NL80211_ATTR_IFINDEX:
            found.index = number(value);
            break;
        case NL80211_ATTR_WIPHY:
            found.radio = number(value);
            break;
        case NL80211_ATTR_IFNAME:
            found.name = text(value.first(std::min<std::size_t>(value.size(), IFNAMSIZ - 1)));
            break;
        case NL80211_ATTR_IFTYPE:
            kind = number(value);
            break;
        case NL80211_ATTR_SSID:
            found.ssid = octets(value.first(std::min(value.size(), longestSsid)));
            break;
        case NL80211_ATTR_WIPHY_FREQ:
            found.frequency = number(value);
            break;
        case NL80211_ATTR_CHANNEL_WIDTH:
            width = hostNumber<quint32>(value);
            break;
        case NL80211_ATTR_WIPHY_CHANNEL_TYPE:
            channelType = hostNumber<quint32>(value);
            break;
        default:
            break;
        }
    });
    if (kind != NL80211_IFTYPE_STATION || found.index == 0 || found.name.isEmpty()) {
        return std::nullopt;
    }
    if (width) {
        found.width = widthOf(*width);
        found.legacyChannel = *width == NL80211_CHAN_WIDTH_20_NOHT;
    } else if (channelType) {
        found.width = widthOfType(*channelType);
        found.legacyChannel = *channelType == NL80211_CHAN_NO_HT;
    }
    return found;
}

std::optional<JoinedNetwork> joinedNetwork(ByteSpan attributes)
{
    constexpr quint16 privacyBit = 0x0010;
    JoinedNetwork found;
    std::optional<quint32> status;
    ByteSpan elements;
    ByteSpan beaconElements;
    forEachAttribute(attribute(attributes, NL80211_ATTR_BSS), [&](int type, ByteSpan value) {
        switch (type) {
        case NL80211_BSS_BSSID:
            found.bssid = address(value);
            break;
        case NL80211_BSS_MLD_ADDR:
            found.linkDevice = address(value);
            break;
        case NL80211_BSS_FREQUENCY:
            found.frequency = number(value);
            break;
        case NL80211_BSS_CAPABILITY:
            if (const auto capability = hostNumber<quint16>(value)) {
                found.privacy = *capability & privacyBit;
            }
            break;
        case NL80211_BSS_STATUS:
            status = hostNumber<quint32>(value);
            break;
        case NL80211_BSS_SIGNAL_MBM:
            if (const auto signal = hostNumber<quint32>(value)) {
                found.signal = static_cast<qint32>(*signal) / 100;
            }
            break;
        case NL80211_BSS_INFORMATION_ELEMENTS:
            elements = value;
            break;
        case NL80211_BSS_BEACON_IES:
            beaconElements = value;
            break;
        default:
            break;
        }
    });
    if (status != NL80211_BSS_STATUS_ASSOCIATED || found.bssid.isEmpty()) {
        return std::nullopt;
    }
    found.elements = informationElements(elements.empty() ? beaconElements : elements);
    return found;
}

std::optional<RemoteStation> remoteStation(ByteSpan attributes)
{
    RemoteStation found;
    found.address = address(attribute(attributes, NL80211_ATTR_MAC));
    std::optional<int> average;
    forEachAttribute(attribute(attributes, NL80211_ATTR_STA_INFO), [&](int type, ByteSpan value) {
        switch (type) {
        case NL80211_STA_INFO_SIGNAL:
            found.signal = level(value);
            break;
        case NL80211_STA_INFO_SIGNAL_AVG:
            average = level(value);
            break;
        case NL80211_STA_INFO_TX_BITRATE:
            found.transmit = rate(value);
            break;
        case NL80211_STA_INFO_RX_BITRATE:
            found.receive = rate(value);
            break;
        default:
            break;
        }
    });
    if (!found.signal) {
        found.signal = average;
    }
    return found.address.isEmpty() ? std::nullopt : std::optional(std::move(found));
}

std::optional<ChannelNoise> channelNoise(ByteSpan attributes)
{
    ChannelNoise found;
    std::optional<int> noise;
    forEachAttribute(
        attribute(attributes, NL80211_ATTR_SURVEY_INFO), [&](int type, ByteSpan value) {
            if (type == NL80211_SURVEY_INFO_FREQUENCY) {
                found.frequency = number(value);
            } else if (type == NL80211_SURVEY_INFO_NOISE) {
                noise = level(value);
            } else if (type == NL80211_SURVEY_INFO_IN_USE) {
                found.inUse = true;
            }
        });
    if (found.frequency == 0 || !noise) {
        return std::nullopt;
    }
    found.noise = *noise;
    return found;
}

QString regulatoryCountry(ByteSpan attributes)
{
    const QString code = text(attribute(attributes, NL80211_ATTR_REG_ALPHA2));
    const auto isCapital = [](QChar letter) { return letter >= u'A' && letter <= u'Z'; };
    return code.size() == 2 && std::ranges::all_of(code, isCapital) ? code : QString();
}

} // namespace quillon
