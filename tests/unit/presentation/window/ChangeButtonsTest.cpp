// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/window/ChangeButtons.h"

#include "fakes/QtPrinting.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

constexpr ChangeRequest allButtons[] = {
    ChangeRequest::Randomize, ChangeRequest::Apply, ChangeRequest::Restore};

ChangeButtons allUsable()
{
    ChangeButtons buttons;
    buttons.canRandomize = true;
    buttons.canApply = true;
    buttons.canRestore = true;
    buttons.isHelperInstalled = true;
    buttons.hasFactoryAddress = true;
    return buttons;
}

TEST(ChangeButtons, ThatCanBeUsedSayNothing)
{
    for (const ChangeRequest button : allButtons) {
        EXPECT_TRUE(allUsable().isEnabled(button));
        EXPECT_EQ(allUsable().whyNot(button), QString());
    }
}

TEST(ChangeButtons, EachDependsOnWhatItDoesAlone)
{
    ChangeButtons buttons = allUsable();
    buttons.canApply = false;
    EXPECT_TRUE(buttons.isEnabled(ChangeRequest::Randomize));
    EXPECT_FALSE(buttons.isEnabled(ChangeRequest::Apply));
    EXPECT_TRUE(buttons.isEnabled(ChangeRequest::Restore));
    EXPECT_EQ(buttons.whyNot(ChangeRequest::Apply), u"The field holds no other address to apply"_s);
    buttons = allUsable();
    buttons.canRestore = false;
    EXPECT_TRUE(buttons.isEnabled(ChangeRequest::Apply));
    EXPECT_FALSE(buttons.isEnabled(ChangeRequest::Restore));
    EXPECT_EQ(buttons.whyNot(ChangeRequest::Restore), u"The interface has its factory address"_s);
    buttons.hasFactoryAddress = false;
    EXPECT_EQ(buttons.whyNot(ChangeRequest::Restore),
        u"The interface has no factory address that is known"_s);
    buttons = allUsable();
    buttons.canRandomize = false;
    EXPECT_FALSE(buttons.isEnabled(ChangeRequest::Randomize));
    EXPECT_TRUE(buttons.isEnabled(ChangeRequest::Apply));
}

TEST(ChangeButtons, OfAChangeTheOneThatAskedForItIsEnabledAndAllSayIt)
{
    ChangeButtons buttons = allUsable();
    buttons.isChanging = true;
    buttons.busy = ChangeRequest::Apply;
    buttons.canApply = false;
    buttons.isHelperInstalled = false;
    for (const ChangeRequest button : allButtons) {
        EXPECT_EQ(buttons.isEnabled(button), button == ChangeRequest::Apply);
        EXPECT_EQ(buttons.whyNot(button), u"The address is being changed"_s);
    }
    buttons.busy = ChangeRequest::None;
    EXPECT_FALSE(buttons.isEnabled(ChangeRequest::Apply)) << "somebody else asked for it";
}

TEST(ChangeButtons, WithoutAnInterfaceSayThatAndNotThatTheHelperIsMissing)
{
    ChangeButtons buttons;
    buttons.canRandomize = true;
    buttons.selected = ChangeButtons::Selected::None;
    for (const ChangeRequest button : allButtons) {
        EXPECT_FALSE(buttons.isEnabled(button));
        EXPECT_EQ(buttons.whyNot(button),
            u"No interface is selected: there is none whose address can be changed"_s);
    }
    buttons.selected = ChangeButtons::Selected::Gone;
    for (const ChangeRequest button : allButtons) {
        EXPECT_FALSE(buttons.isEnabled(button));
        EXPECT_EQ(buttons.whyNot(button), u"The selected interface is not there"_s);
    }
    buttons.selected = ChangeButtons::Selected::Present;
    buttons.canRandomize = false;
    for (const ChangeRequest button : allButtons) {
        EXPECT_EQ(buttons.whyNot(button), u"The helper tool is not installed"_s);
    }
}

} // namespace
} // namespace quillon::test
