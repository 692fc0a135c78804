// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/wifi/WiFiReading.h"

#include "Places.h"
#include "wifi/Nl80211Capture.h"

#include <QFile>
#include <QHash>
#include <gtest/gtest.h>

#include <cerrno>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

using Table = Nl80211Request::Table;

std::optional<WiFiInterface> reading(const char *name)
{
    QFile file(testData() + u"/wifi/%1.nl80211"_s.arg(QLatin1String(name)));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    auto capture = Nl80211Capture::fromText(file.readAll());
    EXPECT_TRUE(capture) << name;
    return capture ? readWiFi(*capture) : std::nullopt;
}

/// A kernel that answers what it is told to.
class Answers : public Nl80211Exchange
{
public:
    Nl80211Messages ask(const Nl80211Request &request) override
    {
        asked.append(request);
        if (request.table == refused) {
            Nl80211Messages refusal;
            refusal.error = EOPNOTSUPP;
            return refusal;
        }
        return answer;
    }

    Nl80211Messages answer;
    std::optional<Table> refused;
    QList<Nl80211Request> asked;
};

Answers joined()
{
    Answers kernel;
    StationInterface interface;
    interface.index = 3;
    interface.radio = 7;
    interface.name = u"wlp2s0"_s;
    interface.ssid = "Quiet House";
    interface.frequency = 5180;
    interface.width = 80;
    JoinedNetwork network;
    network.bssid = u"02:11:22:aa:bb:c0"_s;
    network.frequency = 5180;
    network.privacy = false;
    network.signal = -70;
    network.elements.complete = true;
    RemoteStation station;
    station.address = network.bssid;
    station.signal = -52;
    kernel.answer.interfaces = {interface};
    kernel.answer.networks = {network};
    kernel.answer.stations = {station};
    return kernel;
}

int mode(Answers kernel)
{
    return readWiFi(kernel)->activePHYMode;
}

} // namespace

TEST(WiFiReading, Wpa2At80MHzOnChannel36)
{
    WiFiInterface expected;
    expected.device = u"wlp2s0"_s;
    expected.ssid = u"Quiet House"_s;
    expected.bssid = u"02:11:22:aa:bb:c0"_s;
    expected.noise = -92;
    expected.rssi = -52;
    expected.security = WiFiInterface::WPA2Personal;
    expected.transmitRate = 866.7;
    expected.channel = {.number = 36, .band = 2, .width = 3};
    expected.countryCode = u"UZ"_s;
    expected.activePHYMode = 5;
    expected.mcsIndex = 9;
    EXPECT_EQ(reading("wpa2-psk"), expected);
}

// What iw(8) showed on that machine at that moment.
TEST(WiFiReading, RecordedFromAKernel)
{
    WiFiInterface expected;
    expected.device = u"wlan0"_s;
    expected.countryCode = u"DE"_s;
    EXPECT_EQ(reading("recorded-idle"), expected);
    expected.ssid = u"Quiet House"_s;
    expected.bssid = u"02:00:00:00:01:00"_s;
    expected.noise = -92;
    expected.rssi = -27;
    expected.security = WiFiInterface::WPA2Personal;
    expected.transmitRate = 26;
    expected.channel = {.number = 36, .band = 2, .width = 3};
    expected.activePHYMode = 5;
    expected.mcsIndex = 0;
    EXPECT_EQ(reading("recorded-wpa2-psk"), expected);
    expected.ssid = u"Zukunft"_s;
    expected.security = WiFiInterface::WPA3Personal;
    expected.transmitRate = 13.5;
    EXPECT_EQ(reading("recorded-wpa3-sae"), expected);
    expected.ssid = u"Cafe"_s;
    expected.rssi = -30;
    expected.security = WiFiInterface::None;
    expected.transmitRate = 26;
    expected.channel = {.number = 1, .band = 1, .width = 1};
    expected.activePHYMode = 4;
    expected.mcsIndex = 9;
    EXPECT_EQ(reading("recorded-open"), expected);
    expected.ssid = u"Behind the curtain"_s;
    expected.security = WiFiInterface::WPAPersonalMixed;
    expected.channel.number = 6;
    EXPECT_EQ(reading("recorded-hidden"), expected);
}

