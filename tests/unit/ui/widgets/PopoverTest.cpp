// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/Popover.h"

#include "ui/widgets/RowButton.h"
#include "unit/ui/WidgetFixture.h"

#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QScreen>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

/// Two rows, each of which opens a popover with two buttons.
class PopoverTest : public WidgetFixture
{
protected:
    PopoverTest()
    {
        for (RowButton *row : {anchor, other}) {
            column->addWidget(row);
        }
        auto *inside = new QVBoxLayout(content);
        inside->addWidget(new QLabel(u"Says something"_s));
        inside->addWidget(first);
        inside->addWidget(second);
        QObject::connect(
            anchor, &RowButton::clicked, popover, [this] { popover->toggle(*anchor); });
        show();
    }

    QColor colorAt(const QPoint &position) const
    {
        return popover->grab().toImage().pixelColor(position);
    }

    RowButton *anchor = new RowButton(theme, u"Network"_s);
    RowButton *other = new RowButton(theme, u"Vendor"_s);
    QWidget *content = new QWidget;
    QPushButton *first = new QPushButton(u"First"_s);
    QPushButton *second = new QPushButton(u"Second"_s);
    Popover *popover = new Popover(theme, content, &window);
};

TEST_F(PopoverTest, IsOpenedAndClosedByItsButton)
{
    EXPECT_FALSE(popover->isOpen());
    anchor->click();
    EXPECT_TRUE(popover->isOpen());
    EXPECT_EQ(popover->windowType(), Qt::Popup);
    anchor->click();
    EXPECT_FALSE(popover->isOpen());
}

TEST_F(PopoverTest, SaysOnceThatItOpensAndThatItCloses)
{
    const SignalLog opens(popover, &Popover::aboutToShow);
    const SignalLog closes(popover, &Popover::aboutToClose);
    popover->open(*anchor);
    EXPECT_EQ(opens.size(), 1);
    EXPECT_EQ(closes.size(), 0);
    popover->close();
    popover->close();
    EXPECT_EQ(closes.size(), 1);
}

TEST_F(PopoverTest, ItsButtonShowsThatItIsOpen)
{
    popover->open(*anchor);
    EXPECT_TRUE(anchor->isOpen());
    EXPECT_TRUE(accessible(*anchor).state().expanded);
    popover->close();
    EXPECT_FALSE(anchor->isOpen());
    EXPECT_FALSE(accessible(*anchor).state().expanded);
}

TEST_F(PopoverTest, TakesTheKeyboardAndGivesItBack)
{
    anchor->setFocus();
    popover->open(*anchor);
    settle();
    EXPECT_EQ(QApplication::focusWidget(), first);
    popover->close();
    settle();
    EXPECT_EQ(QApplication::focusWidget(), anchor);
}

TEST_F(PopoverTest, TabStaysInIt)
{
    popover->open(*anchor);
    settle();
    press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), second);
    press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), first);
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(QApplication::focusWidget(), second);
}

TEST_F(PopoverTest, EscapeClosesItAlone)
{
    popover->open(*anchor);
    settle();
    press(Qt::Key_Escape);
    EXPECT_FALSE(popover->isOpen());
    EXPECT_TRUE(window.isVisible());
}

TEST_F(PopoverTest, ANextOneTakesItsPlace)
{
    auto *next = new Popover(theme, new QLabel(u"Another"_s), &window);
    popover->open(*anchor);
    next->open(*other);
    EXPECT_FALSE(popover->isOpen());
    EXPECT_FALSE(anchor->isOpen());
    EXPECT_TRUE(next->isOpen());
    EXPECT_TRUE(other->isOpen());
}

TEST_F(PopoverTest, APressOutsideOnlyClosesIt)
{
    popover->open(*anchor);
    EXPECT_TRUE(popover->testAttribute(Qt::WA_NoMouseReplay));
    click(*popover, QPoint(-50, -50));
    EXPECT_FALSE(popover->isOpen());
}

TEST_F(PopoverTest, WhatIsAroundTheBodyIsOutside)
{
    popover->open(*anchor);
    click(*popover, popover->rect().center());
    EXPECT_TRUE(popover->isOpen());
    click(*popover, popover->rect().bottomRight() - QPoint(1, 1));
    EXPECT_FALSE(popover->isOpen());
}

TEST_F(PopoverTest, ClosesWhenItsButtonGoes)
{
    popover->open(*anchor);
    anchor->hide();
    EXPECT_FALSE(popover->isOpen());
}

