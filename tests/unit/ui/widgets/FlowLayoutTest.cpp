// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/FlowLayout.h"

#include "unit/ui/WidgetFixture.h"

namespace quillon::test {

namespace {

class FlowLayoutTest : public ::testing::Test
{
protected:
    FlowLayoutTest()
    {
        for (QWidget *&item : items) {
            item = new QWidget;
            item->setFixedSize(100, 20);
            flow->addWidget(item);
        }
    }
    void makeWide(int width)
    {
        parent.resize(width, 200);
        flow->setGeometry(parent.rect());
    }

    QWidget parent;
    FlowLayout *flow = new FlowLayout(&parent, 10);
    QWidget *items[3] = {};
};

TEST_F(FlowLayoutTest, FillsALineBeforeTheNext)
{
    makeWide(230);
    EXPECT_EQ(items[0]->pos(), QPoint(0, 0));
    EXPECT_EQ(items[1]->pos(), QPoint(110, 0));
    EXPECT_EQ(items[2]->pos(), QPoint(0, 30));
    EXPECT_EQ(flow->heightForWidth(230), 50);
    EXPECT_EQ(flow->heightForWidth(320), 20);
    EXPECT_EQ(flow->sizeHint(), QSize(320, 20));
}

TEST_F(FlowLayoutTest, BeginsOnTheRightInAMirroredWindow)
{
    parent.setLayoutDirection(Qt::RightToLeft);
    makeWide(230);
    EXPECT_EQ(items[0]->pos(), QPoint(130, 0));
    EXPECT_EQ(items[2]->pos(), QPoint(130, 30));
}

TEST_F(FlowLayoutTest, CutsWhatIsWiderThanALine)
{
    items[0]->setMinimumSize(0, 20);
    items[0]->setMaximumSize(500, 20);
    makeWide(80);
    EXPECT_LE(items[0]->width(), 80);
    EXPECT_EQ(items[1]->y(), 30);
}

TEST_F(FlowLayoutTest, GivesItsItemsBack)
{
    EXPECT_EQ(flow->count(), 3);
    delete flow->takeAt(0);
    EXPECT_EQ(flow->count(), 2);
    EXPECT_EQ(flow->takeAt(7), nullptr);
    EXPECT_EQ(flow->itemAt(7), nullptr);
}

} // namespace
} // namespace quillon::test
