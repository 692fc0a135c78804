// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/features/Features.h"
#include "face/FaceProgram.h"

#include <QComboBox>
#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

/// The list of interfaces in the window, beside the two menus.
class SelectionButtonTest : public ::testing::Test
{
protected:
    SelectionButtonTest() { program.start(); }

    static bool lists(const QString &device)
    {
        return FaceProgram::part<QComboBox>(u"deviceSelectionButton"_s).findData(device) >= 0;
    }
    /// Without a word of the system.
    void plug(const QString &device, int number)
    {
        const QString address = u"00:00:5e:00:53:7%1"_s.arg(number);
        program.machine.host.plug({u"USB Ethernet"_s, device, address, address, {}});
    }

    FaceProgram program{{.scheme = ColorScheme::Light, .isStill = true}};
};

TEST_F(SelectionButtonTest, IsFilledAnewBeforeEitherMenuOpens)
{
    plug(u"enp7s0"_s, 1);
    EXPECT_FALSE(lists(u"enp7s0"_s));
    program.features().statusMenu.menuWillOpen();
    program.settle();
    EXPECT_TRUE(lists(u"enp7s0"_s));
    program.features().statusMenu.menuDidClose();

    plug(u"enp8s0"_s, 2);
    program.features().fileMenu.menuWillOpen();
    program.settle();
    EXPECT_TRUE(lists(u"enp8s0"_s));
    program.features().fileMenu.menuDidClose();
}

TEST_F(SelectionButtonTest, ShowsTheInterfaceThatWasChosenElsewhere)
{
    auto &button = FaceProgram::part<QComboBox>(u"deviceSelectionButton"_s);
    EXPECT_EQ(button.currentData().toString(), FaceProgram::radio);
    program.features().devices.currentInterface.updateInterface(FaceProgram::wire);
    program.settle();
    EXPECT_EQ(button.currentData().toString(), FaceProgram::wire);
}

} // namespace
} // namespace quillon::test
