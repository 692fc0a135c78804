// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/SettingsKeys.h"
#include "integration/app/EndToEndTest.h"
#include "networks/SavedAddresses.h"
#include "networks/SavedNetworks.h"

namespace quillon::test {

using namespace Qt::StringLiterals;

class RestartTest : public EndToEndTest
{
protected:
    void saveNetwork(const QString &ssid, const QString &bssid)
    {
        WiFiInterface network;
        network.device = u"wlan0"_s;
        network.ssid = ssid;
        network.bssid = bssid;
        program->wifi.join(network);
        program->delegate().features().networks.savedNetworks.addCurrentNetworkToSavedList();
    }

    void restart()
    {
        program.reset();
        startProgram();
    }
};

TEST_F(RestartTest, SavedNetworksAndAddressesAreThereAgain)
{
    startProgram();
    program->delegate().features().mainWindow.changeInterfacefromPopup(card);
    saveNetwork(u"Harbour Café"_s, u"06:00:5E:00:00:01"_s);
    saveNetwork(u"Library"_s, u"06:00:5e:00:00:02"_s);
    SavedAddresses &addresses = program->delegate().features().networks.savedAddresses;
    addresses.addCurrentAddressToSavedList();
    ASSERT_TRUE(addresses.isCurrentAddressSaved());
    const QVariant networks = program->settings.get(keys::savedNetworks);
    const QVariant saved = program->settings.get(keys::savedAddresses);
    ASSERT_EQ(networks.toMap().size(), 2);
    ASSERT_EQ(saved.toMap().size(), 1);

    restart();
    EXPECT_EQ(program->settings.get(keys::savedNetworks), networks);
    EXPECT_EQ(program->settings.get(keys::savedAddresses), saved);
    EXPECT_EQ(ssidForNetworkName(program->settings, u"Harbour Café"_s), u"Harbour Café"_s);
    EXPECT_EQ(bssidForNetworkName(program->settings, u"Harbour Café"_s)
                  .compare("06:00:5e:00:00:01"_L1, Qt::CaseInsensitive),
        0);
    EXPECT_EQ(bssidForNetworkName(program->settings, u"Library"_s), u"06:00:5e:00:00:02"_s);
    const QString name = saved.toMap().first().toMap().value(u"name"_s).toString();
    EXPECT_EQ(addressForAddressName(program->settings, name), saved.toMap().firstKey());
    EXPECT_TRUE(program->delegate().features().networks.savedAddresses.isCurrentAddressSaved());
}

TEST_F(RestartTest, TheHistoryIsThereAgainAndGrows)
{
    ASSERT_TRUE(addRule(records, randomOnceRule(card)));
    plugCable();
    startProgram();
    ASSERT_TRUE(eventually([this] { return savedHistory(records).size() == 1; }));
    const auto first = savedHistory(records).first();
    restart();
    ASSERT_TRUE(eventually([this] { return savedHistory(records).size() == 2; }));
    EXPECT_EQ(savedHistory(records).first(), first);
    EXPECT_EQ(savedRules(records).size(), 1);
}

} // namespace quillon::test
