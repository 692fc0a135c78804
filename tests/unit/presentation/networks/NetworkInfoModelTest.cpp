// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/networks/NetworkInfoModel.h"

#include "fakes/FakeRadioSwitch.h"
#include "networks/SavedNetworks.h"
#include "presentation/networks/RemovedFavorite.h"
#include "unit/networks/NetworkFixture.h"

#include <memory>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using namespace std::chrono_literals;

class NetworkInfoModelTest : public NetworkFixture
{
protected:
    NetworkInfoModelTest()
    {
        QObject::connect(&network, &WiFiNetwork::networkButtonShown, model.get(),
            &NetworkInfoModel::showNetworkButton);
        QObject::connect(model.get(), &NetworkInfoModel::changed, [this] { ++changes; });
    }

    QString shown(const char *label) const
    {
        for (const NetworkInfoModel::Row &row : model->state().rows) {
            if (row.label == QLatin1String(label)) {
                return row.value;
            }
        }
        return u"no such row"_s;
    }
    const FavoriteButton &heart() const { return model->state().favorite; }

    FakeRadioSwitch radioSwitch;
    SavedNetworks saved{settings, network};
    std::unique_ptr<RemovedFavorite> removed = std::make_unique<RemovedFavorite>(settings, network);
    std::unique_ptr<NetworkInfoModel> model =
        std::make_unique<NetworkInfoModel>(NetworkInfoModel::Collaborators{
            settings, scheduler, table, network, radioSwitch, saved, *removed});
    int changes = 0;
};

TEST_F(NetworkInfoModelTest, HasAButtonWhileThereIsANetwork)
{
    EXPECT_FALSE(model->state().buttonVisible);
    network.updateWiFiNetwork();
    EXPECT_TRUE(model->state().buttonVisible);
    radio.leave();
    network.updateWiFiNetwork();
    EXPECT_FALSE(model->state().buttonVisible);
}

TEST_F(NetworkInfoModelTest, ShowsEveryDetail)
{
    network.updateWiFiNetwork();
    const QList<NetworkInfoModel::Row> expected = {
        {u"Network name"_s, u"Home"_s},
        {u"BSSID"_s, homeBssid},
        {u"IP address"_s, u"198.51.100.7"_s},
        {u"Security"_s, u"WPA2 Personal"_s},
        {u"Signal"_s, u"-54 dBm"_s},
        {u"Noise"_s, u"-92 dBm"_s},
        {u"Rate"_s, u"866.7 Mbps"_s},
        {u"Channel"_s, u"36 (5 GHz, 80 MHz)"_s},
        {u"Mode"_s, u"802.11ac"_s},
        {u"MCS"_s, u"9"_s},
        {u"Country"_s, u"DE"_s},
    };
    EXPECT_EQ(model->state().name, u"Home"_s);
    EXPECT_EQ(model->state().rows, expected);
}

TEST_F(NetworkInfoModelTest, KnowsWhetherThereIsARadio)
{
    EXPECT_TRUE(model->state().hasRadio);
    settings.set(keys::deviceDict, QVariant());
    EXPECT_FALSE(model->state().hasRadio);
}

TEST_F(NetworkInfoModelTest, KeepsTheSignalWhileItIsShown)
{
    model->toggleNetworkInfoPopover();
    scheduler.advance(6s);
    ASSERT_EQ(model->state().signal.size(), 3);
    EXPECT_EQ(model->state().signal.last().signal, -54);
    EXPECT_EQ(model->state().signal.last().noise, -92);
    model->popoverWillClose();
    scheduler.advance(6s);
    EXPECT_EQ(model->state().signal.size(), 3);
}

TEST_F(NetworkInfoModelTest, ShowsThatThereIsNoNetwork)
{
    radio.leave();
    network.updateWiFiNetwork();
    EXPECT_EQ(model->state().name, u"Not currently connected..."_s);
    EXPECT_EQ(shown("Security"), QString());
    EXPECT_EQ(model->state().rows.size(), 11);
}

