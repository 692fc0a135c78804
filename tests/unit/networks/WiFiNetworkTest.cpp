// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "networks/WiFiNetwork.h"

#include "NetworkFixture.h"
#include "networks/WiFiRecord.h"

#include <limits>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class WiFiNetworkTest : public NetworkFixture
{
protected:
    WiFiNetworkTest()
    {
        QObject::connect(&network, &WiFiNetwork::networkButtonShown,
            [this](bool shown) { buttonShown << shown; });
    }

    static QVariantMap notAssociated()
    {
        return {
            {wifirecord::name, u"Not currently connected..."_s},
            {wifirecord::SSID, QString()},
            {wifirecord::BSSID, QString()},
            {wifirecord::ipAddress, QString()},
            {wifirecord::noise, QString()},
            {wifirecord::RSSI, QString()},
            {wifirecord::security, QString()},
            {wifirecord::txRate, QString()},
            {wifirecord::channel, QString()},
            {wifirecord::country, QString()},
            {wifirecord::phyMode, QString()},
            {wifirecord::mcs, QString()},
        };
    }
    void expectNotAssociated()
    {
        EXPECT_FALSE(network.updateWiFiNetwork());
        EXPECT_EQ(settings.getDictionary(keys::currentWiFiDict), notAssociated());
        EXPECT_EQ(buttonShown, QList<bool>{false});
    }

    QList<bool> buttonShown;
};

TEST_F(WiFiNetworkTest, IsRecordedAsTexts)
{
    network.updateWiFiNetwork();
    const QVariantMap expected = {
        {wifirecord::name, u"Home"_s},
        {wifirecord::SSID, u"Home"_s},
        {wifirecord::BSSID, homeBssid},
        {wifirecord::ipAddress, u"198.51.100.7"_s},
        {wifirecord::noise, u"-92 dBm"_s},
        {wifirecord::RSSI, u"-54 dBm"_s},
        {wifirecord::security, u"WPA2 Personal"_s},
        {wifirecord::txRate, u"866.7 Mbps"_s},
        {wifirecord::channel, u"36 (5 GHz, 80 MHz)"_s},
        {wifirecord::country, u"DE"_s},
        {wifirecord::phyMode, u"802.11ac"_s},
        {wifirecord::mcs, u"9"_s},
    };
    EXPECT_EQ(settings.getDictionary(keys::currentWiFiDict), expected);
}

TEST_F(WiFiNetworkTest, IsReturnedAsItsTwoNamesOnly)
{
    WiFiInterface wifi = home();
    wifi.bssid = wifi.bssid.toUpper();
    radio.join(wifi);
    const auto joined = network.updateWiFiNetwork();
    ASSERT_TRUE(joined);
    EXPECT_EQ(joined->bssid, homeBssid);
    EXPECT_EQ(joined->ssid, u"Home"_s);
    EXPECT_EQ(current(wifirecord::BSSID), homeBssid);
}

TEST_F(WiFiNetworkTest, ShowsItsButton)
{
    network.updateWiFiNetwork();
    EXPECT_EQ(buttonShown, QList<bool>{true});
}

TEST_F(WiFiNetworkTest, IsWrittenWholeAndFlushed)
{
    network.updateWiFiNetwork();
    EXPECT_EQ(settings.journal(), (QStringList{u"set currentWiFiDict"_s, u"synchronize"_s}));
}

TEST_F(WiFiNetworkTest, IsNoneWithoutAWiFiInterface)
{
    radio.interface.reset();
    expectNotAssociated();
}

TEST_F(WiFiNetworkTest, IsNoneWithoutAnAssociation)
{
    radio.leave();
    expectNotAssociated();
}

TEST_F(WiFiNetworkTest, IsNoneWhenItHidesItsName)
{
    radio.interface->ssid.clear();
    expectNotAssociated();
}

TEST_F(WiFiNetworkTest, IsNoneWithoutAnAccessPoint)
{
    radio.interface->bssid.clear();
    expectNotAssociated();
}

TEST_F(WiFiNetworkTest, LeavesNothingBehindWhenItIsLeft)
{
    network.updateWiFiNetwork();
    radio.leave();
    network.updateWiFiNetwork();
    EXPECT_EQ(settings.getDictionary(keys::currentWiFiDict), notAssociated());
    EXPECT_EQ(buttonShown, (QList<bool>{true, false}));
}

