// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/preferences/PressedKeys.h"

#include "fakes/QtPrinting.h"

#include <QKeyEvent>
#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

QString pressed(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    return pressedKeys(QKeyEvent(QEvent::KeyPress, key, modifiers)).toText();
}

TEST(PressedKeysTest, KeysHaveTheNamesOfTheSettings)
{
    for (const auto &[key, name] :
        std::initializer_list<std::pair<int, QString>>{{Qt::Key_M, u"M"_s}, {Qt::Key_5, u"5"_s},
            {Qt::Key_F5, u"F5"_s}, {Qt::Key_F35, u"F35"_s}, {Qt::Key_Space, u"Space"_s},
            {Qt::Key_Backspace, u"Backspace"_s}, {Qt::Key_Tab, u"Tab"_s},
            {Qt::Key_Return, u"Return"_s}, {Qt::Key_Pause, u"Pause"_s}, {Qt::Key_Escape, u"Esc"_s},
            {Qt::Key_Home, u"Home"_s}, {Qt::Key_Left, u"Left"_s}, {Qt::Key_PageUp, u"PgUp"_s},
            {Qt::Key_PageDown, u"PgDown"_s}, {Qt::Key_End, u"End"_s}, {Qt::Key_Print, u"Print"_s},
            {Qt::Key_Insert, u"Ins"_s}, {Qt::Key_Menu, u"Menu"_s}, {Qt::Key_Delete, u"Del"_s},
            {Qt::Key_Plus, u"+"_s}, {Qt::Key_Comma, u","_s}, {Qt::Key_Adiaeresis, u"\u00c4"_s}}) {
        const QString text = pressed(key, Qt::ControlModifier);
        EXPECT_EQ(text, u"Ctrl+"_s + name);
        const auto combination = KeyCombination::fromText(text);
        ASSERT_TRUE(combination) << qPrintable(text);
        EXPECT_EQ(combination->toText(), text);
    }
}

TEST(PressedKeysTest, ModifiersComeInTheirOrder)
{
    EXPECT_EQ(pressed(Qt::Key_M,
                  Qt::MetaModifier | Qt::ShiftModifier | Qt::AltModifier | Qt::ControlModifier),
        u"Ctrl+Alt+Shift+Meta+M"_s);
}

TEST(PressedKeysTest, AModifierThatIsPressedIsHeldAndOneThatIsReleasedIsNot)
{
    EXPECT_EQ(pressedKeys(QKeyEvent(QEvent::KeyPress, Qt::Key_Control, Qt::NoModifier)),
        (KeyCombination{.control = true, .key = {}}));
    EXPECT_EQ(pressedKeys(QKeyEvent(QEvent::KeyPress, Qt::Key_Super_L, Qt::ControlModifier)),
        (KeyCombination{.control = true, .meta = true, .key = {}}));
    EXPECT_EQ(pressedKeys(QKeyEvent(
                  QEvent::KeyRelease, Qt::Key_Alt, Qt::ControlModifier | Qt::AltModifier)),
        (KeyCombination{.control = true, .key = {}}));
}

TEST(PressedKeysTest, AReleasedKeyIsNone)
{
    EXPECT_EQ(pressedKeys(QKeyEvent(QEvent::KeyRelease, Qt::Key_M, Qt::ControlModifier)),
        (KeyCombination{.control = true, .key = {}}));
}

TEST(PressedKeysTest, TabWithShiftIsTab)
{
    EXPECT_EQ(
        pressed(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier), u"Ctrl+Shift+Tab"_s);
}

TEST(PressedKeysTest, WhatNoHotKeyListensToIsNoCombination)
{
    for (const auto &[key, modifiers] :
        std::initializer_list<std::pair<int, Qt::KeyboardModifiers>>{
            {Qt::Key_5, Qt::KeypadModifier}, {Qt::Key_Enter, Qt::KeypadModifier},
            {Qt::Key_VolumeUp, Qt::NoModifier}, {Qt::Key_unknown, Qt::NoModifier},
            {Qt::Key_CapsLock, Qt::NoModifier}}) {
        const QString text = pressed(key, modifiers | Qt::ControlModifier);
        EXPECT_FALSE(KeyCombination::fromText(text)) << qPrintable(text);
    }
}

} // namespace
} // namespace quillon::test
