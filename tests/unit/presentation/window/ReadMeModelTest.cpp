// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/window/ReadMeModel.h"

#include "unit/presentation/DeviceModelsFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class ReadMeModelTest : public DeviceModelsFixture
{
protected:
    ReadMeModel model{helper};
};

TEST_F(ReadMeModelTest, IsShownWithoutTheHelper)
{
    EXPECT_FALSE(model.state().visible) << "nothing is known yet";
    model.setHelperInstalled(false);
    EXPECT_TRUE(model.state().visible);
    model.hide();
    EXPECT_FALSE(model.state().visible);
}

TEST_F(ReadMeModelTest, TheInstallButtonAsksTheService)
{
    machine.helper.clearJournal();
    model.installHelper();
    scheduler.runPending();
    EXPECT_TRUE(machine.helper.journal().contains(u"install"_s));
}

TEST_F(ReadMeModelTest, ItsPopoverGoesWithIt)
{
    model.setHelperInstalled(false);
    model.toggleReadMePopover();
    EXPECT_TRUE(model.state().popoverShown);
    model.toggleReadMePopover();
    EXPECT_FALSE(model.state().popoverShown);
    model.toggleReadMePopover();
    model.popoverWillClose();
    EXPECT_FALSE(model.state().popoverShown);
    model.toggleReadMePopover();
    model.setHelperInstalled(true);
    EXPECT_FALSE(model.state().popoverShown);
}

TEST_F(ReadMeModelTest, TheHintIsBoldBlueAndFourteenPointsLarge)
{
    const ReadMeModel::Style style = ReadMeModel::style();
    EXPECT_EQ(style.pointSize, 14);
    EXPECT_DOUBLE_EQ(style.red, 0.43);
    EXPECT_DOUBLE_EQ(style.green, 0.61);
    EXPECT_DOUBLE_EQ(style.blue, 0.99);
    EXPECT_DOUBLE_EQ(style.alpha, 1.0);
}

} // namespace
} // namespace quillon::test
