// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/vendors/VendorFieldModel.h"

#include "base/NotificationNames.h"
#include "unit/vendors/VendorFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Command = VendorFieldModel::Command;
using Key = VendorFieldModel::Key;

class VendorFieldModelTest : public VendorFixture
{
protected:
    VendorFieldModelTest()
    {
        makeLive(registryOf({{"000001", "Apple"}, {"000002", "Apply"}, {"000003", "Sam"}}));
        storeDevice(u"en0"_s, {});
        select(u"en0"_s);
        loadList();
        QObject::connect(
            &field, &VendorFieldModel::openedByTyping, [this] { said << "opened by typing"; });
        QObject::connect(
            &field, &VendorFieldModel::listEntered, [this] { said << "list entered"; });
        QObject::connect(&field, &VendorFieldModel::rowSelected,
            [this](qsizetype row) { said << "row " + QString::number(row); });
        QObject::connect(
            &field, &VendorFieldModel::openedAtChoice, [this] { said << "opened at choice"; });
        QObject::connect(&field, &VendorFieldModel::rowsChanged, [this] { said << "rows"; });
    }

    /// The popover is shown, and the list is there.
    void open()
    {
        field.showVendorViewPopover();
        scheduler.runPending();
        said.clear();
    }
    void type(const QString &text)
    {
        field.controlTextDidChange(text);
        scheduler.runPending();
    }
    QString stored() const
    {
        return settings.getDictionary(keys::deviceDict)
            .value(u"en0"_s)
            .toMap()
            .value(record::vendor)
            .toString();
    }

    QStringList said;
};

TEST_F(VendorFieldModelTest, OpensThePopoverAtTheFirstLetter)
{
    type(u"a"_s);
    EXPECT_TRUE(field.state().popoverShown);
    EXPECT_THAT(said, ElementsAre("opened by typing", "rows", "rows"));
    EXPECT_EQ(field.rowCount(), 2);
    said.clear();
    type(u"apple"_s);
    EXPECT_THAT(said, ElementsAre("rows"));
    EXPECT_EQ(field.rowCount(), 1);
    EXPECT_EQ(field.state().text, "apple"_L1);
    EXPECT_EQ(stored(), QString());
}

TEST_F(VendorFieldModelTest, IsDisabledAndSaysWhyWhileNoInterfaceIsSelected)
{
    settings.set(keys::currentInterfaceDict, QVariantMap());
    field.showText(u"Random Address"_s);
    EXPECT_FALSE(field.state().enabled);
    EXPECT_EQ(field.state().whyDisabled,
        u"No interface is selected: there is none to choose a vendor for"_s);
    select(u"en0"_s);
    field.showText(u"Random Address"_s);
    EXPECT_TRUE(field.state().enabled);
    EXPECT_EQ(field.state().whyDisabled, QString());
}

TEST_F(VendorFieldModelTest, ShowsAllWhenItIsCleared)
{
    type(u"app"_s);
    type({});
    EXPECT_EQ(field.rowCount(), 4);
    EXPECT_TRUE(field.state().popoverShown);
}

TEST_F(VendorFieldModelTest, GoesToTheFirstRowByTheDownArrowAndChoosesIt)
{
    type(u"appl"_s);
    field.closeVendorViewPopover();
    said.clear();
    EXPECT_FALSE(field.controlDoCommandBySelector(Command::MoveDown));
    EXPECT_TRUE(field.state().popoverShown);
    scheduler.runPending();
    EXPECT_THAT(said, ElementsAre("list entered", "rows", "row 0"));
    EXPECT_EQ(field.state().selectedRow, 0);
    EXPECT_EQ(stored(), "Apple (000001)"_L1);
    EXPECT_EQ(field.state().text, "Apple (000001)"_L1);
}

