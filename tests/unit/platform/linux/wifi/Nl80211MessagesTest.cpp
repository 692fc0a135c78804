// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/wifi/Nl80211Messages.h"

#include "unit/platform/linux/wifi/ElementBytes.h"
#include "unit/platform/linux/wifi/WirelessBytes.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

const QByteArray bssid = QByteArray::fromHex("021122AABBC0");

Nl80211Messages read(const NetlinkBytes &bytes)
{
    Nl80211Messages messages;
    forEachMessage(
        bytes.span(), [&](const nlmsghdr &message) { messages.add(message, wirelessFamily); });
    return messages;
}

NetlinkBytes station(const QByteArray &info)
{
    return wireless(NL80211_CMD_NEW_STATION,
        {{NL80211_ATTR_IFINDEX, u32(3)}, {NL80211_ATTR_MAC, bssid}, {NL80211_ATTR_STA_INFO, info}});
}

Rate transmitRate(std::initializer_list<std::pair<int, QByteArray>> rate)
{
    const Nl80211Messages messages =
        read(station(attributes({{NL80211_STA_INFO_TX_BITRATE, attributes(rate)}})));
    return messages.stations.isEmpty() ? Rate{} : messages.stations.first().transmit;
}

NetlinkBytes interface(std::initializer_list<std::pair<int, QByteArray>> more)
{
    NetlinkBytes bytes = wireless(NL80211_CMD_NEW_INTERFACE,
        {{NL80211_ATTR_IFINDEX, u32(3)}, {NL80211_ATTR_IFNAME, QByteArray("wlp2s0\0", 7)},
            {NL80211_ATTR_IFTYPE, u32(NL80211_IFTYPE_STATION)}});
    for (const auto &[type, value] : more) {
        bytes.attribute(static_cast<quint16>(type), value);
    }
    return bytes;
}

NetlinkBytes network(const QByteArray &bss)
{
    return wireless(
        NL80211_CMD_NEW_SCAN_RESULTS, {{NL80211_ATTR_IFINDEX, u32(3)}, {NL80211_ATTR_BSS, bss}});
}

} // namespace

TEST(Nl80211Messages, TellsEverythingOfAnInterface)
{
    const Nl80211Messages messages = read(interface({{NL80211_ATTR_WIPHY, u32(1)},
        {NL80211_ATTR_SSID, "Quiet House"}, {NL80211_ATTR_WIPHY_FREQ, u32(5180)},
        {NL80211_ATTR_CHANNEL_WIDTH, u32(NL80211_CHAN_WIDTH_80)},
        {NL80211_ATTR_WIPHY_CHANNEL_TYPE, u32(NL80211_CHAN_HT40PLUS)}}));
    ASSERT_EQ(messages.interfaces.size(), 1);
    const StationInterface &found = messages.interfaces.first();
    EXPECT_EQ(found.index, 3U);
    EXPECT_EQ(found.radio, 1U);
    EXPECT_EQ(found.name, u"wlp2s0"_s);
    EXPECT_EQ(found.ssid, "Quiet House");
    EXPECT_EQ(found.frequency, 5180U);
    EXPECT_EQ(found.width, 80);
    EXPECT_FALSE(found.legacyChannel);
}

TEST(Nl80211Messages, WidthsOfChannels)
{
    const auto widthOf = [](quint32 width) {
        return read(interface({{NL80211_ATTR_CHANNEL_WIDTH, u32(width)}})).interfaces.first().width;
    };
    EXPECT_EQ(widthOf(NL80211_CHAN_WIDTH_20_NOHT), 20);
    EXPECT_EQ(widthOf(NL80211_CHAN_WIDTH_20), 20);
    EXPECT_EQ(widthOf(NL80211_CHAN_WIDTH_40), 40);
    EXPECT_EQ(widthOf(NL80211_CHAN_WIDTH_80), 80);
    EXPECT_EQ(widthOf(NL80211_CHAN_WIDTH_80P80), 160);
    EXPECT_EQ(widthOf(NL80211_CHAN_WIDTH_160), 160);
    EXPECT_EQ(widthOf(NL80211_CHAN_WIDTH_320), 320);
    EXPECT_EQ(widthOf(NL80211_CHAN_WIDTH_10), 0);
    EXPECT_EQ(widthOf(0xffffffff), 0);
    const auto widthOfType = [](quint32 type) {
        return read(interface({{NL80211_ATTR_WIPHY_CHANNEL_TYPE, u32(type)}})).interfaces.first();
    };
    EXPECT_EQ(widthOfType(NL80211_CHAN_HT40MINUS).width, 40);
    EXPECT_EQ(widthOfType(NL80211_CHAN_HT20).width, 20);
    EXPECT_FALSE(widthOfType(NL80211_CHAN_HT20).legacyChannel);
    EXPECT_TRUE(widthOfType(NL80211_CHAN_NO_HT).legacyChannel);
}

