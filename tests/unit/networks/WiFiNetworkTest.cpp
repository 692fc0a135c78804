// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "networks/WiFiNetwork.h"

#include "NetworkFixture.h"

#include <limits>

namespace quillon::test {
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
            {wifirecord::name, QStringLiteral("Not currently connected...")},
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
        {wifirecord::name, QStringLiteral("Home")},
        {wifirecord::SSID, QStringLiteral("Home")},
        {wifirecord::BSSID, homeBssid},
        {wifirecord::ipAddress, QStringLiteral("198.51.100.7")},
        {wifirecord::noise, QStringLiteral("-92 dBm")},
        {wifirecord::RSSI, QStringLiteral("-54 dBm")},
        {wifirecord::security, QStringLiteral("WPA2 Personal")},
        {wifirecord::txRate, QStringLiteral("866.7 Mbps")},
        {wifirecord::channel, QStringLiteral("36 (5 GHz, 80 MHz)")},
        {wifirecord::country, QStringLiteral("DE")},
        {wifirecord::phyMode, QStringLiteral("802.11ac")},
        {wifirecord::mcs, QStringLiteral("9")},
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
    EXPECT_EQ(joined->ssid, QStringLiteral("Home"));
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
    EXPECT_EQ(settings.journal(),
        (QStringList{QStringLiteral("set currentWiFiDict"), QStringLiteral("synchronize")}));
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
    settings.set(keys::currentWiFiDict, QVariantMap{{QStringLiteral("spatialStreams"), 2},
                                            {wifirecord::SSID, QStringLiteral("Old")}});
    network.updateWiFiNetwork();
    EXPECT_EQ(current(QStringLiteral("spatialStreams")), QStringLiteral("2"));
    EXPECT_EQ(current(wifirecord::SSID), QStringLiteral("Home"));
    radio.leave();
    network.updateWiFiNetwork();
    EXPECT_EQ(current(QStringLiteral("spatialStreams")), QStringLiteral("2"));
}

TEST_F(WiFiNetworkTest, HasTheNameUnderWhichItIsSaved)
{
    saveNetwork(homeBssid, QStringLiteral("Home"), QStringLiteral("Our house"));
    network.updateWiFiNetwork();
    EXPECT_EQ(current(wifirecord::name), QStringLiteral("Our house"));
    EXPECT_EQ(current(wifirecord::SSID), QStringLiteral("Home"));
}

TEST_F(WiFiNetworkTest, HasAnEmptyNameWhenItIsSavedSo)
{
    saveNetwork(homeBssid, QStringLiteral("Home"), QString());
    network.updateWiFiNetwork();
    EXPECT_EQ(current(wifirecord::name), QString());
}

TEST_F(WiFiNetworkTest, IsNotFoundAmongTheSavedOnesInAnotherLetterCase)
{
    saveNetwork(homeBssid, QStringLiteral("Home"), QStringLiteral("Our house"));
    radio.interface->bssid = homeBssid.toUpper();
    network.updateWiFiNetwork();
    EXPECT_EQ(current(wifirecord::name), QStringLiteral("Home"));
    EXPECT_EQ(current(wifirecord::BSSID), homeBssid);
}

TEST_F(WiFiNetworkTest, IsFoundAmongTheSavedOnesInTheLetterCaseThatIsRead)
{
    saveNetwork(homeBssid.toUpper(), QStringLiteral("Home"), QStringLiteral("Upper"));
    radio.interface->bssid = homeBssid.toUpper();
    network.updateWiFiNetwork();
    EXPECT_EQ(current(wifirecord::name), QStringLiteral("Upper"));
}

TEST_F(WiFiNetworkTest, ShowsTheAddressThatTheDeviceListsLast)
{
    host.at(QStringLiteral("wlp2s0")).ipv4 << QStringLiteral("198.51.100.8");
    network.updateWiFiNetwork();
    EXPECT_EQ(current(wifirecord::ipAddress), QStringLiteral("198.51.100.8"));
}

TEST_F(WiFiNetworkTest, HasAnEmptyAddressWithoutAnyOnTheWiFiDevice)
{
    host.at(QStringLiteral("wlp2s0")).ipv4.clear();
    network.updateWiFiNetwork();
    EXPECT_EQ(current(wifirecord::ipAddress), QString());
}

TEST_F(WiFiNetworkTest, HasAnEmptyAddressWhileNoDeviceIsKnownAsWiFi)
{
    store({});
    network.updateWiFiNetwork();
    EXPECT_EQ(current(wifirecord::ipAddress), QString());
    EXPECT_EQ(current(wifirecord::SSID), QStringLiteral("Home"));
}

TEST_F(WiFiNetworkTest, PrintsUnknownValuesAsTheyAreRead)
{
    WiFiInterface wifi;
    wifi.ssid = QStringLiteral("Bare");
    wifi.bssid = officeBssid;
    radio.join(wifi);
    network.updateWiFiNetwork();
    EXPECT_EQ(current(wifirecord::noise), QStringLiteral("0 dBm"));
    EXPECT_EQ(current(wifirecord::RSSI), QStringLiteral("0 dBm"));
    EXPECT_EQ(current(wifirecord::txRate), QStringLiteral("0 Mbps"));
    EXPECT_EQ(current(wifirecord::security), QStringLiteral("Unknown"));
    EXPECT_EQ(current(wifirecord::channel), QStringLiteral("0 (Unknown, Unknown)"));
    EXPECT_EQ(current(wifirecord::country), QString());
    EXPECT_EQ(current(wifirecord::phyMode), QStringLiteral("None"));
    EXPECT_EQ(current(wifirecord::mcs), QString());
}

TEST_F(WiFiNetworkTest, HasAnEmptyIndexWhereTheDriverTellsNone)
{
    radio.interface->mcsIndex.reset();
    network.updateWiFiNetwork();
    EXPECT_EQ(current(wifirecord::mcs), QString());
    radio.interface->mcsIndex = 0;
    network.updateWiFiNetwork();
    EXPECT_EQ(current(wifirecord::mcs), QStringLiteral("0"));
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
    radio.interface->ssid = QStringLiteral("%@ %1 <b>");
    network.updateWiFiNetwork();
    EXPECT_EQ(current(wifirecord::name), QStringLiteral("%@ %1 <b>"));
    EXPECT_EQ(current(wifirecord::channel), QStringLiteral("36 (5 GHz, 80 MHz)"));
}

TEST_F(WiFiNetworkTest, SurvivesSavedNetworksThatAreNone)
{
    const QVariantList hostile = {QStringLiteral("text"), 5, QVariantList{1, 2},
        QVariantMap{{homeBssid, QStringLiteral("no entry")}},
        QVariantMap{{homeBssid, QVariantMap{}}},
        QVariantMap{{homeBssid, QVariantMap{{savedentry::name, 7}}}}};
    for (const QVariant &list : hostile) {
        settings.set(keys::savedNetworks, list);
        network.updateWiFiNetwork();
        EXPECT_EQ(current(wifirecord::name), QStringLiteral("Home"));
        EXPECT_EQ(settings.get(keys::savedNetworks), normalizedPropertyList(list));
    }
}

TEST_F(WiFiNetworkTest, ReplacesARecordThatIsNone)
{
    settings.set(keys::currentWiFiDict, QStringLiteral("text"));
    network.updateWiFiNetwork();
    EXPECT_EQ(current(wifirecord::SSID), QStringLiteral("Home"));
}

} // namespace
} // namespace quillon::test
