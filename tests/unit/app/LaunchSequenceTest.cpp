// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/LaunchSequence.h"

#include "fakes/MemoryTrims.h"
#include "unit/app/ProgramOnFakes.h"
#include "unit/app/StateOrder.h"
#include "unit/vendors/VendorFolder.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using namespace std::chrono_literals;

const QString loginHelper = u"com.orvandel.Quillon4Helper"_s;
const QString chosenVendor = u"Zebra (00000D)"_s;

class LaunchSequenceTest : public ProgramOnFakes
{
protected:
    /// A vendor database that the program is shipped with.
    QString shippedVendors() const
    {
        const QString path = machine.data.filePath(u"shipped.db"_s);
        fillVendors(path, 2);
        return path;
    }
    void fillVendors(const QString &path, int count) const
    {
        const QString csv = machine.data.filePath(u"vendors.csv"_s);
        writeFile(csv, registryOf(count));
        EXPECT_TRUE(fillVendorTable(csv, path));
    }
    void saveAddress()
    {
        machine.settings.set(keys::savedAddresses,
            QVariantMap{{u"02:00:00:00:00:AA"_s, QVariantMap{{savedentry::name, u"Mine"_s}}}});
    }
    int windowsOpenedByStart()
    {
        int opened = 0;
        create();
        QObject::connect(&features().presence, &Presence::windowOpened, [&] { ++opened; });
        start();
        return opened;
    }
    /// The helper never answers what it is asked, so that nothing follows from its status.
    void silenceHelper() { machine.helper.mood = FakeHelper::Mood::Hanging; }
};

TEST_F(LaunchSequenceTest, TheWindowComesBeforeTheNetworkAndTheVendorTexts)
{
    create();
    StateOrder order;
    order.expect(u"window"_s, [this] { return !window().versionLabel.isEmpty(); });
    order.expectSignal(u"network"_s, features().networks.wifi, &WiFiNetwork::networkButtonShown);
    order.expect(u"vendor texts"_s,
        [this] { return !features().vendors.pane.state().updatedLabel.isEmpty(); });
    order.follow(features().mainWindow, &MainWindowModel::changed);
    order.follow(features().vendors.pane, &VendorPaneModel::changed);
    program->launch().awakeFromNib();
    EXPECT_EQ(order.seen(), order.expected());
    EXPECT_EQ(machine.wifi.reads, 1);
}

TEST_F(LaunchSequenceTest, AtTheVeryFirstStartNoRadioIsJudgedByTheNetworkOfAnother)
{
    const QString first = u"wlp3s0"_s;
    const QString joined = u"wlp4s0"_s;
    for (const QString &radio : {first, joined}) {
        const QString address = u"3c:22:fb:00:00:0%1"_s.arg(radio == first ? 3 : 4);
        machine.host.plug({u"Wi-Fi"_s, radio, address, address, {u"192.0.2.13"_s}});
        saveRule(randomOnce(radio, radio));
    }
    WiFiInterface network;
    network.device = joined;
    network.ssid = u"Home"_s;
    network.bssid = u"02:00:00:00:aa:01"_s;
    machine.wifi.join(network);
    run();
    ASSERT_EQ(machine.helper.changes().size(), 1);
    EXPECT_EQ(machine.helper.changes().first().device, joined);
}

TEST_F(LaunchSequenceTest, BeforeTheEndOfTheLaunchTheDatabaseIsInPlaceAndTheHelperIsAsked)
{
    create(shippedVendors());
    program->launch().awakeFromNib();
    StateOrder order;
    order.expectSignal(u"application hidden"_s, features().presence, &Presence::windowHidden);
    order.expect(u"vendors counted"_s, [this] {
        return features().vendors.pane.state().vendorCount == u"2 Vendor Identifiers"_s;
    });
    order.expect(u"helper asked"_s, [this] { return !machine.helper.journal().isEmpty(); });
    order.follow(features().vendors.pane, &VendorPaneModel::changed);
    program->launch().applicationWillFinishLaunching();
    order.look();
    EXPECT_EQ(order.seen(), order.expected());
}

