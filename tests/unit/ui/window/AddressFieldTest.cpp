// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/AddressField.h"

#include "ui/window/TextFieldBackgroundView.h"
#include "unit/ui/WindowFixture.h"

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QMimeData>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class AddressFieldTest : public WindowFixture
{
protected:
    AddressFieldTest()
    {
        QObject::connect(&window, &MainWindowModel::changed, &field, [this] { field.refresh(); });
        QObject::connect(
            &window, &MainWindowModel::fieldRestored, &field, [this] { field.refresh(); });
    }

    void paste(const QString &text)
    {
        QGuiApplication::clipboard()->setText(text);
        field.paste();
    }

    AddressField field{window};
};

TEST_F(AddressFieldTest, ShowsTheAddressOfTheSelectedInterface)
{
    EXPECT_EQ(field.text(), u"02:00:00:00:00:01"_s);
}

TEST_F(AddressFieldTest, TakesWhatIsTyped)
{
    field.selectAll();
    type(field, u"a"_s);
    EXPECT_EQ(field.text(), u"a"_s);
    EXPECT_EQ(window.state().fieldText, u"a"_s);
}

TEST_F(AddressFieldTest, ARefusedKeystrokeLeavesTextAndCursorAsTheyWere)
{
    field.setCursorPosition(4);
    type(field, u"z"_s);
    EXPECT_EQ(field.text(), u"02:00:00:00:00:01"_s);
    EXPECT_EQ(field.cursorPosition(), 4);
    EXPECT_EQ(window.state().fieldText, u"02:00:00:00:00:01"_s);
}

TEST_F(AddressFieldTest, AnEighteenthCharacterIsRefused)
{
    field.setCursorPosition(17);
    type(field, u"f"_s);
    EXPECT_EQ(field.text(), u"02:00:00:00:00:01"_s);
}

TEST_F(AddressFieldTest, ARefusedPasteLeavesTextAndCursorAsTheyWere)
{
    field.setCursorPosition(2);
    paste(u"not an address"_s);
    EXPECT_EQ(field.text(), u"02:00:00:00:00:01"_s);
    EXPECT_EQ(field.cursorPosition(), 2);
}

TEST_F(AddressFieldTest, ARefusedPasteOverASelectionKeepsWhatWasSelected)
{
    field.selectAll();
    paste(u"??"_s);
    EXPECT_EQ(field.text(), u"02:00:00:00:00:01"_s);
    EXPECT_EQ(window.state().fieldText, u"02:00:00:00:00:01"_s);
}

TEST_F(AddressFieldTest, TwelveDigitsGetTheDisplayCaseAndTheCursorKeepsItsPlace)
{
    field.selectAll();
    type(field, u"aabbccddeef"_s);
    EXPECT_EQ(field.text(), u"aabbccddeef"_s);
    field.setCursorPosition(1);
    type(field, u"f"_s);
    EXPECT_EQ(field.text(), u"AFABBCCDDEEF"_s);
    EXPECT_EQ(field.cursorPosition(), 2);
}

TEST_F(AddressFieldTest, APastedAddressIsShownInDisplayCaseAndCanBeApplied)
{
    field.selectAll();
    paste(u"02:00:5e:10:ab:cd"_s);
    EXPECT_EQ(field.text(), u"02:00:5E:10:AB:CD"_s);
    EXPECT_TRUE(window.state().updateEnabled);
}

TEST_F(AddressFieldTest, WhatUndoBringsBackIsWhatTheModelHolds)
{
    field.setCursorPosition(17);
    press(field, Qt::Key_Backspace);
    EXPECT_EQ(window.state().fieldText, u"02:00:00:00:00:0"_s);
    field.undo();
    EXPECT_EQ(field.text(), window.state().fieldText);
}

