// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "unit/ui/vendors/VendorChooserFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class VendorChooserKeysTest : public VendorChooserFixture
{
};

TEST_F(VendorChooserKeysTest, DownMovesIntoTheListAndChoosesItsFirstRow)
{
    type(u"app"_s);
    press(*text, Qt::Key_Down);
    EXPECT_TRUE(table()->hasFocus());
    EXPECT_EQ(selected(), u"Appian (00000A)"_s);
    EXPECT_EQ(saved(), u"Appian (00000A)"_s);
    EXPECT_EQ(text->text(), u"Appian (00000A)"_s);
}

TEST_F(VendorChooserKeysTest, DownOpensAListThatIsClosed)
{
    press(*text, Qt::Key_Down);
    EXPECT_TRUE(isListShown());
    EXPECT_TRUE(table()->hasFocus());
    EXPECT_EQ(table()->currentIndex().row(), 0);
}

TEST_F(VendorChooserKeysTest, DownInAnEmptyListChoosesNothing)
{
    type(u"nobody"_s);
    press(*text, Qt::Key_Down);
    EXPECT_FALSE(table()->currentIndex().isValid());
    EXPECT_EQ(saved(), QString());
}

TEST_F(VendorChooserKeysTest, ArrowsInTheListChoose)
{
    type(u"ap"_s);
    press(*text, Qt::Key_Down);
    press(*table(), Qt::Key_Down);
    EXPECT_EQ(saved(), selected());
    EXPECT_EQ(table()->currentIndex().row(), 1);
    press(*table(), Qt::Key_Up);
    EXPECT_EQ(table()->currentIndex().row(), 0);
    EXPECT_EQ(saved(), u"Appian (00000A)"_s);
    EXPECT_EQ(rows().size(), 3) << "the choice keeps what was typed for";
}

TEST_F(VendorChooserKeysTest, ReturnClosesTheListAndGivesTheKeyboardBack)
{
    press(*text, Qt::Key_Down);
    press(*table(), Qt::Key_Return);
    EXPECT_FALSE(isListShown());
    EXPECT_TRUE(text->hasFocus());
    press(*text, Qt::Key_Down);
    press(*table(), Qt::Key_Enter);
    EXPECT_FALSE(isListShown());
}

TEST_F(VendorChooserKeysTest, OtherKeysDoNothingInTheList)
{
    press(*text, Qt::Key_Down);
    const QString before = selected();
    for (const int key : {Qt::Key_Home, Qt::Key_End, Qt::Key_PageDown, Qt::Key_Space, Qt::Key_Right,
             Qt::Key_Delete, Qt::Key_F2}) {
        press(*table(), key);
        EXPECT_EQ(selected(), before) << key;
    }
    press(*table(), Qt::Key_Z, u"z"_s);
    EXPECT_EQ(selected(), before);
    EXPECT_EQ(saved(), before);
    EXPECT_TRUE(isListShown());
}

TEST_F(VendorChooserKeysTest, AListThatGetsTheKeyboardWithoutASelectionChoosesNothing)
{
    type(u"m"_s);
    table()->setFocus();
    ASSERT_TRUE(table()->hasFocus());
    EXPECT_EQ(saved(), QString());
    EXPECT_FALSE(table()->currentIndex().isValid());
    press(*table(), Qt::Key_Down);
    EXPECT_EQ(saved(), u"Mango (00000E)"_s);
}

TEST_F(VendorChooserKeysTest, EscapeClosesTheListWhereverTheKeyboardIs)
{
    type(u"a"_s);
    press(*text, Qt::Key_Escape);
    EXPECT_FALSE(isListShown());
    press(*text, Qt::Key_Down);
    press(*table(), Qt::Key_Escape);
    EXPECT_FALSE(isListShown());
    EXPECT_TRUE(text->hasFocus());
}

TEST_F(VendorChooserKeysTest, EscapeKeepsWhatWasChosen)
{
    type(u"xyz"_s);
    press(*text, Qt::Key_Escape);
    EXPECT_EQ(text->text(), u"Random Address"_s);
    click(*toggle, toggle->rect().center());
    EXPECT_EQ(rows().size(), 6) << "what was typed narrows the list no more";
    type(u"xyz"_s);
    click(*toggle, toggle->rect().center());
    ASSERT_FALSE(isListShown());
    press(*text, Qt::Key_Escape);
    EXPECT_EQ(text->text(), u"Random Address"_s) << "also where the list was closed before";
}

TEST_F(VendorChooserKeysTest, TurningToAnotherControlClosesTheList)
{
    type(u"a"_s);
    table()->setFocus();
    QCoreApplication::processEvents();
    EXPECT_TRUE(isListShown());
    other->setFocus();
    QCoreApplication::processEvents();
    EXPECT_FALSE(isListShown());
    EXPECT_TRUE(other->hasFocus());
}

} // namespace
} // namespace quillon::test
