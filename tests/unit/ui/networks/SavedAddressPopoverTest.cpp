// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/networks/SavedAddressPopover.h"

#include "unit/ui/networks/SavedItemsFixture.h"

#include <QLabel>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class SavedAddressPopoverTest : public SavedItemsFixture
{
protected:
    Popover &open() { return SavedItemsFixture::open(addresses(), 0); }
};

TEST_F(SavedAddressPopoverTest, ShowsTheAddressAndItsName)
{
    Popover &popover = open();
    EXPECT_EQ(name(popover).text(), u"Printer"_s);
    EXPECT_TRUE(name(popover).hasFocus());
    EXPECT_EQ(popover.findChild<QLabel *>(u"savedAddress"_s)->text(), address);
}

TEST_F(SavedAddressPopoverTest, ReturnSavesTheNameAndClosesInTheNextTurn)
{
    Popover &popover = open();
    name(popover).setText(u"Scanner"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(savedAddressEntry(address).name, u"Scanner"_s);
    EXPECT_TRUE(popover.isOpen());
    turn();
    EXPECT_FALSE(popover.isOpen());
    EXPECT_TRUE(token(addresses(), 0).hasFocus());
}

TEST_F(SavedAddressPopoverTest, ReturnInANameThatWasNotChangedClosesAsWell)
{
    Popover &popover = open();
    settings.clearJournal();
    press(Qt::Key_Return);
    turn();
    EXPECT_FALSE(popover.isOpen());
    EXPECT_EQ(settings.writeCount(keys::savedAddresses), 0);
}

TEST_F(SavedAddressPopoverTest, RemovesTheAddressWhichCanBeHadBack)
{
    Popover &popover = open();
    press(Qt::Key_Tab);
    ASSERT_TRUE(removeButton(popover).hasFocus());
    press(Qt::Key_Return);
    EXPECT_TRUE(savedAddress(address).isEmpty());
    turn();
    EXPECT_FALSE(popover.isOpen());
    removed.undo();
    turn();
    EXPECT_EQ(savedAddressEntry(address).name, u"Printer"_s);
    EXPECT_EQ(addresses().entries().size(), 1);
}

} // namespace
} // namespace quillon::test
