// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "networks/SavedNetworks.h"

#include "NetworkFixture.h"

namespace quillon::test {
namespace {

class SavedNetworksTest : public NetworkFixture
{
protected:
    SavedNetworks saved{settings, network};
};

TEST_F(SavedNetworksTest, AreEmptyAtFirst)
{
    EXPECT_TRUE(favouriteNetworks(settings).isEmpty());
    EXPECT_TRUE(ssidFavouriteNetworks(settings).isEmpty());
    EXPECT_FALSE(saved.isCurrentNetworkSaved());
}

TEST_F(SavedNetworksTest, TakeTheCurrentNetworkUnderItsSSID)
{
    radio.interface->bssid = homeBssid.toUpper();
    saved.addCurrentNetworkToSavedList();
    const QVariantMap expected = {
        {homeBssid, networkEntry(homeBssid, QStringLiteral("Home"), QStringLiteral("Home"))}};
    EXPECT_EQ(settings.getDictionary(keys::savedNetworks), expected);
    EXPECT_TRUE(saved.isCurrentNetworkSaved());
}

TEST_F(SavedNetworksTest, AreStoredWholeAndFlushed)
{
    saved.addCurrentNetworkToSavedList();
    EXPECT_EQ(settings.journal(),
        (QStringList{QStringLiteral("set currentWiFiDict"), QStringLiteral("synchronize"),
            QStringLiteral("set savedNetworks"), QStringLiteral("synchronize")}));
}

TEST_F(SavedNetworksTest, RefreshTheNetworkBeforeTheyTakeIt)
{
    network.updateWiFiNetwork();
    radio.interface->ssid = QStringLiteral("Office");
    radio.interface->bssid = officeBssid;
    saved.addCurrentNetworkToSavedList();
    EXPECT_EQ(favouriteNetworks(settings), QStringList{officeBssid});
}

TEST_F(SavedNetworksTest, KeepTheNameOfANetworkThatIsAddedAgain)
{
    saveNetwork(homeBssid, QStringLiteral("Home"), QStringLiteral("Our house"), true);
    const QVariant before = settings.get(keys::savedNetworks);
    settings.clearJournal();
    saved.addCurrentNetworkToSavedList();
    EXPECT_EQ(settings.get(keys::savedNetworks), before);
    EXPECT_EQ(settings.writeCount(keys::savedNetworks), 0);
}

TEST_F(SavedNetworksTest, TakeTwoAccessPointsOfOneSSIDUnderTheSameName)
{
    saved.addCurrentNetworkToSavedList();
    radio.interface->bssid = officeBssid;
    saved.addCurrentNetworkToSavedList();
    EXPECT_EQ(savedNetwork(homeBssid).value(savedentry::name).toString(), QStringLiteral("Home"));
    EXPECT_EQ(savedNetwork(officeBssid).value(savedentry::name).toString(), QStringLiteral("Home"));
}

TEST_F(SavedNetworksTest, TakeNothingWithoutANetwork)
{
    radio.leave();
    saved.addCurrentNetworkToSavedList();
    radio.interface->bssid = homeBssid;
    saved.addCurrentNetworkToSavedList();
    radio.interface.reset();
    saved.addCurrentNetworkToSavedList();
    EXPECT_EQ(settings.writeCount(keys::savedNetworks), 0);
}

TEST_F(SavedNetworksTest, LoseTheCurrentNetwork)
{
    saveNetwork(homeBssid, QStringLiteral("Home"), QStringLiteral("Home"));
    saveNetwork(officeBssid, QStringLiteral("Office"), QStringLiteral("Office"));
    settings.clearJournal();
    radio.interface->bssid = homeBssid.toUpper();
    saved.removeCurrentNetworkFromSavedList();
    EXPECT_EQ(favouriteNetworks(settings), QStringList{officeBssid});
    EXPECT_EQ(settings.journal().mid(2),
        (QStringList{QStringLiteral("set savedNetworks"), QStringLiteral("synchronize")}));
    EXPECT_FALSE(saved.isCurrentNetworkSaved());
}

TEST_F(SavedNetworksTest, LoseNothingWhenTheCurrentNetworkIsNotAmongThem)
{
    saveNetwork(officeBssid, QStringLiteral("Office"), QStringLiteral("Office"));
    settings.clearJournal();
    saved.removeCurrentNetworkFromSavedList();
    radio.leave();
    saved.removeCurrentNetworkFromSavedList();
    EXPECT_EQ(settings.writeCount(keys::savedNetworks), 0);
}

TEST_F(SavedNetworksTest, KnowTheCurrentNetworkInAnyLetterCase)
{
    saveNetwork(homeBssid, QStringLiteral("Home"), QStringLiteral("Home"));
    settings.set(keys::currentWiFiDict, QVariantMap{{wifirecord::BSSID, homeBssid.toUpper()}});
    EXPECT_TRUE(saved.isCurrentNetworkSaved());
}

TEST_F(SavedNetworksTest, TellTheirBSSIDsAndTheSSIDsThatCount)
{
    saveNetwork(homeBssid, QStringLiteral("Home"), QStringLiteral("Our house"));
    saveNetwork(officeBssid, QStringLiteral("Office"), QStringLiteral("Work"), true);
    saveNetwork(cafeBssid, QStringLiteral("Cafe"), QStringLiteral("Cafe"), true);
    EXPECT_EQ(favouriteNetworks(settings), (QStringList{homeBssid, officeBssid, cafeBssid}));
    EXPECT_EQ(ssidFavouriteNetworks(settings),
        (QStringList{QStringLiteral("Office"), QStringLiteral("Cafe")}));
}

TEST_F(SavedNetworksTest, AreFoundByTheirExactName)
{
    saveNetwork(homeBssid, QStringLiteral("Home"), QStringLiteral("Our house"));
    saveNetwork(officeBssid, QStringLiteral("Office"), QStringLiteral("Work"), true);
    EXPECT_EQ(ssidForNetworkName(settings, QStringLiteral("Work")), QStringLiteral("Office"));
    EXPECT_EQ(bssidForNetworkName(settings, QStringLiteral("Work")), officeBssid);
    EXPECT_TRUE(isNetWorkDefined(settings, QStringLiteral("Work")));
    EXPECT_FALSE(isNetWorkDefined(settings, QStringLiteral("Our house")));
    for (const auto &name : {QStringLiteral("work"), QStringLiteral("Office"), QString()}) {
        EXPECT_EQ(ssidForNetworkName(settings, name), QString());
        EXPECT_EQ(bssidForNetworkName(settings, name), QStringLiteral("Any Network"));
        EXPECT_FALSE(isNetWorkDefined(settings, name));
    }
}

TEST_F(SavedNetworksTest, OfOneNameTheLastInTheListAnswers)
{
    saveNetwork(officeBssid, QStringLiteral("Second"), QStringLiteral("Twin"));
    saveNetwork(homeBssid, QStringLiteral("First"), QStringLiteral("Twin"), true);
    EXPECT_EQ(bssidForNetworkName(settings, QStringLiteral("Twin")), officeBssid);
    EXPECT_EQ(ssidForNetworkName(settings, QStringLiteral("Twin")), QStringLiteral("Second"));
    EXPECT_TRUE(isNetWorkDefined(settings, QStringLiteral("Twin"))) << "any of them counts";
}

TEST_F(SavedNetworksTest, AreRecognisedBySSIDWhateverTheirMarkHolds)
{
    QVariantMap entry = networkEntry(homeBssid, QStringLiteral("Home"), QStringLiteral("Home"));
    entry[savedentry::ssidDefined] = false;
    settings.set(keys::savedNetworks, QVariantMap{{homeBssid, entry}});
    EXPECT_EQ(ssidFavouriteNetworks(settings), QStringList{QStringLiteral("Home")});
    EXPECT_TRUE(isNetWorkDefined(settings, QStringLiteral("Home")));
}

TEST_F(SavedNetworksTest, PassOverWhatIsNoEntry)
{
    settings.set(keys::savedNetworks,
        QVariantMap{
            {QStringLiteral("00"), QStringLiteral("text")},
            {QStringLiteral("01"), QVariantMap{}},
            {QStringLiteral("02"), QVariantList{QStringLiteral("name")}},
            {QStringLiteral("03"), QVariantMap{{savedentry::name, QStringLiteral("Nameless")}}},
            {QStringLiteral("04"), QVariantMap{{savedentry::ssidDefined, true}}},
            {QStringLiteral("05"),
                QVariantMap{{savedentry::name, 5}, {savedentry::SSID, 6},
                    {savedentry::BSSID, QVariantMap{}}, {savedentry::ssidDefined, true}}},
            {QStringLiteral("06"), true},
            {homeBssid, networkEntry(homeBssid, QStringLiteral("Home"), QStringLiteral("Home"))},
        });
    EXPECT_EQ(favouriteNetworks(settings), QStringList{homeBssid});
    EXPECT_TRUE(ssidFavouriteNetworks(settings).isEmpty());
    EXPECT_EQ(bssidForNetworkName(settings, QStringLiteral("Home")), homeBssid);
    EXPECT_EQ(
        bssidForNetworkName(settings, QStringLiteral("Nameless")), QStringLiteral("Any Network"));
    EXPECT_EQ(bssidForNetworkName(settings, QStringLiteral("5")), QStringLiteral("Any Network"));
    EXPECT_EQ(bssidForNetworkName(settings, QString()), QStringLiteral("Any Network"));
}

TEST_F(SavedNetworksTest, AddAndRemoveBesideWhatIsNoEntry)
{
    const QVariantMap hostile = {{QStringLiteral("zz"), QStringLiteral("text")}};
    settings.set(keys::savedNetworks, hostile);
    saved.addCurrentNetworkToSavedList();
    EXPECT_EQ(settings.getDictionary(keys::savedNetworks).keys(),
        (QStringList{homeBssid, QStringLiteral("zz")}));
    saved.removeCurrentNetworkFromSavedList();
    EXPECT_EQ(settings.getDictionary(keys::savedNetworks), hostile);
}

TEST_F(SavedNetworksTest, StartAnewWhenTheListIsNone)
{
    settings.set(keys::savedNetworks, QVariantList{1, 2});
    EXPECT_TRUE(favouriteNetworks(settings).isEmpty());
    saved.addCurrentNetworkToSavedList();
    EXPECT_EQ(favouriteNetworks(settings), QStringList{homeBssid});
}

TEST_F(SavedNetworksTest, NeverHoldTheAbsentNetwork)
{
    settings.set(keys::savedNetworks, QVariantMap{{QString(), QVariantMap{}}});
    settings.set(keys::currentWiFiDict, QVariantMap{{wifirecord::BSSID, 5}});
    EXPECT_FALSE(saved.isCurrentNetworkSaved());
    radio.leave();
    saved.removeCurrentNetworkFromSavedList();
    EXPECT_EQ(settings.getDictionary(keys::savedNetworks).size(), 1);
    EXPECT_FALSE(saved.isCurrentNetworkSaved());
}

} // namespace
} // namespace quillon::test
