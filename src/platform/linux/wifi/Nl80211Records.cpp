// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/wifi/Nl80211Records.h"

#include "netlink/NetlinkAttributes.h"
#include "platform/linux/netlink/LinkMessages.h"

#include <algorithm>
#include <linux/if.h>
#include <linux/nl80211.h>
#include <utility>

namespace quillon {

namespace {

constexpr std::size_t longestSsid = 32;

using MessageAttributes = NetlinkAttributes<NL80211_ATTR_MAX>;

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

// Of the marks for generations and widths a rate has one each.
constexpr std::pair<int, WiFiGeneration> generations[] = {
    {NL80211_RATE_INFO_MCS, WiFiGeneration::HighThroughput},
    {NL80211_RATE_INFO_VHT_MCS, WiFiGeneration::VeryHighThroughput},
    {NL80211_RATE_INFO_HE_MCS, WiFiGeneration::HighEfficiency},
    {NL80211_RATE_INFO_EHT_MCS, WiFiGeneration::ExtremelyHighThroughput},
};
constexpr std::pair<int, int> widths[] = {
    {NL80211_RATE_INFO_40_MHZ_WIDTH, 40},
    {NL80211_RATE_INFO_80_MHZ_WIDTH, 80},
    {NL80211_RATE_INFO_80P80_MHZ_WIDTH, 160},
    {NL80211_RATE_INFO_160_MHZ_WIDTH, 160},
    {NL80211_RATE_INFO_320_MHZ_WIDTH, 320},
};

Rate rate(ByteSpan bytes)
{
    const NetlinkAttributes<NL80211_RATE_INFO_MAX> info(bytes);
    Rate found;
    found.hundredKilobits = info.value<quint32>(NL80211_RATE_INFO_BITRATE32).value_or(0);
    if (found.hundredKilobits == 0) { // the narrow one serves slow rates alone
        found.hundredKilobits = info.value<quint16>(NL80211_RATE_INFO_BITRATE).value_or(0);
    }
    for (const auto &[type, generation] : generations) {
        if (const auto index = info.value<quint8>(type)) {
            found.generation = generation;
            found.mcs = *index;
        }
    }
    for (const auto &[type, width] : widths) {
        if (info.has(type)) {
            found.width = width;
        }
    }
    return found;
}

} // namespace

std::optional<StationInterface> stationInterface(ByteSpan bytes)
{
    const MessageAttributes attributes(bytes);
    StationInterface found;
    found.index = attributes.value<quint32>(NL80211_ATTR_IFINDEX).value_or(0);
    found.radio = attributes.value<quint32>(NL80211_ATTR_WIPHY).value_or(0);
    found.name = QString::fromUtf8(attributes.text(NL80211_ATTR_IFNAME).substr(0, IFNAMSIZ - 1));
    const ByteSpan ssid = attributes.bytes(NL80211_ATTR_SSID);
    found.ssid = QByteArray(reinterpret_cast<const char *>(ssid.data()),
        static_cast<qsizetype>(std::min(ssid.size(), longestSsid)));
    found.frequency = attributes.value<quint32>(NL80211_ATTR_WIPHY_FREQ).value_or(0);
    if (attributes.value<quint32>(NL80211_ATTR_IFTYPE) != NL80211_IFTYPE_STATION ||
        found.index == 0 || found.name.isEmpty()) {
        return std::nullopt;
    }
    if (const auto width = attributes.value<quint32>(NL80211_ATTR_CHANNEL_WIDTH)) {
        found.width = widthOf(*width);
        found.legacyChannel = *width == NL80211_CHAN_WIDTH_20_NOHT;
    } else if (const auto type = attributes.value<quint32>(NL80211_ATTR_WIPHY_CHANNEL_TYPE)) {
        found.width = widthOfType(*type);
        found.legacyChannel = *type == NL80211_CHAN_NO_HT;
    }
    return found;
}

std::optional<JoinedNetwork> joinedNetwork(ByteSpan bytes)
{
    constexpr quint16 privacyBit = 0x0010;
    const MessageAttributes attributes(bytes);
    const NetlinkAttributes<NL80211_BSS_MAX> bss(attributes.bytes(NL80211_ATTR_BSS));
    JoinedNetwork found;
    found.bssid = addressText(bss.bytes(NL80211_BSS_BSSID));
    if (bss.value<quint32>(NL80211_BSS_STATUS) != NL80211_BSS_STATUS_ASSOCIATED ||
        found.bssid.isEmpty()) {
        return std::nullopt;
    }
    found.linkDevice = addressText(bss.bytes(NL80211_BSS_MLD_ADDR));
    found.frequency = bss.value<quint32>(NL80211_BSS_FREQUENCY).value_or(0);
    if (const auto capability = bss.value<quint16>(NL80211_BSS_CAPABILITY)) {
        found.privacy = *capability & privacyBit;
    }
    if (const auto signal = bss.value<qint32>(NL80211_BSS_SIGNAL_MBM)) {
        found.signal = *signal / 100;
    }
    const ByteSpan elements = bss.bytes(NL80211_BSS_INFORMATION_ELEMENTS);
    found.elements =
        informationElements(elements.empty() ? bss.bytes(NL80211_BSS_BEACON_IES) : elements);
    return found;
}

std::optional<RemoteStation> remoteStation(ByteSpan bytes)
{
    const MessageAttributes attributes(bytes);
    const NetlinkAttributes<NL80211_STA_INFO_MAX> info(attributes.bytes(NL80211_ATTR_STA_INFO));
    RemoteStation found;
    found.address = addressText(attributes.bytes(NL80211_ATTR_MAC));
    if (found.address.isEmpty()) {
        return std::nullopt;
    }
    // Levels travel as one octet, in two's complement.
    for (const int type : {NL80211_STA_INFO_SIGNAL_AVG, NL80211_STA_INFO_SIGNAL}) {
        if (const auto level = info.value<qint8>(type)) {
            found.signal = *level;
        }
    }
    found.transmit = rate(info.bytes(NL80211_STA_INFO_TX_BITRATE));
    found.receive = rate(info.bytes(NL80211_STA_INFO_RX_BITRATE));
    return found;
}

std::optional<ChannelNoise> channelNoise(ByteSpan bytes)
{
    const MessageAttributes attributes(bytes);
    const NetlinkAttributes<NL80211_SURVEY_INFO_MAX> info(
        attributes.bytes(NL80211_ATTR_SURVEY_INFO));
    const auto frequency = info.value<quint32>(NL80211_SURVEY_INFO_FREQUENCY).value_or(0);
    const auto noise = info.value<qint8>(NL80211_SURVEY_INFO_NOISE);
    if (frequency == 0 || !noise) {
        return std::nullopt;
    }
    return ChannelNoise{
        .frequency = frequency, .noise = *noise, .inUse = info.has(NL80211_SURVEY_INFO_IN_USE)};
}

QString regulatoryCountry(ByteSpan bytes)
{
    const QString code = QString::fromUtf8(MessageAttributes(bytes).text(NL80211_ATTR_REG_ALPHA2));
    const auto isCapital = [](QChar letter) { return letter >= u'A' && letter <= u'Z'; };
    return code.size() == 2 && std::ranges::all_of(code, isCapital) ? code : QString();
}

} // namespace quillon
