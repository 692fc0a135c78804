// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/preferences/ShortcutButton.h"

#include "unit/ui/preferences/PanesFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class ShortcutButtonTest : public PanesFixture
{
protected:
    ShortcutButtonTest() { open(PreferencesPane::General); }

    bool isRecording() const
    {
        return features().preferences.general.showRecorder.state().isRecording;
    }

    QAbstractButton &button() const { return box("showButtonRecorder"); }
    QAbstractButton &clear() const { return box("showButtonClear"); }
};

TEST_F(ShortcutButtonTest, RecordsWhatIsPressedNext)
{
    EXPECT_EQ(button().text(), u"Record Shortcut"_s);
    EXPECT_FALSE(clear().isVisible());
    button().click();
    EXPECT_EQ(button().text(), u"Type a shortcut"_s);
    press(Qt::Key_Q, Qt::ControlModifier | Qt::AltModifier);
    settle();
    EXPECT_EQ(button().text(), u"Ctrl+Alt+Q"_s);
    EXPECT_EQ(button().accessibleName(), u"Shortcut for \u201CShow window\u201D, Ctrl+Alt+Q"_s);
    EXPECT_EQ(machine.settings.getString(keys::showKeyCombo), u"Ctrl+Alt+Q"_s);
    EXPECT_TRUE(box("showButton").isChecked());
    EXPECT_TRUE(machine.hotKeys.bound.contains(keys::showKeyCombo));
}

TEST_F(ShortcutButtonTest, AllKeysAreItsOwnMeanwhile)
{
    button().click();
    press(Qt::Key_W, Qt::ControlModifier);
    EXPECT_TRUE(window->isVisible()) << "the window's own shortcut";
    EXPECT_EQ(machine.settings.getString(keys::showKeyCombo), u"Ctrl+W"_s);
    button().click();
    press(Qt::Key_Tab, Qt::AltModifier);
    EXPECT_EQ(machine.settings.getString(keys::showKeyCombo), u"Alt+Tab"_s);
    EXPECT_EQ(QApplication::focusWidget(), &button());
}

TEST_F(ShortcutButtonTest, EscapeAndASecondClickCancel)
{
    button().click();
    ASSERT_TRUE(isRecording());
    press(Qt::Key_Escape);
    EXPECT_FALSE(isRecording());
    EXPECT_TRUE(window->isVisible());
    button().click();
    button().click();
    EXPECT_FALSE(isRecording());
    EXPECT_FALSE(machine.settings.get(keys::showKeyCombo).isValid());
}

TEST_F(ShortcutButtonTest, GivesUpWhenTheKeyboardGoesElsewhere)
{
    button().click();
    box("randButton").setFocus();
    EXPECT_FALSE(isRecording());
    button().click();
    features().preferencesWindow.showPane(PreferencesPane::About);
    settle();
    EXPECT_FALSE(isRecording());
}

TEST_F(ShortcutButtonTest, AKeyThatIsHeldIsOnePress)
{
    button().setFocus();
    button().click();
    QKeyEvent held(QEvent::KeyPress, Qt::Key_F9, Qt::NoModifier, {}, true);
    QApplication::sendEvent(&button(), &held);
    EXPECT_TRUE(isRecording());
    press(Qt::Key_F9);
    EXPECT_FALSE(isRecording());
    EXPECT_EQ(button().text(), u"F9"_s);
}

TEST_F(ShortcutButtonTest, ReturnBeginsAndTheCrossClears)
{
    button().setFocus();
    press(Qt::Key_Return);
    ASSERT_TRUE(isRecording());
    press(Qt::Key_F9);
    ASSERT_TRUE(clear().isVisible());
    clear().click();
    EXPECT_FALSE(machine.settings.get(keys::showKeyCombo).isValid());
    EXPECT_FALSE(clear().isVisible());
    EXPECT_EQ(QApplication::focusWidget(), &button()) << "the cross has gone";
}

TEST_F(ShortcutButtonTest, WhatIsStoredIsNoMnemonicAndNotEndless)
{
    machine.settings.set(keys::showKeyCombo, u"Ctrl+&"_s);
    EXPECT_EQ(button().text(), u"Ctrl+&&"_s);
    const int width = button().sizeHint().width();
    machine.settings.set(keys::showKeyCombo, QString(5000, u'W'));
    EXPECT_LT(button().sizeHint().width(), 3 * width);
    EXPECT_TRUE(button().text().endsWith(u'…'));
}

TEST_F(ShortcutButtonTest, WithoutHotKeysItCannotBeUsed)
{
    machine.hotKeys.isOffered = false;
    features().hotKeys.findWay();
    settle();
    EXPECT_FALSE(button().isEnabled());
    EXPECT_EQ(button().toolTip(), u"This desktop does not let programs set global shortcuts."_s);
}

} // namespace
} // namespace quillon::test
