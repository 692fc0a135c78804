// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "networks/SavedNetworks.h"

#include "NetworkFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class SavedNetworksTest : public NetworkFixture
{
protected:
    SavedNetworks saved{settings, network};
};

TEST_F(SavedNetworksTest, AreEmptyAtFirst)
{
    EXPECT_TRUE(favoriteNetworks(settings).isEmpty());
    EXPECT_TRUE(ssidFavoriteNetworks(settings).isEmpty());
    EXPECT_FALSE(saved.isCurrentNetworkSaved());
}

TEST_F(SavedNetworksTest, TakeTheCurrentNetworkUnderItsSSID)
{
    radio.interface->bssid = homeBssid.toUpper();
    saved.addCurrentNetworkToSavedList();
    const QVariantMap expected = {{homeBssid, networkEntry(homeBssid, u"Home"_s, u"Home"_s)}};
    EXPECT_EQ(settings.getDictionary(keys::savedNetworks), expected);
    EXPECT_TRUE(saved.isCurrentNetworkSaved());
}

TEST_F(SavedNetworksTest, AreStoredWholeAndFlushed)
{
    saved.addCurrentNetworkToSavedList();
    EXPECT_EQ(settings.journal(), (QStringList{u"set currentWiFiDict"_s, u"synchronize"_s,
                                      u"set savedNetworks"_s, u"synchronize"_s}));
}

TEST_F(SavedNetworksTest, RefreshTheNetworkBeforeTheyTakeIt)
{
    network.updateWiFiNetwork();
    radio.interface->ssid = u"Office"_s;
    radio.interface->bssid = officeBssid;
    saved.addCurrentNetworkToSavedList();
    EXPECT_EQ(favoriteNetworks(settings), QStringList{officeBssid});
}

TEST_F(SavedNetworksTest, KeepTheNameOfANetworkThatIsAddedAgain)
{
    saveNetwork(homeBssid, u"Home"_s, u"Our house"_s, true);
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
    EXPECT_EQ(savedNetwork(homeBssid).value(savedentry::name).toString(), u"Home"_s);
    EXPECT_EQ(savedNetwork(officeBssid).value(savedentry::name).toString(), u"Home"_s);
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
    saveNetwork(homeBssid, u"Home"_s, u"Home"_s);
    saveNetwork(officeBssid, u"Office"_s, u"Office"_s);
    settings.clearJournal();
    radio.interface->bssid = homeBssid.toUpper();
    saved.removeCurrentNetworkFromSavedList();
    EXPECT_EQ(favoriteNetworks(settings), QStringList{officeBssid});
    EXPECT_EQ(settings.journal().mid(2), (QStringList{u"set savedNetworks"_s, u"synchronize"_s}));
    EXPECT_FALSE(saved.isCurrentNetworkSaved());
}

TEST_F(SavedNetworksTest, LoseNothingWhenTheCurrentNetworkIsNotAmongThem)
{
    saveNetwork(officeBssid, u"Office"_s, u"Office"_s);
    settings.clearJournal();
    saved.removeCurrentNetworkFromSavedList();
    radio.leave();
    saved.removeCurrentNetworkFromSavedList();
    EXPECT_EQ(settings.writeCount(keys::savedNetworks), 0);
}

TEST_F(SavedNetworksTest, KnowTheCurrentNetworkInAnyLetterCase)
{
    saveNetwork(homeBssid, u"Home"_s, u"Home"_s);
    settings.set(keys::currentWiFiDict, QVariantMap{{wifirecord::BSSID, homeBssid.toUpper()}});
    EXPECT_TRUE(saved.isCurrentNetworkSaved());
}

TEST_F(SavedNetworksTest, TellTheirBSSIDsAndTheSSIDsThatCount)
{
    saveNetwork(homeBssid, u"Home"_s, u"Our house"_s);
    saveNetwork(officeBssid, u"Office"_s, u"Work"_s, true);
    saveNetwork(cafeBssid, u"Cafe"_s, u"Cafe"_s, true);
    EXPECT_EQ(favoriteNetworks(settings), (QStringList{homeBssid, officeBssid, cafeBssid}));
    EXPECT_EQ(ssidFavoriteNetworks(settings), (QStringList{u"Office"_s, u"Cafe"_s}));
}

