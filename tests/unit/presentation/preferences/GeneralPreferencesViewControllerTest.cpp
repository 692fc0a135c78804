// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/preferences/GeneralPreferencesViewController.h"

#include "loginitem/StartAtLoginController.h"
#include "platform/SettingsSync.h"
#include "unit/presentation/DeviceModelsFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using Entry = LoginItem::Entry;
using Kind = PreferencesLine::Kind;

class Pushes : public SettingsSync
{
public:
    void syncFromCurrentState() override { ++count; }

    int count = 0;
};

class GeneralPreferencesViewControllerTest : public DeviceModelsFixture
{
protected:
    GeneralPreferencesViewControllerTest()
    {
        settings.addObserver(keys::loginStart, [this](const auto &) { login.updateLogin(); });
        settings.addObserver(keys::showInMenu, [this](const auto &) { presence.updateMenu(); });
    }

    void load()
    {
        pane.load();
        scheduler.runPending();
    }

    FakeLoginItem &desktop = machine.loginItem;
    GlobalHotKeys hotKeys{{settings, machine.hotKeys, presence, changer, notifier}};
    StartAtLoginController login{settings, desktop};
    Pushes sync;
    GeneralPreferencesViewController pane{
        {settings, scheduler, presence, hotKeys, login, desktop, sync}};
};

TEST_F(GeneralPreferencesViewControllerTest, EverySwitchIsItsSetting)
{
    presence.setStatusItemAvailable(true);
    settings.setBool(keys::showInMenu, true);
    const std::pair<BoundSetting *, QString> switches[] = {{&pane.loginStart, u"loginStart"_s},
        {&pane.hideOnLaunch, u"hideOnLaunch"_s}, {&pane.showInMenu, u"showInMenu"_s},
        {&pane.displayNotifications, u"displayNotifications"_s},
        {&pane.showButton, u"showKeyEnabled"_s}, {&pane.randButton, u"randomKeyEnabled"_s},
        {&pane.iCloudSync, u"iCloudSync"_s}, {&pane.hideDock, u"hideDock"_s}};
    for (const auto &[setting, key] : switches) {
        const bool before = settings.getBool(key);
        settings.setBool(key, !before);
        EXPECT_EQ(setting->state().isOn, !before) << qPrintable(key);
        settings.setBool(key, before);
        setting->set(!before);
        EXPECT_EQ(settings.getBool(key), !before) << qPrintable(key);
        setting->set(before);
    }
}

TEST_F(GeneralPreferencesViewControllerTest, TheTaskBarIsLeftOnlyForAStatusItemInSight)
{
    EXPECT_FALSE(pane.hideDock.isUsable());
    EXPECT_EQ(pane.state().hideDock.text, u"Only with the icon in the status bar."_s);
    settings.setBool(keys::showInMenu, true);
    EXPECT_EQ(pane.state().hideDock.text, u"Not while this desktop shows no status items."_s);
    presence.setStatusItemAvailable(true);
    EXPECT_TRUE(pane.hideDock.isUsable());
    EXPECT_EQ(pane.state().hideDock.text, QString());
    pane.hideDock.set(true);
    ASSERT_TRUE(settings.getBool(keys::hideDock));
    pane.showInMenu.set(false);
    EXPECT_FALSE(pane.hideDock.state().isOn) << "the program would be lost";
    EXPECT_FALSE(pane.hideDock.isUsable());
}

TEST_F(GeneralPreferencesViewControllerTest, SwitchedOnTheDesktopStartsTheProgram)
{
    load();
    pane.loginStart.set(true);
    EXPECT_EQ(desktop.current, Entry::Ours);
    EXPECT_EQ(pane.state().login, PreferencesLine());
    pane.loginStart.set(false);
    EXPECT_EQ(desktop.current, Entry::None);
    EXPECT_EQ(pane.state().login, PreferencesLine());
}

TEST_F(GeneralPreferencesViewControllerTest, ADesktopThatStartsNothingIsTold)
{
    desktop.desktop = LoginItem::Desktop::Ignores;
    pane.load();
    pane.loginStart.set(true);
    EXPECT_EQ(pane.state().login, PreferencesLine()) << "it is not known yet";
    scheduler.runPending();
    EXPECT_EQ(pane.state().login.kind, Kind::Notice);
    EXPECT_EQ(
        pane.state().login.text, u"This desktop does not start programs at login by itself."_s);
}

