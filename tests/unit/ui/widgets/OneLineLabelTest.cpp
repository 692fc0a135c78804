// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/OneLineLabel.h"

#include "unit/ui/WidgetFixture.h"

#include <QLabel>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class OneLineLabelTest : public WidgetFixture
{
protected:
    OneLineLabelTest()
    {
        column->addWidget(label);
        column->addStretch();
        show();
    }

    /// Counts how often a window is laid out.
    class Layouts : public QObject
    {
    public:
        bool eventFilter(QObject *, QEvent *event) override
        {
            count += event->type() == QEvent::LayoutRequest ? 1 : 0;
            return false;
        }
        int count = 0;
    };
    QString shown() const { return label->label().text(); }

    OneLineLabel *label = new OneLineLabel(Qt::ElideMiddle);
};

TEST_F(OneLineLabelTest, LeavesOutWhatHasNoRoomAndSaysItInItsToolTip)
{
    const QString text = QString(200, u'W') + u"end"_s;
    label->setLine(text.left(100));
    EXPECT_TRUE(shown().contains(u'…'));
    EXPECT_EQ(label->label().toolTip(), text.left(100));
    EXPECT_EQ(label->width(), window.width() - 2 * column->contentsMargins().left());
    label->setLine(u"short"_s);
    EXPECT_EQ(shown(), u"short"_s);
    EXPECT_EQ(label->label().accessibleName(), u"short"_s);
}

TEST_F(OneLineLabelTest, IsCutAnewWhenItsWidthChanges)
{
    const QString text = u"an interface with a name that takes some room"_s;
    window.resize(120, 300);
    settle();
    label->setLine(text);
    EXPECT_NE(shown(), text);
    window.resize(600, 300);
    settle();
    EXPECT_EQ(shown(), text);
    EXPECT_EQ(label->label().size(), label->size());
}

TEST_F(OneLineLabelTest, HasNothingLaidOutAnewByAnotherText)
{
    label->setLine(u"00:12:31"_s);
    settle();
    Layouts layouts;
    window.installEventFilter(&layouts);
    label->setLine(u"00:12:30, and this is longer"_s);
    settle();
    EXPECT_EQ(layouts.count, 0);
}

TEST_F(OneLineLabelTest, IsAsHighAsItsFont)
{
    label->setLine(u"00:12:31"_s);
    settle();
    const int before = label->height();
    EXPECT_EQ(before, label->label().sizeHint().height());
    label->label().setFont(Theme::font(Theme::Type::AddressField));
    settle();
    EXPECT_GT(label->height(), before);
    EXPECT_EQ(label->label().height(), label->height());
}

TEST_F(OneLineLabelTest, IsAsHighAsItsTextAlsoWhereThatCameBeforeItWasSeen)
{
    window.hide();
    label->label().setFont(Theme::font(Theme::Type::AddressField));
    const int empty = label->sizeHint().height();
    column->activate();
    label->setLine(u"Ǻ ཨོཾ 香"_s);
    window.show();
    settle();
    EXPECT_GE(label->height(), empty);
    EXPECT_EQ(label->height(), label->label().sizeHint().height());
}

TEST_F(OneLineLabelTest, BeginsWhereItsWindowDoesWhateverItsLanguage)
{
    label->setLine(u"enp1s0"_s);
    EXPECT_TRUE(label->label().alignment() & Qt::AlignLeft);
    label->setLayoutDirection(Qt::RightToLeft);
    label->setLine(u"enp2s0"_s);
    EXPECT_TRUE(label->label().alignment() & Qt::AlignRight);
    EXPECT_TRUE(label->label().alignment() & Qt::AlignAbsolute);
}

} // namespace
} // namespace quillon::test