TEST(WiFiReading, OpenOn2GHz)
{
    const auto wifi = reading("open");
    EXPECT_EQ(wifi->ssid, u"Cafe"_s);
    EXPECT_EQ(wifi->security, WiFiInterface::None);
    EXPECT_EQ(wifi->channel, (WiFiInterface::Channel{.number = 6, .band = 1, .width = 1}));
    EXPECT_EQ(wifi->activePHYMode, 4);
    EXPECT_EQ(wifi->transmitRate, 72.2);
    EXPECT_EQ(wifi->mcsIndex, 7);
}

TEST(WiFiReading, Wpa3At160MHz)
{
    const auto wifi = reading("wpa3-sae");
    EXPECT_EQ(wifi->ssid, u"Zukunft ü"_s);
    EXPECT_EQ(wifi->security, WiFiInterface::WPA3Personal);
    EXPECT_EQ(wifi->channel, (WiFiInterface::Channel{.number = 100, .band = 2, .width = 4}));
    EXPECT_EQ(wifi->activePHYMode, 6);
    EXPECT_EQ(wifi->transmitRate, 2402);
}

TEST(WiFiReading, OtherProtections)
{
    EXPECT_EQ(reading("wep")->security, WiFiInterface::WEP);
    EXPECT_EQ(reading("wpa-psk")->security, WiFiInterface::WPAPersonal);
    EXPECT_EQ(reading("mixed")->security, WiFiInterface::WPAPersonalMixed);
    EXPECT_EQ(reading("transition")->security, WiFiInterface::WPA3Transition);
    EXPECT_EQ(reading("enterprise")->security, WiFiInterface::WPA2Enterprise);
    EXPECT_EQ(reading("owe")->security, WiFiInterface::OWETransition);
}

TEST(WiFiReading, OldModes)
{
    EXPECT_EQ(reading("wep")->activePHYMode, 2);
    EXPECT_EQ(
        reading("wep")->channel, (WiFiInterface::Channel{.number = 14, .band = 1, .width = 1}));
    EXPECT_EQ(reading("wep")->mcsIndex, std::nullopt);
    EXPECT_EQ(reading("wpa-psk")->activePHYMode, 3);
    EXPECT_EQ(reading("wpa-psk")->countryCode, QString()) << "the world is no country";
}

TEST(WiFiReading, AHiddenNetworkHasTheNameThatWasAskedFor)
{
    EXPECT_EQ(reading("hidden")->ssid, u"Behind the curtain"_s);
    Answers kernel = joined();
    kernel.answer.interfaces.first().ssid.clear();
    kernel.answer.networks.first().elements.ssid = QByteArray(9, '\0');
    EXPECT_EQ(readWiFi(kernel)->ssid, QString());
    EXPECT_EQ(readWiFi(kernel)->bssid, u"02:11:22:aa:bb:c0"_s);
}

TEST(WiFiReading, SixGHzAt320MHzHasAWidthThatTheTableDoesNotKnow)
{
    const auto wifi = reading("6-ghz");
    EXPECT_EQ(wifi->channel, (WiFiInterface::Channel{.number = 37, .band = 3, .width = 0}));
    EXPECT_EQ(wifi->activePHYMode, 7);
    EXPECT_EQ(wifi->security, WiFiInterface::WPA3Personal);
}

TEST(WiFiReading, AnInterfaceThatTellsLittleIsReadFromNetworkAndRates)
{
    const auto wifi = reading("mixed");
    EXPECT_EQ(wifi->ssid, u"Both"_s);
    EXPECT_EQ(wifi->channel, (WiFiInterface::Channel{.number = 11, .band = 1, .width = 2}));
    EXPECT_EQ(wifi->noise, -92);
    EXPECT_EQ(wifi->activePHYMode, 4) << "frames are received at a newer rate than they are sent";
    EXPECT_EQ(wifi->mcsIndex, std::nullopt) << "the rate of transfer is one without an index";
}

