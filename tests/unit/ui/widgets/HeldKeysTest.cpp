// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/HeldKeys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class HeldKeysTest : public testing::Test
{
protected:
    HeldKeysTest()
    {
        button->setAutoDefault(true);
        auto *column = new QVBoxLayout(&window);
        column->addWidget(button);
        column->addWidget(field);
        window.show();
        qApp->installEventFilter(&heldKeys);
        QObject::connect(button, &QPushButton::clicked, [this] { ++pressed; });
        QObject::connect(field, &QLineEdit::returnPressed, [this] { ++pressed; });
    }

    /// As a desktop tells of a key that is down for some time.
    static void hold(QWidget &widget, int key, const QString &text)
    {
        for (int time = 0; time < 5; ++time) {
            QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier, text, time > 0);
            QCoreApplication::sendEvent(&widget, &down);
            QKeyEvent up(QEvent::KeyRelease, key, Qt::NoModifier, text, time < 4);
            QCoreApplication::sendEvent(&widget, &up);
        }
    }

    HeldKeys heldKeys;
    QWidget window;
    QPushButton *button = new QPushButton;
    QLineEdit *field = new QLineEdit;
    int pressed = 0;
};

TEST_F(HeldKeysTest, PressAButtonOnce)
{
    hold(*button, Qt::Key_Return, u"\r"_s);
    EXPECT_EQ(pressed, 1);
    hold(*button, Qt::Key_Enter, u"\r"_s);
    EXPECT_EQ(pressed, 2);
    hold(*button, Qt::Key_Space, u" "_s);
    EXPECT_EQ(pressed, 3);
}

TEST_F(HeldKeysTest, EndAFieldOnceAndTypeOn)
{
    hold(*field, Qt::Key_Return, u"\r"_s);
    EXPECT_EQ(pressed, 1);
    hold(*field, Qt::Key_A, u"a"_s);
    hold(*field, Qt::Key_Space, u" "_s);
    EXPECT_EQ(field->text(), u"aaaaa     "_s);
}

TEST_F(HeldKeysTest, PressNothingThatGetsTheKeyboardMeanwhile)
{
    auto *opened = new QPushButton(&window);
    opened->setAutoDefault(true);
    QObject::connect(opened, &QPushButton::clicked, [this] { pressed += 100; });
    QKeyEvent down(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s);
    QCoreApplication::sendEvent(button, &down);
    QKeyEvent again(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s, true);
    QCoreApplication::sendEvent(opened, &again);
    EXPECT_EQ(pressed, 1);
}

} // namespace
} // namespace quillon::test
