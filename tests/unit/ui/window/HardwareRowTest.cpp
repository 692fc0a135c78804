// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/HardwareRow.h"

#include "unit/ui/window/MainWindowFixture.h"

#include <QPushButton>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class HardwareRowTest : public MainWindowFixture
{
};

TEST_F(HardwareRowTest, TheHardwareAddressIsRestoredFromItsPopover)
{
    auto *row = view->findChild<RowButton *>(u"hardwareButton"_s);
    auto *restore = named<QPushButton>("Restore hardware address");
    EXPECT_FALSE(restore->isVisible());
    row->click();
    EXPECT_TRUE(restore->isVisible());
    EXPECT_TRUE(restore->isEnabled());
    restore->click();
    EXPECT_FALSE(restore->isVisible()) << "it closes with the act";
    scheduler.runPending();
    EXPECT_EQ(addressOf(wired), u"3C:22:FB:00:00:01"_s);
    select(wired);
    EXPECT_FALSE(restore->isEnabled());
}

} // namespace
} // namespace quillon::test