TEST(Nl80211Messages, InterfacesThatJoinNothingAreLeftOut)
{
    NetlinkBytes bytes;
    for (const quint32 kind : {NL80211_IFTYPE_AP, NL80211_IFTYPE_MONITOR, NL80211_IFTYPE_MESH_POINT,
             NL80211_IFTYPE_P2P_GO}) {
        addWireless(bytes, NL80211_CMD_NEW_INTERFACE,
            {{NL80211_ATTR_IFINDEX, u32(3)}, {NL80211_ATTR_IFNAME, "x"},
                {NL80211_ATTR_IFTYPE, u32(kind)}});
    }
    addWireless(bytes, NL80211_CMD_NEW_INTERFACE,
        {{NL80211_ATTR_IFNAME, "x"}, {NL80211_ATTR_IFTYPE, u32(NL80211_IFTYPE_STATION)}});
    addWireless(bytes, NL80211_CMD_NEW_INTERFACE,
        {{NL80211_ATTR_IFINDEX, u32(3)}, {NL80211_ATTR_IFTYPE, u32(NL80211_IFTYPE_STATION)}});
    addWireless(bytes, NL80211_CMD_NEW_INTERFACE,
        {{NL80211_ATTR_IFINDEX, u32(3)}, {NL80211_ATTR_IFNAME, "x"}, {NL80211_ATTR_IFTYPE, "\2"}});
    EXPECT_TRUE(read(bytes).interfaces.isEmpty());
}

TEST(Nl80211Messages, NamesAndSsidsThatAreTooLongAreCut)
{
    NetlinkBytes bytes = wireless(NL80211_CMD_NEW_INTERFACE,
        {{NL80211_ATTR_IFINDEX, u32(3)}, {NL80211_ATTR_IFNAME, QByteArray(300, 'w')},
            {NL80211_ATTR_IFTYPE, u32(NL80211_IFTYPE_STATION)},
            {NL80211_ATTR_SSID, QByteArray(4000, 's')}});
    const StationInterface found = read(bytes).interfaces.first();
    EXPECT_EQ(found.name.size(), 15);
    EXPECT_EQ(found.ssid.size(), 32);
}

TEST(Nl80211Messages, TellsEverythingOfTheJoinedNetwork)
{
    const QByteArray bss = attributes({{NL80211_BSS_BSSID, bssid},
        {NL80211_BSS_MLD_ADDR, QByteArray::fromHex("021122aabbff")},
        {NL80211_BSS_FREQUENCY, u32(2484)}, {NL80211_BSS_CAPABILITY, numberBytes(quint16{0x0011})},
        {NL80211_BSS_SIGNAL_MBM, u32(static_cast<quint32>(-6150))},
        {NL80211_BSS_INFORMATION_ELEMENTS, ssidElement("Attic")},
        {NL80211_BSS_BEACON_IES, ssidElement("")},
        {NL80211_BSS_STATUS, u32(NL80211_BSS_STATUS_ASSOCIATED)}});
    const Nl80211Messages messages = read(network(bss));
    ASSERT_EQ(messages.networks.size(), 1);
    const JoinedNetwork &found = messages.networks.first();
    EXPECT_EQ(found.bssid, u"02:11:22:aa:bb:c0"_s);
    EXPECT_EQ(found.linkDevice, u"02:11:22:aa:bb:ff"_s);
    EXPECT_EQ(found.frequency, 2484U);
    EXPECT_EQ(found.privacy, true);
    EXPECT_EQ(found.signal, -61);
    EXPECT_EQ(found.elements.ssid, "Attic");
}

