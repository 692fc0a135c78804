// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/features/NetworkFeature.h"

#include "unit/app/ProgramOnFakes.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using namespace std::chrono_literals;

class NetworkFeatureTest : public ProgramOnFakes
{
protected:
    void saveAddress(const QString &name)
    {
        machine.settings.set(keys::savedAddresses,
            QVariantMap{
                {u"02:00:00:00:00:AA"_s, QVariantMap{{savedentry::name, name},
                                             {savedentry::address, u"02:00:00:00:00:AA"_s}}}});
    }
    QStringList quickAddresses()
    {
        QStringList texts;
        for (const auto &token : features().networks.savedLists.state().quickAddresses) {
            texts << token.text;
        }
        return texts;
    }
    SavedEntry saveNetwork()
    {
        const QVariantMap network{{savedentry::name, u"Home"_s}, {savedentry::SSID, u"home-net"_s},
            {savedentry::BSSID, u"0a:0b:0c:0d:0e:0f"_s}};
        machine.settings.set(keys::savedNetworks, QVariantMap{{u"0a:0b:0c:0d:0e:0f"_s, network}});
        return SavedEntry::fromPropertyList(network);
    }
    SavedEntryPopoverModel &popover() { return features().networks.savedEntryPopover; }
};

TEST_F(NetworkFeatureTest, TheQuickAddressesAreFilledAtTheStart)
{
    saveAddress(u"Mine"_s);
    create();
    EXPECT_EQ(quickAddresses(), QStringList());
    start();
    EXPECT_EQ(quickAddresses(), QStringList(u"Mine"_s));
}

TEST_F(NetworkFeatureTest, TheQuickAddressesFollowTheSavedOnes)
{
    run();
    saveAddress(u"Another"_s);
    EXPECT_EQ(quickAddresses(), QStringList(u"Another"_s));
}

TEST_F(NetworkFeatureTest, ThePermissionIsAskedForAfterTheStart)
{
    create();
    start();
    EXPECT_FALSE(machine.location.delegate.didChangeAuthorization);
    EXPECT_EQ(machine.location.requests, 0);
    machine.scheduler.advance(2s);
    EXPECT_EQ(machine.location.requests, 1);
}

TEST_F(NetworkFeatureTest, SwitchedOffLocationServicesBringTheWindowToTheUser)
{
    machine.location.enabled = false;
    create();
    start();
    int opened = 0;
    QObject::connect(&features().presence, &Presence::windowOpened, [&] { ++opened; });
    machine.scheduler.advance(2s);
    EXPECT_EQ(opened, 1);
}

TEST_F(NetworkFeatureTest, TheExternalAddressIsAskedForAtTheStartWhenThatIsWanted)
{
    machine.settings.setBool(keys::shouldUpdateExternalIP, true);
    create();
    start();
    ASSERT_EQ(machine.http.requests().size(), 1);
    EXPECT_EQ(machine.http.requests().first().host(), u"address.example"_s);
}

TEST_F(NetworkFeatureTest, TheExternalAddressIsAskedForWhenTheUserSwitchesItOn)
{
    machine.settings.setBool(keys::shouldUpdateExternalIP, false);
    run();
    const auto before = machine.http.requests().size();
    EXPECT_EQ(before, 0);
    machine.settings.setBool(keys::shouldUpdateExternalIP, true);
    EXPECT_EQ(machine.http.requests().size(), 1);
}

TEST_F(NetworkFeatureTest, TheNetworkButtonFollowsTheAssociation)
{
    run();
    EXPECT_FALSE(features().networks.info.state().buttonVisible);
    WiFiInterface radio;
    radio.device = u"wlp3s0"_s;
    radio.ssid = u"home-net"_s;
    radio.bssid = u"0a:0b:0c:0d:0e:0f"_s;
    machine.wifi.join(radio);
    features().networks.wifi.updateWiFiNetwork();
    EXPECT_TRUE(features().networks.info.state().buttonVisible);
    machine.wifi.leave();
    features().networks.wifi.updateWiFiNetwork();
    EXPECT_FALSE(features().networks.info.state().buttonVisible);
}

TEST_F(NetworkFeatureTest, TheNetworksPopoverShowsItsModeAndClosesWhenItIsDone)
{
    run();
    popover().tokenFieldMenuForRepresentedObject(TokenFieldKind::SavedNetworks, saveNetwork(), {});
    machine.scheduler.runPending();
    ASSERT_EQ(popover().state().open, SavedEntryPopoverModel::Popover::Network);
    popover().chooseSsidTickButton();
    EXPECT_TRUE(popover().state().ssidTickButton.on);
    EXPECT_FALSE(popover().state().bssidTickButton.on);
    popover().controlTextDidEndEditing(u"Office"_s);
    machine.scheduler.runPending();
    EXPECT_EQ(popover().state().open, SavedEntryPopoverModel::Popover::None);
}

TEST_F(NetworkFeatureTest, TheAddresssPopoverClosesWhenItIsDone)
{
    run();
    saveAddress(u"Mine"_s);
    const auto entry =
        SavedEntry::fromPropertyList(machine.settings.getDictionary(keys::savedAddresses).first());
    popover().tokenFieldMenuForRepresentedObject(TokenFieldKind::SavedAddresses, entry, {});
    machine.scheduler.runPending();
    ASSERT_EQ(popover().state().open, SavedEntryPopoverModel::Popover::Address);
    popover().controlTextDidEndEditing(u"Yours"_s);
    machine.scheduler.runPending();
    EXPECT_EQ(popover().state().open, SavedEntryPopoverModel::Popover::None);
    EXPECT_EQ(quickAddresses(), QStringList{u"Yours"_s});

    popover().tokenFieldMenuForRepresentedObject(TokenFieldKind::SavedAddresses, entry, {});
    machine.scheduler.runPending();
    popover().removeEntry();
    machine.scheduler.runPending();
    EXPECT_EQ(popover().state().open, SavedEntryPopoverModel::Popover::None);
    EXPECT_EQ(quickAddresses(), QStringList());
}

TEST_F(NetworkFeatureTest, TheTracesFollowTheSelectionAndAChangeWhileSomebodyLooks)
{
    run();
    TracesModel &traces = features().networks.traces;
    const QStringList &asked = machine.exposure.asked;
    select(u"enp1s0"_s);
    EXPECT_TRUE(asked.isEmpty()) << "nobody looks";
    traces.setShown(true);
    machine.scheduler.runPending();
    select(u"enp2s0"_s);
    EXPECT_EQ(asked.last(), u"enp2s0"_s);
    const qsizetype before = asked.size();
    features().devices.addressChanger.updateMacAddressWithAddress(
        u"enp2s0"_s, u"02:00:00:00:00:42"_s);
    machine.scheduler.advance(1s);
    EXPECT_GT(asked.size(), before);
    traces.setShown(false);
    const qsizetype last = asked.size();
    select(u"enp1s0"_s);
    EXPECT_EQ(asked.size(), last);
}

} // namespace
} // namespace quillon::test
