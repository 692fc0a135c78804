// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/RowButton.h"

#include "unit/ui/WidgetFixture.h"

#include <QAction>
#include <QClipboard>
#include <QImage>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

const QString longName = u"A network whose name is so long that no row of any window can hold it"_s;

class RowButtonTest : public WidgetFixture
{
protected:
    RowButtonTest()
    {
        column->addWidget(row);
        column->addWidget(next);
        row->setValue(u"Harbor Café"_s);
        show();
    }

    /// Whether a color is anywhere between two columns of the row.
    bool shows(const QColor &color, int from, int to) const
    {
        const QImage picture = row->grab().toImage();
        for (int x = from; x < to; ++x) {
            for (int y = 0; y < picture.height(); ++y) {
                if (picture.pixelColor(x, y) == color) {
                    return true;
                }
            }
        }
        return false;
    }

    RowButton *row = new RowButton(theme, u"Network"_s);
    RowButton *next = new RowButton(theme, u"Rules"_s);
};

TEST_F(RowButtonTest, IsOneButtonWithLabelAndValue)
{
    EXPECT_EQ(accessible(*row).text(QAccessible::Name), u"Network, Harbor Café"_s);
    EXPECT_EQ(accessible(*row).role(), QAccessible::Button);
    EXPECT_TRUE(accessible(*row).state().hasPopup);
    EXPECT_EQ(accessible(*row).childCount(), 0);
    row->setValue(QString());
    EXPECT_EQ(accessible(*row).text(QAccessible::Name), u"Network, None"_s);
}

TEST_F(RowButtonTest, IsPressedByPointerKeyboardAndAssistiveTechnology)
{
    const SignalLog clicks(row, &RowButton::clicked);
    click(*row);
    row->setFocus();
    press(Qt::Key_Space);
    press(Qt::Key_Return);
    press(Qt::Key_Enter);
    accessible(*row).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(clicks.size(), 5);
}

TEST_F(RowButtonTest, WithoutAPopoverIsATextThatTakesNoFocus)
{
    row->setHasPopover(false);
    const SignalLog clicks(row, &RowButton::clicked);
    click(*row);
    EXPECT_EQ(clicks.size(), 0);
    EXPECT_EQ(row->focusPolicy(), Qt::NoFocus);
    EXPECT_EQ(accessible(*row).role(), QAccessible::StaticText);
    EXPECT_FALSE(accessible(*row).actionInterface()->actionNames().contains(
        QAccessibleActionInterface::pressAction()));
    const int chevron = row->width() - Theme::unit - Theme::inlineIconSize;
    EXPECT_FALSE(shows(theme.colors().mutedText, chevron, row->width()));
    row->setHasPopover(true);
    EXPECT_TRUE(shows(theme.colors().mutedText, chevron, row->width()));
}

TEST_F(RowButtonTest, CopiesItsValue)
{
    const auto actions = row->actions();
    ASSERT_EQ(actions.size(), 1);
    EXPECT_EQ(row->contextMenuPolicy(), Qt::ActionsContextMenu);
    EXPECT_EQ(actions.first()->shortcut(), QKeySequence(QKeySequence::Copy));
    EXPECT_EQ(actions.first()->shortcutContext(), Qt::WidgetShortcut);
    row->setValue(longName);
    actions.first()->trigger();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), longName);
    row->setValue(QString());
    EXPECT_FALSE(actions.first()->isEnabled());
}

TEST_F(RowButtonTest, WhatDoesNotFitIsTheToolTip)
{
    EXPECT_EQ(row->toolTip(), QString());
    row->setValue(longName);
    EXPECT_EQ(row->toolTip(), longName);
    row->setRowToolTip(u"Café: on"_s);
    EXPECT_EQ(row->toolTip(), u"Café: on"_s);
}

TEST_F(RowButtonTest, ATextFromOutsideIsNeverMarkup)
{
    row->setValue(u"<img src=\"/x\"> and so on until it does not fit into the row any more"_s);
    EXPECT_TRUE(row->toolTip().contains(u"&lt;img"_s)) << row->toolTip().toStdString();
    row->setValue(u"two\nlines"_s);
    EXPECT_EQ(accessible(*row).text(QAccessible::Name), u"Network, two lines"_s);
}

TEST_F(RowButtonTest, ALongValueDoesNotWidenTheWindow)
{
    const int before = row->minimumSizeHint().width();
    row->setValue(longName);
    EXPECT_EQ(row->minimumSizeHint().width(), before);
}