TEST(WiFiReading, TheFirstInterfaceCountsWhereNoneHasJoined)
{
    WiFiInterface expected;
    expected.device = u"wlp2s0"_s;
    expected.countryCode = u"UZ"_s;
    EXPECT_EQ(reading("not-joined"), expected);
}

/// A kernel with several interfaces, each of which has joined a network or not.
class SeveralRadios : public Nl80211Exchange
{
public:
    void plug(quint32 index, const QString &name, const QString &bssid)
    {
        StationInterface interface;
        interface.index = index;
        interface.radio = index;
        interface.name = name;
        interface.ssid = "Quiet House";
        m_interfaces.prepend(interface);
        if (!bssid.isEmpty()) {
            JoinedNetwork network;
            network.bssid = bssid;
            m_networks.insert(index, network);
        }
    }
    Nl80211Messages ask(const Nl80211Request &request) override
    {
        Nl80211Messages answer;
        switch (request.table) {
        case Table::Interfaces:
            answer.interfaces = m_interfaces;
            break;
        case Table::Networks:
            if (m_networks.contains(request.index)) {
                answer.networks = {m_networks.value(request.index)};
            }
            break;
        case Table::Stations:
            answer.stations = {
                {.address = m_networks.value(request.index).bssid,
                    .signal = -40 - static_cast<int>(request.index),
                    .transmit = {},
                    .receive = {}},
            };
            break;
        case Table::RegulatoryDomain:
            answer.countryCode = u"D%1"_s.arg(QChar(u'A' + static_cast<char16_t>(request.index)));
            break;
        case Table::Noises:
            break;
        }
        return answer;
    }

private:
    QList<StationInterface> m_interfaces;
    QHash<quint32, JoinedNetwork> m_networks;
};

TEST(WiFiReading, OfSeveralRadiosTheFirstThatHasJoinedANetworkIsRead)
{
    const QString one = u"02:11:22:aa:bb:01"_s;
    const QString other = u"02:11:22:aa:bb:02"_s;
    SeveralRadios second;
    second.plug(3, u"wlp2s0"_s, QString());
    second.plug(5, u"wlp7s0"_s, other);
    EXPECT_EQ(readWiFi(second)->device, u"wlp7s0"_s);
    EXPECT_EQ(readWiFi(second)->bssid, other);
    EXPECT_EQ(readWiFi(second)->rssi, -45);
    EXPECT_EQ(readWiFi(second)->countryCode, u"DF"_s);
    SeveralRadios both;
    both.plug(3, u"wlp2s0"_s, one);
    both.plug(5, u"wlp7s0"_s, other);
    EXPECT_EQ(readWiFi(both)->device, u"wlp2s0"_s) << "in the order of their indexes";
    SeveralRadios none;
    none.plug(3, u"wlp2s0"_s, QString());
    none.plug(5, u"wlp7s0"_s, QString());
    EXPECT_EQ(readWiFi(none)->device, u"wlp2s0"_s);
    EXPECT_EQ(readWiFi(none)->countryCode, u"DD"_s);
}

TEST(WiFiReading, NoInterfaceIsNone)
{
    EXPECT_EQ(reading("no-interface"), std::nullopt);
    Answers kernel;
    kernel.refused = Table::Interfaces;
    EXPECT_EQ(readWiFi(kernel), std::nullopt);
    EXPECT_EQ(kernel.asked.size(), 1) << "nothing more is asked";
}

TEST(WiFiReading, TablesThatFailLeaveTheirFieldsUnknown)
{
    EXPECT_EQ(reading("shutting-down")->bssid, QString());
    Answers kernel = joined();
    kernel.refused = Table::Stations;
    EXPECT_EQ(readWiFi(kernel)->rssi, -70) << "that of the scan";
    EXPECT_EQ(readWiFi(kernel)->transmitRate, 0);
    kernel.refused = Table::Noises;
    EXPECT_EQ(readWiFi(kernel)->noise, 0);
    kernel.refused = Table::RegulatoryDomain;
    EXPECT_EQ(readWiFi(kernel)->countryCode, QString());
    kernel.refused = Table::Networks;
    EXPECT_EQ(readWiFi(kernel)->bssid, QString());
    kernel.refused.reset();
    EXPECT_EQ(readWiFi(kernel)->rssi, -52);
}

