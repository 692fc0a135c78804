// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/vendors/VendorChooser.h"

#include "unit/ui/vendors/VendorChooserFixture.h"

#include <QAccessible>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class VendorChooserTest : public VendorChooserFixture
{
};

TEST_F(VendorChooserTest, ShowsTheChoiceAndKeepsItsListToItself)
{
    EXPECT_EQ(text->text(), u"Random Address"_s);
    EXPECT_EQ(table(), nullptr);
    EXPECT_FALSE(list.isInMemory()) << "nobody has looked at the list yet";
}

TEST_F(VendorChooserTest, LooksDisabledWhereThereIsNoInterfaceToChooseFor)
{
    other->setFocus();
    const QImage enabled = text->grab().toImage();
    settings.set(keys::currentInterfaceDict, QVariantMap());
    choice.updateVendorField({});
    ASSERT_FALSE(text->isEnabled());
    const QString why = field.state().whyDisabled;
    EXPECT_FALSE(why.isEmpty());
    EXPECT_EQ(text->accessibleDescription(), why);
    EXPECT_EQ(toggle->accessibleDescription(), why);
    EXPECT_NE(text->grab().toImage().pixelColor(text->rect().center()),
        enabled.pixelColor(text->rect().center()));
}

TEST_F(VendorChooserTest, ToAssistiveTechnologyFieldAndListHaveNames)
{
    EXPECT_EQ(text->accessibleName(), u"Vendor of random addresses"_s);
    EXPECT_FALSE(text->accessibleDescription().isEmpty());
    press(*text, Qt::Key_Down);
    QAccessibleInterface *shown = QAccessible::queryAccessibleInterface(table());
    ASSERT_NE(shown, nullptr);
    EXPECT_EQ(shown->role(), QAccessible::List);
    EXPECT_EQ(shown->text(QAccessible::Name), u"Vendors"_s);
}

} // namespace
} // namespace quillon::test
