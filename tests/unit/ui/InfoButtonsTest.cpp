// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/features/Features.h"
#include "face/FaceProgram.h"
#include "helperlink/XPCMethods.h"
#include "ui/widgets/RowButton.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

/// The rows of the window with their popovers, and what they look like.
class InfoButtonsTest : public ::testing::TestWithParam<const char *>
{
protected:
    InfoButtonsTest() { program.start(); }

    static RowButton &row()
    {
        return FaceProgram::part<RowButton>(QString::fromLatin1(GetParam()));
    }
    void open()
    {
        row().click();
        program.settle();
        ASSERT_TRUE(row().isOpen());
    }

    FaceProgram program{{.scheme = ColorScheme::Light, .isStill = true}};
};

INSTANTIATE_TEST_SUITE_P(, InfoButtonsTest,
    ::testing::Values("hardwareButton", "softwareButton", "vendorButton", "networkButton"));

TEST_P(InfoButtonsTest, AreHighlightedWhileTheirPopoverIsOpen)
{
    const QImage usual = row().grab().toImage();
    open();
    EXPECT_NE(row().grab().toImage(), usual);
    row().click();
    program.settle();
    ASSERT_FALSE(row().isOpen());
    EXPECT_EQ(row().grab().toImage(), usual);
}

TEST_P(InfoButtonsTest, LoseTheirHighlightWhenTheHelpersStatusWasRead)
{
    const QImage usual = row().grab().toImage();
    open();
    program.features().helper.updateHelperInstalledStatus();
    program.settle();
    EXPECT_EQ(row().grab().toImage(), usual);
}

} // namespace
} // namespace quillon::test
