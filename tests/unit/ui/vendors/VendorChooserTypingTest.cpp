// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "unit/ui/vendors/VendorChooserFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class VendorChooserTypingTest : public VendorChooserFixture
{
};

TEST_F(VendorChooserTypingTest, TypingOpensTheListOnWhatBeginsSo)
{
    type(u"app"_s);
    EXPECT_TRUE(isListShown());
    EXPECT_EQ(rows(), (QStringList{u"Appian (00000A)"_s, u"apple (00000C)"_s}));
    EXPECT_EQ(text->text(), u"app"_s);
    EXPECT_EQ(text->cursorPosition(), 3);
    EXPECT_FALSE(text->hasSelectedText());
    EXPECT_TRUE(text->hasFocus());
    EXPECT_EQ(saved(), QString()) << "typing is no choice";
}

TEST_F(VendorChooserTypingTest, AnEmptyFieldShowsAll)
{
    type(u"zeb"_s);
    ASSERT_EQ(rows().size(), 1);
    text->selectAll();
    press(*text, Qt::Key_Backspace);
    EXPECT_EQ(rows().size(), 6);
}

TEST_F(VendorChooserTypingTest, LeavingTheFieldGivesUpWhatWasTyped)
{
    type(u"zeb"_s);
    other->setFocus();
    QCoreApplication::processEvents();
    EXPECT_EQ(text->text(), u"Random Address"_s);
    EXPECT_EQ(saved(), QString());

    type(u"zeb"_s);
    click(*toggle, toggle->rect().center());
    ASSERT_FALSE(isListShown());
    text->setFocus();
    other->setFocus();
    QCoreApplication::processEvents();
    EXPECT_EQ(text->text(), u"Random Address"_s) << "also where the list was closed before";
    click(*toggle, toggle->rect().center());
    EXPECT_EQ(rows().size(), 6);
}

TEST_F(VendorChooserTypingTest, WhoeverComesBackFromAnotherWindowGoesOnTyping)
{
    QWidget elsewhere;
    auto *line = new QLineEdit(&elsewhere);
    type(u"zeb"_s);
    elsewhere.show();
    QApplication::setActiveWindow(&elsewhere);
    line->setFocus();
    QCoreApplication::processEvents();
    EXPECT_FALSE(isListShown());
    EXPECT_EQ(text->text(), u"zeb"_s);
    QApplication::setActiveWindow(&window);
    text->setFocus();
    text->end(false);
    press(*text, Qt::Key_unknown, u"r"_s);
    EXPECT_EQ(rows(), QStringList{u"Zebra (00000D)"_s});
}

TEST_F(VendorChooserTypingTest, TheCursorStaysWhileTheChoiceIsShownAnew)
{
    type(u"zeb"_s);
    press(*text, Qt::Key_Left);
    choice.setVendorSelectionForDevice(device);
    choice.updateVendorField(device);
    EXPECT_EQ(text->text(), u"zeb"_s);
    EXPECT_EQ(text->cursorPosition(), 2);
    EXPECT_EQ(rows(), QStringList{u"Zebra (00000D)"_s});
}

TEST_F(VendorChooserTypingTest, WhatIsTypedStaysAsItWasTyped)
{
    const QString odd = u"a\u202Eb\u2028c"_s;
    text->selectAll();
    press(*text, Qt::Key_unknown, odd);
    field.rearrange();
    EXPECT_EQ(text->text(), odd);
    EXPECT_EQ(text->cursorPosition(), odd.size());
    const QString longText(300, u'a');
    text->selectAll();
    press(*text, Qt::Key_unknown, longText);
    field.rearrange();
    EXPECT_EQ(text->text(), longText);
}

} // namespace
} // namespace quillon::test
