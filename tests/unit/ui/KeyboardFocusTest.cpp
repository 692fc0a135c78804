// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/features/Features.h"
#include "face/FaceProgram.h"
#include "ui/widgets/BusyButton.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Where the keyboard is in the window while things happen by themselves.
class KeyboardFocusTest : public ::testing::Test
{
protected:
    KeyboardFocusTest() { program.start(); }

    static BusyButton &button(const QString &name) { return FaceProgram::part<BusyButton>(name); }
    static void press(QWidget &widget, int key)
    {
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, Qt::NoModifier);
            QCoreApplication::sendEvent(&widget, &event);
        }
    }
    /// As a rule does it.
    void changeFromElsewhere()
    {
        program.machine.helper.changeTakes = 3s;
        program.features().devices.addressChanger.updateMacAddressWithAddress(
            FaceProgram::radio, u"02:00:5E:10:AB:CD"_s);
        program.machine.scheduler.advance(1s);
        program.settle();
    }
    void letItEnd()
    {
        program.machine.scheduler.advance(10s);
        program.settle();
    }
    qsizetype changes() const { return program.machine.helper.changes().size(); }

    FaceProgram program{{.scheme = ColorScheme::Light, .isStill = true}};
};

TEST_F(KeyboardFocusTest, StaysOnAButtonThatAChangeByARuleMakesUnusable)
{
    BusyButton &randomize = button(u"randomizeButton"_s);
    randomize.setFocus(Qt::TabFocusReason);
    changeFromElsewhere();
    ASSERT_TRUE(program.features().mainWindow.state().changing);
    EXPECT_TRUE(randomize.hasFocus());
    EXPECT_FALSE(randomize.isUsable());
    press(randomize, Qt::Key_Space);
    letItEnd();
    EXPECT_EQ(changes(), 1) << "the key did nothing";
    EXPECT_TRUE(randomize.hasFocus());
    EXPECT_TRUE(randomize.isUsable());
    press(randomize, Qt::Key_Space);
    letItEnd();
    EXPECT_EQ(changes(), 2);
}

TEST_F(KeyboardFocusTest, StaysInTheFieldWhileTheAddressIsChanged)
{
    auto &field = FaceProgram::part<QLineEdit>(u"hexField"_s);
    ASSERT_TRUE(field.hasFocus());
    changeFromElsewhere();
    EXPECT_TRUE(field.hasFocus());
    letItEnd();
    EXPECT_TRUE(field.hasFocus());
}

TEST_F(KeyboardFocusTest, StaysOnApplyWhenThereIsNothingToApplyAnyMore)
{
    program.features().mainWindow.editField(u"02:00:5E:10:AB:CD"_s);
    BusyButton &apply = button(u"updateButton"_s);
    apply.setFocus(Qt::TabFocusReason);
    press(apply, Qt::Key_Space);
    letItEnd();
    ASSERT_FALSE(program.features().mainWindow.state().updateEnabled);
    EXPECT_TRUE(apply.hasFocus()) << "not on Randomize: pressed once more it would change again";
    press(apply, Qt::Key_Space);
    letItEnd();
    EXPECT_EQ(changes(), 1);
}

TEST_F(KeyboardFocusTest, GoesFromTheFieldToSomethingThatCanBeUsedWithoutTheHelper)
{
    ASSERT_TRUE(FaceProgram::part<QLineEdit>(u"hexField"_s).hasFocus());
    program.machine.helper.installed = false;
    program.features().helper.updateHelperInstalledStatus();
    program.settle();
    EXPECT_FALSE(button(u"randomizeButton"_s).hasFocus());
    EXPECT_FALSE(button(u"randomizeButton"_s).isEnabled());
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    EXPECT_TRUE(QApplication::focusWidget()->isEnabled());
}

TEST_F(KeyboardFocusTest, IsNotTakenFromARestoreButtonByAChange)
{
    program.features().mainWindow.randomizeAddress();
    letItEnd();
    program.features().mainWindow.toggleHardwarePopover();
    program.settle();
    BusyButton &restore = button(u"restoreButton"_s);
    ASSERT_TRUE(restore.hasFocus());
    changeFromElsewhere();
    EXPECT_TRUE(restore.hasFocus());
    letItEnd();
    EXPECT_TRUE(restore.hasFocus());
    EXPECT_TRUE(restore.isUsable());
}

} // namespace
} // namespace quillon::test
