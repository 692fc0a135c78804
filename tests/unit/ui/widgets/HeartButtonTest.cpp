// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/HeartButton.h"

#include "unit/ui/WidgetFixture.h"

#include <QImage>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class HeartButtonTest : public WidgetFixture
{
protected:
    QColor middle() const
    {
        return heart.icon().pixmap(QSize(20, 20), 1.0).toImage().pixelColor(10, 9);
    }

    HeartButton heart{theme};
};

TEST_F(HeartButtonTest, IsAnOutlineOrFilled)
{
    heart.setFavorite(false, u"Add Address to Favorites"_s);
    EXPECT_EQ(middle().alpha(), 0);
    EXPECT_FALSE(heart.isFavorite());
    heart.setFavorite(true, u"Remove Address from Favorites"_s);
    EXPECT_EQ(middle(), theme.colors().heart);
    EXPECT_TRUE(heart.isFavorite());
}

TEST_F(HeartButtonTest, SaysWhatAClickDoes)
{
    heart.setFavorite(true, u"Remove Address from Favorites"_s);
    EXPECT_EQ(heart.toolTip(), u"Remove Address from Favorites"_s);
    EXPECT_EQ(accessible(heart).text(QAccessible::Name), u"Remove Address from Favorites"_s);
    EXPECT_EQ(accessible(heart).role(), QAccessible::Button);
}

TEST_F(HeartButtonTest, IsLargeEnoughAndTakesTheKeyboard)
{
    EXPECT_EQ(heart.minimumSize(), QSize(Theme::target, Theme::target));
    EXPECT_EQ(heart.focusPolicy(), Qt::StrongFocus);
}

} // namespace
} // namespace quillon::test
