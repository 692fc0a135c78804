// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/theme/FocusRing.h"

#include "unit/ui/WidgetFixture.h"

#include <QImage>
#include <QLineEdit>
#include <QPushButton>

namespace quillon::test {

namespace {

class FocusRingTest : public WidgetFixture
{
protected:
    FocusRingTest()
    {
        column->addWidget(first);
        column->addWidget(button);
        column->addWidget(field);
        show();
        // Neither is what had the keyboard when the window was shown.
        first->setFocus(Qt::MouseFocusReason);
    }

    QPushButton *first = new QPushButton;
    QPushButton *button = new QPushButton;
    QLineEdit *field = new QLineEdit;
    /// Another one than the application's, to be asked.
    FocusRing ring{theme};
};

TEST_F(FocusRingTest, ShowsWhereTheKeyboardWentByItself)
{
    field->setFocus(Qt::OtherFocusReason);
    button->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(ring.widget(), button);
    field->setFocus(Qt::BacktabFocusReason);
    EXPECT_EQ(ring.widget(), field);
    button->setFocus(Qt::ShortcutFocusReason);
    EXPECT_EQ(ring.widget(), button);
}

TEST_F(FocusRingTest, IsNotAroundWhatWasClicked)
{
    button->setFocus(Qt::TabFocusReason);
    field->setFocus(Qt::TabFocusReason);
    button->setFocus(Qt::MouseFocusReason);
    EXPECT_EQ(ring.widget(), nullptr);
}

TEST_F(FocusRingTest, IsAlwaysAroundFields)
{
    field->setFocus(Qt::MouseFocusReason);
    EXPECT_EQ(ring.widget(), field);
}

TEST_F(FocusRingTest, ComesBackWithAPopupClosedByTheKeyboard)
{
    field->setFocus(Qt::MouseFocusReason);
    press(Qt::Key_Down);
    button->setFocus(Qt::PopupFocusReason);
    EXPECT_EQ(ring.widget(), button);
    field->setFocus();
    click(*field);
    button->setFocus(Qt::PopupFocusReason);
    EXPECT_EQ(ring.widget(), nullptr);
}

TEST_F(FocusRingTest, IsTwoPixelsWideTwoPixelsOutside)
{
    button->setFocus(Qt::TabFocusReason);
    settle();
    const QRect around = button->geometry();
    const QImage picture = window.grab().toImage();
    const int middle = around.center().x();
    EXPECT_EQ(picture.pixelColor(middle, around.top() - 4), theme.colors().accent);
    EXPECT_EQ(picture.pixelColor(middle, around.top() - 3), theme.colors().accent);
    EXPECT_EQ(picture.pixelColor(middle, around.top() - 2), theme.colors().window);
    EXPECT_EQ(picture.pixelColor(middle, around.top() - 1), theme.colors().window);
}

TEST_F(FocusRingTest, FollowsWhatItIsAround)
{
    button->setFocus(Qt::TabFocusReason);
    auto *above = new QPushButton;
    column->insertWidget(0, above);
    settle();
    const QImage picture = window.grab().toImage();
    EXPECT_EQ(picture.pixelColor(button->geometry().center().x(), button->y() - 4),
        theme.colors().accent);
}

TEST_F(FocusRingTest, OutlivesItsWindow)
{
    auto passing = std::make_unique<QWidget>();
    auto *inside = new QPushButton(passing.get());
    passing->show();
    passing->activateWindow();
    settle();
    inside->setFocus(Qt::TabFocusReason);
    passing.reset();
    window.activateWindow();
    settle();
    field->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(ring.widget(), field);
}

} // namespace
} // namespace quillon::test
