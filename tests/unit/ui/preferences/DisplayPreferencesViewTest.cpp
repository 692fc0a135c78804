// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/preferences/DisplayPreferencesView.h"

#include "unit/ui/preferences/PanesFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class DisplayPreferencesViewTest : public PanesFixture
{
protected:
    DisplayPreferencesViewTest() { open(PreferencesPane::Display); }
};

TEST_F(DisplayPreferencesViewTest, EveryControlIsNamed)
{
    expectNamed();
    EXPECT_EQ(box("upperCase").accessibleName(), u"Capital letters, 62:AB"_s);
}

TEST_F(DisplayPreferencesViewTest, TheLettersAreASettingInBothDirections)
{
    EXPECT_TRUE(box("upperCase").isChecked());
    box("lowerCase").click();
    EXPECT_TRUE(machine.settings.getBool(keys::lowerCaseHEX));
    settle();
    EXPECT_EQ(features().mainWindow.state().fieldText, u"3c:22:fb:00:00:01"_s);
    machine.settings.setBool(keys::lowerCaseHEX, false);
    EXPECT_TRUE(box("upperCase").isChecked());
    EXPECT_FALSE(box("lowerCase").isChecked());
    box("lowerCase").click();
    box("upperCase").click();
    EXPECT_FALSE(machine.settings.getBool(keys::lowerCaseHEX));
    machine.settings.set(keys::lowerCaseHEX, u"small"_s);
    EXPECT_TRUE(box("upperCase").isChecked()) << "a value of another type is off";
}

TEST_F(DisplayPreferencesViewTest, TheLookUpIsASettingInBothDirections)
{
    box("shouldUpdateExternalIP").click();
    EXPECT_TRUE(machine.settings.getBool(keys::shouldUpdateExternalIP));
    machine.settings.setBool(keys::shouldUpdateExternalIP, false);
    EXPECT_FALSE(box("shouldUpdateExternalIP").isChecked());
}

} // namespace
} // namespace quillon::test
