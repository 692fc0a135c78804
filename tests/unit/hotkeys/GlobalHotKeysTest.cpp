// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "hotkeys/GlobalHotKeys.h"

#include "unit/presentation/DeviceModelsFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using State = GlobalHotKeys::State;

class GlobalHotKeysTest : public DeviceModelsFixture
{
protected:
    GlobalHotKeysTest()
    {
        QObject::connect(&presence, &Presence::windowOpened, [this] { ++opened; });
    }

    void showKey(const QString &combination, bool enabled = true)
    {
        settings.set(keys::showKeyCombo, combination);
        settings.setBool(keys::showKeyEnabled, enabled);
        hotKeys.updateShowKey();
        scheduler.runPending();
    }
    void randomKey(const QString &combination, bool enabled = true)
    {
        settings.set(keys::randomKeyCombo, combination);
        settings.setBool(keys::randomKeyEnabled, enabled);
        hotKeys.updateRandomKey();
        scheduler.runPending();
    }

    FakeHotKeys &desktop = machine.hotKeys;
    GlobalHotKeys hotKeys{{settings, desktop, presence, changer, notifier}};
    int opened = 0;
};

TEST_F(GlobalHotKeysTest, TheShowKeyOpensTheWindow)
{
    showKey(u"Ctrl+Alt+Q"_s);
    EXPECT_EQ(hotKeys.showKeyState(), State::Bound);
    desktop.press(u"Ctrl+Alt+Q"_s);
    EXPECT_EQ(opened, 1);
    EXPECT_TRUE(notifier.messages().isEmpty());
}

TEST_F(GlobalHotKeysTest, TheRandomKeyGivesTheSelectedInterfaceARandomAddress)
{
    randomKey(u"Meta+R"_s);
    desktop.press(u"Meta+R"_s);
    scheduler.runPending();
    EXPECT_NE(addressOf(wired), u"3C:22:FB:00:00:01"_s);
    EXPECT_EQ(addressOf(wifi), u"3C:22:FB:00:00:02"_s);
    EXPECT_EQ(opened, 0);
}

TEST_F(GlobalHotKeysTest, SwitchedOffItIsTakenFromTheKeyboard)
{
    showKey(u"Ctrl+Alt+Q"_s);
    showKey(u"Ctrl+Alt+Q"_s, false);
    desktop.press(u"Ctrl+Alt+Q"_s);
    EXPECT_EQ(opened, 0);
    EXPECT_TRUE(desktop.bound.isEmpty());
    EXPECT_EQ(hotKeys.showKeyState(), State::Off);
}

TEST_F(GlobalHotKeysTest, AnotherCombinationTakesThePlaceOfTheFirst)
{
    showKey(u"Ctrl+Alt+Q"_s);
    showKey(u"F9"_s);
    desktop.press(u"Ctrl+Alt+Q"_s);
    EXPECT_EQ(opened, 0);
    desktop.press(u"F9"_s);
    EXPECT_EQ(opened, 1);
}

TEST_F(GlobalHotKeysTest, WithoutACombinationNothingIsBoundOrTold)
{
    showKey(QString());
    EXPECT_EQ(hotKeys.showKeyState(), State::Off);
    EXPECT_TRUE(desktop.bound.isEmpty());
    EXPECT_TRUE(notifier.messages().isEmpty());
}

TEST_F(GlobalHotKeysTest, ACombinationThatAnotherProgramHasIsTold)
{
    desktop.takenByOthers = {u"Ctrl+Alt+Q"_s};
    showKey(u"Ctrl+Alt+Q"_s);
    EXPECT_EQ(hotKeys.showKeyState(), State::Taken);
    ASSERT_EQ(notifier.messages().size(), 1);
    EXPECT_EQ(notifier.messages().first().title, u"Shortcut for \u201CShow window\u201D not set"_s);
    EXPECT_EQ(
        notifier.messages().first().body, u"Ctrl+Alt+Q: Another program uses this shortcut."_s);
}

TEST_F(GlobalHotKeysTest, OneCombinationIsNotForBoth)
{
    showKey(u"Ctrl+Alt+Q"_s);
    randomKey(u"Ctrl+Alt+Q"_s);
    EXPECT_EQ(hotKeys.showKeyState(), State::Bound);
    EXPECT_EQ(hotKeys.randomKeyState(), State::Taken);
}

TEST_F(GlobalHotKeysTest, TheTwoSwapTheirCombinations)
{
    showKey(u"Ctrl+Alt+Q"_s);
    randomKey(u"Meta+R"_s);
    settings.set(keys::showKeyCombo, u"Meta+R"_s);
    settings.set(keys::randomKeyCombo, u"ctrl+alt+q"_s);
    hotKeys.updateShowKey();
    hotKeys.updateRandomKey();
    scheduler.runPending();
    EXPECT_EQ(hotKeys.showKeyState(), State::Bound);
    EXPECT_EQ(hotKeys.randomKeyState(), State::Bound);
    EXPECT_TRUE(notifier.messages().isEmpty());
    desktop.press(u"Meta+R"_s);
    EXPECT_EQ(opened, 1);
}

TEST_F(GlobalHotKeysTest, WhatTheOtherGivesUpIsTaken)
{
    randomKey(u"Meta+R"_s);
    showKey(u"Meta+R"_s);
    EXPECT_EQ(hotKeys.showKeyState(), State::Taken);
    ASSERT_EQ(notifier.messages().size(), 1);
    randomKey(u"Meta+R"_s, false);
    EXPECT_EQ(hotKeys.showKeyState(), State::Bound);
    EXPECT_EQ(hotKeys.randomKeyState(), State::Off);
    EXPECT_EQ(notifier.messages().size(), 1);
    desktop.press(u"Meta+R"_s);
    EXPECT_EQ(opened, 1);
}

TEST_F(GlobalHotKeysTest, ADesktopWithoutHotKeysIsTold)
{
    desktop.isOffered = false;
    randomKey(u"Ctrl+Alt+Q"_s);
    EXPECT_EQ(hotKeys.randomKeyState(), State::NotOffered);
    ASSERT_EQ(notifier.messages().size(), 1);
    EXPECT_TRUE(notifier.messages().first().body.endsWith(
        u"This desktop does not let programs set global shortcuts."_s));
}

TEST_F(GlobalHotKeysTest, AKeyThatEverybodyTypesIsNotTaken)
{
    showKey(u"Shift+M"_s);
    EXPECT_EQ(hotKeys.showKeyState(), State::Unusable);
    EXPECT_TRUE(desktop.bound.isEmpty());
    EXPECT_EQ(notifier.messages().size(), 1);
}

TEST_F(GlobalHotKeysTest, TellsOfEveryChangeOfAState)
{
    QList<State> states;
    QObject::connect(
        &hotKeys, &GlobalHotKeys::stateChanged, [&] { states.append(hotKeys.showKeyState()); });
    showKey(u"F9"_s);
    showKey(u"F9"_s, false);
    EXPECT_EQ(states, (QList<State>{State::Pending, State::Bound, State::Off}));
}

TEST_F(GlobalHotKeysTest, AnAnswerToAnEarlierWishSaysNothing)
{
    desktop.takenByOthers = {u"F9"_s};
    settings.set(keys::showKeyCombo, u"F9"_s);
    settings.setBool(keys::showKeyEnabled, true);
    hotKeys.updateShowKey();
    showKey(u"F10"_s);
    EXPECT_EQ(hotKeys.showKeyState(), State::Bound);
    EXPECT_TRUE(notifier.messages().isEmpty());
}

} // namespace
} // namespace quillon::test
