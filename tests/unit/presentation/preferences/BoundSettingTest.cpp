// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/preferences/BoundSetting.h"

#include "base/SettingsKeys.h"
#include "fakes/FakeScheduler.h"
#include "fakes/FakeSettingsStore.h"
#include "fakes/QtPrinting.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class BoundSettingTest : public ::testing::Test
{
protected:
    BoundSettingTest()
    {
        QObject::connect(&setting, &BoundSetting::changed, [this] { ++changes; });
    }

    FakeScheduler scheduler;
    FakeSettingsStore settings{scheduler};
    BoundSetting setting{settings, keys::driftAlarm};
    int changes = 0;
};

TEST_F(BoundSettingTest, ShowsTheDefaultUntilAnybodyChoosesOtherwise)
{
    EXPECT_FALSE(setting.state().isOn);
    settings.registerDefaults({{keys::driftAlarm, true}});
    setting.refresh();
    EXPECT_TRUE(setting.state().isOn);
}

TEST_F(BoundSettingTest, TheUsersChoiceIsStored)
{
    setting.set(true);
    EXPECT_EQ(settings.get(keys::driftAlarm), QVariant(true));
    EXPECT_EQ(settings.journal().last(), u"synchronize"_s) << "else nothing writes it";
    EXPECT_TRUE(setting.state().isOn);
    setting.set(false);
    EXPECT_EQ(settings.get(keys::driftAlarm), QVariant(false));
    EXPECT_EQ(changes, 2);
}

TEST_F(BoundSettingTest, FollowsWhoeverElseChangesIt)
{
    settings.setBool(keys::driftAlarm, true);
    EXPECT_TRUE(setting.state().isOn);
    EXPECT_EQ(changes, 1);
    settings.set(keys::driftAlarm, QVariant());
    EXPECT_FALSE(setting.state().isOn);
    EXPECT_EQ(changes, 2);
}

TEST_F(BoundSettingTest, AValueOfAnotherTypeIsOffAndGivesWayToAChoice)
{
    settings.setBool(keys::driftAlarm, true);
    settings.set(keys::driftAlarm, u"yes"_s);
    EXPECT_FALSE(setting.state().isOn);
    setting.set(true);
    EXPECT_EQ(settings.get(keys::driftAlarm), QVariant(true));
}

TEST_F(BoundSettingTest, WhatCannotBeUsedIsNotChangedAndStillFollows)
{
    setting.setWhyDisabled(u"No tray"_s);
    EXPECT_FALSE(setting.isUsable());
    setting.set(true);
    EXPECT_FALSE(settings.get(keys::driftAlarm).isValid());
    settings.setBool(keys::driftAlarm, true);
    EXPECT_TRUE(setting.state().isOn);
    setting.setWhyDisabled({});
    setting.set(false);
    EXPECT_FALSE(settings.getBool(keys::driftAlarm));
}

TEST_F(BoundSettingTest, WritesNothingThatIsSoAlready)
{
    settings.clearJournal();
    setting.set(false);
    EXPECT_TRUE(settings.journal().isEmpty());
    EXPECT_EQ(changes, 0);
}

TEST_F(BoundSettingTest, FollowsNothingOnceItHasGone)
{
    {
        const BoundSetting other(settings, keys::driftAlarm);
    }
    settings.setBool(keys::driftAlarm, true);
    EXPECT_EQ(changes, 1);
}

} // namespace
} // namespace quillon::test