TEST_F(LaunchSequenceTest, TheStepsComeInTheirOrder)
{
    saveAddress();
    machine.settings.set(
        keys::deviceDict, QVariantMap{{enp1s0, QVariantMap{{record::vendor, chosenVendor}}}});
    silenceHelper();
    create(shippedVendors());
    program->launch().awakeFromNib();
    program->launch().applicationWillFinishLaunching();
    // What the steps have to put right.
    features().mainWindow.setHelperInstalled(true);
    features().mainWindow.editField(u"02:00:00:00:00:01"_s);
    features().rules.countdown.showCountdown({}, u"of the last start"_s, false);

    StateOrder order;
    order.expect(u"records open and rules listed"_s, [this] {
        return features().history.store.hasManagedObjectContext() &&
               !features().rules.list.state().symbol.isEmpty();
    });
    order.expectSignal(u"Dock icon"_s, features().presence, &Presence::dockIconHiddenChanged);
    order.expect(u"external address unknown"_s,
        [this] { return machine.settings.getString(keys::externalIPAddress) == u"Unknown..."_s; });
    order.expectSignal(u"status item"_s, features().presence, &Presence::statusItemShownChanged);
    order.expect(u"leave to notify asked for"_s,
        [this] { return machine.userNotifications.authorizationRequests == 1; });
    order.expectSignal(u"window opened"_s, features().presence, &Presence::windowOpened);
    order.expect(u"nothing to apply"_s, [this] { return !window().updateEnabled; });
    order.expect(
        u"no countdown"_s, [this] { return features().rules.countdown.state().label.isEmpty(); });
    order.expect(u"vendors counted again"_s, [this] {
        return features().vendors.pane.state().vendorCount == u"3 Vendor Identifiers"_s;
    });
    order.expect(u"quick addresses"_s,
        [this] { return !features().networks.savedLists.state().quickAddresses.isEmpty(); });
    order.expectSignal(u"buttons"_s, features().mainWindow, &MainWindowModel::infoButtonsReset);
    order.expect(
        u"interfaces read"_s, [this] { return features().devices.table.contains(enp2s0); });
    order.expect(u"interface selected"_s,
        [this] { return features().devices.currentInterface.device() == enp1s0; });
    order.expect(u"vendor field"_s,
        [this] { return features().vendors.field.state().text == u"Random Address"_s; });
    order.expect(
        u"network changes followed"_s, [this] { return machine.networkChanges.isStarted(); });

    order.follow(features().rules.list, &RulesListModel::changed);
    order.follow(features().mainWindow, &MainWindowModel::changed);
    order.follow(features().rules.countdown, &CountdownModel::changed);
    order.follow(features().vendors.pane, &VendorPaneModel::changed);
    order.follow(features().vendors.field, &VendorFieldModel::changed);
    order.follow(features().networks.savedLists, &SavedListsModel::changed);
    for (const QString &key :
        {keys::externalIPAddress, keys::deviceDict, keys::currentInterfaceDict}) {
        order.followSetting(machine.settings, key);
    }
    // Counted again means: what changed since the first count is seen.
    QObject::connect(&features().presence, &Presence::windowOpened,
        [this] { fillVendors(machine.data.filePath(u"oui.db"_s), 3); });

    program->launch().applicationDidFinishLaunching();
    order.look();
    EXPECT_EQ(order.seen(), order.expected());
}

TEST_F(LaunchSequenceTest, DefaultsAreRegisteredBeforeTheFirstComponentAndFlushed)
{
    FakePlatform other;
    QuillonAppDelegate::initialize(other.settings, {{keys::showInMenu, true}});
    EXPECT_TRUE(other.settings.getBool(keys::showInMenu));
    EXPECT_TRUE(other.settings.stored().isEmpty()) << "defaults are never stored";
    EXPECT_EQ(other.settings.synchronizeCount(), 1);
}

TEST_F(LaunchSequenceTest, WithoutPackagedDefaultsReadsFallBackToNothingAndTheLaunchGoesOn)
{
    FakePlatform other;
    QuillonAppDelegate::initialize(other.settings, {});
    QuillonAppDelegate second(other.platform());
    second.launch().awakeFromNib();
    second.launch().applicationWillFinishLaunching();
    second.launch().applicationDidFinishLaunching();
    other.scheduler.advance(1s);

    EXPECT_FALSE(second.features().presence.isStatusItemShown());
    EXPECT_EQ(other.userNotifications.authorizationRequests, 0);
    EXPECT_EQ(second.features().mainWindow.state().selectedDevice, enp1s0);
}

TEST_F(LaunchSequenceTest, RandomizingIsNotOfferedUntilTheHelperIsAsked)
{
    create();
    program->launch().awakeFromNib();
    features().mainWindow.setHelperInstalled(true);
    program->launch().applicationWillFinishLaunching();
    EXPECT_FALSE(window().randomizeEnabled) << "whatever enabled it before";
}

TEST_F(LaunchSequenceTest, BeforeTheHelperAnsweredNothingCanBeChanged)
{
    create();
    start();
    EXPECT_FALSE(window().randomizeEnabled);
    EXPECT_FALSE(window().restoreEnabled);
    EXPECT_FALSE(window().updateEnabled);
    EXPECT_FALSE(window().fieldEnabled);
    EXPECT_FALSE(features().readMe.state().visible);
}

TEST_F(LaunchSequenceTest, TheHelperIsAuthorizedBeforeItsVersionIsAsked)
{
    create();
    start();
    machine.scheduler.runPending();
    const QStringList asked = machine.helper.journal();
    EXPECT_EQ(asked.indexOf(u"authorize"_s), 0);
    EXPECT_LT(asked.indexOf(u"rights"_s), asked.indexOf(u"endpoint"_s));
    EXPECT_TRUE(asked.contains(u"version"_s));
}

