// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/preferences/ShortcutRecorder.h"

#include "unit/presentation/DeviceModelsFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using HotKeyState = GlobalHotKeys::State;
using Kind = PreferencesLine::Kind;

class ShortcutRecorderTest : public DeviceModelsFixture
{
protected:
    ShortcutRecorderTest()
    {
        QObject::connect(&presence, &Presence::windowOpened, [this] { ++opened; });
        // As the program has it: the hot keys follow their settings.
        for (const QString &key : {keys::showKeyEnabled, keys::showKeyCombo}) {
            settings.addObserver(key, [this](const auto &) { hotKeys.updateShowKey(); });
        }
        for (const QString &key : {keys::randomKeyEnabled, keys::randomKeyCombo}) {
            settings.addObserver(key, [this](const auto &) { hotKeys.updateRandomKey(); });
        }
    }

    void record(const QString &combination)
    {
        show.begin();
        press(combination);
    }
    void press(const QString &combination)
    {
        show.press(*KeyCombination::fromText(combination));
        scheduler.runPending();
    }
    void findWay()
    {
        hotKeys.findWay();
        scheduler.runPending();
    }

    FakeHotKeys &desktop = machine.hotKeys;
    GlobalHotKeys hotKeys{{settings, desktop, presence, changer, notifier}};
    ShortcutRecorder show{ShortcutRecorder::For::ShowWindow, settings, hotKeys};
    ShortcutRecorder random{ShortcutRecorder::For::RandomAddress, settings, hotKeys};
    int opened = 0;
};

TEST_F(ShortcutRecorderTest, IsEmptyAtFirst)
{
    EXPECT_EQ(show.title(), u"Show window"_s);
    EXPECT_EQ(random.title(), u"Randomize address"_s);
    EXPECT_TRUE(show.state().isEmpty);
    EXPECT_TRUE(show.state().isUsable);
    EXPECT_FALSE(show.state().isRecording);
    EXPECT_EQ(show.state().text, u"Record Shortcut"_s);
    EXPECT_EQ(show.state().line, PreferencesLine());
}

TEST_F(ShortcutRecorderTest, ARecordedCombinationIsStoredSwitchedOnAndActs)
{
    record(u"Ctrl+Alt+Q"_s);
    EXPECT_EQ(settings.getString(keys::showKeyCombo), u"Ctrl+Alt+Q"_s);
    EXPECT_TRUE(settings.getBool(keys::showKeyEnabled));
    EXPECT_FALSE(settings.get(keys::randomKeyCombo).isValid());
    EXPECT_FALSE(show.state().isRecording);
    EXPECT_EQ(show.state().text, u"Ctrl+Alt+Q"_s);
    EXPECT_EQ(show.state().line, PreferencesLine());
    desktop.press(u"Ctrl+Alt+Q"_s);
    EXPECT_EQ(opened, 1);
}

TEST_F(ShortcutRecorderTest, ModifiersAreShownWhileTheyAreHeld)
{
    show.begin();
    EXPECT_EQ(show.state().text, u"Type a shortcut"_s);
    show.press({.control = true, .alt = true, .key = {}});
    EXPECT_EQ(show.state().text, u"Ctrl+Alt+\u2026"_s);
    show.press({});
    EXPECT_EQ(show.state().text, u"Type a shortcut"_s);
    EXPECT_TRUE(show.state().isRecording);
}

TEST_F(ShortcutRecorderTest, AKeyThatEverybodyTypesIsRefusedAndTheNextIsWaitedFor)
{
    show.begin();
    show.press({.shift = true, .key = u"M"_s});
    EXPECT_TRUE(show.state().isRecording);
    EXPECT_EQ(show.state().line,
        (PreferencesLine{Kind::Notice, u"A shortcut needs Ctrl, Alt or Meta and one more key."_s}));
    EXPECT_FALSE(settings.get(keys::showKeyCombo).isValid());
    press(u"Ctrl+M"_s);
    EXPECT_EQ(settings.getString(keys::showKeyCombo), u"Ctrl+M"_s);
    EXPECT_EQ(show.state().line, PreferencesLine());
}

TEST_F(ShortcutRecorderTest, AFunctionKeyNeedsNoOther)
{
    record(u"F9"_s);
    EXPECT_EQ(settings.getString(keys::showKeyCombo), u"F9"_s);
}