TEST(Nl80211Messages, NetworksThatAreOnlyNearAreLeftOut)
{
    const auto isKept = [](std::initializer_list<std::pair<int, QByteArray>> bss) {
        return !read(network(attributes(bss))).networks.isEmpty();
    };
    EXPECT_FALSE(isKept({{NL80211_BSS_BSSID, bssid}}));
    EXPECT_FALSE(isKept(
        {{NL80211_BSS_BSSID, bssid}, {NL80211_BSS_STATUS, u32(NL80211_BSS_STATUS_AUTHENTICATED)}}));
    EXPECT_FALSE(isKept({{NL80211_BSS_BSSID, bssid}, {NL80211_BSS_STATUS, "\1"}}));
    EXPECT_FALSE(isKept({{NL80211_BSS_BSSID, bssid.left(5)},
        {NL80211_BSS_STATUS, u32(NL80211_BSS_STATUS_ASSOCIATED)}}));
    EXPECT_TRUE(isKept(
        {{NL80211_BSS_BSSID, bssid}, {NL80211_BSS_STATUS, u32(NL80211_BSS_STATUS_ASSOCIATED)}}));
}

TEST(Nl80211Messages, ElementsOfTheBeaconServeWhereNoProbeWasAnswered)
{
    const QByteArray bss =
        attributes({{NL80211_BSS_BSSID, bssid}, {NL80211_BSS_BEACON_IES, ssidElement("Attic")},
            {NL80211_BSS_STATUS, u32(NL80211_BSS_STATUS_ASSOCIATED)}});
    EXPECT_EQ(read(network(bss)).networks.first().elements.ssid, "Attic");
}

TEST(Nl80211Messages, SignalIsTheLastFramesOrElseTheAverage)
{
    const auto signalOf = [](std::initializer_list<std::pair<int, QByteArray>> info) {
        return read(station(attributes(info))).stations.first().signal;
    };
    const QByteArray minus52(1, static_cast<char>(-52));
    const QByteArray minus60(1, static_cast<char>(-60));
    EXPECT_EQ(
        signalOf({{NL80211_STA_INFO_SIGNAL, minus52}, {NL80211_STA_INFO_SIGNAL_AVG, minus60}}),
        -52);
    EXPECT_EQ(signalOf({{NL80211_STA_INFO_SIGNAL_AVG, minus60}}), -60);
    EXPECT_EQ(signalOf({{NL80211_STA_INFO_SIGNAL, {}}}), std::nullopt);
    EXPECT_TRUE(read(wireless(NL80211_CMD_NEW_STATION, {})).stations.isEmpty()) << "no address";
}

TEST(Nl80211Messages, RatesOfEachGeneration)
{
    using G = WiFiGeneration;
    const auto octet = [](int number) { return QByteArray(1, static_cast<char>(number)); };
    EXPECT_EQ(transmitRate({{NL80211_RATE_INFO_BITRATE, numberBytes(quint16{540})}}),
        (Rate{.hundredKilobits = 540, .generation = G::Legacy, .mcs = {}, .width = 0}));
    EXPECT_EQ(
        transmitRate({{NL80211_RATE_INFO_BITRATE32, u32(3000)}, {NL80211_RATE_INFO_MCS, octet(15)},
            {NL80211_RATE_INFO_40_MHZ_WIDTH, flag()}, {NL80211_RATE_INFO_SHORT_GI, flag()}}),
        (Rate{.hundredKilobits = 3000, .generation = G::HighThroughput, .mcs = 15, .width = 40}));
    EXPECT_EQ(transmitRate({{NL80211_RATE_INFO_BITRATE32, u32(8667)},
                  {NL80211_RATE_INFO_BITRATE, numberBytes(quint16{8667})},
                  {NL80211_RATE_INFO_VHT_MCS, octet(9)}, {NL80211_RATE_INFO_VHT_NSS, octet(2)},
                  {NL80211_RATE_INFO_80_MHZ_WIDTH, flag()}}),
        (Rate{
            .hundredKilobits = 8667, .generation = G::VeryHighThroughput, .mcs = 9, .width = 80}));
    EXPECT_EQ(
        transmitRate({{NL80211_RATE_INFO_BITRATE32, u32(24020)},
            {NL80211_RATE_INFO_HE_MCS, octet(11)}, {NL80211_RATE_INFO_160_MHZ_WIDTH, flag()}}),
        (Rate{.hundredKilobits = 24020, .generation = G::HighEfficiency, .mcs = 11, .width = 160}));
    EXPECT_EQ(
        transmitRate({{NL80211_RATE_INFO_BITRATE32, u32(115294)},
            {NL80211_RATE_INFO_EHT_MCS, octet(13)}, {NL80211_RATE_INFO_320_MHZ_WIDTH, flag()}}),
        (Rate{.hundredKilobits = 115294,
            .generation = G::ExtremelyHighThroughput,
            .mcs = 13,
            .width = 320}));
    EXPECT_EQ(
        transmitRate({{NL80211_RATE_INFO_MCS, {}}, {NL80211_RATE_INFO_BITRATE, "\1"}}), Rate{})
        << "values that are too short";
}

