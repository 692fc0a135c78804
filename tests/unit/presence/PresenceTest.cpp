// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presence/Presence.h"

#include "base/SettingsKeys.h"
#include "fakes/FakeScheduler.h"
#include "fakes/FakeSettingsStore.h"

#include <gtest/gtest.h>

namespace quillon::test {
namespace {

class PresenceTest : public ::testing::Test
{
protected:
    PresenceTest()
    {
        QObject::connect(&presence, &Presence::terminated, [this] { ++terminations; });
        QObject::connect(&presence, &Presence::windowHidden, [this] { ++hidings; });
    }

    FakeScheduler scheduler;
    FakeSettingsStore settings{scheduler};
    Presence presence{settings};
    int terminations = 0;
    int hidings = 0;
};

TEST_F(PresenceTest, TheStatusItemFollowsItsSetting)
{
    settings.setBool(keys::showInMenu, true);
    presence.updateMenu();
    EXPECT_TRUE(presence.isStatusItemShown());

    settings.setBool(keys::showInMenu, false);
    presence.updateMenu();
    EXPECT_FALSE(presence.isStatusItemShown());
}

TEST_F(PresenceTest, SwitchingTheStatusItemOffShowsTheDockIconAgain)
{
    settings.setBool(keys::showInMenu, true);
    settings.setBool(keys::hideDock, true);
    presence.updateMenu();
    settings.clearJournal();

    presence.showMenuBarItem(false);
    EXPECT_FALSE(settings.getBool(keys::hideDock));
    EXPECT_EQ(settings.synchronizeCount(), 1);
}

TEST_F(PresenceTest, TheDockIconStaysWhileNoDesktopShowsTheStatusItem)
{
    presence.showMenuBarItem(true);
    settings.setBool(keys::hideDock, true);
    presence.updateDock();
    EXPECT_FALSE(presence.isDockIconHidden());

    presence.setStatusItemAvailable(true);
    EXPECT_TRUE(presence.isDockIconHidden());

    presence.setStatusItemAvailable(false);
    EXPECT_FALSE(presence.isDockIconHidden());
}

TEST_F(PresenceTest, TheDockIconStaysWhileTheStatusItemIsSwitchedOff)
{
    presence.setStatusItemAvailable(true);
    presence.showMenuBarItem(false);
    settings.setBool(keys::hideDock, true);
    EXPECT_FALSE(presence.isDockIconHidden());
    presence.quit();
    EXPECT_EQ(terminations, 1) << "a program that nobody can reach must not go on";
}

TEST_F(PresenceTest, TheDockIconFollowsTheStatusItem)
{
    QList<bool> told;
    QObject::connect(
        &presence, &Presence::dockIconHiddenChanged, [&](bool hidden) { told.append(hidden); });
    settings.setBool(keys::hideDock, true);
    presence.setStatusItemAvailable(true);
    presence.showMenuBarItem(true);
    EXPECT_EQ(told, (QList<bool>{false, true}));
}

TEST_F(PresenceTest, ADockIconThatComesOrGoesBringsOpenWindowsToTheFront)
{
    int raised = 0;
    QObject::connect(&presence, &Presence::openWindowsBroughtToFront, [&] { ++raised; });
    presence.updateDock();
    EXPECT_EQ(raised, 1);
    presence.showMenuBarItem(true);
    presence.setStatusItemAvailable(true);
    presence.setStatusItemAvailable(false);
    EXPECT_EQ(raised, 1) << "a panel that restarts is no reason to come into the user's way";
}

TEST_F(PresenceTest, QuitOfTheWindowEndsTheProgramWhileItHasADockIcon)
{
    presence.quit();
    EXPECT_EQ(terminations, 1);
    EXPECT_EQ(hidings, 0);
}

TEST_F(PresenceTest, QuitOfTheWindowOnlyHidesTheProgramWithoutADockIcon)
{
    presence.showMenuBarItem(true);
    settings.setBool(keys::hideDock, true);
    presence.setStatusItemAvailable(true);
    presence.quit();
    EXPECT_EQ(terminations, 0);
    EXPECT_EQ(hidings, 1);
}

TEST_F(PresenceTest, QuitOfTheStatusMenuAlwaysEndsTheProgram)
{
    settings.setBool(keys::hideDock, true);
    presence.setStatusItemAvailable(true);
    presence.quitFromSysMenu();
    EXPECT_EQ(terminations, 1);
}

} // namespace
} // namespace quillon::test
