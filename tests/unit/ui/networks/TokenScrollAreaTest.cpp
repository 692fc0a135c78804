// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/networks/TokenScrollArea.h"

#include "presentation/networks/TokenFieldLayout.h"
#include "ui/widgets/TokenField.h"
#include "unit/ui/WidgetFixture.h"

#include <QScrollBar>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class TokenScrollAreaTest : public WidgetFixture
{
protected:
    TokenScrollAreaTest()
    {
        column->addWidget(area);
        column->addStretch();
        setTokens(3);
        show();
    }
    void setTokens(int count)
    {
        QList<TokenField::Entry> entries;
        for (int index = 0; index < count; ++index) {
            entries.append({u"Address %1"_s.arg(index), u"02:00:00:00:00:%1"_s.arg(index)});
        }
        tokens->setEntries(entries);
        settle();
    }
    bool isInSight(int token) const
    {
        const QWidget &widget = *tokens->token(token);
        const QRect shown(widget.mapTo(area->viewport(), QPoint(0, 0)), widget.size());
        return area->viewport()->rect().contains(shown);
    }

    TokenField *tokens = new TokenField;
    TokenScrollArea *area = new TokenScrollArea(tokens);
};

TEST_F(TokenScrollAreaTest, IsAsTallAsTheLayoutOfItsTokensSays)
{
    for (const int count : {1, 3, 8}) {
        setTokens(count);
        const int cell = tokens->heightForWidth(tokens->width());
        const auto layout =
            fixScrollForTokenField(QRectF(0, 0, tokens->width(), cell), cell, count);
        EXPECT_EQ(area->widget()->height(),
            qRound(*layout.documentHeight) + RevealingScrollArea::ringRoom);
        EXPECT_EQ(area->height(), area->widget()->height()) << count;
        EXPECT_TRUE(isInSight(count - 1));
    }
}

TEST_F(TokenScrollAreaTest, ScrollsManyWithoutScrollBars)
{
    setTokens(60);
    EXPECT_LT(area->height(), 300);
    EXPECT_GT(area->verticalScrollBar()->maximum(), 0);
    EXPECT_FALSE(area->verticalScrollBar()->isVisible());
    EXPECT_FALSE(area->horizontalScrollBar()->isVisible());
    EXPECT_GE(tokens->height(), tokens->heightForWidth(tokens->width()));
}

TEST_F(TokenScrollAreaTest, TheTokenWithTheKeyboardIsInSight)
{
    setTokens(60);
    tokens->token(0)->setFocus();
    press(Qt::Key_End);
    EXPECT_TRUE(tokens->token(59)->hasFocus());
    EXPECT_TRUE(isInSight(59));
    press(Qt::Key_Home);
    EXPECT_TRUE(isInSight(0));
    EXPECT_EQ(area->verticalScrollBar()->value(), 0);
}

TEST_F(TokenScrollAreaTest, SaysThatThereAreNone)
{
    tokens->setEmptyText(u"Add the current address with the heart."_s);
    setTokens(0);
    EXPECT_GE(area->height(), tokens->heightForWidth(tokens->width()));
    EXPECT_LT(area->height(), 80);
}

} // namespace
} // namespace quillon::test
