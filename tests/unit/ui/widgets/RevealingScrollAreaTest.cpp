// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/RevealingScrollArea.h"

#include "unit/ui/WidgetFixture.h"

#include <QPushButton>
#include <QScrollBar>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

/// Fifty buttons in a window with room for a few.
class RevealingScrollAreaTest : public WidgetFixture
{
protected:
    RevealingScrollAreaTest()
    {
        auto *content = new QWidget;
        auto *lines = new QVBoxLayout(content);
        lines->setContentsMargins(4, 4, 4, 4);
        for (int index = 0; index < 50; ++index) {
            buttons.append(new QPushButton(QString::number(index)));
            lines->addWidget(buttons.back());
        }
        area = new RevealingScrollArea(content);
        column->addWidget(area);
        show();
    }
    bool isInSight(const QWidget &widget) const
    {
        const QRect shown(widget.mapTo(area->viewport(), QPoint(0, 0)), widget.size());
        return area->viewport()->rect().contains(shown);
    }

    QList<QPushButton *> buttons;
    RevealingScrollArea *area = nullptr;
};

TEST_F(RevealingScrollAreaTest, ShowsWhatGetsTheKeyboard)
{
    ASSERT_FALSE(isInSight(*buttons[30]));
    buttons[30]->setFocus(Qt::OtherFocusReason);
    EXPECT_TRUE(isInSight(*buttons[30]));
    buttons[0]->setFocus(Qt::OtherFocusReason);
    EXPECT_TRUE(isInSight(*buttons[0]));
    EXPECT_EQ(area->verticalScrollBar()->value(), 0)
        << "with what is above it, and the ring around it";
}

TEST_F(RevealingScrollAreaTest, ShowsTheBeginningOfWhatIsHigherThanItself)
{
    buttons[30]->setFixedHeight(2 * area->viewport()->height());
    settle();
    buttons[30]->setFocus(Qt::OtherFocusReason);
    EXPECT_EQ(
        buttons[30]->mapTo(area->viewport(), QPoint(0, 0)).y(), RevealingScrollArea::ringRoom);
}

TEST_F(RevealingScrollAreaTest, MayGoWithTheKeyboardInIt)
{
    buttons[30]->setFocus();
    delete area;
    EXPECT_TRUE(window.isVisible());
}

} // namespace
} // namespace quillon::test