TEST_F(PopoverTest, ClosesWithItsWindow)
{
    popover->open(*anchor);
    window.hide();
    EXPECT_FALSE(popover->isOpen());
}

TEST_F(PopoverTest, AButtonThatIsDestroyedTakesNothingAlong)
{
    const SignalLog closes(popover, &Popover::aboutToClose);
    auto passing = std::make_unique<RowButton>(theme, u"Passing"_s, &window);
    passing->show();
    popover->open(*passing);
    passing.reset();
    popover->close();
    EXPECT_FALSE(popover->isVisible());
    popover->open(*anchor);
    EXPECT_TRUE(popover->isOpen());
}

TEST_F(PopoverTest, IsAsWideAsItIsTold)
{
    popover->open(*anchor);
    const int around = popover->width() - Popover::usualWidth;
    EXPECT_EQ(around, 2 * (PopoverPlacement::arrowHeight + 1));
    popover->close();
    popover->setBodyWidth(360);
    popover->open(*anchor);
    EXPECT_EQ(popover->width(), 360 + around);
}

TEST_F(PopoverTest, GrowsWithItsContentWhileItIsOpen)
{
    popover->open(*anchor);
    settle();
    const int before = popover->height();
    first->setMinimumHeight(200);
    settle();
    EXPECT_GT(popover->height(), before + 100);
}

TEST_F(PopoverTest, HasAnArrowToItsButton)
{
    popover->open(*anchor);
    ASSERT_TRUE(popover->hasArrow());
    const int middle = popover->mapFromGlobal(anchor->mapToGlobal(anchor->rect().center())).y();
    EXPECT_EQ(colorAt({PopoverPlacement::arrowHeight, middle}), theme.colors().control);
    EXPECT_EQ(colorAt({2, middle + 30}).alpha(), 0);
}

TEST_F(PopoverTest, HasNeitherArrowNorCornersWithoutACompositor)
{
    compositing.active = false;
    popover->open(*anchor);
    EXPECT_FALSE(popover->hasArrow());
    EXPECT_EQ(popover->width(), Popover::usualWidth);
    EXPECT_EQ(colorAt({0, 0}), theme.colors().popoverBorder);
    EXPECT_EQ(colorAt({2, 2}), theme.colors().control);
    popover->close();
    compositing.active = true;
    popover->open(*anchor);
    EXPECT_TRUE(popover->hasArrow());
}

TEST_F(PopoverTest, StepsAsideForADrag)
{
    const SignalLog closes(popover, &Popover::aboutToClose);
    popover->open(*anchor);
    popover->stepAside();
    EXPECT_FALSE(anchor->isOpen());
    EXPECT_FALSE(popover->mask().intersects(popover->rect()));
    EXPECT_TRUE(popover->isVisible()) << "the window where a drag began must live";
    EXPECT_EQ(colorAt(popover->rect().center()).alpha(), 0);
    popover->close();
    EXPECT_EQ(closes.size(), 1);
    popover->open(*anchor);
    EXPECT_TRUE(popover->mask().isEmpty());
    EXPECT_EQ(colorAt(popover->rect().center()).alpha(), 255);
}

TEST_F(PopoverTest, FollowsTheDirectionOfItsWindow)
{
    window.setLayoutDirection(Qt::RightToLeft);
    popover->open(*anchor);
    EXPECT_EQ(popover->layoutDirection(), Qt::RightToLeft);
    EXPECT_TRUE(content->isRightToLeft());
}

TEST_F(PopoverTest, HasTheNameOfItsButton)
{
    anchor->setValue(u"Harbor Café"_s);
    popover->open(*anchor);
    EXPECT_EQ(accessible(*popover).text(QAccessible::Name), u"Network, Harbor Café"_s);
}

TEST_F(PopoverTest, IsNeverLargerThanTheScreen)
{
    const QRect screen = window.screen()->availableGeometry();
    auto *tall = new QLabel(u"Tall"_s);
    tall->setMinimumHeight(2 * screen.height());
    content->layout()->addWidget(tall);
    second->setMinimumWidth(2 * screen.width());
    popover->open(*anchor);
    settle();
    const int margin = PopoverPlacement::arrowHeight + 1;
    const QRect body = popover->geometry().adjusted(margin, margin, -margin, -margin);
    EXPECT_TRUE(screen.contains(body));
    EXPECT_GE(first->height(), first->minimumSizeHint().height()) << "the tallest part gives way";
}

} // namespace
} // namespace quillon::test