TEST(Nl80211Messages, NoiseOfAChannel)
{
    const auto survey = [](std::initializer_list<std::pair<int, QByteArray>> info) {
        return read(wireless(NL80211_CMD_NEW_SURVEY_RESULTS,
                        {{NL80211_ATTR_SURVEY_INFO, attributes(info)}}))
            .noises;
    };
    const QByteArray minus92(1, static_cast<char>(-92));
    EXPECT_EQ(survey({{NL80211_SURVEY_INFO_FREQUENCY, u32(5180)},
                  {NL80211_SURVEY_INFO_NOISE, minus92}, {NL80211_SURVEY_INFO_IN_USE, flag()}}),
        (QList<ChannelNoise>{{.frequency = 5180, .noise = -92, .inUse = true}}));
    EXPECT_TRUE(survey({{NL80211_SURVEY_INFO_FREQUENCY, u32(5180)}}).isEmpty());
    EXPECT_TRUE(survey({{NL80211_SURVEY_INFO_NOISE, minus92}}).isEmpty());
}

TEST(Nl80211Messages, CountriesAreTwoLetters)
{
    const auto country = [](const QByteArray &code) {
        return read(wireless(NL80211_CMD_GET_REG, {{NL80211_ATTR_REG_ALPHA2, code}}, 0))
            .countryCode;
    };
    EXPECT_EQ(country(QByteArray("UZ\0", 3)), u"UZ"_s);
    EXPECT_EQ(country("UZ"), u"UZ"_s) << "without its zero";
    for (const char *none : {"00", "99", "98", "", "U", "USA", "us", "\xff\xff"}) {
        EXPECT_EQ(country(none), QString()) << none;
    }
}

TEST(Nl80211Messages, OtherFamiliesAndCommandsAreNotOurs)
{
    const QByteArray country("UZ");
    NetlinkBytes bytes;
    bytes.message(quint16{wirelessFamily + 1}, genlmsghdr{NL80211_CMD_GET_REG, 1, 0})
        .attribute(NL80211_ATTR_REG_ALPHA2, country);
    addWireless(bytes, NL80211_CMD_NEW_KEY, {{NL80211_ATTR_REG_ALPHA2, country}});
    EXPECT_EQ(read(bytes).countryCode, QString());
    addWireless(bytes, NL80211_CMD_GET_REG, {{NL80211_ATTR_REG_ALPHA2, country}});
    EXPECT_EQ(read(bytes).countryCode, u"UZ"_s);
}

TEST(Nl80211Messages, LyingLengthsEndTheReading)
{
    for (const std::size_t length : {0U, 1U, 15U, 16U, 17U, 19U, 0x7fffffffU, 0xffffffffU}) {
        NetlinkBytes bytes = interface({});
        bytes.setMessageLength(length);
        EXPECT_TRUE(read(bytes).interfaces.isEmpty()) << length;
    }
    for (const int length : {0, 3, 0xffff}) {
        NetlinkBytes bytes = interface({});
        const QByteArray header =
            numberBytes(static_cast<quint16>(length)) + numberBytes(quint16{NL80211_ATTR_SSID});
        bytes.attribute(NL80211_ATTR_UNSPEC, {}); // to have an attribute whose length can lie
        QByteArray all = bytes.payload();
        all.replace(all.size() - 4, 4, header);
        Nl80211Messages messages;
        forEachMessage(
            spanOf(all), [&](const nlmsghdr &message) { messages.add(message, wirelessFamily); });
        ASSERT_EQ(messages.interfaces.size(), 1) << length;
        EXPECT_EQ(messages.interfaces.first().ssid, "") << length;
    }
}

} // namespace quillon::test