TEST_F(NetworkInfoModelTest, SaysThatTheRadioIsSwitchedOff)
{
    network.updateWiFiNetwork();
    radioSwitch.turn(true);
    EXPECT_EQ(model->state().name, u"Home"_s) << "it has not been read that the network is gone";
    radio.leave();
    network.updateWiFiNetwork();
    EXPECT_EQ(model->state().name, u"Wi-Fi is switched off."_s);
    changes = 0;
    radioSwitch.turn(false);
    EXPECT_EQ(model->state().name, u"Not currently connected..."_s);
    EXPECT_EQ(changes, 1);
    radioSwitch.turn(true);
    EXPECT_EQ(model->state().name, u"Wi-Fi is switched off."_s);
}

TEST_F(NetworkInfoModelTest, ShowsTheRecordOfTheLastRunUntilTheFirstRefresh)
{
    settings.set(keys::currentWiFiDict,
        QVariantMap{{wifirecord::name, u"Before"_s}, {wifirecord::BSSID, officeBssid}});
    FakeRadioSwitch ofLater;
    const NetworkInfoModel later({settings, scheduler, table, network, ofLater, saved, *removed});
    EXPECT_EQ(later.state().name, u"Before"_s);
}

TEST_F(NetworkInfoModelTest, IsRefreshedBeforeItOpens)
{
    model->toggleNetworkInfoPopover();
    EXPECT_TRUE(model->state().popoverShown);
    EXPECT_EQ(radio.reads, 1);
    EXPECT_EQ(shown("Network name"), u"Home"_s);
}

TEST_F(NetworkInfoModelTest, IsRefreshedEveryThreeSecondsWhileItIsOpen)
{
    model->toggleNetworkInfoPopover();
    radio.interface->rssi = -60;
    scheduler.advance(2999ms);
    EXPECT_EQ(radio.reads, 1);
    scheduler.advance(1ms);
    EXPECT_EQ(radio.reads, 2);
    EXPECT_EQ(shown("Signal"), u"-60 dBm"_s);
    scheduler.advance(9s);
    EXPECT_EQ(radio.reads, 5);
}

TEST_F(NetworkInfoModelTest, IsNoLongerRefreshedOnceItIsClosed)
{
    model->toggleNetworkInfoPopover();
    model->popoverWillClose();
    EXPECT_FALSE(model->state().popoverShown);
    scheduler.advance(10s);
    EXPECT_EQ(radio.reads, 1);
    EXPECT_FALSE(scheduler.hasTimers());
}

TEST_F(NetworkInfoModelTest, IsClosedByItsButtonToo)
{
    model->toggleNetworkInfoPopover();
    model->toggleNetworkInfoPopover();
    EXPECT_FALSE(model->state().popoverShown);
    EXPECT_EQ(radio.reads, 1) << "closing refreshes nothing";
    EXPECT_FALSE(scheduler.hasTimers());
    model->toggleNetworkInfoPopover();
    EXPECT_TRUE(model->state().popoverShown);
}

TEST_F(NetworkInfoModelTest, HasOneTimerHoweverOftenItIsStarted)
{
    model->startNetworkTimer();
    scheduler.advance(2s);
    model->startNetworkTimer();
    scheduler.advance(2999ms);
    EXPECT_EQ(radio.reads, 0);
    scheduler.advance(1ms);
    EXPECT_EQ(radio.reads, 1);
    model->stopNetworkTimer();
    model->stopNetworkTimer();
    EXPECT_FALSE(scheduler.hasTimers());
}

TEST_F(NetworkInfoModelTest, OffersToAddANetworkThatIsNotSaved)
{
    network.updateWiFiNetwork();
    EXPECT_EQ(heart().symbol, u"heart"_s);
    EXPECT_EQ(heart().accessibilityText, u"Add Network to Favorites"_s);
    model->chooseFavoriteButton();
    EXPECT_TRUE(settings.getDictionary(keys::savedNetworks).contains(homeBssid));
    EXPECT_EQ(heart().symbol, u"heart.fill"_s);
    EXPECT_EQ(heart().accessibilityText, u"Remove Network from Favorites"_s);
}

TEST_F(NetworkInfoModelTest, OffersToRemoveANetworkThatIsSaved)
{
    saveNetwork(homeBssid, u"Home"_s, u"Our house"_s);
    radio.interface->bssid = homeBssid.toUpper();
    model->toggleNetworkInfoPopover();
    EXPECT_EQ(heart().symbol, u"heart.fill"_s);
    model->chooseFavoriteButton();
    EXPECT_TRUE(settings.getDictionary(keys::savedNetworks).isEmpty());
    EXPECT_EQ(heart().symbol, u"heart"_s);
}