TEST_F(SavedNetworksTest, AreFoundByTheirExactName)
{
    saveNetwork(homeBssid, u"Home"_s, u"Our house"_s);
    saveNetwork(officeBssid, u"Office"_s, u"Work"_s, true);
    EXPECT_EQ(ssidForNetworkName(settings, u"Work"_s), u"Office"_s);
    EXPECT_EQ(bssidForNetworkName(settings, u"Work"_s), officeBssid);
    EXPECT_TRUE(isNetWorkDefined(settings, u"Work"_s));
    EXPECT_FALSE(isNetWorkDefined(settings, u"Our house"_s));
    for (const auto &name : {u"work"_s, u"Office"_s, QString()}) {
        EXPECT_EQ(ssidForNetworkName(settings, name), QString());
        EXPECT_EQ(bssidForNetworkName(settings, name), u"Any Network"_s);
        EXPECT_FALSE(isNetWorkDefined(settings, name));
    }
}

TEST_F(SavedNetworksTest, OfOneNameTheLastInTheListAnswers)
{
    saveNetwork(officeBssid, u"Second"_s, u"Twin"_s);
    saveNetwork(homeBssid, u"First"_s, u"Twin"_s, true);
    EXPECT_EQ(bssidForNetworkName(settings, u"Twin"_s), officeBssid);
    EXPECT_EQ(ssidForNetworkName(settings, u"Twin"_s), u"Second"_s);
    EXPECT_TRUE(isNetWorkDefined(settings, u"Twin"_s)) << "any of them counts";
}

TEST_F(SavedNetworksTest, AreRecognizedBySSIDWhateverTheirMarkHolds)
{
    QVariantMap entry = networkEntry(homeBssid, u"Home"_s, u"Home"_s);
    entry[savedentry::ssidDefined] = false;
    settings.set(keys::savedNetworks, QVariantMap{{homeBssid, entry}});
    EXPECT_EQ(ssidFavoriteNetworks(settings), QStringList{u"Home"_s});
    EXPECT_TRUE(isNetWorkDefined(settings, u"Home"_s));
}

TEST_F(SavedNetworksTest, PassOverWhatIsNoEntry)
{
    settings.set(keys::savedNetworks,
        QVariantMap{
            {u"00"_s, u"text"_s},
            {u"01"_s, QVariantMap{}},
            {u"02"_s, QVariantList{u"name"_s}},
            {u"03"_s, QVariantMap{{savedentry::name, u"Nameless"_s}}},
            {u"04"_s, QVariantMap{{savedentry::ssidDefined, true}}},
            {u"05"_s, QVariantMap{{savedentry::name, 5}, {savedentry::SSID, 6},
                          {savedentry::BSSID, QVariantMap{}}, {savedentry::ssidDefined, true}}},
            {u"06"_s, true},
            {homeBssid, networkEntry(homeBssid, u"Home"_s, u"Home"_s)},
        });
    EXPECT_EQ(favoriteNetworks(settings), QStringList{homeBssid});
    EXPECT_TRUE(ssidFavoriteNetworks(settings).isEmpty());
    EXPECT_EQ(bssidForNetworkName(settings, u"Home"_s), homeBssid);
    EXPECT_EQ(bssidForNetworkName(settings, u"Nameless"_s), u"Any Network"_s);
    EXPECT_EQ(bssidForNetworkName(settings, u"5"_s), u"Any Network"_s);
    EXPECT_EQ(bssidForNetworkName(settings, QString()), u"Any Network"_s);
}

TEST_F(SavedNetworksTest, AddAndRemoveBesideWhatIsNoEntry)
{
    const QVariantMap hostile = {{u"zz"_s, u"text"_s}};
    settings.set(keys::savedNetworks, hostile);
    saved.addCurrentNetworkToSavedList();
    EXPECT_EQ(
        settings.getDictionary(keys::savedNetworks).keys(), (QStringList{homeBssid, u"zz"_s}));
    saved.removeCurrentNetworkFromSavedList();
    EXPECT_EQ(settings.getDictionary(keys::savedNetworks), hostile);
}

TEST_F(SavedNetworksTest, StartAnewWhenTheListIsNone)
{
    settings.set(keys::savedNetworks, QVariantList{1, 2});
    EXPECT_TRUE(favoriteNetworks(settings).isEmpty());
    saved.addCurrentNetworkToSavedList();
    EXPECT_EQ(favoriteNetworks(settings), QStringList{homeBssid});
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
