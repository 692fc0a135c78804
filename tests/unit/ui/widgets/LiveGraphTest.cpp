// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/LiveGraph.h"

#include "unit/ui/WidgetFixture.h"

#include <QImage>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using namespace std::chrono_literals;

class LiveGraphTest : public WidgetFixture
{
protected:
    LiveGraphTest()
    {
        column->addWidget(graph);
        show();
    }

    QString value() { return accessible(*graph).text(QAccessible::Value); }
    /// The columns of the plot in which the signal's color is, as shares of its width.
    QList<int> signalColumns() const
    {
        const QImage picture = graph->grab().toImage();
        QList<int> columns;
        const int plotEnd = picture.height() - graph->fontMetrics().height() - 6;
        for (int x = 0; x < picture.width(); ++x) {
            for (int y = 0; y < plotEnd; ++y) {
                // Nothing else is blue, and its edges are soft.
                const QColor color = picture.pixelColor(x, y);
                if (color.blue() - color.red() > 100) {
                    columns.append(x);
                    break;
                }
            }
        }
        return columns;
    }

    /// How high the first sign of the uppermost number beside the plot is, in pixels.
    int heightOfFirstSign() const
    {
        const int height = graph->fontMetrics().height();
        const int width = graph->fontMetrics().horizontalAdvance(u"−30 dBm"_s) + 2;
        const int start = graph->isRightToLeft() ? graph->width() - width : 0;
        const QImage picture = graph->grab({start, 0, width, 2 * height}).toImage();
        const QRgb ground = picture.pixel(0, 0);
        for (int x = 0; x < picture.width(); ++x) {
            int inked = 0;
            for (int y = 0; y < picture.height(); ++y) {
                inked += picture.pixel(x, y) != ground ? 1 : 0;
            }
            if (inked > 0) {
                return inked;
            }
        }
        return 0;
    }

    LiveGraph *graph = new LiveGraph(theme);
};

TEST_F(LiveGraphTest, MirroredItsUnitsStillFollowTheirNumbers)
{
    // It is a minus, not a letter.
    constexpr int heightOfMinus = 3;
    EXPECT_LE(heightOfFirstSign(), heightOfMinus);
    QApplication::setLayoutDirection(Qt::RightToLeft);
    settle();
    EXPECT_GT(heightOfFirstSign(), 0);
    EXPECT_LE(heightOfFirstSign(), heightOfMinus);
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

TEST_F(LiveGraphTest, IsAsWideAsItsLegend)
{
    const int before = graph->minimumSizeHint().width();
    QFont large = graph->font();
    large.setPointSizeF(2 * large.pointSizeF());
    graph->setFont(large);
    EXPECT_GT(graph->minimumSizeHint().width(), before);
    const QFontMetrics metrics(large);
    EXPECT_GT(graph->minimumSizeHint().width(),
        metrics.horizontalAdvance(u"Signal"_s + u"Noise"_s + u"5 minutes"_s));
}

TEST_F(LiveGraphTest, SaysTheLatestInWordsWithItsUnit)
{
    EXPECT_EQ(accessible(*graph).role(), QAccessible::Chart);
    EXPECT_EQ(value(), u"Signal and noise are not known"_s);
    graph->add({1s, -54, -92});
    EXPECT_EQ(value(), u"Signal −54 dBm, noise −92 dBm"_s);
    EXPECT_EQ(accessible(*graph).text(QAccessible::Description), value());
    EXPECT_EQ(graph->toolTip(), value());
    graph->add({2s, -50, std::nullopt});
    EXPECT_EQ(value(), u"Signal −50 dBm"_s);
    graph->add({3s, std::nullopt, -90});
    EXPECT_EQ(value(), u"Noise −90 dBm"_s);
    graph->clear();
    EXPECT_EQ(value(), u"Signal and noise are not known"_s);
}

TEST_F(LiveGraphTest, ForgetsWhatIsOlderThanItsSpan)
{
    for (int second = 0; second <= 1200; second += 3) {
        graph->add({std::chrono::seconds(second), -50, -90});
    }
    const auto span = graph->samples().back().time - graph->samples().front().time;
    EXPECT_GE(span, LiveGraph::span);
    EXPECT_LE(span, LiveGraph::span + 3s);
}

TEST_F(LiveGraphTest, TheLineEndsNowAtTheEdge)
{
    for (int second = 0; second <= 60; second += 3) {
        graph->add({std::chrono::seconds(second), -50, -90});
    }
    const auto columns = signalColumns();
    ASSERT_FALSE(columns.isEmpty());
    EXPECT_GE(columns.back(), graph->width() - 3);
    EXPECT_GE(columns.front(), graph->width() / 2) << "one minute of five";
    window.setLayoutDirection(Qt::RightToLeft);
    settle();
    EXPECT_LE(signalColumns().front(), 3);
}

TEST_F(LiveGraphTest, WhatWasNotKnownIsAGap)
{
    const auto add = [this](int from, int to, std::optional<int> signal) {
        for (int second = from; second < to; second += 3) {
            graph->add({std::chrono::seconds(second), signal, std::nullopt});
        }
    };
    add(0, 300, -50);
    const auto whole = signalColumns().size();
    graph->clear();
    add(0, 100, -50);
    add(100, 200, std::nullopt);
    add(200, 300, -50);
    EXPECT_LT(signalColumns().size(), whole * 3 / 4);
    graph->clear();
    add(0, 100, -50);
    add(200, 300, -50);
    EXPECT_LT(signalColumns().size(), whole * 3 / 4) << "nobody asked for a while";
}

TEST_F(LiveGraphTest, AValueBeyondTheScaleStaysInSight)
{
    for (int second = 0; second <= 60; second += 3) {
        graph->add({std::chrono::seconds(second), 30, -200});
    }
    EXPECT_FALSE(signalColumns().isEmpty());
}

} // namespace
} // namespace quillon::test