TEST_F(GeneralPreferencesViewControllerTest, WithoutTheProgramTheSwitchSaysWhyItDoesNothing)
{
    desktop.installed.reset();
    load();
    EXPECT_FALSE(pane.loginStart.isUsable());
    EXPECT_EQ(
        pane.state().login.text, u"The program that starts Quillon at login is not installed."_s);
    settings.setBool(keys::loginStart, true);
    EXPECT_TRUE(pane.loginStart.state().isOn);
    EXPECT_TRUE(desktop.journal.isEmpty());
    EXPECT_FALSE(login.enabled());
}

TEST_F(GeneralPreferencesViewControllerTest, WhatTheDesktopSwitchedOffMeanwhileIsSeenAtALook)
{
    load();
    pane.loginStart.set(true);
    desktop.current = Entry::SwitchedOff;
    pane.look();
    EXPECT_EQ(pane.state().login.kind, Kind::Notice);
    pane.loginStart.set(false);
    pane.loginStart.set(true);
    EXPECT_EQ(desktop.current, Entry::Ours);
    EXPECT_EQ(pane.state().login, PreferencesLine());
}

TEST_F(GeneralPreferencesViewControllerTest, AnEntryThatCannotBeWrittenFailed)
{
    load();
    desktop.isReadOnly = true;
    pane.loginStart.set(true);
    EXPECT_EQ(pane.state().login.kind, Kind::Failure);
    EXPECT_TRUE(pane.loginStart.state().isOn);
}

TEST_F(GeneralPreferencesViewControllerTest, SwitchedOnTheSettingsArePushedOnceSwitchedOffNothingIs)
{
    pane.synciCloud(true);
    EXPECT_TRUE(settings.getBool(keys::iCloudSync));
    scheduler.runPending();
    EXPECT_EQ(sync.count, 1);
    pane.synciCloud(false);
    scheduler.runPending();
    EXPECT_FALSE(settings.getBool(keys::iCloudSync));
    EXPECT_EQ(sync.count, 1);
    settings.setBool(keys::iCloudSync, true);
    scheduler.runPending();
    EXPECT_EQ(sync.count, 1) << "only the user's switch replaces what the account holds";
}

TEST_F(GeneralPreferencesViewControllerTest, WhatKeepsTheCopyFromBeingTheSameIsToldWhileItDoes)
{
    pane.showTrouble(u"The server cannot be reached."_s);
    EXPECT_EQ(
        pane.state().cloud, (PreferencesLine{Kind::Notice, u"The server cannot be reached."_s}));
    EXPECT_TRUE(pane.iCloudSync.isUsable());
    pane.showTrouble({});
    EXPECT_TRUE(pane.state().cloud.text.isEmpty());
}

TEST_F(GeneralPreferencesViewControllerTest, AMissingAccountIsSaidAndTheSwitchStaysUsable)
{
    pane.showAccount(false);
    EXPECT_EQ(pane.state().cloud.text, u"No account yet: there is nowhere to sync with."_s);
    EXPECT_TRUE(pane.iCloudSync.isUsable());
    pane.showAccount(true);
    EXPECT_EQ(pane.state().cloud, PreferencesLine());
}

TEST_F(GeneralPreferencesViewControllerTest, AViewIsRefreshedOnTheMainThread)
{
    int refreshed = 0;
    QObject::connect(
        &pane, &GeneralPreferencesViewController::viewRefreshed, [&refreshed] { ++refreshed; });
    settings.registerDefaults({{keys::displayNotifications, true}});
    pane.refreshView();
    EXPECT_EQ(refreshed, 0);
    scheduler.runPending();
    EXPECT_EQ(refreshed, 1);
    EXPECT_TRUE(pane.displayNotifications.state().isOn);
}

TEST_F(GeneralPreferencesViewControllerTest, ItLooksForHowHotKeysAreOffered)
{
    machine.hotKeys.isOffered = false;
    load();
    EXPECT_FALSE(pane.showRecorder.state().isUsable);
    EXPECT_FALSE(pane.randRecorder.state().isUsable);
}

} // namespace
} // namespace quillon::test
