// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "unit/presentation/window/MainWindowModelFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using MainWindowModelButtonsTest = MainWindowModelFixture;

TEST_F(MainWindowModelButtonsTest, WithoutAnInterfaceNothingIsOfferedAndTheButtonsSayWhy)
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

TEST_F(MainWindowModelButtonsTest, NothingIsOfferedForAnInterfaceThatIsNotThereUntilItIsBack)
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

TEST_F(MainWindowModelButtonsTest, AButtonThatCanDoNothingSaysWhy)
{
    EXPECT_EQ(shown().whyNoUpdate, u"The field holds no other address to apply"_s);
    EXPECT_EQ(shown().whyNoRandomize, QString());
    EXPECT_EQ(shown().whyNoRestore, u"The interface has its factory address"_s);
    model.setHelperInstalled(false);
    EXPECT_EQ(shown().whyNoUpdate, u"The helper tool is not installed"_s);
    EXPECT_EQ(shown().whyNoRandomize, u"The helper tool is not installed"_s);
    EXPECT_EQ(shown().whyNoRestore, u"The helper tool is not installed"_s);
}

TEST_F(MainWindowModelButtonsTest, ARestoreWithoutFactoryAddressSaysSo)
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

TEST_F(MainWindowModelButtonsTest, WithoutTheHelperTheApplyButtonIsNeverReEvaluated)
{
    model.setHelperInstalled(false);
    model.setFieldText(u"02:11:22:33:44:55"_s);
    model.checkUpdateButton();
    EXPECT_FALSE(shown().updateEnabled);
}

TEST_F(MainWindowModelButtonsTest, TheApplyButtonIsEvaluatedOnTheMainThread)
{
    model.setFieldText(u"02:11:22:33:44:55"_s);
    scheduler.asBackground([&] { model.checkUpdateButton(); });
    EXPECT_FALSE(shown().updateEnabled);
    scheduler.runPending();
    EXPECT_TRUE(shown().updateEnabled);
}

TEST_F(MainWindowModelButtonsTest, TheButtonsChangeTheAddressOfTheSelectedInterface)
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

TEST_F(MainWindowModelButtonsTest, OnlyTheButtonThatWasUsedIsBusyAndASecondPressDoesNothing)
{
    model.randomizeAddress();
    EXPECT_EQ(shown().busyButton, ChangeRequest::Randomize);
    EXPECT_TRUE(shown().randomizeEnabled) << "it keeps the keyboard";
    EXPECT_FALSE(shown().restoreEnabled);
    EXPECT_FALSE(shown().updateEnabled);
    EXPECT_EQ(shown().whyNoRestore, u"The address is being changed"_s);
    model.randomizeAddress();
    model.restoreDefaultAddress();
    model.changeMacAddress();
    scheduler.runPending();
    EXPECT_EQ(machine.helper.changes().size(), 1);
    EXPECT_EQ(shown().busyButton, ChangeRequest::None);
    EXPECT_TRUE(shown().randomizeEnabled);
}

TEST_F(MainWindowModelButtonsTest, AChangeFromElsewhereDisablesTheButtonsAndMakesNoneBusy)
{
    machine.helper.changeTakes = std::chrono::seconds(3);
    changer.updateMacAddressWithAddress(wired, u"02:AA:BB:CC:DD:EE"_s);
    scheduler.advance(std::chrono::seconds(1));
    EXPECT_EQ(shown().fieldLine, AddressFieldLine::changing());
    EXPECT_EQ(shown().busyButton, ChangeRequest::None);
    EXPECT_FALSE(shown().randomizeEnabled);
    EXPECT_EQ(shown().whyNoRandomize, u"The address is being changed"_s);
    scheduler.advance(std::chrono::seconds(5));
    EXPECT_TRUE(shown().randomizeEnabled);
}

TEST_F(MainWindowModelButtonsTest, AChangeOfAnotherInterfaceIsNotShown)
{
    changer.updateMacAddressWithAddress(wifi, u"02:AA:BB:CC:DD:EE"_s);
    const AddressFieldLine before = shown().fieldLine;
    scheduler.advance(std::chrono::seconds(5));
    EXPECT_EQ(shown().fieldLine, before);
    EXPECT_FALSE(shown().changing);
    select(wifi);
    EXPECT_EQ(shown().fieldLine,
        AddressFieldLine::forResult({.isInPlace = true, .address = shown().currentAddress}))
        << "but with it";
}

} // namespace
} // namespace quillon::test
