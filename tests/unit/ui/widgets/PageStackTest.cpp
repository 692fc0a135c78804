// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/PageStack.h"

#include "unit/ui/WidgetFixture.h"

#include <QLabel>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class PageStackTest : public WidgetFixture
{
protected:
    PageStackTest()
    {
        tall->setMinimumSize(300, 400);
        sentence->setWordWrap(true);
        stack->addWidget(tall);
        stack->addWidget(sentence);
        column->addWidget(stack);
    }

    PageStack *stack = new PageStack;
    QWidget *tall = new QWidget;
    QLabel *sentence = new QLabel(u"one two three four five six seven eight nine ten"_s);
};

TEST_F(PageStackTest, TakesTheRoomOfThePageThatIsShown)
{
    show();
    EXPECT_FALSE(stack->layout()->hasHeightForWidth());
    EXPECT_EQ(stack->minimumSizeHint(), QSize(300, 400));
    stack->setCurrentWidget(sentence);
    settle();
    EXPECT_EQ(stack->currentWidget(), sentence);
    EXPECT_TRUE(sentence->isVisible());
    EXPECT_FALSE(tall->isVisible());
    EXPECT_EQ(stack->minimumSizeHint(), sentence->minimumSizeHint());
    ASSERT_TRUE(stack->layout()->hasHeightForWidth());
    // As the layout around it asks.
    EXPECT_EQ(column->itemAt(0)->heightForWidth(120), sentence->heightForWidth(120));
    EXPECT_LT(column->itemAt(0)->heightForWidth(120), 400);
}

} // namespace
} // namespace quillon::test