TEST_F(NetworkInfoModelTest, OffersToAddWhereThereIsNoNetwork)
{
    EXPECT_EQ(heart().symbol, u"heart"_s);
    radio.leave();
    model->chooseFavoriteButton();
    EXPECT_TRUE(settings.getDictionary(keys::savedNetworks).isEmpty());
}

TEST_F(NetworkInfoModelTest, FollowsAListThatIsChangedElsewhere)
{
    network.updateWiFiNetwork();
    settings.changeFromOutside(keys::savedNetworks,
        QVariantMap{{homeBssid, networkEntry(homeBssid, u"Home"_s, u"Home"_s)}});
    scheduler.runPending();
    EXPECT_TRUE(heart().removes);
}

TEST_F(NetworkInfoModelTest, SaysOnlyWhatChanged)
{
    network.updateWiFiNetwork();
    changes = 0;
    network.updateWiFiNetwork();
    model->updateFavNetworkButton();
    model->popoverWillClose();
    EXPECT_EQ(changes, 0);
}

TEST_F(NetworkInfoModelTest, PassesOverValuesThatAreNoTexts)
{
    settings.set(
        keys::currentWiFiDict, QVariantMap{{wifirecord::SSID, 5},
                                   {wifirecord::BSSID, QVariantList{1}}, {wifirecord::name, true}});
    EXPECT_EQ(shown("Network name"), QString());
    EXPECT_EQ(shown("BSSID"), QString());
    EXPECT_EQ(model->state().name, QString());
}

TEST_F(NetworkInfoModelTest, LeavesNothingBehind)
{
    model->toggleNetworkInfoPopover();
    model.reset();
    EXPECT_FALSE(scheduler.hasTimers());
    removed.reset();
    EXPECT_FALSE(settings.hasObservers());
    EXPECT_FALSE(radioSwitch.isWatched());
}

TEST_F(NetworkInfoModelTest, CanHaveANetworkBackThatItsHeartRemoved)
{
    network.updateWiFiNetwork();
    saveNetwork(homeBssid, u"Home"_s, u"Our house"_s, true);
    model->chooseFavoriteButton();
    EXPECT_FALSE(saved.isCurrentNetworkSaved());
    ASSERT_TRUE(removed->entry());
    removed->undo();
    EXPECT_EQ(savedNetworkEntry(homeBssid).name, u"Our house"_s);
    EXPECT_TRUE(savedNetworkEntry(homeBssid).isSsidDefined());
}

TEST_F(NetworkInfoModelTest, GivesANetworkItsNameBackThatItsHeartRemovedJustNow)
{
    saveNetwork(homeBssid, u"Home"_s, u"Our house"_s, true);
    radio.interface->bssid = homeBssid.toUpper();
    model->toggleNetworkInfoPopover();
    model->chooseFavoriteButton();
    ASSERT_FALSE(saved.isCurrentNetworkSaved());
    model->chooseFavoriteButton();
    EXPECT_EQ(savedNetworkEntry(homeBssid).name, u"Our house"_s);
    EXPECT_TRUE(savedNetworkEntry(homeBssid).isSsidDefined());
    EXPECT_TRUE(heart().removes);
    model->chooseFavoriteButton();
    removed->forget();
    model->chooseFavoriteButton();
    EXPECT_EQ(savedNetworkEntry(homeBssid).name, u"Home"_s);
}

TEST_F(NetworkInfoModelTest, ClosesWhenTheRadioIsTakenAway)
{
    model->toggleNetworkInfoPopover();
    scheduler.advance(10s);
    ASSERT_TRUE(model->state().hasRadio);
    ASSERT_TRUE(model->state().popoverShown);
    const QStringList devices = table.names();
    for (const QString &device : devices) {
        if (table.isDeviceWifi(device)) {
            host.unplug(device);
        }
    }
    table.updateNetWorkInterfaces();
    model->lookForRadio();
    EXPECT_FALSE(model->state().hasRadio);
    EXPECT_FALSE(model->state().popoverShown);
    const int reads = radio.reads;
    scheduler.advance(30s);
    EXPECT_EQ(radio.reads, reads);
}

} // namespace
} // namespace quillon::test
