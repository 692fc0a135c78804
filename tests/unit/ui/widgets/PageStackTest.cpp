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
    EXPECT_FALSE(stack->hasHeightForWidth());
    stack->setCurrentWidget(sentence);
    EXPECT_EQ(stack->minimumSizeHint(), sentence->minimumSizeHint());
    EXPECT_EQ(stack->sizeHint(), sentence->sizeHint());
    ASSERT_TRUE(stack->hasHeightForWidth());
    EXPECT_EQ(stack->heightForWidth(120), sentence->heightForWidth(120));
    EXPECT_LT(stack->heightForWidth(120), 400);
}

TEST_F(PageStackTest, WithoutAPageTakesNone)
{
    const PageStack empty;
    EXPECT_FALSE(empty.hasHeightForWidth());
    EXPECT_FALSE(empty.minimumSizeHint().isValid());
}

} // namespace
} // namespace quillon::test
