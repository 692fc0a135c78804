// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/DetailsArea.h"

#include "ui/theme/Theme.h"
#include "ui/window/FactsCard.h"
#include "ui/window/MainWindow.h"
#include "unit/ui/WindowFixture.h"

#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

/// The main window with a section under its details.
class DetailsAreaTest : public WindowFixture
{
protected:
    DetailsAreaTest()
    {
        theme.apply();
        view = std::make_unique<MainWindow>(
            MainWindow::Models{window, readMe, presence}, theme, taskBar);
        presence.openWindow();
        area = view->findChild<DetailsArea *>();
        for (int row = 0; row < 6; ++row) {
            auto *fact = new QLabel(u"fact"_s);
            fact->setFixedHeight(Theme::rowHeight);
            view->facts().add(fact);
        }
        section->setFixedHeight(20);
        area->add(section);
        settle();
    }

    /// What grows makes what it is in grow, one after the other.
    static void settle()
    {
        for (int round = 0; round < 5; ++round) {
            QCoreApplication::processEvents();
        }
    }
    QList<QWidget *> addRows(int count)
    {
        QList<QWidget *> rows;
        for (int row = 0; row < count; ++row) {
            auto *fact = new QPushButton(u"fact"_s);
            fact->setFixedHeight(Theme::rowHeight);
            view->facts().add(fact);
            rows.append(fact);
        }
        return rows;
    }
    void makeSection(int height)
    {
        section->setFixedHeight(height);
        settle();
    }
    /// None is cut by the upper edge.
    void expectWholeRowAtTheTop(const QList<QWidget *> &rows, int step) const
    {
        for (const QWidget *row : rows) {
            const int top = row->mapTo(area->viewport(), QPoint(0, 0)).y();
            // The card's edge, and the line between two rows, may be.
            EXPECT_TRUE(row->isHidden() || top >= 0 || top + row->height() <= 6)
                << step << ": from " << top << " to " << top + row->height();
        }
    }
    bool scrolls() const { return area->verticalScrollBar()->maximum() > 0; }

    Theme theme;
    FakeTaskBar taskBar;
    std::unique_ptr<MainWindow> view;
    DetailsArea *area = nullptr;
    QLabel *section = new QLabel(u"last"_s);
};

TEST_F(DetailsAreaTest, TheWindowGrowsAndShrinksWithItsSections)
{
    const int before = view->height();
    makeSection(120);
    EXPECT_EQ(view->height(), before + 100);
    EXPECT_FALSE(scrolls());
    makeSection(20);
    EXPECT_EQ(view->height(), before);
}

TEST_F(DetailsAreaTest, OnASmallScreenItScrollsAndTheWindowStaysOnTheScreen)
{
    makeSection(3000);
    EXPECT_LE(view->frameGeometry().height(), view->screen()->availableGeometry().height());
    EXPECT_TRUE(scrolls());
    EXPECT_EQ(view->width(), Theme::windowWidth);
    EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0);
    makeSection(20);
    EXPECT_FALSE(scrolls());
}

TEST_F(DetailsAreaTest, TheHintTakesItsRoomFromTheDetails)
{
    addRows(40);
    settle();
    const int before = area->height();
    readMe.setHelperInstalled(false);
    settle();
    EXPECT_LT(area->height(), before);
    EXPECT_LE(view->height(), view->screen()->availableGeometry().height());
    readMe.setHelperInstalled(true);
    settle();
    EXPECT_EQ(area->height(), before);
}

TEST_F(DetailsAreaTest, AFewRowsStayInSight)
{
    area->setTallest(1);
    settle();
    EXPECT_GE(area->sizeHint().height(), 2 * Theme::rowHeight);
}

TEST_F(DetailsAreaTest, ShowsWholeRowsWhereverItScrolls)
{
    const QList<QWidget *> rows = addRows(40);
    makeSection(50);
    ASSERT_TRUE(scrolls());
    QScrollBar &bar = *area->verticalScrollBar();
    for (int value = 0; value <= bar.maximum(); value += 7) {
        bar.setValue(value);
        settle();
        for (const QWidget *row : rows) {
            const int top = row->mapTo(area->viewport(), QPoint(0, 0)).y();
            const int bottom = top + row->height();
            const int height = area->viewport()->height();
            // The card's edge, and the line between two rows, may be.
            const bool isOut = bottom <= 6 || top >= height - 6;
            EXPECT_TRUE(isOut || (top >= 0 && bottom <= height))
                << value << ": from " << top << " to " << bottom << " of " << height;
        }
    }
    bar.setValue(0);
    rows.last()->setFocus(Qt::TabFocusReason);
    settle();
    const int last = rows.last()->mapTo(area->viewport(), QPoint(0, 0)).y();
    EXPECT_GE(last, 0);
    EXPECT_LE(last + rows.last()->height(), area->viewport()->height());
    view->facts().findChild<QLabel *>()->setFocusPolicy(Qt::StrongFocus);
    view->facts().findChild<QLabel *>()->setFocus(Qt::BacktabFocusReason);
    EXPECT_EQ(bar.value(), 0);
}

TEST_F(DetailsAreaTest, WholeRowsBeginAtItsUpperEdgeAlsoWhereTheyDifferInHeight)
{
    QList<QWidget *> rows = addRows(40);
    for (qsizetype row = 0; row < rows.size(); ++row) {
        rows.at(row)->setFixedHeight(Theme::rowHeight + static_cast<int>(row * 13 % 41));
    }
    makeSection(70);
    ASSERT_TRUE(scrolls());
    QScrollBar &bar = *area->verticalScrollBar();
    for (int value = 0; value <= bar.maximum(); value += 5) {
        bar.setValue(value);
        settle();
        expectWholeRowAtTheTop(rows, value);
    }
    for (int row = 0; row < 60; ++row) {
        bar.triggerAction(QAbstractSlider::SliderPageStepSub);
        settle();
        expectWholeRowAtTheTop(rows, row);
    }
    EXPECT_EQ(bar.value(), 0);
}

TEST_F(DetailsAreaTest, ARowThatComesOrGrowsAboveLeavesAWholeOneAtTheTop)
{
    QList<QWidget *> rows = addRows(40);
    rows.at(3)->hide();
    makeSection(70);
    QScrollBar &bar = *area->verticalScrollBar();
    bar.setValue(bar.maximum() / 2);
    settle();
    rows.at(3)->setFixedHeight(Theme::rowHeight + 17);
    rows.at(3)->show();
    settle();
    expectWholeRowAtTheTop(rows, 1);
    rows.at(1)->setFixedHeight(Theme::rowHeight + 9);
    settle();
    expectWholeRowAtTheTop(rows, 2);
    rows.at(3)->hide();
    settle();
    expectWholeRowAtTheTop(rows, 3);
}

TEST_F(DetailsAreaTest, TakesNoKeyboardForItself)
{
    EXPECT_EQ(area->focusPolicy(), Qt::NoFocus);
    EXPECT_TRUE(area->isAncestorOf(&view->facts()));
}

} // namespace
} // namespace quillon::test
