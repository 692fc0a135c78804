// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/features/DeviceFeature.h"

#include "unit/app/ProgramOnFakes.h"
#include "unit/app/StateOrder.h"
#include "unit/vendors/VendorFolder.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using namespace std::chrono_literals;

const QString wiredTitle = u"USB Ethernet · enp2s0"_s;
const QString newAddress = u"AA:01:02:03:04:05"_s;

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
    const QString vendor = u"Zebra (00000D)"_s;
    const QString newDevice = u"enp9s0"_s;
    const QString vendors = machine.data.filePath(u"vendors.db"_s);
    const QString csv = machine.data.filePath(u"vendors.csv"_s);
    writeFile(csv, registryOf({{"3C22FB", "Appian"}, {"00000D", "Zebra"}}));
    ASSERT_TRUE(fillVendorTable(csv, vendors));
    machine.host.at(enp2s0).address = u"00:00:0d:00:00:02"_s;
    saveRule(randomOnce(enp2s0, u"Home"_s));
    machine.reachability.reachable = false;
    create(vendors);
    start();
    machine.scheduler.advance(500ms);
    features().vendors.field.showVendorViewPopover();
    machine.scheduler.runPending();
    setDeviceRecord(enp2s0, record::vendor, vendor);
    setDeviceRecord(enp2s0, record::hasRule, 1);
    features().rules.countdown.showCountdown(enp1s0, u"of the other one"_s, false);
    // Offered for the old interface, and the new one's own address.
    features().mainWindow.editField(u"00:00:0D:00:00:02"_s);
    ASSERT_TRUE(window().updateEnabled);
    machine.host.plug({u"Ethernet"_s, newDevice, {}, u"3c:22:fb:00:00:09"_s, {}});

    StateOrder order;
    order.expect(u"interfaces"_s, [&] { return window().devices.contains(newDevice); });
    order.expect(u"row of the vendor"_s, [&] {
        const auto &field = features().vendors.field;
        return field.state().selectedRow && field.rowText(*field.state().selectedRow) == vendor;
    });
    order.expect(
        u"countdown hidden"_s, [&] { return !features().rules.countdown.state().buttonsVisible; });
    order.expect(
        u"placeholder"_s, [&] { return window().fieldPlaceholder == u"00:00:0D:00:00:02"_s; });
    order.expect(u"vendor looked up"_s, [&] {
        return machine.settings.getDictionary(keys::currentVendorData)
            .values()
            .contains(u"Zebra"_s);
    });
    order.expect(u"nothing to apply"_s, [&] { return !window().updateEnabled; });
    order.expect(
        u"vendor field"_s, [&] { return features().vendors.field.state().text == vendor; });
    order.expect(u"rule status"_s,
        [&] { return features().rules.status.state().image == u"NSStatusAvailable"_s; });
    order.expect(u"menu"_s, [&] {
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
    features().rules.countdown.showCountdown(enp1s0, u"of the other one"_s, false);
    setDeviceRecord(enp2s0, record::current, u"no address"_s);
    features().devices.currentInterface.updateCurrentInterfaceDict(enp2s0);
    machine.scheduler.runPending();
    EXPECT_EQ(features().devices.currentInterface.device(), enp1s0);
    EXPECT_EQ(features().rules.countdown.state().label, QString());
}

TEST_F(DeviceFeatureTest, FreshHexValuesRefillTheAddressField)
{
    run();
    features().mainWindow.editField(u"02"_s);
    features().devices.currentInterface.updateHexValues();
    machine.scheduler.runPending();
    EXPECT_EQ(window().fieldText, u"3C:22:FB:00:00:01"_s);
}

TEST_F(DeviceFeatureTest, TheListOfTheWindowFollowsThatOfTheMenu)
{
    run();
    machine.host.plug({u"Ethernet"_s, u"enp9s0"_s, {}, u"3c:22:fb:00:00:09"_s, {}});
    QStringList whileRebuilt;
    QObject::connect(&features().statusMenu, &StatusMenuModel::changed,
        [&] { whileRebuilt = window().devices; });
    features().statusMenu.menuWillOpen();
    EXPECT_EQ(whileRebuilt, (QStringList{enp1s0, enp2s0, u"enp9s0"_s}));
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
    EXPECT_TRUE(menuTitles().contains(u"    Current Address · "_s + newAddress))
        << "without being opened";
    ASSERT_EQ(machine.userNotifications.onScreen.size(), 1);
    EXPECT_EQ(machine.userNotifications.onScreen.first().title, u"Ethernet Address Changed"_s);
}

TEST_F(DeviceFeatureTest, TheRestoreButtonGivesTheFactoryAddressBack)
{
    run();
    machine.host.giveAddress(enp1s0, u"02:00:00:00:00:77"_s);
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
