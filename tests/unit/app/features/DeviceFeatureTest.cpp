// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/features/DeviceFeature.h"

#include "unit/app/ProgramOnFakes.h"
#include "unit/app/StateOrder.h"
#include "unit/vendors/VendorFolder.h"

namespace quillon::test {
namespace {

using namespace std::chrono_literals;

const QString wiredTitle = QStringLiteral("USB Ethernet · enp2s0");
const QString newAddress = QStringLiteral("AA:01:02:03:04:05");

class DeviceFeatureTest : public ProgramOnFakes
{
protected:
    int menuRow(const QString &title) const
    {
        return static_cast<int>(menuTitles().indexOf(title));
    }
};

TEST_F(DeviceFeatureTest, FollowUpsOfANewSelectionComeInTheirOrder)
{
    const QString vendor = QStringLiteral("Zebra (00000D)");
    const QString newDevice = QStringLiteral("enp9s0");
    const QString vendors = machine.data.filePath(QStringLiteral("vendors.db"));
    const QString csv = machine.data.filePath(QStringLiteral("vendors.csv"));
    writeFile(csv, registryOf({{"3C22FB", "Appian"}, {"00000D", "Zebra"}}));
    ASSERT_TRUE(fillVendorTable(csv, vendors));
    machine.host.at(enp2s0).address = QStringLiteral("00:00:0d:00:00:02");
    saveRule(randomOnce(enp2s0, QStringLiteral("Home")));
    machine.reachability.reachable = false;
    create(vendors);
    start();
    machine.scheduler.advance(500ms);
    setDeviceRecord(enp2s0, record::vendor, vendor);
    setDeviceRecord(enp2s0, record::hasRule, 1);
    features().rules.countdown.showCountdown(enp1s0, QStringLiteral("of the other one"), false);
    // Offered for the old interface, and the new one's own address.
    features().mainWindow.editField(QStringLiteral("00:00:0D:00:00:02"));
    ASSERT_TRUE(window().updateEnabled);
    machine.host.plug(
        {QStringLiteral("Ethernet"), newDevice, {}, QStringLiteral("3c:22:fb:00:00:09"), {}});

    StateOrder order;
    order.expect(
        QStringLiteral("interfaces"), [&] { return window().devices.contains(newDevice); });
    order.expect(QStringLiteral("row of the vendor"), [&] {
        const auto &field = features().vendors.field;
        return field.state().selectedRow && field.rowText(*field.state().selectedRow) == vendor;
    });
    order.expect(QStringLiteral("countdown hidden"),
        [&] { return !features().rules.countdown.state().buttonsVisible; });
    order.expect(QStringLiteral("placeholder"),
        [&] { return window().fieldPlaceholder == QStringLiteral("00:00:0D:00:00:02"); });
    order.expect(QStringLiteral("vendor looked up"), [&] {
        return machine.settings.getDictionary(keys::currentVendorData)
            .values()
            .contains(QStringLiteral("Zebra"));
    });
    order.expect(QStringLiteral("nothing to apply"), [&] { return !window().updateEnabled; });
    order.expect(QStringLiteral("vendor field"),
        [&] { return features().vendors.field.state().text == vendor; });
    order.expect(QStringLiteral("rule status"), [&] {
        return features().rules.status.state().image == QStringLiteral("NSStatusAvailable");
    });
    order.expect(QStringLiteral("menu"), [&] {
        return features().statusMenu.entries().at(static_cast<size_t>(menuRow(wiredTitle))).checked;
    });
    order.follow(features().mainWindow, &MainWindowModel::changed);
    order.follow(features().vendors.field, &VendorFieldModel::changed);
    order.follow(features().rules.countdown, &CountdownModel::changed);
    order.follow(features().rules.status, &RuleStatusModel::changed);
    order.follow(features().statusMenu, &StatusMenuModel::changed);
    order.followSetting(machine.settings, keys::currentVendorData);

    select(enp2s0);
    EXPECT_EQ(order.seen(), order.expected());
}

TEST_F(DeviceFeatureTest, ARebuildHidesTheCountdownWhateverItFinds)
{
    run();
    features().rules.countdown.showCountdown(enp1s0, QStringLiteral("of the other one"), false);
    setDeviceRecord(enp2s0, record::current, QStringLiteral("no address"));
    features().devices.currentInterface.updateCurrentInterfaceDict(enp2s0);
    machine.scheduler.runPending();
    EXPECT_EQ(features().devices.currentInterface.device(), enp1s0);
    EXPECT_EQ(features().rules.countdown.state().label, QString());
}

TEST_F(DeviceFeatureTest, FreshHexValuesRefillTheAddressField)
{
    run();
    features().mainWindow.editField(QStringLiteral("02"));
    features().devices.currentInterface.updateHexValues();
    machine.scheduler.runPending();
    EXPECT_EQ(window().fieldText, QStringLiteral("3C:22:FB:00:00:01"));
}

TEST_F(DeviceFeatureTest, TheListOfTheWindowFollowsThatOfTheMenu)
{
    run();
    machine.host.plug({QStringLiteral("Ethernet"), QStringLiteral("enp9s0"), {},
        QStringLiteral("3c:22:fb:00:00:09"), {}});
    QStringList whileRebuilt;
    QObject::connect(&features().statusMenu, &StatusMenuModel::changed,
        [&] { whileRebuilt = window().devices; });
    features().statusMenu.menuWillOpen();
    EXPECT_EQ(whileRebuilt, (QStringList{enp1s0, enp2s0, QStringLiteral("enp9s0")}));
}

TEST_F(DeviceFeatureTest, TheRandomizeButtonChangesTheAddressAndTellsTheUser)
{
    run();
    features().mainWindow.randomizeAddress();
    machine.scheduler.advance(2s);
    EXPECT_EQ(machine.host.addressOf(enp1s0).toUpper(), newAddress);
    EXPECT_EQ(window().fieldText, newAddress);
    EXPECT_TRUE(window().hardwareIndicatorVisible);
    EXPECT_TRUE(window().restoreEnabled);
    EXPECT_TRUE(menuTitles().contains(QStringLiteral("    Current Address · ") + newAddress))
        << "without being opened";
    ASSERT_EQ(machine.userNotifications.onScreen.size(), 1);
    EXPECT_EQ(machine.userNotifications.onScreen.first().title,
        QStringLiteral("Ethernet Address Changed"));
}

TEST_F(DeviceFeatureTest, TheRestoreButtonGivesTheFactoryAddressBack)
{
    run();
    machine.host.giveAddress(enp1s0, QStringLiteral("02:00:00:00:00:77"));
    machine.networkChanges.networkChanges();
    machine.scheduler.runPending();
    features().mainWindow.restoreDefaultAddress();
    machine.scheduler.runPending();
    EXPECT_FALSE(isChanged(enp1s0));
    EXPECT_FALSE(window().restoreEnabled);
}

TEST_F(DeviceFeatureTest, TheMenuRandomizesAnotherInterfaceAndTheSelectionStays)
{
    run();
    features().statusMenu.menuWillOpen();
    features().statusMenu.activate({menuRow(wiredTitle) + 2, 0});
    machine.scheduler.runPending();
    EXPECT_EQ(machine.host.addressOf(enp2s0).toUpper(), newAddress);
    EXPECT_EQ(window().selectedDevice, enp1s0);
}

TEST_F(DeviceFeatureTest, WithNotificationsSwitchedOffAChangeIsRecordedAndAnnouncedWithoutAMessage)
{
    run();
    machine.settings.setBool(keys::displayNotifications, false);
    int broadcasts = 0;
    const auto token = machine.notifications.addObserver(
        notifications::addressUpdated, [&](const auto &) { ++broadcasts; });
    features().mainWindow.randomizeAddress();
    machine.scheduler.advance(5s);
    machine.notifications.removeObserver(token);
    EXPECT_EQ(history().size(), 1);
    EXPECT_EQ(broadcasts, 1);
    EXPECT_TRUE(machine.userNotifications.everShown.isEmpty());
}

} // namespace
} // namespace quillon::test