TEST_F(WiFiNetworkTest, KeepsKeysOfTheRecordThatAreNotIts)
{
    settings.set(
        keys::currentWiFiDict, QVariantMap{{u"spatialStreams"_s, 2}, {wifirecord::SSID, u"Old"_s}});
    network.updateWiFiNetwork();
    EXPECT_EQ(current(u"spatialStreams"_s), u"2"_s);
    EXPECT_EQ(current(wifirecord::SSID), u"Home"_s);
    radio.leave();
    network.updateWiFiNetwork();
    EXPECT_EQ(current(u"spatialStreams"_s), u"2"_s);
}

TEST_F(WiFiNetworkTest, HasTheNameUnderWhichItIsSaved)
{
    saveNetwork(homeBssid, u"Home"_s, u"Our house"_s);
    network.updateWiFiNetwork();
    EXPECT_EQ(current(wifirecord::name), u"Our house"_s);
    EXPECT_EQ(current(wifirecord::SSID), u"Home"_s);
}

TEST_F(WiFiNetworkTest, HasAnEmptyNameWhenItIsSavedSo)
{
    saveNetwork(homeBssid, u"Home"_s, QString());
    network.updateWiFiNetwork();
    EXPECT_EQ(current(wifirecord::name), QString());
}

TEST_F(WiFiNetworkTest, IsNotFoundAmongTheSavedOnesInAnotherLetterCase)
{
    saveNetwork(homeBssid, u"Home"_s, u"Our house"_s);
    radio.interface->bssid = homeBssid.toUpper();
    network.updateWiFiNetwork();
    EXPECT_EQ(current(wifirecord::name), u"Home"_s);
    EXPECT_EQ(current(wifirecord::BSSID), homeBssid);
}

TEST_F(WiFiNetworkTest, IsFoundAmongTheSavedOnesInTheLetterCaseThatIsRead)
{
    saveNetwork(homeBssid.toUpper(), u"Home"_s, u"Upper"_s);
    radio.interface->bssid = homeBssid.toUpper();
    network.updateWiFiNetwork();
    EXPECT_EQ(current(wifirecord::name), u"Upper"_s);
}

TEST_F(WiFiNetworkTest, ShowsTheAddressThatTheDeviceListsLast)
{
    host.at(u"wlp2s0"_s).ipv4 << u"198.51.100.8"_s;
    network.updateWiFiNetwork();
    EXPECT_EQ(current(wifirecord::ipAddress), u"198.51.100.8"_s);
}

TEST_F(WiFiNetworkTest, ShowsTheAddressOfTheRadioWhoseNetworkItIs)
{
    host.plug({u"Wi-Fi"_s, u"wlp9s0"_s, {}, u"02:00:00:00:00:09"_s, {u"203.0.113.9"_s}});
    DeviceTable(settings, host, addresses).updateNetWorkInterfaces();
    radio.interface->device = u"wlp9s0"_s;
    network.updateWiFiNetwork();
    EXPECT_EQ(current(wifirecord::ipAddress), u"203.0.113.9"_s);
    radio.interface->device = u"wlp2s0"_s;
    network.updateWiFiNetwork();
    EXPECT_EQ(current(wifirecord::ipAddress), u"198.51.100.7"_s);
    radio.interface->device.clear();
    network.updateWiFiNetwork();
    EXPECT_EQ(current(wifirecord::ipAddress), u"198.51.100.7"_s);
}

TEST_F(WiFiNetworkTest, SaysWhoseItIsWhereThereAreSeveralRadios)
{
    host.plug({u"Wi-Fi"_s, u"wlp9s0"_s, {}, u"02:00:00:00:00:09"_s, {}});
    DeviceTable(settings, host, addresses).updateNetWorkInterfaces();
    for (const QString &device : {u"wlp9s0"_s, u"wlp2s0"_s}) {
        radio.interface->device = device;
        network.updateWiFiNetwork();
        EXPECT_EQ(current(wifirecord::device), device);
        EXPECT_TRUE(WiFiRecord::stored(settings).isOf(device));
        EXPECT_FALSE(WiFiRecord::stored(settings).isOf(u"wlp7s0"_s));
    }
    radio.leave();
    network.updateWiFiNetwork();
    EXPECT_EQ(settings.getDictionary(keys::currentWiFiDict), notAssociated());
}

TEST_F(WiFiNetworkTest, SaysWhoseItIsWhereTheTableDoesNotKnowTheRadioYet)
{
    for (const bool isEmpty : {false, true}) {
        if (isEmpty) {
            settings.set(keys::deviceDict, QVariantMap());
        }
        radio.interface->device = u"wlp9s0"_s;
        network.updateWiFiNetwork();
        EXPECT_TRUE(WiFiRecord::stored(settings).isOf(u"wlp9s0"_s));
        EXPECT_FALSE(WiFiRecord::stored(settings).isOf(u"wlp2s0"_s)) << isEmpty;
    }
}

