// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "unit/ui/vendors/VendorChooserFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class VendorChooserPointerTest : public VendorChooserFixture
{
};

TEST_F(VendorChooserPointerTest, ThePointerChooses)
{
    click(*toggle, toggle->rect().center());
    const auto row = rows().indexOf(u"Zebra (00000D)"_s);
    const QModelIndex zebra = table()->model()->index(static_cast<int>(row), 0);
    click(*table()->viewport(), table()->visualRect(zebra).center());
    EXPECT_EQ(saved(), u"Zebra (00000D)"_s);
    EXPECT_EQ(text->text(), u"Zebra (00000D)"_s);
}

TEST_F(VendorChooserPointerTest, ThePointerChoosesTheSelectedRowToo)
{
    const QString zebra = u"Zebra (00000D)"_s;
    storeDevice(device, {{record::vendor, zebra}});
    choice.setVendorSelectionForDevice(device);
    type(u"zeb"_s);
    ASSERT_EQ(selected(), zebra);
    click(*table()->viewport(), table()->visualRect(table()->currentIndex()).center());
    EXPECT_EQ(text->text(), zebra);
}

TEST_F(VendorChooserPointerTest, APressBesideTheListClosesIt)
{
    type(u"a"_s);
    click(window, QPoint(4, window.height() - 4));
    EXPECT_FALSE(isListShown());
}

TEST_F(VendorChooserPointerTest, APressBesideTheListGivesUpWhatWasTyped)
{
    type(u"zeb"_s);
    click(window, QPoint(4, window.height() - 4));
    EXPECT_EQ(text->text(), u"Random Address"_s);
}

TEST_F(VendorChooserPointerTest, TheButtonInTheFieldOpensAndClosesAndSaysWhich)
{
    EXPECT_EQ(toggle->accessibleName(), u"Show vendors"_s);
    click(*toggle, toggle->rect().center());
    EXPECT_TRUE(isListShown());
    EXPECT_EQ(toggle->accessibleName(), u"Hide vendors"_s);
    EXPECT_TRUE(text->hasFocus()) << "the button does not take the keyboard";
    click(*toggle, toggle->rect().center());
    EXPECT_FALSE(isListShown());
    EXPECT_TRUE(text->rect().contains(
        toggle->mapTo(text->window(), QPoint()) - text->mapTo(text->window(), QPoint())));
}

} // namespace
} // namespace quillon::test
