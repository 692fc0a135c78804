// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/LimitedScrollArea.h"

#include "ui/widgets/TokenField.h"
#include "unit/ui/WidgetFixture.h"

#include <QScrollBar>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class LimitedScrollAreaTest : public WidgetFixture
{
protected:
    LimitedScrollAreaTest()
    {
        column->addWidget(area);
        column->addStretch();
        fill(2);
        show();
    }

    void fill(int count)
    {
        QList<TokenField::Entry> entries;
        for (int number = 0; number < count; ++number) {
            const QString name = u"Address number %1"_s.arg(number);
            entries.append({name, name});
        }
        tokens->setEntries(entries);
        settle();
    }
    bool isInSight(const QWidget &token) const
    {
        const QRect place(token.mapTo(area->viewport(), QPoint(0, 0)), token.size());
        return area->viewport()->rect().contains(place);
    }

    static constexpr int tallest = 150;
    TokenField *tokens = new TokenField;
    LimitedScrollArea *area = new LimitedScrollArea(tokens, tallest);
};

TEST_F(LimitedScrollAreaTest, IsAsHighAsWhatIsInIt)
{
    EXPECT_EQ(area->height(), tokens->heightForWidth(area->width()));
    EXPECT_EQ(area->verticalScrollBar()->maximum(), 0);
    fill(3);
    EXPECT_EQ(area->height(), tokens->heightForWidth(area->width()));
}

TEST_F(LimitedScrollAreaTest, ScrollsWhatIsMoreThanItsLimit)
{
    fill(60);
    EXPECT_EQ(area->height(), tallest);
    EXPECT_GT(area->verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0);
    fill(2);
    EXPECT_LT(area->height(), tallest);
}

TEST_F(LimitedScrollAreaTest, WhatHasTheKeyboardComesIntoSight)
{
    fill(60);
    EXPECT_FALSE(isInSight(*tokens->token(59)));
    tokens->token(59)->setFocus(Qt::TabFocusReason);
    settle();
    EXPECT_TRUE(isInSight(*tokens->token(59)));
}

TEST_F(LimitedScrollAreaTest, BeginsAtTheTopEachTimeThatItIsShown)
{
    fill(60);
    area->verticalScrollBar()->setValue(area->verticalScrollBar()->maximum());
    window.hide();
    window.show();
    settle();
    EXPECT_EQ(area->verticalScrollBar()->value(), 0);
}

} // namespace
} // namespace quillon::test
