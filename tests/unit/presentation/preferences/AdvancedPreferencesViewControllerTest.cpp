// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/preferences/AdvancedPreferencesViewController.h"

#include "fakes/FakePlatform.h"
#include "helperlink/XPCMethods.h"
#include "presence/Presence.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class AdvancedPreferencesViewControllerTest : public ::testing::Test
{
protected:
    AdvancedPreferencesViewControllerTest()
    {
        QObject::connect(&presence, &Presence::windowOpened, [this] { ++fronts; });
        for (const char *key : {"success", "device", "version", "other"}) {
            machine.groupSettings.set(QString::fromLatin1(key), u"x"_s);
        }
    }

    void readStatus()
    {
        helper.updateHelperInstalledStatus();
        machine.scheduler.runPending();
        pane.checkButtonStatus();
    }

    FakePlatform machine;
    XPCMethods helper{machine.helper, machine.scheduler, machine.notifications};
    Presence presence{machine.settings};
    AdvancedPreferencesViewController pane{
        helper, presence, machine.groupSettings, machine.scheduler};
    int fronts = 0;
};

TEST_F(AdvancedPreferencesViewControllerTest, WithTheHelperOnlyUninstallIsOffered)
{
    readStatus();
    EXPECT_FALSE(pane.state().installEnabled);
    EXPECT_TRUE(pane.state().uninstallEnabled);
}

TEST_F(AdvancedPreferencesViewControllerTest, WithoutTheHelperOnlyInstallIsOffered)
{
    machine.helper.installed = false;
    readStatus();
    EXPECT_TRUE(pane.state().installEnabled);
    EXPECT_FALSE(pane.state().uninstallEnabled);
}

TEST_F(AdvancedPreferencesViewControllerTest, OnLoadInstallWaitsForTheHelpersAnswer)
{
    machine.helper.version = u"1.9"_s;
    pane.load();
    EXPECT_FALSE(pane.state().installEnabled);
    machine.scheduler.runPending();
    EXPECT_TRUE(pane.state().installEnabled) << "a helper of version 1.9 counts as not installed";
}

TEST_F(AdvancedPreferencesViewControllerTest, OnLoadWithTheRightHelperInstallStaysDisabled)
{
    pane.load();
    machine.scheduler.runPending();
    EXPECT_FALSE(pane.state().installEnabled);
}

TEST_F(
    AdvancedPreferencesViewControllerTest, InstallReadsTheStatusAgainAndBringsTheWindowsToTheFront)
{
    pane.installHelper();
    machine.scheduler.runPending();
    EXPECT_TRUE(helper.isHelperInstalled());
    EXPECT_EQ(fronts, 1);
}

TEST_F(AdvancedPreferencesViewControllerTest, AFailedInstallOnlyBringsTheWindowsToTheFront)
{
    machine.helper.installFails = true;
    pane.installHelper();
    machine.scheduler.runPending();
    EXPECT_FALSE(machine.helper.journal().contains(u"version"_s));
    EXPECT_EQ(fronts, 1);
}

TEST_F(AdvancedPreferencesViewControllerTest,
    UninstallThroughAConnectionThatDropsSucceedsAndPurgesTheGroupKeys)
{
    machine.helper.mood = FakeHelper::Mood::Dropping;
    machine.groupSettings.clearJournal();
    pane.uninstallHelper();
    machine.scheduler.runPending();
    EXPECT_EQ(machine.groupSettings.stored().keys(), QStringList{u"other"_s});
    EXPECT_EQ(machine.groupSettings.journal().last(), u"synchronize"_s);
    EXPECT_EQ(fronts, 1);
}

TEST_F(AdvancedPreferencesViewControllerTest, ARefusedUninstallKeepsTheGroupKeys)
{
    machine.helper.mood = FakeHelper::Mood::Refusing;
    pane.uninstallHelper();
    machine.scheduler.runPending();
    EXPECT_EQ(machine.groupSettings.stored().size(), 4);
    EXPECT_EQ(fronts, 1);
}

} // namespace
} // namespace quillon::test
