// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/networks/WiredTraces.h"

#include "unit/ui/UserInterfaceFixture.h"

#include <QApplication>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

class WiredTracesTest : public UserInterfaceFixture
{
protected:
    WiredTracesTest()
    {
        createWithWindows();
        startWithWindows();
    }
};

TEST_F(WiredTracesTest, AreWithTheHardwareAddressWhereThereIsNoOtherPlace)
{
    features().networks.info.showNetworkButton(false);
    features().mainWindow.toggleHardwarePopover();
    QWidget *traces = nullptr;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        for (auto *found : window->findChildren<WiredTraces *>()) {
            traces = found;
        }
    }
    ASSERT_NE(traces, nullptr);
    EXPECT_TRUE(traces->isVisible());
    const QString selected = features().devices.currentInterface.device();
    EXPECT_EQ(machine.exposure.asked, QStringList(selected));
    features().networks.info.showNetworkButton(true);
    EXPECT_FALSE(traces->isVisible()) << "the network information has them";
}

} // namespace
} // namespace quillon::test
