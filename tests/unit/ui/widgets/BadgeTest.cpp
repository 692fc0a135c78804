// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/Badge.h"

#include "unit/ui/WidgetFixture.h"

#include <QImage>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class BadgeTest : public WidgetFixture
{
protected:
    BadgeTest()
    {
        column->addWidget(badge, 0, Qt::AlignLeft);
        show();
    }

    QColor ground() const
    {
        return badge->grab().toImage().pixelColor(badge->width() / 2, badge->height() - 4);
    }

    Badge *badge = new Badge(u"Changed"_s);
};

TEST_F(BadgeTest, IsAPillOnATint)
{
    EXPECT_EQ(badge->height(), 20);
    EXPECT_EQ(ground(), theme.colors().tint);
    EXPECT_EQ(badge->palette().color(QPalette::WindowText), theme.colors().onTint);
}

TEST_F(BadgeTest, OnATintedRowItsGroundIsThatOfACard)
{
    badge->setOnTint(true);
    EXPECT_EQ(ground(), theme.colors().surface);
    badge->setOnTint(false);
    EXPECT_EQ(ground(), theme.colors().tint);
}

TEST_F(BadgeTest, NeutralHasNoTint)
{
    badge->setTone(Badge::Tone::Neutral);
    EXPECT_NE(ground(), theme.colors().tint);
    EXPECT_EQ(badge->palette().color(QPalette::WindowText), theme.colors().mutedText);
}

TEST_F(BadgeTest, ShowsTextAsItIs)
{
    EXPECT_EQ(Badge(u"<b>x</b>"_s).textFormat(), Qt::PlainText);
}

} // namespace
} // namespace quillon::test
