// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "devices/MenuItem.h"
#include "unit/presentation/window/MainWindowModelFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using MainWindowModelTest = MainWindowModelFixture;

TEST_F(MainWindowModelTest, TheSelectionButtonListsTheDevicesInTheirOrderWithTheSelectedOne)
{
    EXPECT_EQ(shown().devices, (QStringList{wifi, wired}));
    EXPECT_EQ(shown().selectedDevice, wired);
    EXPECT_TRUE(shown().selectionVisible);
}

TEST_F(MainWindowModelTest, TheSelectionButtonFollowsWhoeverSelectsAnInterface)
{
    current.updateCurrentInterfaceDict(wifi);
    scheduler.runPending();
    model.showPlaceholder(*current.record().current);
    EXPECT_EQ(shown().selectedDevice, wifi);
}

TEST_F(MainWindowModelTest, WithoutADeviceTheSelectionButtonIsHidden)
{
    settings.set(keys::deviceDict, QVariant());
    model.populateSelectionButton();
    EXPECT_FALSE(shown().selectionVisible);
}

TEST_F(MainWindowModelTest, AClickOnTheSelectionButtonReadsTheDevicesAgain)
{
    host.plug({u"Ethernet"_s, u"enp9s0"_s, {}, u"3c:22:fb:00:00:09"_s, {}});
    devices.updateNetWorkInterfaces();
    model.popupButtonClicked();
    EXPECT_TRUE(shown().devices.contains(u"enp9s0"_s));
}

TEST_F(MainWindowModelTest, TheDetailsAreThoseOfTheSelectedInterface)
{
    EXPECT_EQ(shown().interfaceName, u"Ethernet"_s);
    EXPECT_EQ(shown().hardwareAddress, u"3C:22:FB:00:00:01"_s);
    EXPECT_EQ(shown().ipAddress, u"192.0.2.10"_s);
    EXPECT_TRUE(shown().linkActive);

    select(wifi);
    EXPECT_EQ(shown().interfaceName, u"Wi-Fi"_s);
    EXPECT_EQ(shown().ipAddress, QString());
    EXPECT_FALSE(shown().linkActive);
}

TEST_F(MainWindowModelTest, TheIndicatorShowsThatTheAddressInUseIsNotTheFactoryOne)
{
    EXPECT_FALSE(shown().hardwareIndicatorVisible);
    EXPECT_FALSE(shown().restoreEnabled);
    EXPECT_TRUE(shown().softwareButtonVisible);

    host.giveAddress(wired, u"02:00:00:00:00:01"_s);
    devices.updateNetWorkInterfaces();
    select(wired);
    EXPECT_TRUE(shown().hardwareIndicatorVisible);
    EXPECT_TRUE(shown().restoreEnabled);
    EXPECT_TRUE(shown().softwareButtonVisible);
}

TEST_F(MainWindowModelTest, AChosenInterfaceIsSelected)
{
    model.changeInterfacefromPopup(wifi);
    scheduler.runPending();
    EXPECT_EQ(current.device(), wifi);
}

TEST_F(MainWindowModelTest, NothingIsAnnouncedWhenNothingChanges)
{
    int changes = 0;
    QObject::connect(&model, &MainWindowModel::changed, [&] { ++changes; });
    model.populateSelectionButton();
    model.setHelperInstalled(true);
    EXPECT_EQ(changes, 0);
}

TEST_F(MainWindowModelTest, ItsButtonOpensAndClosesTheHardwarePopover)
{
    model.toggleHardwarePopover();
    EXPECT_TRUE(shown().hardwarePopoverShown);
    model.toggleHardwarePopover();
    EXPECT_FALSE(shown().hardwarePopoverShown);
    model.toggleHardwarePopover();
    model.hardwarePopoverWillClose();
    EXPECT_FALSE(shown().hardwarePopoverShown);
}

TEST_F(MainWindowModelTest, ARestoreClosesTheHardwarePopover)
{
    model.toggleHardwarePopover();
    model.restoreDefaultAddress();
    EXPECT_FALSE(shown().hardwarePopoverShown);
}

TEST_F(MainWindowModelTest, ARestoreInTheMenuClosesTheHardwarePopoverWhateverItFinds)
{
    model.toggleHardwarePopover();
    changer.restoreDefaultAddress(MenuItem(u"Restore"_s));
    EXPECT_FALSE(shown().hardwarePopoverShown);
}

} // namespace
} // namespace quillon::test