TEST_F(VendorFieldModelTest, ChoosesTheFirstRowByTheDownArrowOnlyWhenTheListIsThere)
{
    choice.setVendorSelectionForDevice(u"en0"_s);
    field.controlDoCommandBySelector(Command::MoveDown);
    EXPECT_EQ(stored(), QString()) << "what stands first is not known yet";
    EXPECT_FALSE(field.tableKeyDown(Key::Down)) << "nor what comes after it";
    scheduler.runPending();
    EXPECT_EQ(stored(), "Apple (000001)"_L1);
    EXPECT_TRUE(field.tableKeyDown(Key::Down));
}

TEST_F(VendorFieldModelTest, ForgetsTheDownArrowWhenTheUserDoesSomethingElse)
{
    field.controlDoCommandBySelector(Command::MoveDown);
    field.closeVendorViewPopover();
    open();
    EXPECT_EQ(stored(), QString());
    field.closeVendorViewPopover();
    field.controlDoCommandBySelector(Command::MoveDown);
    type(u"s"_s);
    EXPECT_EQ(stored(), QString());
}

TEST_F(VendorFieldModelTest, SaysWhenTheOpenedListIsThereWithItsChoice)
{
    storeDevice(u"en0"_s, {{record::vendor, u"Sam (000003)"_s}});
    choice.setVendorSelectionForDevice(u"en0"_s);
    said.clear();
    field.showVendorViewPopover();
    EXPECT_EQ(field.state().selectedRow, std::nullopt);
    EXPECT_EQ(field.rowCount(), 1) << "until then there is Random Address";
    scheduler.runPending();
    EXPECT_EQ(field.state().selectedRow, 3);
    EXPECT_THAT(said, ElementsAre("rows", "opened at choice"));
}

TEST_F(VendorFieldModelTest, ChoosesNothingByTheDownArrowWhenNothingIsShown)
{
    type(u"nothing like that"_s);
    EXPECT_FALSE(field.controlDoCommandBySelector(Command::MoveDown));
    EXPECT_EQ(field.state().selectedRow, std::nullopt);
    EXPECT_EQ(stored(), QString());
}

TEST_F(VendorFieldModelTest, LeavesOtherCommandsToItself)
{
    EXPECT_FALSE(field.controlDoCommandBySelector(Command::Other));
    EXPECT_FALSE(field.state().popoverShown);
    EXPECT_THAT(said, IsEmpty());
}

TEST_F(VendorFieldModelTest, TakesTheRowThatIsSelected)
{
    open();
    EXPECT_TRUE(field.tableViewShouldSelectRow(3));
    EXPECT_EQ(stored(), "Sam (000003)"_L1);
    EXPECT_EQ(field.state().text, "Sam (000003)"_L1);
    EXPECT_EQ(field.state().selectedRow, 3);
    EXPECT_TRUE(field.tableViewShouldSelectRow(77));
    EXPECT_EQ(field.state().selectedRow, 3);
}

TEST_F(VendorFieldModelTest, KeepsTheSelectedEntryWhenOtherRowsAreShown)
{
    open();
    field.tableViewShouldSelectRow(3);
    type(u"s"_s);
    EXPECT_EQ(field.state().selectedRow, 0);
    type(u"a"_s);
    EXPECT_EQ(field.state().selectedRow, std::nullopt);
}

TEST_F(VendorFieldModelTest, LetsOnlyTheArrowsReachTheList)
{
    EXPECT_TRUE(field.tableKeyDown(Key::Down));
    EXPECT_TRUE(field.tableKeyDown(Key::Up));
    EXPECT_FALSE(field.tableKeyDown(Key::Other));
}

TEST_F(VendorFieldModelTest, AsksByReturnThatThePopoverBeClosed)
{
    int posted = 0;
    notifications.addObserver(notifications::closeVendorViewPopover,
        [&posted](const NotificationCenter::Notification &) { ++posted; });
    EXPECT_FALSE(field.tableKeyDown(Key::Return));
    EXPECT_EQ(posted, 1);
}

TEST_F(VendorFieldModelTest, TogglesThePopover)
{
    field.toggleVendorViewPopover();
    EXPECT_TRUE(field.state().popoverShown);
    field.toggleVendorViewPopover();
    EXPECT_FALSE(field.state().popoverShown);
}

