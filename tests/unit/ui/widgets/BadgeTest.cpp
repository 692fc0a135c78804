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

    bool shows(const QColor &color) const
    {
        const QImage picture = badge->grab().toImage();
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                if (picture.pixelColor(x, y) == color) {
                    return true;
                }
            }
        }
        return false;
    }
    QColor ground() const
    {
        return badge->grab().toImage().pixelColor(badge->width() / 2, badge->height() - 4);
    }

    Badge *badge = new Badge(theme, u"Changed"_s);
};

TEST_F(BadgeTest, IsAPillOnATint)
{
    EXPECT_EQ(badge->height(), 20);
    EXPECT_EQ(ground(), theme.colors().tint);
    EXPECT_TRUE(shows(theme.colors().onTint));
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
    EXPECT_TRUE(shows(theme.colors().mutedText));
}

TEST_F(BadgeTest, IsAsWideAsItsText)
{
    const int before = badge->width();
    badge->setWord(u"Changed by somebody else"_s);
    settle();
    EXPECT_GT(badge->width(), before);
    EXPECT_EQ(accessible(*badge).role(), QAccessible::StaticText);
    EXPECT_EQ(accessible(*badge).text(QAccessible::Name), u"Changed by somebody else"_s);
}

} // namespace
} // namespace quillon::test