TEST(WiFiReading, AsksForTheInterfaceAndItsRadio)
{
    Answers kernel = joined();
    readWiFi(kernel);
    EXPECT_EQ(
        kernel.asked, (QList<Nl80211Request>{{Table::Interfaces, 0}, {Table::Networks, 3},
                          {Table::Stations, 3}, {Table::Noises, 3}, {Table::RegulatoryDomain, 7}}));
}

TEST(WiFiReading, TheStationIsTheNetworksOrItsDevices)
{
    Answers kernel = joined();
    kernel.answer.stations.first().address = u"02:99:99:99:99:99"_s;
    EXPECT_EQ(readWiFi(kernel)->rssi, -70) << "a neighbor with a direct link";
    kernel.answer.networks.first().linkDevice = u"02:99:99:99:99:99"_s;
    EXPECT_EQ(readWiFi(kernel)->rssi, -52);
}

TEST(WiFiReading, NoiseIsThatOfTheChannelAndOfItsUse)
{
    Answers kernel = joined();
    kernel.answer.noises = {{.frequency = 2412, .noise = -99, .inUse = true},
        {.frequency = 5180, .noise = -95, .inUse = false},
        {.frequency = 5180, .noise = -91, .inUse = true},
        {.frequency = 5180, .noise = -90, .inUse = false}};
    EXPECT_EQ(readWiFi(kernel)->noise, -91);
}

TEST(WiFiReading, ModeBeforeTheFirstFastFrameIsWhatTheNetworkOffers)
{
    Answers kernel = joined();
    EXPECT_EQ(mode(kernel), 1) << "5 GHz, nothing newer";
    kernel.answer.networks.first().elements.generation = WiFiGeneration::HighEfficiency;
    EXPECT_EQ(mode(kernel), 6);
    kernel.answer.stations.first().receive.generation = WiFiGeneration::VeryHighThroughput;
    EXPECT_EQ(mode(kernel), 5) << "the rates in use are the truth";
    kernel.answer.stations.first().receive.generation = WiFiGeneration::Legacy;
    kernel.answer.interfaces.first().legacyChannel = true;
    EXPECT_EQ(mode(kernel), 1);
}

TEST(WiFiReading, ChannelsOfFrequencies)
{
    const auto channel = [](quint32 frequency) { return channelOf(frequency, 20).number; };
    const auto band = [](quint32 frequency) { return channelOf(frequency, 20).band; };
    EXPECT_EQ(channel(2412), 1);
    EXPECT_EQ(channel(2472), 13);
    EXPECT_EQ(channel(2484), 14);
    EXPECT_EQ(band(2484), 1);
    EXPECT_EQ(channel(4920), 184);
    EXPECT_EQ(channel(5035), 7);
    EXPECT_EQ(channel(5180), 36);
    EXPECT_EQ(channel(5885), 177);
    EXPECT_EQ(band(5885), 2);
    EXPECT_EQ(channel(5935), 2);
    EXPECT_EQ(channel(5955), 1);
    EXPECT_EQ(channel(7115), 233);
    EXPECT_EQ(band(5935), 3);
    EXPECT_EQ(band(7115), 3);
    for (const quint32 none :
        {0U, 1U, 2407U, 2413U, 2477U, 2489U, 5181U, 5950U, 7120U, 58320U, 0xffffffffU}) {
        EXPECT_EQ(channelOf(none, 20), (WiFiInterface::Channel{.number = 0, .band = 0, .width = 1}))
            << none;
    }
    EXPECT_EQ(channelOf(5180, 0).width, 0);
    EXPECT_EQ(channelOf(5180, 320).width, 0);
}

} // namespace quillon::test
