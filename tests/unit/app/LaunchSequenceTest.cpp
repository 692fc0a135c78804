// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/LaunchSequence.h"

#include "unit/app/ProgramOnFakes.h"
#include "unit/app/StateOrder.h"
#include "unit/vendors/VendorFolder.h"

namespace quillon::test {
namespace {

using namespace std::chrono_literals;

const QString loginHelper = QStringLiteral("com.orvandel.Quillon4Helper");
const QString chosenVendor = QStringLiteral("Zebra (00000D)");

class LaunchSequenceTest : public ProgramOnFakes
{
protected:
    /// A vendor database that the program is shipped with.
    QString shippedVendors() const
    {
        const QString path = machine.data.filePath(QStringLiteral("shipped.db"));
        fillVendors(path, 2);
        return path;
    }
    void fillVendors(const QString &path, int count) const
    {
        const QString csv = machine.data.filePath(QStringLiteral("vendors.csv"));
        writeFile(csv, registryOf(count));
        EXPECT_TRUE(fillVendorTable(csv, path));
    }
    void saveAddress()
    {
        machine.settings.set(
            keys::savedAddresses, QVariantMap{{QStringLiteral("02:00:00:00:00:AA"),
                                      QVariantMap{{savedentry::name, QStringLiteral("Mine")}}}});
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
    order.expect(QStringLiteral("window"), [this] { return !window().versionLabel.isEmpty(); });
    order.expectSignal(
        QStringLiteral("network"), features().networks.wifi, &WiFiNetwork::networkButtonShown);
    order.expect(QStringLiteral("vendor texts"),
        [this] { return !features().vendors.pane.state().updatedLabel.isEmpty(); });
    order.follow(features().mainWindow, &MainWindowModel::changed);
    order.follow(features().vendors.pane, &VendorPaneModel::changed);
    program->launch().awakeFromNib();
    EXPECT_EQ(order.seen(), order.expected());
    EXPECT_EQ(machine.wifi.reads, 1);
}

TEST_F(LaunchSequenceTest, BeforeTheEndOfTheLaunchTheDatabaseIsInPlaceAndTheHelperIsAsked)
{
    create(shippedVendors());
    program->launch().awakeFromNib();
    StateOrder order;
    order.expectSignal(
        QStringLiteral("application hidden"), features().presence, &Presence::windowHidden);
    order.expect(QStringLiteral("vendors counted"), [this] {
        return features().vendors.pane.state().vendorCount ==
               QStringLiteral("2 Vendor Identifiers");
    });
    order.expect(
        QStringLiteral("helper asked"), [this] { return !machine.helper.journal().isEmpty(); });
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
    features().mainWindow.editField(QStringLiteral("02:00:00:00:00:01"));
    features().rules.countdown.showCountdown({}, QStringLiteral("of the last start"), false);

    StateOrder order;
    order.expect(QStringLiteral("records open and rules listed"), [this] {
        return features().history.store.hasManagedObjectContext() &&
               !features().rules.list.state().symbol.isEmpty();
    });
    order.expectSignal(
        QStringLiteral("Dock icon"), features().presence, &Presence::dockIconHiddenChanged);
    order.expect(QStringLiteral("external address unknown"), [this] {
        return machine.settings.getString(keys::externalIPAddress) == QStringLiteral("Unknown...");
    });
    order.expectSignal(
        QStringLiteral("status item"), features().presence, &Presence::statusItemShownChanged);
    order.expect(QStringLiteral("leave to notify asked for"),
        [this] { return machine.userNotifications.authorizationRequests == 1; });
    order.expectSignal(
        QStringLiteral("window opened"), features().presence, &Presence::windowOpened);
    order.expect(QStringLiteral("nothing to apply"), [this] { return !window().updateEnabled; });
    order.expect(QStringLiteral("no countdown"),
        [this] { return features().rules.countdown.state().label.isEmpty(); });
    order.expect(QStringLiteral("vendors counted again"), [this] {
        return features().vendors.pane.state().vendorCount ==
               QStringLiteral("3 Vendor Identifiers");
    });
    order.expect(QStringLiteral("quick addresses"),
        [this] { return !features().networks.savedLists.state().quickAddresses.isEmpty(); });
    order.expectSignal(
        QStringLiteral("buttons"), features().mainWindow, &MainWindowModel::infoButtonsReset);
    order.expect(QStringLiteral("interfaces read"),
        [this] { return features().devices.table.contains(enp2s0); });
    order.expect(QStringLiteral("interface selected"),
        [this] { return features().devices.currentInterface.device() == enp1s0; });
    order.expect(QStringLiteral("vendor field"), [this] {
        return features().vendors.field.state().text == QStringLiteral("Random Address");
    });
    order.expect(QStringLiteral("network changes followed"),
        [this] { return machine.networkChanges.isStarted(); });

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
        [this] { fillVendors(machine.data.filePath(QStringLiteral("oui.db")), 3); });

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
    EXPECT_FALSE(window().randomiseEnabled) << "whatever enabled it before";
}

TEST_F(LaunchSequenceTest, BeforeTheHelperAnsweredNothingCanBeChanged)
{
    create();
    start();
    EXPECT_FALSE(window().randomiseEnabled);
    EXPECT_FALSE(window().restoreEnabled);
    EXPECT_FALSE(window().updateEnabled);
    EXPECT_FALSE(window().fieldEnabled);
    EXPECT_FALSE(window().readMeVisible);
}

TEST_F(LaunchSequenceTest, TheHelperIsAuthorizedBeforeItsVersionIsAsked)
{
    create();
    start();
    machine.scheduler.runPending();
    const QStringList asked = machine.helper.journal();
    EXPECT_EQ(asked.indexOf(QStringLiteral("authorize")), 0);
    EXPECT_LT(asked.indexOf(QStringLiteral("rights")), asked.indexOf(QStringLiteral("endpoint")));
    EXPECT_TRUE(asked.contains(QStringLiteral("version")));
}

TEST_F(LaunchSequenceTest, WithoutTheServiceTheHintIsShownAndTheFieldStaysDisabled)
{
    machine.helper.serviceExists = false;
    run();
    EXPECT_TRUE(window().readMeVisible);
    EXPECT_FALSE(window().fieldEnabled);
    EXPECT_FALSE(window().randomiseEnabled);
}

TEST_F(LaunchSequenceTest, TheDevicesAreReadAndTheAddressFieldIsFilled)
{
    silenceHelper();
    create();
    start();
    machine.scheduler.runPending();
    EXPECT_EQ(window().devices, (QStringList{enp1s0, enp2s0}));
    EXPECT_EQ(window().fieldText, QStringLiteral("3C:22:FB:00:00:01"));
}

TEST_F(LaunchSequenceTest, AnEarlierSelectionStaysAndTheDevicesAreOfferedAtOnce)
{
    machine.settings.set(keys::currentInterfaceDict, QVariantMap{{record::device, enp2s0}});
    silenceHelper();
    create();
    StateOrder order;
    order.expect(QStringLiteral("devices offered"), [this] {
        return window().devices == QStringList{enp1s0, enp2s0};
    });
    order.expect(QStringLiteral("network changes followed"),
        [this] { return machine.networkChanges.isStarted(); });
    order.follow(features().mainWindow, &MainWindowModel::changed);
    start();
    order.look();
    EXPECT_EQ(order.seen(), order.expected());
    machine.scheduler.runPending();
    EXPECT_EQ(window().selectedDevice, enp2s0);
    EXPECT_EQ(window().fieldText, QStringLiteral("3C:22:FB:00:00:02"));
}

TEST_F(LaunchSequenceTest, StartedAtLoginAndHiddenNoWindowOpensButDevicesAreRead)
{
    machine.runningApplications.running.insert(loginHelper);
    machine.settings.setBool(keys::hideOnLaunch, true);
    EXPECT_EQ(windowsOpenedByStart(), 0);
    EXPECT_TRUE(machine.host.journal().contains(QStringLiteral("ports")));
    EXPECT_TRUE(program->launch().startupCheck());
}

TEST_F(LaunchSequenceTest, StartedAtLoginWithoutHidingTheWindowOpens)
{
    machine.runningApplications.running.insert(loginHelper);
    EXPECT_EQ(windowsOpenedByStart(), 1);
}

TEST_F(LaunchSequenceTest, StartedByTheUserHidingDoesNotApply)
{
    machine.settings.setBool(keys::hideOnLaunch, true);
    EXPECT_EQ(windowsOpenedByStart(), 1);
    EXPECT_FALSE(program->launch().startupCheck());
}

TEST_F(LaunchSequenceTest, AKnownExternalAddressIsKept)
{
    machine.settings.set(keys::externalIPAddress, QStringLiteral("198.51.100.7"));
    create();
    start();
    EXPECT_EQ(machine.settings.getString(keys::externalIPAddress), QStringLiteral("198.51.100.7"));
}

TEST_F(LaunchSequenceTest, QuittingForgetsTheExternalAddressDurably)
{
    run();
    machine.settings.set(keys::externalIPAddress, QStringLiteral("198.51.100.7"));
    machine.settings.clearJournal();
    program->launch().applicationWillTerminate();
    EXPECT_EQ(machine.settings.getString(keys::externalIPAddress), QStringLiteral("Unknown..."));
    EXPECT_EQ(machine.settings.journal().last(), QStringLiteral("flush"));
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
