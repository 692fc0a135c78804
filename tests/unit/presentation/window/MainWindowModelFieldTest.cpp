// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "unit/presentation/window/MainWindowModelFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using MainWindowModelFieldTest = MainWindowModelFixture;

TEST_F(MainWindowModelFieldTest, WithoutTheHelperTheFieldIsDisabled)
{
    model.setHelperInstalled(false);
    EXPECT_FALSE(shown().fieldEnabled);
    EXPECT_FALSE(shown().randomizeEnabled);
    EXPECT_FALSE(shown().restoreEnabled);

    model.setHelperInstalled(true);
    EXPECT_TRUE(shown().fieldEnabled);
    EXPECT_TRUE(shown().randomizeEnabled);
}

TEST_F(MainWindowModelFieldTest, ApplyIsOfferedForAWholeValidAddressThatIsNotInUse)
{
    EXPECT_TRUE(model.editField(u"02:11:22:33:44:55"_s));
    EXPECT_TRUE(shown().updateEnabled);
    model.editField(u"02:11:22:33:44:5"_s);
    EXPECT_FALSE(shown().updateEnabled);
    model.editField(QString());
    EXPECT_FALSE(shown().updateEnabled);
}

TEST_F(MainWindowModelFieldTest, TheAddressInUseInTheOtherCaseIsNotOffered)
{
    model.editField(u"3c:22:fb:00:00:01"_s);
    EXPECT_FALSE(shown().updateEnabled);
}

TEST_F(MainWindowModelFieldTest, AWholeAddressIsShownInDisplayCaseAndShorterTextsAsTyped)
{
    model.editField(u"a1:b2"_s);
    EXPECT_EQ(shown().fieldText, u"a1:b2"_s);
    model.editField(u"a2:b2:c3:d4:e5:f6"_s);
    EXPECT_EQ(shown().fieldText, u"A2:B2:C3:D4:E5:F6"_s);
}

TEST_F(MainWindowModelFieldTest, TwelveBareDigitsAreShownInDisplayCaseButNotOffered)
{
    model.editField(u"a2b2c3d4e5f6"_s);
    EXPECT_EQ(shown().fieldText, u"A2B2C3D4E5F6"_s);
    EXPECT_FALSE(shown().updateEnabled);
}

TEST_F(MainWindowModelFieldTest, SeventeenCharactersThatAreNoAddressAreNotOffered)
{
    model.editField(u"02:11:22:33:44::5"_s);
    EXPECT_EQ(shown().fieldText.size(), 17);
    EXPECT_FALSE(shown().updateEnabled);
}

TEST_F(MainWindowModelFieldTest, ARefusedKeystrokeLeavesTheFieldAsItWas)
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

TEST_F(MainWindowModelFieldTest, SelectingAnotherInterfaceOffersNothingUntilAnAddressIsTyped)
{
    select(wifi);
    EXPECT_EQ(shown().fieldText, u"3C:22:FB:00:00:02"_s);
    EXPECT_FALSE(shown().updateEnabled);
}

TEST_F(MainWindowModelFieldTest, ADroppedAddressIsShownInDisplayCaseAndOffered)
{
    settings.setBool(keys::lowerCaseHEX, true);
    EXPECT_TRUE(model.draggingEntered(u"AA:BB:CC:DD:EE:FF"_s));
    EXPECT_TRUE(model.performDragOperation());
    model.concludeDragOperation(u"AA:BB:CC:DD:EE:FF"_s);
    EXPECT_EQ(shown().fieldText, u"aa:bb:cc:dd:ee:ff"_s);
    EXPECT_TRUE(shown().updateEnabled);
}

TEST_F(MainWindowModelFieldTest, DroppedTextThatIsNoAddressIsRefused)
{
    const QString before = shown().fieldText;
    EXPECT_FALSE(model.draggingEntered(u"hello"_s));
    model.concludeDragOperation(u"hello"_s);
    model.populateHexFieldFromDrop(u"AABBCCDDEEFF"_s);
    EXPECT_EQ(shown().fieldText, before);
}

TEST_F(MainWindowModelFieldTest, ADropOnTheDisabledFieldIsRefused)
{
    model.setHelperInstalled(false);
    const QString before = shown().fieldText;
    EXPECT_FALSE(model.draggingEntered(u"02:11:22:33:44:55"_s));
    EXPECT_FALSE(model.performDragOperation());
    model.concludeDragOperation(u"02:11:22:33:44:55"_s);
    EXPECT_EQ(shown().fieldText, before);
}

TEST_F(MainWindowModelFieldTest, ASavedAddressIsTakenLikeADrop)
{
    EXPECT_TRUE(model.chooseAddress(u"02:aa:bb:cc:dd:ee"_s));
    EXPECT_EQ(shown().fieldText, u"02:AA:BB:CC:DD:EE"_s);
    EXPECT_TRUE(shown().updateEnabled);
    EXPECT_FALSE(model.chooseAddress(u"home"_s));
    EXPECT_EQ(shown().fieldText, u"02:AA:BB:CC:DD:EE"_s);
}

TEST_F(MainWindowModelFieldTest, ADisabledFieldTakesNoSavedAddressAndSaysWhy)
{
    EXPECT_EQ(shown().whyNoField, QString());
    model.setHelperInstalled(false);
    const QString before = shown().fieldText;
    EXPECT_FALSE(model.chooseAddress(u"02:11:22:33:44:55"_s));
    EXPECT_EQ(shown().fieldText, before);
    EXPECT_EQ(shown().whyNoField, u"Install the helper to change the address."_s);
}

TEST_F(MainWindowModelFieldTest, DigitsWithoutColonsAreNotAppliedAndTheLineSaysHow)
{
    model.editField(u"02005e00530a"_s);
    EXPECT_EQ(shown().fieldText, u"02005E00530A"_s);
    EXPECT_FALSE(shown().updateEnabled);
    EXPECT_EQ(shown().fieldLine.text, u"Write it with colons: 02:00:5E:00:53:0A."_s);
}

TEST_F(MainWindowModelFieldTest, AnAppliedAddressIsShownInDisplayCase)
{
    model.setFieldText(u"02:aa:bb:cc:dd:ee"_s);
    model.changeMacAddress();
    EXPECT_EQ(shown().fieldText, u"02:AA:BB:CC:DD:EE"_s);
}

TEST_F(MainWindowModelFieldTest, TheLineBelowTheFieldSaysWhatCanBeDone)
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

TEST_F(MainWindowModelFieldTest, AChangeUnderWayAndItsResultStandBelowTheField)
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
    EXPECT_EQ(shown().fieldLine,
        AddressFieldLine::forResult({.isInPlace = true, .address = shown().currentAddress}));
    model.editField(u"02"_s);
    EXPECT_EQ(shown().fieldLine, AddressFieldLine::forText(u"02"_s, {}));
}

} // namespace
} // namespace quillon::test