TEST_F(AddressFieldTest, UndoGoesPastWhatTheProgramMadeOfWhatWasTyped)
{
    field.selectAll();
    type(field, u"aabbccddeeff"_s);
    ASSERT_EQ(field.text(), u"AABBCCDDEEFF"_s);
    press(field, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(field.text(), u"02:00:00:00:00:01"_s);
    EXPECT_EQ(window.state().fieldText, field.text());
    press(field, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(field.text(), u"AABBCCDDEEFF"_s);
    EXPECT_EQ(window.state().fieldText, field.text());
}

TEST_F(AddressFieldTest, UndoBringsBackTheAddressThatAPasteReplacedAndTheCursor)
{
    field.setCursorPosition(3);
    field.selectAll();
    paste(u"02:00:5e:10:ab:cd"_s);
    EXPECT_TRUE(window.state().updateEnabled);
    field.undo();
    EXPECT_EQ(field.text(), u"02:00:00:00:00:01"_s);
    EXPECT_FALSE(window.state().updateEnabled);
    EXPECT_TRUE(field.isRedoAvailable());
    field.redo();
    EXPECT_EQ(field.text(), u"02:00:5E:10:AB:CD"_s);
    EXPECT_TRUE(window.state().updateEnabled);
}

TEST_F(AddressFieldTest, WhatWasPutIntoTheFieldIsUndoneLikeTyping)
{
    window.populateHexFieldFromDrop(u"02:00:5e:10:ab:cd"_s);
    EXPECT_EQ(field.text(), u"02:00:5E:10:AB:CD"_s);
    field.undo();
    EXPECT_EQ(field.text(), u"02:00:00:00:00:01"_s);
}

TEST_F(AddressFieldTest, WhatIsTypedIsKeptForUndoWhenTheAddressInUseComesOverIt)
{
    field.setCursorPosition(17);
    press(field, Qt::Key_Backspace);
    window.populateHexField();
    scheduler.runPending();
    ASSERT_EQ(field.text(), u"02:00:00:00:00:01"_s);
    field.undo();
    EXPECT_EQ(field.text(), u"02:00:00:00:00:0"_s);
}

TEST_F(AddressFieldTest, AnotherInterfaceBeginsAnew)
{
    EXPECT_FALSE(field.isUndoAvailable()) << "nobody has edited anything";
    field.setCursorPosition(17);
    press(field, Qt::Key_Backspace);
    EXPECT_TRUE(field.isUndoAvailable());
    select(u"wlp2s0"_s);
    EXPECT_FALSE(field.isUndoAvailable());
    EXPECT_FALSE(field.isRedoAvailable());
}

TEST_F(AddressFieldTest, DisabledItShowsTheAddressInUseWhateverIsDoneToIt)
{
    const QString inUse = u"02:00:00:00:00:01"_s;
    field.setCursorPosition(17);
    press(field, Qt::Key_Backspace);
    field.show();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5), QPoint(5, 5));
    QCoreApplication::sendEvent(&field, &event);
    const auto *opened = field.findChild<QMenu *>();
    ASSERT_NE(opened, nullptr);

    window.setHelperInstalled(false);
    field.setEnabled(false);
    window.populateHexField();
    scheduler.runPending();
    ASSERT_EQ(field.text(), inUse);
    EXPECT_FALSE(field.isUndoAvailable());
    opened->actions().at(0)->trigger();
    EXPECT_EQ(field.text(), inUse) << "undo, in a menu that was opened before";
    field.selectAll();
    paste(u"02:00:5e:10:ab:cd"_s);
    EXPECT_EQ(field.text(), inUse);
    EXPECT_EQ(window.state().fieldText, inUse);

    window.setHelperInstalled(true);
    field.setEnabled(true);
    EXPECT_TRUE(field.isUndoAvailable());
    field.undo();
    EXPECT_EQ(field.text(), u"02:00:00:00:00:0"_s);
}

TEST_F(AddressFieldTest, LeavesTheKeyToTheWindowWhenItHasNothingToUndo)
{
    const auto takes = [this](int key, Qt::KeyboardModifiers modifiers) {
        QKeyEvent asked(QEvent::ShortcutOverride, key, modifiers);
        asked.ignore();
        QCoreApplication::sendEvent(&field, &asked);
        return asked.isAccepted();
    };
    EXPECT_FALSE(takes(Qt::Key_Z, Qt::ControlModifier));
    EXPECT_FALSE(takes(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier));
    EXPECT_TRUE(takes(Qt::Key_V, Qt::ControlModifier));
    field.setCursorPosition(17);
    press(field, Qt::Key_Backspace);
    EXPECT_TRUE(takes(Qt::Key_Z, Qt::ControlModifier));
    field.undo();
    EXPECT_TRUE(takes(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier));
}

TEST_F(AddressFieldTest, ItsContextMenuUndoesAsItsKeysDo)
{
    field.selectAll();
    type(field, u"aabbccddeeff"_s);
    field.show();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5), QPoint(5, 5));
    QCoreApplication::sendEvent(&field, &event);
    auto *shown = field.findChild<QMenu *>();
    ASSERT_NE(shown, nullptr);
    EXPECT_TRUE(shown->actions().at(0)->isEnabled());
    EXPECT_FALSE(shown->actions().at(1)->isEnabled());
    shown->actions().at(0)->trigger();
    EXPECT_NE(field.text(), u"AABBCCDDEEFF"_s);
    EXPECT_TRUE(field.isRedoAvailable());
    shown->actions().at(1)->setEnabled(true);
    shown->actions().at(1)->trigger();
    EXPECT_EQ(field.text(), u"AABBCCDDEEFF"_s);
    shown->close();
}

