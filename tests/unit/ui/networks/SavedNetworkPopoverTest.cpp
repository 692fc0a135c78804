// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/networks/SavedNetworkPopover.h"

#include "unit/ui/networks/SavedItemsFixture.h"

#include <QRadioButton>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class SavedNetworkPopoverTest : public SavedItemsFixture
{
protected:
    Popover &open() { return SavedItemsFixture::open(networks(), 0); }
    QRadioButton &choice(const QString &name) const
    {
        return *networks().findChild<QRadioButton *>(name);
    }
    QString savedName() const { return savedNetworkEntry(homeBssid).name.value_or(QString()); }
};

TEST_F(SavedNetworkPopoverTest, ShowsTheNetworkAndBeginsAtItsName)
{
    Popover &popover = open();
    EXPECT_EQ(name(popover).text(), u"Home"_s);
    EXPECT_TRUE(name(popover).hasFocus());
    EXPECT_EQ(name(popover).selectedText(), u"Home"_s);
    EXPECT_EQ(choice(u"ssidbutton"_s).text(), u"Name Home"_s);
    EXPECT_EQ(choice(u"bssidbutton"_s).text(), u"Access point a4:2b:b0:11:22:33"_s);
    EXPECT_TRUE(choice(u"bssidbutton"_s).isChecked());
    EXPECT_FALSE(choice(u"ssidbutton"_s).isChecked());
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&popover)->role(), QAccessible::Dialog);
}

TEST_F(SavedNetworkPopoverTest, ReturnSavesTheNameAndClosesInTheNextTurn)
{
    Popover &popover = open();
    name(popover).setText(u"Our house"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(savedName(), u"Our house"_s);
    EXPECT_TRUE(popover.isOpen());
    turn();
    EXPECT_FALSE(popover.isOpen());
}

TEST_F(SavedNetworkPopoverTest, ANameThatIsTakenIsSavedOnce)
{
    Popover &popover = open();
    name(popover).setText(u"Office"_s);
    settings.clearJournal();
    press(Qt::Key_Return);
    turn();
    EXPECT_EQ(savedName(), u"Office (2)"_s);
    EXPECT_EQ(settings.writeCount(keys::savedNetworks), 1);
    EXPECT_FALSE(popover.isOpen());
}

TEST_F(SavedNetworkPopoverTest, APressOutsideSavesTheName)
{
    Popover &popover = open();
    name(popover).setText(u"Our house"_s);
    popover.close();
    turn();
    EXPECT_EQ(savedName(), u"Our house"_s);
    EXPECT_TRUE(token(networks(), 0).hasFocus());
}

TEST_F(SavedNetworkPopoverTest, EscapeClosesAndSavesNothing)
{
    Popover &popover = open();
    name(popover).setText(u"Our house"_s);
    settings.clearJournal();
    press(Qt::Key_Escape);
    turn();
    EXPECT_FALSE(popover.isOpen());
    EXPECT_EQ(settings.writeCount(keys::savedNetworks), 0);
    EXPECT_EQ(savedName(), u"Home"_s);
    EXPECT_TRUE(token(networks(), 0).hasFocus());
}

TEST_F(SavedNetworkPopoverTest, PassingThroughANameEditsNothing)
{
    Popover &popover = open();
    press(Qt::Key_Tab);
    turn();
    EXPECT_TRUE(popover.isOpen());
    EXPECT_TRUE(choice(u"bssidbutton"_s).hasFocus());
    press(Qt::Key_Tab);
    EXPECT_TRUE(removeButton(popover).hasFocus());
    press(Qt::Key_Tab);
    EXPECT_TRUE(name(popover).hasFocus());
}

TEST_F(SavedNetworkPopoverTest, LeavingAChangedNameSavesIt)
{
    Popover &popover = open();
    name(popover).setText(u"Our house"_s);
    press(Qt::Key_Tab);
    EXPECT_EQ(savedName(), u"Our house"_s);
    turn();
    EXPECT_FALSE(popover.isOpen());
}

TEST_F(SavedNetworkPopoverTest, ItsChoiceIsStoredAtOnceAndKeepsWhatIsTyped)
{
    Popover &popover = open();
    name(popover).setText(u"Our house"_s);
    EXPECT_EQ(choice(u"ssidbutton"_s).focusPolicy() & Qt::ClickFocus, 0)
        << "a click does not leave the name";
    choice(u"ssidbutton"_s).click();
    EXPECT_TRUE(savedNetworkEntry(homeBssid).isSsidDefined());
    EXPECT_TRUE(choice(u"ssidbutton"_s).isChecked());
    EXPECT_EQ(name(popover).text(), u"Our house"_s);
    name(popover).setFocus();
    press(Qt::Key_Return);
    EXPECT_EQ(savedName(), u"Our house"_s);
    EXPECT_TRUE(savedNetworkEntry(homeBssid).isSsidDefined());
}

TEST_F(SavedNetworkPopoverTest, TheArrowKeysChoose)
{
    open();
    press(Qt::Key_Tab);
    press(Qt::Key_Up);
    EXPECT_TRUE(choice(u"ssidbutton"_s).hasFocus());
    EXPECT_TRUE(savedNetworkEntry(homeBssid).isSsidDefined());
    press(Qt::Key_Down);
    EXPECT_FALSE(savedNetworkEntry(homeBssid).isSsidDefined());
}

TEST_F(SavedNetworkPopoverTest, AssistiveTechnologyChooses)
{
    open();
    auto *accessible = QAccessible::queryAccessibleInterface(&choice(u"ssidbutton"_s));
    accessible->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(savedNetworkEntry(homeBssid).isSsidDefined());
    settings.clearJournal();
    press(Qt::Key_Escape);
    turn();
    open();
    EXPECT_EQ(settings.writeCount(keys::savedNetworks), 0) << "to show it chooses nothing";
}

TEST_F(SavedNetworkPopoverTest, ANameThatCannotBeShownWholeStaysUnlessItIsEdited)
{
    saveNetwork(homeBssid, u"Home"_s, u"two\nlines"_s);
    Popover &popover = open();
    EXPECT_EQ(name(popover).text(), u"two lines"_s);
    press(Qt::Key_Return);
    turn();
    EXPECT_EQ(savedName(), u"two\nlines"_s);
}

TEST_F(SavedNetworkPopoverTest, ANameFromOutsideIsShownAsItIs)
{
    saveNetwork(homeBssid, u"A&B <b>c</b>"_s, u"<i>x</i>"_s);
    Popover &popover = open();
    EXPECT_EQ(name(popover).text(), u"<i>x</i>"_s);
    EXPECT_EQ(choice(u"ssidbutton"_s).text(), u"Name A&&B <b>c</b>"_s);
    EXPECT_EQ(choice(u"ssidbutton"_s).accessibleName(), u"Name A&B <b>c</b>"_s);
}

} // namespace
} // namespace quillon::test