TEST_F(RowButtonTest, TheLongestLabelMakesRoomInAllRows)
{
    const int before = row->minimumSizeHint().width();
    column->addWidget(new RowButton(theme, u"A label longer than all others by far"_s));
    settle();
    EXPECT_GT(row->minimumSizeHint().width(), before);
}

TEST_F(RowButtonTest, TheLongestLabelMakesRoomInARowThatSharesItsLine)
{
    // A card of its own: the fixture's window is older than the theme's font.
    QWidget card;
    auto *rows = new QVBoxLayout(&card);
    auto *plain = new RowButton(theme, u"Network"_s);
    auto *line = new QWidget;
    auto *shared = new RowButton(theme, u"Rules"_s, line);
    auto *longest = new RowButton(theme, u"A label longer than all others by far"_s);
    for (QWidget *added : std::initializer_list<QWidget *>{plain, line, longest}) {
        rows->addWidget(added);
    }
    card.show();
    settle();
    EXPECT_EQ(shared->minimumSizeHint().width(), longest->minimumSizeHint().width());
    EXPECT_EQ(plain->minimumSizeHint().width(), longest->minimumSizeHint().width());
    longest->hide();
    EXPECT_EQ(shared->minimumSizeHint().width(), plain->minimumSizeHint().width());
    EXPECT_LT(shared->minimumSizeHint().width(), longest->minimumSizeHint().width());
}

TEST_F(RowButtonTest, IsAsHighAsItsTextNeeds)
{
    EXPECT_EQ(row->sizeHint().height(), Theme::rowHeight);
    QFont large = row->font();
    large.setPointSizeF(large.pointSizeF() * 3);
    row->setFont(large);
    EXPECT_GE(row->sizeHint().height(), QFontMetrics(large).height());
}

TEST_F(RowButtonTest, IsTintedWhileItsPopoverIsOpen)
{
    EXPECT_FALSE(shows(theme.colors().tint, 0, row->width()));
    row->setProperty("open", true);
    EXPECT_TRUE(shows(theme.colors().tint, 0, row->width()));
}

TEST_F(RowButtonTest, LosesItsTintWhenItsEmphasisIsReset)
{
    const QImage usual = row->grab().toImage();
    row->setOpen(true);
    EXPECT_NE(row->grab().toImage(), usual);
    row->resetEmphasis();
    EXPECT_EQ(row->grab().toImage(), usual);
    EXPECT_TRUE(row->isOpen()) << "its popover is another matter";
    row->setOpen(false);
    row->setOpen(true);
    EXPECT_NE(row->grab().toImage(), usual);
    row->setOpen(false);
    row->setAttribute(Qt::WA_UnderMouse, true);
    EXPECT_NE(row->grab().toImage(), usual) << "the pointer is over it";
    row->resetEmphasis();
    EXPECT_EQ(row->grab().toImage(), usual);
}

TEST_F(RowButtonTest, AnAddressReadsTheSameInAMirroredWindow)
{
    // Drawn alone, as wide as it is.
    const auto picture = [this](const QString &value) {
        row->setValue(value, RowButton::ValueLook::Address);
        const int end = row->width() - Theme::unit - Theme::rowLabelWidth;
        const int wide = QFontMetrics(Theme::font(Theme::Type::Address)).horizontalAdvance(value);
        return row->grab(QRect(end - Theme::unit - wide, 0, wide, row->height())).toImage();
    };
    QApplication::setLayoutDirection(Qt::RightToLeft);
    window.resize(500, 300);
    settle();
    const QString address = u"00:16:CB:7A:10:02"_s;
    // The sign in front of it has no width, and makes it read from left to right in any case.
    EXPECT_EQ(picture(address), picture(QChar(0x200E) + address));
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

TEST_F(RowButtonTest, IsMirrored)
{
    row->setDot(RowButton::Dot{Theme::Ink::Positive, true});
    EXPECT_TRUE(shows(theme.colors().positive, 0, row->width() / 2 + 20));
    EXPECT_FALSE(shows(theme.colors().mutedText, 0, Theme::unit));
    window.setLayoutDirection(Qt::RightToLeft);
    settle();
    EXPECT_TRUE(shows(theme.colors().positive, row->width() / 2 - 20, row->width()));
    EXPECT_FALSE(shows(theme.colors().positive, 0, row->width() / 2 - 20));
    EXPECT_TRUE(shows(theme.colors().mutedText, 0, Theme::unit + Theme::inlineIconSize));
}

} // namespace
} // namespace quillon::test