TEST_F(WiFiNetworkTest, HasAnEmptyAddressWithoutAnyOnTheWiFiDevice)
{
    host.at(u"wlp2s0"_s).ipv4.clear();
    network.updateWiFiNetwork();
    EXPECT_EQ(current(wifirecord::ipAddress), QString());
}

TEST_F(WiFiNetworkTest, HasAnEmptyAddressWhileNoDeviceIsKnownAsWiFi)
{
    store({});
    network.updateWiFiNetwork();
    EXPECT_EQ(current(wifirecord::ipAddress), QString());
    EXPECT_EQ(current(wifirecord::SSID), u"Home"_s);
}

TEST_F(WiFiNetworkTest, PrintsUnknownValuesAsTheyAreRead)
{
    WiFiInterface wifi;
    wifi.ssid = u"Bare"_s;
    wifi.bssid = officeBssid;
    radio.join(wifi);
    network.updateWiFiNetwork();
    EXPECT_EQ(current(wifirecord::noise), QString());
    EXPECT_EQ(current(wifirecord::RSSI), QString());
    EXPECT_EQ(current(wifirecord::txRate), u"0 Mbps"_s);
    EXPECT_EQ(current(wifirecord::security), u"Unknown"_s);
    EXPECT_EQ(current(wifirecord::channel), u"0 (Unknown, Unknown)"_s);
    EXPECT_EQ(current(wifirecord::country), QString());
    EXPECT_EQ(current(wifirecord::phyMode), u"None"_s);
    EXPECT_EQ(current(wifirecord::mcs), QString());
}

TEST_F(WiFiNetworkTest, HasAnEmptyIndexWhereTheDriverTellsNone)
{
    radio.interface->mcsIndex.reset();
    network.updateWiFiNetwork();
    EXPECT_EQ(current(wifirecord::mcs), QString());
    radio.interface->mcsIndex = 0;
    network.updateWiFiNetwork();
    EXPECT_EQ(current(wifirecord::mcs), u"0"_s);
}

struct Rate
{
    double megabits;
    const char *text;
};

class WiFiNetworkTransmitRate : public WiFiNetworkTest, public ::testing::WithParamInterface<Rate>
{
};

TEST_P(WiFiNetworkTransmitRate, IsPlainDecimalText)
{
    radio.interface->transmitRate = GetParam().megabits;
    network.updateWiFiNetwork();
    EXPECT_EQ(current(wifirecord::txRate), QString::fromLatin1(GetParam().text));
}

INSTANTIATE_TEST_SUITE_P(Rates, WiFiNetworkTransmitRate,
    ::testing::Values(Rate{144, "144 Mbps"}, Rate{6.5, "6.5 Mbps"}, Rate{14.4, "14.4 Mbps"},
        Rate{1200.9, "1200.9 Mbps"}, Rate{100000, "100000 Mbps"}, Rate{4803000, "4803000 Mbps"},
        Rate{0.1, "0.1 Mbps"}));

TEST_F(WiFiNetworkTest, FillsNothingIntoANameThatLooksLikeAPlaceholder)
{
    radio.interface->ssid = u"%@ %1 <b>"_s;
    network.updateWiFiNetwork();
    EXPECT_EQ(current(wifirecord::name), u"%@ %1 <b>"_s);
    EXPECT_EQ(current(wifirecord::channel), u"36 (5 GHz, 80 MHz)"_s);
}

TEST_F(WiFiNetworkTest, SurvivesSavedNetworksThatAreNone)
{
    const QVariantList hostile = {u"text"_s, 5, QVariantList{1, 2},
        QVariantMap{{homeBssid, u"no entry"_s}}, QVariantMap{{homeBssid, QVariantMap{}}},
        QVariantMap{{homeBssid, QVariantMap{{savedentry::name, 7}}}}};
    for (const QVariant &list : hostile) {
        settings.set(keys::savedNetworks, list);
        network.updateWiFiNetwork();
        EXPECT_EQ(current(wifirecord::name), u"Home"_s);
        EXPECT_EQ(settings.get(keys::savedNetworks), normalizedPropertyList(list));
    }
}

TEST_F(WiFiNetworkTest, ReplacesARecordThatIsNone)
{
    settings.set(keys::currentWiFiDict, u"text"_s);
    network.updateWiFiNetwork();
    EXPECT_EQ(current(wifirecord::SSID), u"Home"_s);
}

} // namespace
} // namespace quillon::test
