// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/NetworkKeys.h"
#include "base/SettingsKeys.h"
#include "devices/DeviceTable.h"
#include "fakes/FakeInterfaceAddresses.h"
#include "fakes/FakeNetworkHost.h"
#include "fakes/FakeWiFiClient.h"
#include "fakes/QtPrinting.h"
#include "integration/platform/qt/settings/SettingsFileTest.h"
#include "networks/SavedAddresses.h"
#include "networks/SavedNetworks.h"
#include "networks/WiFiNetwork.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

/// One run of the program, as far as it keeps lists in the settings file.
struct ProgramRun
{
    ProgramRun(SettingsStore &store, FakeNetworkHost &host, FakeWiFiClient &radio)
        : settings(store)
        , addresses(host)
        , table(settings, host, addresses)
        , network(settings, radio, table)
    {
    }

    SettingsStore &settings;
    FakeInterfaceAddresses addresses;
    DeviceTable table;
    WiFiNetwork network;
    SavedNetworks savedNetworks{settings, network};
    SavedAddresses savedAddresses{settings};
};

class SavedListsRestartTest : public SettingsFileTest
{
protected:
    void join(const QString &ssid, const QString &bssid)
    {
        WiFiInterface wifi;
        wifi.ssid = ssid;
        wifi.bssid = bssid;
        radio.join(wifi);
    }

    const QString homeBssid = u"a4:2b:b0:11:22:33"_s;
    const QString officeBssid = u"b8:27:eb:44:55:66"_s;
    const QString address = u"a4:83:e7:01:02:03"_s;
    FakeNetworkHost host{u"laptop"_s};
    FakeWiFiClient radio;
};

TEST_F(SavedListsRestartTest, SurviveARestart)
{
    openStore();
    {
        ProgramRun first(*store, host, radio);
        join(u"Home"_s, homeBssid);
        first.savedNetworks.addCurrentNetworkToSavedList();
        join(u"Büro ☕ <&>"_s, officeBssid.toUpper());
        first.savedNetworks.addCurrentNetworkToSavedList();
        store->set(keys::currentInterfaceDict, QVariantMap{{record::current, address.toUpper()}});
        first.savedAddresses.addCurrentAddressToSavedList();
    }
    // Each operation has asked for it: what a killed program leaves is what is in the file soon.
    scheduler.advance(std::chrono::milliseconds(100));
    const QVariantMap left = content();
    EXPECT_EQ(
        left.value(keys::savedNetworks).toMap().keys(), (QStringList{homeBssid, officeBssid}));
    EXPECT_EQ(left.value(keys::savedAddresses).toMap().keys(), QStringList{address});

    reopenStore();
    ProgramRun second(*store, host, radio);
    EXPECT_EQ(favoriteNetworks(*store), (QStringList{homeBssid, officeBssid}));
    EXPECT_EQ(bssidForNetworkName(*store, u"Büro ☕ <&>"_s), officeBssid);
    EXPECT_EQ(addressForAddressName(*store, address), address);
    EXPECT_TRUE(second.savedNetworks.isCurrentNetworkSaved());
    EXPECT_TRUE(second.savedAddresses.isCurrentAddressSaved());
}

TEST_F(SavedListsRestartTest, KeepANetworkWhoseNameNoFileCanHold)
{
    const QString ssid = u"Bell\a and \x01 more"_s;
    openStore();
    {
        ProgramRun first(*store, host, radio);
        join(ssid, homeBssid);
        first.savedNetworks.addCurrentNetworkToSavedList();
        EXPECT_TRUE(first.savedNetworks.isCurrentNetworkSaved());
    }
    reopenStore();
    ProgramRun second(*store, host, radio);
    second.network.updateWiFiNetwork();
    EXPECT_TRUE(second.savedNetworks.isCurrentNetworkSaved());
    EXPECT_EQ(favoriteNetworks(*store), QStringList{homeBssid});
    const QString shown =
        store->getDictionary(keys::currentWiFiDict).value(wifirecord::SSID).toString();
    EXPECT_EQ(ssidForNetworkName(*store, shown), shown) << "the same in both places";
}

} // namespace
} // namespace quillon::test