TEST_F(LaunchSequenceTest, WithoutTheServiceTheHintIsShownAndTheFieldStaysDisabled)
{
    machine.helper.serviceExists = false;
    run();
    EXPECT_TRUE(features().readMe.state().visible);
    EXPECT_FALSE(window().fieldEnabled);
    EXPECT_FALSE(window().randomizeEnabled);
}

TEST_F(LaunchSequenceTest, TheDevicesAreReadAndTheAddressFieldIsFilled)
{
    silenceHelper();
    create();
    start();
    machine.scheduler.runPending();
    EXPECT_EQ(window().devices, (QStringList{enp1s0, enp2s0}));
    EXPECT_EQ(window().fieldText, u"3C:22:FB:00:00:01"_s);
}

TEST_F(LaunchSequenceTest, WhatAProgramThatDiedHadLetGoIsTakenBack)
{
    create();
    start();
    EXPECT_EQ(machine.owners.interruptionsFinished(), 1);
}

TEST_F(LaunchSequenceTest, AnEarlierSelectionStaysAndTheDevicesAreOfferedAtOnce)
{
    machine.settings.set(keys::currentInterfaceDict, QVariantMap{{record::device, enp2s0}});
    silenceHelper();
    create();
    StateOrder order;
    order.expect(
        u"devices offered"_s, [this] { return window().devices == QStringList{enp1s0, enp2s0}; });
    order.expect(
        u"network changes followed"_s, [this] { return machine.networkChanges.isStarted(); });
    order.follow(features().mainWindow, &MainWindowModel::changed);
    start();
    order.look();
    EXPECT_EQ(order.seen(), order.expected());
    machine.scheduler.runPending();
    EXPECT_EQ(window().selectedDevice, enp2s0);
    EXPECT_EQ(window().fieldText, u"3C:22:FB:00:00:02"_s);
}

TEST_F(LaunchSequenceTest, StartedAtLoginAndHiddenNoWindowOpensButDevicesAreRead)
{
    machine.runningApplications.running.insert(loginHelper);
    machine.settings.setBool(keys::hideOnLaunch, true);
    EXPECT_EQ(windowsOpenedByStart(), 0);
    EXPECT_TRUE(machine.host.journal().contains(u"ports"_s));
    EXPECT_TRUE(program->launch().startupCheck());
}

TEST_F(LaunchSequenceTest, StartedAtLoginWithoutHidingTheWindowOpens)
{
    machine.runningApplications.running.insert(loginHelper);
    EXPECT_EQ(windowsOpenedByStart(), 1);
}

TEST_F(LaunchSequenceTest, WantedAtLoginTheDesktopIsAskedAnewAtEachStart)
{
    machine.settings.setBool(keys::loginStart, true);
    create();
    start();
    EXPECT_EQ(machine.loginItem.journal, QStringList{loginHelper + u" on"_s});
    EXPECT_TRUE(features().preferences.loginController.enabled());
}

TEST_F(LaunchSequenceTest, NotWantedAtLoginTheDesktopIsNotAsked)
{
    create();
    start();
    EXPECT_TRUE(machine.loginItem.journal.isEmpty());
}

TEST_F(LaunchSequenceTest, StartedByTheUserHidingDoesNotApply)
{
    machine.settings.setBool(keys::hideOnLaunch, true);
    EXPECT_EQ(windowsOpenedByStart(), 1);
    EXPECT_FALSE(program->launch().startupCheck());
}

TEST_F(LaunchSequenceTest, WhatTheStartNeededGoesBackToTheSystemOnceTheRulesAreChecked)
{
    create();
    const int before = memoryTrims();
    start();
    EXPECT_EQ(memoryTrims(), before);
    machine.scheduler.advance(1s);
    EXPECT_EQ(memoryTrims() - before, 1);
}

TEST_F(LaunchSequenceTest, AKnownExternalAddressIsKept)
{
    machine.settings.set(keys::externalIPAddress, u"198.51.100.7"_s);
    create();
    start();
    EXPECT_EQ(machine.settings.getString(keys::externalIPAddress), u"198.51.100.7"_s);
}

TEST_F(LaunchSequenceTest, QuittingForgetsTheExternalAddressDurably)
{
    run();
    machine.settings.set(keys::externalIPAddress, u"198.51.100.7"_s);
    machine.settings.clearJournal();
    program->launch().applicationWillTerminate();
    EXPECT_EQ(machine.settings.getString(keys::externalIPAddress), u"Unknown..."_s);
    EXPECT_EQ(machine.settings.journal().last(), u"flush"_s);
    EXPECT_EQ(machine.groupSettings.journal().last(), u"flush"_s);
}

TEST_F(LaunchSequenceTest, ASecondStartOpensTheWindow)
{
    run();
    int opened = 0;
    QObject::connect(&features().presence, &Presence::windowOpened, [&] { ++opened; });
    EXPECT_TRUE(program->launch().applicationShouldHandleReopen());
    EXPECT_EQ(opened, 1);
}

} // namespace
} // namespace quillon::test