TEST_F(ShortcutRecorderTest, AKeyWithoutANameIsRefused)
{
    show.begin();
    show.press({.control = true, .key = u"Volume Up"_s});
    EXPECT_TRUE(show.state().isRecording);
    EXPECT_EQ(show.state().line.text, u"This key cannot be part of a shortcut."_s);
    EXPECT_FALSE(settings.get(keys::showKeyCombo).isValid());
}

TEST_F(ShortcutRecorderTest, EscapeKeepsWhatWasThereBefore)
{
    record(u"Ctrl+Alt+Q"_s);
    show.begin();
    show.press({.key = u"Esc"_s});
    scheduler.runPending();
    EXPECT_FALSE(show.state().isRecording);
    EXPECT_EQ(show.state().text, u"Ctrl+Alt+Q"_s);
    desktop.press(u"Ctrl+Alt+Q"_s);
    EXPECT_EQ(opened, 1);
}

TEST_F(ShortcutRecorderTest, BackspaceAndDeleteClear)
{
    for (const QString &key : {u"Backspace"_s, u"Del"_s}) {
        record(u"Ctrl+Alt+Q"_s);
        show.begin();
        show.press({.key = key});
        scheduler.runPending();
        EXPECT_FALSE(show.state().isRecording);
        EXPECT_TRUE(show.state().isEmpty);
        EXPECT_FALSE(settings.get(keys::showKeyCombo).isValid());
        EXPECT_TRUE(desktop.bound.isEmpty());
    }
}

TEST_F(ShortcutRecorderTest, TheyCanBePartOfAShortcut)
{
    record(u"Ctrl+Backspace"_s);
    EXPECT_EQ(settings.getString(keys::showKeyCombo), u"Ctrl+Backspace"_s);
}

TEST_F(ShortcutRecorderTest, ClearingWithoutRecordingReleasesTheKey)
{
    record(u"Ctrl+Alt+Q"_s);
    show.clear();
    scheduler.runPending();
    EXPECT_TRUE(show.state().isEmpty);
    EXPECT_FALSE(settings.get(keys::showKeyCombo).isValid());
    desktop.press(u"Ctrl+Alt+Q"_s);
    EXPECT_EQ(opened, 0);
    EXPECT_EQ(hotKeys.showKeyState(), HotKeyState::Off);
}

TEST_F(ShortcutRecorderTest, WhatTheOtherHotKeyUsesIsRefused)
{
    settings.set(keys::randomKeyCombo, u"ctrl + alt + q"_s);
    show.begin();
    show.press(*KeyCombination::fromText(u"Ctrl+Alt+Q"_s));
    EXPECT_TRUE(show.state().isRecording);
    EXPECT_EQ(show.state().line,
        (PreferencesLine{Kind::Notice, u"\u201CRandomize address\u201D uses this shortcut."_s}));
    EXPECT_FALSE(settings.get(keys::showKeyCombo).isValid());
}

TEST_F(ShortcutRecorderTest, ACombinationOfAnotherProgramIsKeptAndTheConflictIsSaid)
{
    desktop.takenByOthers = {u"Ctrl+Alt+Q"_s};
    record(u"Ctrl+Alt+Q"_s);
    EXPECT_EQ(settings.getString(keys::showKeyCombo), u"Ctrl+Alt+Q"_s);
    EXPECT_EQ(show.state().line,
        (PreferencesLine{Kind::Notice, u"Another program uses this shortcut."_s}));
    EXPECT_EQ(random.state().line, PreferencesLine());
}

TEST_F(ShortcutRecorderTest, RecordedAgainItIsAskedForAgain)
{
    desktop.takenByOthers = {u"Ctrl+Alt+Q"_s};
    record(u"Ctrl+Alt+Q"_s);
    desktop.takenByOthers.clear();
    record(u"Ctrl+Alt+Q"_s);
    EXPECT_EQ(hotKeys.showKeyState(), HotKeyState::Bound);
    EXPECT_EQ(show.state().line, PreferencesLine());
}

