// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/menu/StatusItem.h"

#include "ui/theme/Theme.h"
#include "unit/ui/WindowFixture.h"

namespace quillon::test {
namespace {

using ::testing::ElementsAre;

class StatusItemTest : public WindowFixture
{
protected:
    StatusItemTest()
    {
        QObject::connect(
            &item, &StatusItem::shownChanged, [this](bool isShown) { reports.append(isShown); });
    }

    Theme theme;
    FakeTrayHost trayHost;
    StatusItem item{menu, presence, trayHost, theme};
    QList<bool> reports;
};

TEST_F(StatusItemTest, WaitsForATrayHost)
{
    presence.showMenuBarItem(true);
    EXPECT_FALSE(item.isShown());
    trayHost.become(false);
    EXPECT_FALSE(item.isShown());
    trayHost.become(true);
    EXPECT_TRUE(item.isShown());
    EXPECT_THAT(reports, ElementsAre(true));
}

TEST_F(StatusItemTest, FollowsTheSetting)
{
    trayHost.become(true);
    EXPECT_FALSE(item.isShown());
    presence.showMenuBarItem(true);
    EXPECT_TRUE(item.isShown());
    presence.showMenuBarItem(false);
    EXPECT_FALSE(item.isShown());
    EXPECT_THAT(reports, ElementsAre(true, false));
}

TEST_F(StatusItemTest, AMenuWhosePanelHasGoneIsClosed)
{
    presence.showMenuBarItem(true);
    trayHost.become(true);
    menu.menuWillOpen();
    int closings = 0;
    QObject::connect(&menu, &MenuModel::didClose, [&] { ++closings; });
    trayHost.become(false);
    EXPECT_EQ(closings, 1);
}

TEST_F(StatusItemTest, AMenuThatGoesWithItsStatusItemIsClosed)
{
    presence.showMenuBarItem(true);
    trayHost.become(true);
    menu.menuWillOpen();
    int closings = 0;
    QObject::connect(&menu, &MenuModel::didClose, [&] { ++closings; });
    presence.showMenuBarItem(false);
    EXPECT_EQ(closings, 1);
}

TEST_F(StatusItemTest, WithoutAHostTheDockIconCannotBeHidden)
{
    settings.set(keys::hideDock, true);
    presence.showMenuBarItem(true);
    EXPECT_FALSE(presence.isDockIconHidden());
    trayHost.become(true);
    EXPECT_TRUE(presence.isDockIconHidden());
    trayHost.become(false);
    EXPECT_FALSE(presence.isDockIconHidden());
    EXPECT_FALSE(item.isShown());
    trayHost.become(true);
    EXPECT_TRUE(item.isShown());
}

} // namespace
} // namespace quillon::test
