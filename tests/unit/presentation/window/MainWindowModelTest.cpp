// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/window/MainWindowModel.h"

#include "devices/MenuItem.h"
#include "unit/presentation/DeviceModelsFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class MainWindowModelTest : public DeviceModelsFixture
{
protected:
    MainWindowModelTest()
    {
        select(wired);
        model.prepareWindow();
        model.setHelperInstalled(true);
    }

    void select(const QString &device)
    {
        current.updateCurrentInterfaceDict(device);
        scheduler.runPending();
        model.populateSelectionButton();
        model.populateHexField();
        scheduler.runPending();
    }

    const MainWindowModel::State &shown() const { return model.state(); }

    MainWindowModel model{{settings, scheduler, devices, current, changer}};
};

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

TEST_F(MainWindowModelTest, WithoutTheHelperTheFieldIsDisabled)
{
    model.setHelperInstalled(false);
    EXPECT_FALSE(shown().fieldEnabled);
    EXPECT_FALSE(shown().randomizeEnabled);
    EXPECT_FALSE(shown().restoreEnabled);

    model.setHelperInstalled(true);
    EXPECT_TRUE(shown().fieldEnabled);
    EXPECT_TRUE(shown().randomizeEnabled);
}

TEST_F(MainWindowModelTest, WithoutAnInterfaceNothingIsOfferedAndTheButtonsSayWhy)
{
    host.giveAddress(wired, u"02:00:00:00:00:01"_s);
    devices.updateNetWorkInterfaces();
    settings.set(keys::currentInterfaceDict, QVariantMap());
    model.populateSelectionButton();
    model.setFieldText(u"02:11:22:33:44:55"_s);
    model.checkUpdateButton();
    EXPECT_FALSE(shown().updateEnabled);
    EXPECT_FALSE(shown().randomizeEnabled);
    EXPECT_FALSE(shown().restoreEnabled);
    const QString why = u"No interface is selected: there is none whose address can be changed"_s;
    EXPECT_EQ(shown().whyNoUpdate, why);
    EXPECT_EQ(shown().whyNoRandomize, why);
    EXPECT_EQ(shown().whyNoRestore, why);

    select(wired);
    model.editField(u"02:11:22:33:44:55"_s);
    EXPECT_TRUE(shown().updateEnabled && shown().randomizeEnabled && shown().restoreEnabled);
    EXPECT_EQ(shown().whyNoUpdate + shown().whyNoRandomize + shown().whyNoRestore, QString());
}

TEST_F(MainWindowModelTest, NothingIsOfferedForAnInterfaceThatIsNotThereUntilItIsBack)
{
    host.giveAddress(wired, u"02:00:00:00:00:01"_s);
    devices.updateNetWorkInterfaces();
    select(wired);
    model.editField(u"02:11:22:33:44:55"_s);
    ASSERT_TRUE(shown().updateEnabled && shown().randomizeEnabled && shown().restoreEnabled);
    const FakeNetworkHost::Interface card = host.at(wired);
    host.unplug(wired);
    devices.updateNetWorkInterfaces();
    model.populateSelectionButton();
    EXPECT_EQ(shown().selectedDevice, wired) << "its record stays";
    EXPECT_FALSE(shown().updateEnabled || shown().randomizeEnabled || shown().restoreEnabled);
    for (const QString &why : {shown().whyNoUpdate, shown().whyNoRandomize, shown().whyNoRestore}) {
        EXPECT_EQ(why, u"The selected interface is not there"_s);
    }
    model.editField(u"02:11:22:33:44:56"_s);
    EXPECT_FALSE(shown().updateEnabled);

    host.plug(card);
    devices.updateNetWorkInterfaces();
    model.populateSelectionButton();
    EXPECT_TRUE(shown().updateEnabled && shown().randomizeEnabled && shown().restoreEnabled);
    EXPECT_EQ(shown().whyNoUpdate + shown().whyNoRandomize + shown().whyNoRestore, QString());
}

TEST_F(MainWindowModelTest, AButtonThatCanDoNothingSaysWhy)
{
    EXPECT_EQ(shown().whyNoUpdate, u"The field holds no other address to apply"_s);
    EXPECT_EQ(shown().whyNoRandomize, QString());
    EXPECT_EQ(shown().whyNoRestore, u"The interface has its factory address"_s);
    model.setHelperInstalled(false);
    EXPECT_EQ(shown().whyNoUpdate, u"The helper tool is not installed"_s);
    EXPECT_EQ(shown().whyNoRandomize, u"The helper tool is not installed"_s);
    EXPECT_EQ(shown().whyNoRestore, u"The helper tool is not installed"_s);
}