TEST_F(VendorFieldModelTest, HasTheListInMemoryOnlyWhileThePopoverIsShown)
{
    list.letGo();
    choice.setVendorSelectionForDevice(u"en0"_s);
    EXPECT_EQ(field.rowCount(), 0);
    EXPECT_FALSE(list.isInMemory()) << "a selection or a count alone reads nothing";
    open();
    EXPECT_TRUE(list.isInMemory());
    EXPECT_EQ(field.rowCount(), 4);
    field.closeVendorViewPopover();
    EXPECT_FALSE(list.isInMemory());
    EXPECT_EQ(field.rowCount(), 0);
}

TEST_F(VendorFieldModelTest, SelectsTheDevicesChoiceWhenThePopoverIsShown)
{
    storeDevice(u"en0"_s, {{record::vendor, u"Sam (000003)"_s}});
    choice.setVendorSelectionForDevice(u"en0"_s);
    EXPECT_EQ(field.state().selectedRow, std::nullopt);
    open();
    EXPECT_EQ(field.state().selectedRow, 3);
}

TEST_F(VendorFieldModelTest, KeepsItsSelectionAndItsFilterWhileThePopoverIsClosed)
{
    type(u"app"_s);
    field.tableViewShouldSelectRow(1);
    field.closeVendorViewPopover();
    EXPECT_EQ(field.state().selectedRow, std::nullopt);
    open();
    EXPECT_EQ(field.rowCount(), 2);
    EXPECT_EQ(field.state().selectedRow, 1);
}

TEST_F(VendorFieldModelTest, HasLostASelectionThatWasFilteredAway)
{
    type(u"s"_s);
    field.tableViewShouldSelectRow(0);
    type(u"a"_s);
    field.closeVendorViewPopover();
    open();
    type({});
    EXPECT_EQ(field.state().selectedRow, std::nullopt);
}

TEST_F(VendorFieldModelTest, WhatIsTypedStaysWhileTheChoiceIsShownAnew)
{
    type(u"app"_s);
    choice.setVendorSelectionForDevice(u"en0"_s);
    choice.updateVendorField(u"en0"_s);
    scheduler.runPending();
    EXPECT_EQ(field.state().text, "app"_L1);
    EXPECT_EQ(field.rowCount(), 2) << "and narrows the list";
    field.giveUpTyping();
    EXPECT_EQ(field.state().text, "Random Address"_L1);
    storeDevice(u"en0"_s, {{record::vendor, u"Sam (000003)"_s}});
    choice.updateVendorField(u"en0"_s);
    EXPECT_EQ(field.state().text, "Sam (000003)"_L1);
}

TEST_F(VendorFieldModelTest, WhatIsChosenWhileTypingIsShown)
{
    type(u"app"_s);
    field.tableViewShouldSelectRow(1);
    EXPECT_EQ(field.state().text, "Apply (000002)"_L1);
    type(u"app"_s);
    field.controlDoCommandBySelector(Command::MoveDown);
    EXPECT_EQ(field.state().text, "Apple (000001)"_L1);
    choice.updateVendorField(u"en0"_s);
    EXPECT_EQ(field.state().text, "Apple (000001)"_L1);
}

TEST_F(VendorFieldModelTest, WhatIsTypedForOneDeviceIsGivenUpForAnother)
{
    storeDevice(u"en1"_s, {{record::vendor, u"Sam (000003)"_s}});
    type(u"app"_s);
    choice.setVendorSelectionForDevice(u"en1"_s);
    select(u"en1"_s);
    choice.updateVendorField(u"en1"_s);
    EXPECT_EQ(field.state().text, "Sam (000003)"_L1);
    EXPECT_FALSE(field.state().popoverShown);
    open();
    EXPECT_EQ(field.rowCount(), 4);
}

TEST_F(VendorFieldModelTest, TellsTheWholeTextOfARow)
{
    open();
    EXPECT_EQ(field.rowText(2), "Random Address"_L1);
    EXPECT_EQ(field.rowToolTip(3), "Sam (000003)"_L1);
}

} // namespace
} // namespace quillon::test
