// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "loginitem/StartAtLoginController.h"

#include "base/SettingsKeys.h"
#include "fakes/FakeLoginItem.h"
#include "fakes/FakeScheduler.h"
#include "fakes/FakeSettingsStore.h"
#include "fakes/QtPrinting.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

const QString identifier = u"com.orvandel.Quillon4Helper"_s;

class StartAtLoginControllerTest : public ::testing::Test
{
protected:
    StartAtLoginControllerTest()
    {
        QObject::connect(&login, &StartAtLoginController::changed, [this] { ++changes; });
    }

    void set(bool isOn)
    {
        settings.setBool(keys::loginStart, isOn);
        login.updateLogin();
    }

    FakeScheduler scheduler;
    FakeSettingsStore settings{scheduler};
    FakeLoginItem desktop{scheduler};
    StartAtLoginController login{settings, desktop};
    int changes = 0;
};

TEST_F(StartAtLoginControllerTest, FollowsTheSetting)
{
    set(true);
    EXPECT_TRUE(login.startAtLogin());
    EXPECT_TRUE(login.enabled());
    set(false);
    EXPECT_FALSE(login.startAtLogin());
    EXPECT_TRUE(login.enabled()) << "taking the entry out succeeded";
    EXPECT_EQ(desktop.journal, (QStringList{identifier + u" on"_s, identifier + u" off"_s}));
    EXPECT_EQ(changes, 2);
}

TEST_F(StartAtLoginControllerTest, WhatDidNotSucceedIsNotEnabled)
{
    set(true);
    desktop.isReadOnly = true;
    set(false);
    EXPECT_FALSE(login.startAtLogin());
    EXPECT_FALSE(login.enabled());
}

TEST_F(StartAtLoginControllerTest, ToldOfEveryTimeThatItIsSet)
{
    login.updateLogin();
    login.updateLogin();
    EXPECT_EQ(changes, 2);
}

TEST_F(StartAtLoginControllerTest, WithTheProgramMissingTheSettingHasNoEffect)
{
    desktop.installed.reset();
    set(true);
    EXPECT_FALSE(login.hasProgram());
    EXPECT_FALSE(login.startAtLogin());
    EXPECT_FALSE(login.enabled());
    set(false);
    EXPECT_TRUE(desktop.journal.isEmpty());
    EXPECT_EQ(changes, 0);
}

TEST_F(StartAtLoginControllerTest, AProgramWithoutAnIdentifierOrAPlaceIsMissing)
{
    desktop.installed->identifier.clear();
    set(true);
    StartAtLoginController placeless(settings, desktop);
    desktop.installed = LoginItem::Program{identifier, QUrl()};
    placeless.updateLogin();
    EXPECT_TRUE(desktop.journal.isEmpty());
    EXPECT_FALSE(placeless.enabled());
}

TEST_F(StartAtLoginControllerTest, TheProgramIsLookedForOnce)
{
    login.initLoginController();
    EXPECT_TRUE(login.hasProgram());
    desktop.installed.reset();
    login.initLoginController();
    EXPECT_TRUE(login.hasProgram());
    EXPECT_TRUE(desktop.journal.isEmpty());
}

} // namespace
} // namespace quillon::test
