// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/ContentScrollArea.h"

#include "unit/ui/WidgetFixture.h"

#include <QLabel>
#include <QScrollBar>

#include <memory>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class ContentScrollAreaTest : public WidgetFixture
{
protected:
    ContentScrollAreaTest()
    {
        rows = new QVBoxLayout(content);
        rows->setContentsMargins(0, 0, 0, 0);
        rows->setSpacing(0);
        setRows(2);
        area = new ContentScrollArea(content, 200);
        column->addWidget(area);
        column->addStretch();
        show();
    }
    void setRows(int count) const
    {
        while (rows->count() > count) {
            const std::unique_ptr<QLayoutItem> item(rows->takeAt(0));
            delete item->widget();
        }
        while (rows->count() < count) {
            auto *row = new QWidget;
            row->setFixedHeight(30);
            rows->addWidget(row);
        }
    }

    QWidget *content = new QWidget;
    QVBoxLayout *rows = nullptr;
    ContentScrollArea *area = nullptr;
};

TEST_F(ContentScrollAreaTest, IsAsTallAsItsContentUpToAHeight)
{
    EXPECT_EQ(area->height(), 60);
    setRows(5);
    settle();
    EXPECT_EQ(area->height(), 150);
    setRows(50);
    settle();
    EXPECT_EQ(area->height(), 200);
    EXPECT_EQ(area->verticalScrollBar()->maximum(), 50 * 30 - 200);
    setRows(1);
    settle();
    EXPECT_EQ(area->height(), 30);
}

TEST_F(ContentScrollAreaTest, ScrollsWhereItGetsLess)
{
    setRows(6);
    window.setFixedHeight(120);
    settle();
    EXPECT_LT(area->height(), 120);
    EXPECT_EQ(area->verticalScrollBar()->maximum(), 6 * 30 - area->height());
}

TEST_F(ContentScrollAreaTest, BeginsAtTheTopAndKnowsWhatHappenedWhileItWasHidden)
{
    setRows(20);
    settle();
    area->verticalScrollBar()->setValue(100);
    window.hide();
    setRows(40);
    window.show();
    settle();
    EXPECT_EQ(area->verticalScrollBar()->value(), 0);
    EXPECT_EQ(area->verticalScrollBar()->maximum(), 40 * 30 - 200);
}

} // namespace
} // namespace quillon::test