TEST_F(AddressFieldTest, AProgramThatWritesPastTheKeyboardIsHeldToTheRulesToo)
{
    field.setText(u"garbage!"_s);
    EXPECT_EQ(field.text(), u"02:00:00:00:00:01"_s);
}

TEST_F(AddressFieldTest, FollowsTheSelectedInterface)
{
    select(u"wlp2s0"_s);
    EXPECT_EQ(field.text(), u"3C:22:FB:00:00:02"_s);
}

TEST_F(AddressFieldTest, AFieldLeftEmptyShowsTheCurrentAddressAgain)
{
    field.selectAll();
    press(field, Qt::Key_Backspace);
    scheduler.runPending();
    ASSERT_EQ(field.text(), QString()) << "not before the user is done with it";
    QFocusEvent left(QEvent::FocusOut, Qt::TabFocusReason);
    QCoreApplication::sendEvent(&field, &left);
    scheduler.runPending();
    EXPECT_EQ(field.text(), u"02:00:00:00:00:01"_s);
}

TEST_F(AddressFieldTest, ReturnInAnEmptyFieldShowsTheCurrentAddressAgain)
{
    field.selectAll();
    press(field, Qt::Key_Backspace);
    press(field, Qt::Key_Return);
    scheduler.runPending();
    EXPECT_EQ(field.text(), u"02:00:00:00:00:01"_s);
}

TEST_F(AddressFieldTest, WhatIsLeftUnfinishedStays)
{
    field.setCursorPosition(17);
    press(field, Qt::Key_Backspace);
    QFocusEvent left(QEvent::FocusOut, Qt::TabFocusReason);
    QCoreApplication::sendEvent(&field, &left);
    scheduler.runPending();
    EXPECT_EQ(field.text(), u"02:00:00:00:00:0"_s);
}

class AddressFieldDropTest : public AddressFieldTest
{
protected:
    bool enter(const QString &text)
    {
        data.setText(text);
        QDragEnterEvent event({10, 10}, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
        event.ignore();
        QCoreApplication::sendEvent(&view, &event);
        action = event.dropAction();
        return event.isAccepted();
    }

    bool drop(const QString &text)
    {
        data.setText(text);
        QDropEvent event({10, 10}, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
        event.ignore();
        QCoreApplication::sendEvent(&view, &event);
        return event.isAccepted();
    }

    QMimeData data;
    Qt::DropAction action = Qt::IgnoreAction;
    TextFieldBackgroundView view{window};
};

TEST_F(AddressFieldDropTest, AnAddressIsTakenAsACopyAndFillsTheField)
{
    EXPECT_TRUE(enter(u"02:00:5e:10:ab:cd"_s));
    EXPECT_EQ(action, Qt::CopyAction);
    EXPECT_TRUE(drop(u"02:00:5e:10:ab:cd"_s));
    EXPECT_EQ(field.text(), u"02:00:5E:10:AB:CD"_s);
    EXPECT_TRUE(window.state().updateEnabled);
}

TEST_F(AddressFieldDropTest, WhatIsNoAddressIsRefused)
{
    EXPECT_FALSE(enter(u"hello"_s));
    drop(u"hello"_s);
    EXPECT_EQ(field.text(), u"02:00:00:00:00:01"_s);
}

TEST_F(AddressFieldDropTest, ADisabledFieldRefusesEverything)
{
    window.setHelperInstalled(false);
    EXPECT_FALSE(enter(u"02:00:5e:10:ab:cd"_s));
    EXPECT_FALSE(drop(u"02:00:5e:10:ab:cd"_s));
    EXPECT_EQ(field.text(), u"02:00:00:00:00:01"_s);
}

TEST_F(AddressFieldDropTest, OnlyTheViewOfTheAddressFieldTakesDrops)
{
    view.setObjectName(u"anotherView"_s);
    EXPECT_FALSE(enter(u"02:00:5e:10:ab:cd"_s));
    EXPECT_FALSE(drop(u"02:00:5e:10:ab:cd"_s));
}

TEST_F(AddressFieldDropTest, SomethingElseThanTextIsRefused)
{
    data.clear();
    data.setData(u"image/png"_s, QByteArray("x"));
    QDragEnterEvent event({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, {});
    event.ignore();
    QCoreApplication::sendEvent(&view, &event);
    EXPECT_FALSE(event.isAccepted());
}

TEST_F(AddressFieldDropTest, TheFieldItselfLeavesDropsToItsView)
{
    EXPECT_FALSE(field.acceptDrops());
    EXPECT_TRUE(view.acceptDrops());
}

} // namespace
} // namespace quillon::test