TEST_F(ShortcutRecorderTest, WhileItRecordsNoHotKeyActsAndItsKeysAreFree)
{
    record(u"Ctrl+Alt+Q"_s);
    const auto bound = desktop.bound;
    show.begin();
    EXPECT_TRUE(desktop.bound.isEmpty()) << "what is grabbed would not reach the recorder";
    for (const HotKey &hotKey : bound) {
        hotKey.pressed(); // on its way when it was released
    }
    EXPECT_EQ(opened, 0);
    press(u"Ctrl+Alt+Q"_s);
    EXPECT_EQ(hotKeys.showKeyState(), HotKeyState::Bound);
    desktop.press(u"Ctrl+Alt+Q"_s);
    EXPECT_EQ(opened, 1);
    EXPECT_TRUE(notifier.messages().isEmpty());
}

TEST_F(ShortcutRecorderTest, CancellingDoesNotTellOfAProblemAgain)
{
    desktop.takenByOthers = {u"Ctrl+Alt+Q"_s};
    record(u"Ctrl+Alt+Q"_s);
    ASSERT_EQ(notifier.messages().size(), 1);
    show.begin();
    show.cancel();
    scheduler.runPending();
    EXPECT_EQ(notifier.messages().size(), 1);
    EXPECT_EQ(show.state().line.text, u"Another program uses this shortcut."_s);
}

TEST_F(ShortcutRecorderTest, WhereTheDesktopDecidesItSaysSoAndTheKeysStayBound)
{
    desktop.way = HotKeyWay::DesktopDecides;
    findWay();
    EXPECT_EQ(show.state().line.kind, Kind::Hint);
    EXPECT_EQ(show.state().line.text,
        u"The desktop has the last word: its settings show the keys that act."_s);
    record(u"Ctrl+Alt+Q"_s);
    show.begin();
    EXPECT_EQ(desktop.bound.size(), 1) << "its user would be asked anew";
    desktop.press(u"Ctrl+Alt+Q"_s);
    EXPECT_EQ(opened, 0);
    show.cancel();
    desktop.press(u"Ctrl+Alt+Q"_s);
    EXPECT_EQ(opened, 1);
}

TEST_F(ShortcutRecorderTest, WithoutHotKeysNothingIsRecordedAndItSaysWhy)
{
    desktop.isOffered = false;
    findWay();
    EXPECT_FALSE(show.state().isUsable);
    EXPECT_EQ(
        show.state().line, (PreferencesLine{Kind::Notice,
                               u"This desktop does not let programs set global shortcuts."_s}));
    record(u"Ctrl+Alt+Q"_s);
    EXPECT_FALSE(show.state().isRecording);
    EXPECT_FALSE(settings.get(keys::showKeyCombo).isValid());
    settings.set(keys::showKeyCombo, u"Ctrl+Alt+Q"_s);
    show.clear();
    EXPECT_FALSE(settings.get(keys::showKeyCombo).isValid());
}

TEST_F(ShortcutRecorderTest, FollowsWhoeverElseChangesTheSetting)
{
    settings.set(keys::showKeyCombo, u"Meta+F5"_s);
    EXPECT_EQ(show.state().text, u"Meta+F5"_s);
    EXPECT_FALSE(show.state().isEmpty);
    settings.set(keys::showKeyCombo, 17);
    EXPECT_TRUE(show.state().isEmpty) << "a value of another type counts as none";
    settings.setBool(keys::showKeyEnabled, true);
    settings.set(keys::showKeyCombo, u"nonsense"_s);
    EXPECT_EQ(show.state().text, u"nonsense"_s);
    EXPECT_EQ(show.state().line.text, u"A shortcut needs Ctrl, Alt or Meta and one more key."_s);
}

TEST_F(ShortcutRecorderTest, WhatOthersSetWhileItRecordsIsShownAfterwards)
{
    show.begin();
    settings.set(keys::showKeyCombo, u"Meta+F5"_s);
    settings.setBool(keys::showKeyEnabled, true);
    EXPECT_EQ(show.state().text, u"Type a shortcut"_s);
    EXPECT_TRUE(desktop.bound.isEmpty());
    show.cancel();
    scheduler.runPending();
    EXPECT_EQ(show.state().text, u"Meta+F5"_s);
    desktop.press(u"Meta+F5"_s);
    EXPECT_EQ(opened, 1);
}

} // namespace
} // namespace quillon::test
