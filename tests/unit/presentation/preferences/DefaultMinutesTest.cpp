// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/preferences/DefaultMinutes.h"

#include "base/SettingsKeys.h"
#include "fakes/FakeScheduler.h"
#include "fakes/FakeSettingsStore.h"
#include "fakes/QtPrinting.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class DefaultMinutesTest : public ::testing::Test
{
protected:
    DefaultMinutesTest() { settings.registerDefaults({{keys::defaultTimerMinutes, 30}}); }

    QVariant stored() const { return settings.stored().value(keys::defaultTimerMinutes); }

    FakeScheduler scheduler;
    FakeSettingsStore settings{scheduler};
    DefaultMinutes minutes{settings};
};

TEST_F(DefaultMinutesTest, WhatIsTypedIsStoredWhenTheFieldIsDoneWith)
{
    settings.set(keys::defaultTimerMinutes, 20);
    EXPECT_EQ(minutes.state().text, u"20"_s);
    EXPECT_TRUE(minutes.edit(u"4"_s));
    EXPECT_TRUE(minutes.edit(u"45"_s));
    EXPECT_EQ(stored(), QVariant(20));
    minutes.finish();
    EXPECT_EQ(stored(), QVariant(45));
    EXPECT_EQ(minutes.state().text, u"45"_s);
}

TEST_F(DefaultMinutesTest, OnlyThreeDigitsCanBeTyped)
{
    settings.set(keys::defaultTimerMinutes, 20);
    for (const QString &text : {u"1000"_s, u"-5"_s, u"1.5"_s, u"a"_s, u" 5"_s, u"\u0663"_s}) {
        EXPECT_FALSE(minutes.edit(text)) << qPrintable(text);
    }
    EXPECT_EQ(minutes.state().text, u"20"_s);
}

TEST_F(DefaultMinutesTest, WhatIsNoIntervalGivesWayToWhatIsStored)
{
    settings.set(keys::defaultTimerMinutes, 20);
    for (const QString &text : {QString(), u"0"_s, u"000"_s}) {
        EXPECT_TRUE(minutes.edit(text));
        minutes.finish();
        EXPECT_EQ(minutes.state().text, u"20"_s);
        EXPECT_EQ(stored(), QVariant(20));
    }
}

TEST_F(DefaultMinutesTest, LeadingZerosGo)
{
    minutes.edit(u"007"_s);
    minutes.finish();
    EXPECT_EQ(stored(), QVariant(7));
    EXPECT_EQ(minutes.state().text, u"7"_s);
}

TEST_F(DefaultMinutesTest, FollowsWhoeverElseChangesItAlsoWhileSomebodyTypes)
{
    minutes.edit(u"4"_s);
    settings.set(keys::defaultTimerMinutes, 60);
    EXPECT_EQ(minutes.state().text, u"60"_s);
    minutes.finish();
    EXPECT_EQ(stored(), QVariant(60));
}

TEST_F(DefaultMinutesTest, WhatOthersStoredBeyondTheLimitsIsShownAndKept)
{
    settings.set(keys::defaultTimerMinutes, 5000);
    EXPECT_EQ(minutes.state().text, u"5000"_s);
    minutes.finish();
    EXPECT_EQ(stored(), QVariant(5000));
    settings.set(keys::defaultTimerMinutes, u"often"_s);
    EXPECT_EQ(minutes.state().text, u"0"_s);
    minutes.finish();
    EXPECT_EQ(stored(), QVariant(u"often"_s));
}

TEST_F(DefaultMinutesTest, WritesNothingThatIsSoAlready)
{
    settings.clearJournal();
    minutes.finish();
    EXPECT_TRUE(settings.journal().isEmpty());
}

} // namespace
} // namespace quillon::test