TEST_F(MainWindowModelTest, ARestoreWithoutFactoryAddressSaysSo)
{
    for (const QString &hardware : {QString(), u"N/A"_s}) {
        QVariantMap record = settings.getDictionary(keys::currentInterfaceDict);
        record[record::hardware] = hardware;
        settings.set(keys::currentInterfaceDict, record);
        model.populateHexField();
        scheduler.runPending();
        EXPECT_FALSE(shown().restoreEnabled);
        EXPECT_EQ(shown().whyNoRestore, u"The interface has no factory address that is known"_s);
    }
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

TEST_F(MainWindowModelTest, ApplyIsOfferedForAWholeValidAddressThatIsNotInUse)
{
    EXPECT_TRUE(model.editField(u"02:11:22:33:44:55"_s));
    EXPECT_TRUE(shown().updateEnabled);
    model.editField(u"02:11:22:33:44:5"_s);
    EXPECT_FALSE(shown().updateEnabled);
    model.editField(QString());
    EXPECT_FALSE(shown().updateEnabled);
}

TEST_F(MainWindowModelTest, TheAddressInUseInTheOtherCaseIsNotOffered)
{
    model.editField(u"3c:22:fb:00:00:01"_s);
    EXPECT_FALSE(shown().updateEnabled);
}

TEST_F(MainWindowModelTest, AWholeAddressIsShownInDisplayCaseAndShorterTextsAsTyped)
{
    model.editField(u"a1:b2"_s);
    EXPECT_EQ(shown().fieldText, u"a1:b2"_s);
    model.editField(u"a2:b2:c3:d4:e5:f6"_s);
    EXPECT_EQ(shown().fieldText, u"A2:B2:C3:D4:E5:F6"_s);
}

TEST_F(MainWindowModelTest, TwelveBareDigitsAreShownInDisplayCaseButNotOffered)
{
    model.editField(u"a2b2c3d4e5f6"_s);
    EXPECT_EQ(shown().fieldText, u"A2B2C3D4E5F6"_s);
    EXPECT_FALSE(shown().updateEnabled);
}

TEST_F(MainWindowModelTest, SeventeenCharactersThatAreNoAddressAreNotOffered)
{
    model.editField(u"02:11:22:33:44::5"_s);
    EXPECT_EQ(shown().fieldText.size(), 17);
    EXPECT_FALSE(shown().updateEnabled);
}

TEST_F(MainWindowModelTest, ARefusedKeystrokeLeavesTheFieldAsItWas)
{
    model.editField(u"02:11"_s);
    int restored = 0;
    QObject::connect(&model, &MainWindowModel::fieldRestored, [&] { ++restored; });
    EXPECT_FALSE(model.editField(u"02:11g"_s));
    EXPECT_FALSE(model.editField(u"0211223344556"_s));
    EXPECT_FALSE(model.editField(u"02:11:22:33:44:556"_s));
    EXPECT_EQ(shown().fieldText, u"02:11"_s);
    EXPECT_EQ(restored, 3);
}

TEST_F(MainWindowModelTest, WithoutTheHelperTheApplyButtonIsNeverReEvaluated)
{
    model.setHelperInstalled(false);
    model.setFieldText(u"02:11:22:33:44:55"_s);
    model.checkUpdateButton();
    EXPECT_FALSE(shown().updateEnabled);
}

TEST_F(MainWindowModelTest, TheApplyButtonIsEvaluatedOnTheMainThread)
{
    model.setFieldText(u"02:11:22:33:44:55"_s);
    scheduler.asBackground([&] { model.checkUpdateButton(); });
    EXPECT_FALSE(shown().updateEnabled);
    scheduler.runPending();
    EXPECT_TRUE(shown().updateEnabled);
}

TEST_F(MainWindowModelTest, SelectingAnotherInterfaceOffersNothingUntilAnAddressIsTyped)
{
    select(wifi);
    EXPECT_EQ(shown().fieldText, u"3C:22:FB:00:00:02"_s);
    EXPECT_FALSE(shown().updateEnabled);
}

TEST_F(MainWindowModelTest, ADroppedAddressIsShownInDisplayCaseAndOffered)
{
    settings.setBool(keys::lowerCaseHEX, true);
    EXPECT_TRUE(model.draggingEntered(u"AA:BB:CC:DD:EE:FF"_s));
    EXPECT_TRUE(model.performDragOperation());
    model.concludeDragOperation(u"AA:BB:CC:DD:EE:FF"_s);
    EXPECT_EQ(shown().fieldText, u"aa:bb:cc:dd:ee:ff"_s);
    EXPECT_TRUE(shown().updateEnabled);
}

TEST_F(MainWindowModelTest, DroppedTextThatIsNoAddressIsRefused)
{
    const QString before = shown().fieldText;
    EXPECT_FALSE(model.draggingEntered(u"hello"_s));
    model.concludeDragOperation(u"hello"_s);
    model.populateHexFieldFromDrop(u"AABBCCDDEEFF"_s);
    EXPECT_EQ(shown().fieldText, before);
}

TEST_F(MainWindowModelTest, ADropOnTheDisabledFieldIsRefused)
{
    model.setHelperInstalled(false);
    const QString before = shown().fieldText;
    EXPECT_FALSE(model.draggingEntered(u"02:11:22:33:44:55"_s));
    EXPECT_FALSE(model.performDragOperation());
    model.concludeDragOperation(u"02:11:22:33:44:55"_s);
    EXPECT_EQ(shown().fieldText, before);
}

TEST_F(MainWindowModelTest, TheButtonsChangeTheAddressOfTheSelectedInterface)
{
    model.randomizeAddress();
    scheduler.runPending();
    EXPECT_EQ(addressOf(wired), u"AA:01:02:03:04:05"_s);

    model.editField(u"02:11:22:33:44:55"_s);
    model.changeMacAddress();
    scheduler.runPending();
    EXPECT_EQ(addressOf(wired), u"02:11:22:33:44:55"_s);

    model.restoreDefaultAddress();
    scheduler.runPending();
    EXPECT_EQ(addressOf(wired), u"3C:22:FB:00:00:01"_s);
    EXPECT_EQ(addressOf(wifi), u"3C:22:FB:00:00:02"_s);
}

TEST_F(MainWindowModelTest, AnAppliedAddressIsShownInDisplayCase)
{
    model.setFieldText(u"02:aa:bb:cc:dd:ee"_s);
    model.changeMacAddress();
    EXPECT_EQ(shown().fieldText, u"02:AA:BB:CC:DD:EE"_s);
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

TEST_F(MainWindowModelTest, TheLineBelowTheFieldSaysWhatCanBeDone)
{
    using Line = AddressFieldLine;
    EXPECT_EQ(shown().fieldLine, Line::forText({}, {})) << "the address in use";
    model.editField(u"02:00"_s);
    EXPECT_EQ(shown().fieldLine, Line::forText(u"02:00"_s, {}));
    model.setHelperInstalled(false);
    EXPECT_EQ(shown().fieldLine, Line::withoutHelper());
    model.prepareWindow();
    EXPECT_EQ(shown().fieldLine, Line()) << "nothing is known of the helper yet";
    model.setHelperInstalled(true);
    settings.set(keys::deviceDict, QVariant());
    model.populateSelectionButton();
    EXPECT_EQ(shown().fieldLine, Line::withoutInterface());
}

TEST_F(MainWindowModelTest, AChangeUnderWayAndItsResultStandBelowTheField)
{
    machine.helper.changeTakes = std::chrono::seconds(3);
    model.editField(u"02:AA:BB:CC:DD:EE"_s);
    model.changeMacAddress();
    scheduler.advance(std::chrono::seconds(1));
    EXPECT_TRUE(shown().changing);
    EXPECT_EQ(shown().fieldLine, AddressFieldLine::changing());
    scheduler.advance(std::chrono::seconds(5));
    model.populateHexField();
    scheduler.runPending();
    EXPECT_FALSE(shown().changing);
    EXPECT_EQ(shown().fieldLine, AddressFieldLine::forResult({.isInPlace = true}));
    model.editField(u"02"_s);
    EXPECT_EQ(shown().fieldLine, AddressFieldLine::forText(u"02"_s, {}));
}

TEST_F(MainWindowModelTest, OnlyTheButtonThatWasUsedIsBusyAndASecondPressDoesNothing)
{
    model.randomizeAddress();
    EXPECT_EQ(shown().busyButton, ChangeButton::Randomize);
    EXPECT_TRUE(shown().randomizeEnabled) << "it keeps the keyboard";
    EXPECT_FALSE(shown().restoreEnabled);
    EXPECT_FALSE(shown().updateEnabled);
    EXPECT_EQ(shown().whyNoRestore, u"The address is being changed"_s);
    model.randomizeAddress();
    model.restoreDefaultAddress();
    model.changeMacAddress();
    scheduler.runPending();
    EXPECT_EQ(machine.helper.changes().size(), 1);
    EXPECT_EQ(shown().busyButton, ChangeButton::None);
    EXPECT_TRUE(shown().randomizeEnabled);
}

TEST_F(MainWindowModelTest, AChangeFromElsewhereDisablesTheButtonsAndMakesNoneBusy)
{
    machine.helper.changeTakes = std::chrono::seconds(3);
    changer.updateMacAddressWithAddress(wired, u"02:AA:BB:CC:DD:EE"_s);
    scheduler.advance(std::chrono::seconds(1));
    EXPECT_EQ(shown().fieldLine, AddressFieldLine::changing());
    EXPECT_EQ(shown().busyButton, ChangeButton::None);
    EXPECT_FALSE(shown().randomizeEnabled);
    EXPECT_EQ(shown().whyNoRandomize, u"The address is being changed"_s);
    scheduler.advance(std::chrono::seconds(5));
    EXPECT_TRUE(shown().randomizeEnabled);
}

TEST_F(MainWindowModelTest, AChangeOfAnotherInterfaceIsNotShown)
{
    changer.updateMacAddressWithAddress(wifi, u"02:AA:BB:CC:DD:EE"_s);
    const AddressFieldLine before = shown().fieldLine;
    scheduler.advance(std::chrono::seconds(5));
    EXPECT_EQ(shown().fieldLine, before);
    EXPECT_FALSE(shown().changing);
    select(wifi);
    EXPECT_EQ(shown().fieldLine, AddressFieldLine::forResult({.isInPlace = true})) << "but with it";
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
