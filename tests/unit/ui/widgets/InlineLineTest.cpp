// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/InlineLine.h"

#include "unit/ui/WidgetFixture.h"

#include <QImage>
#include <QLabel>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class InlineLineTest : public WidgetFixture
{
protected:
    InlineLineTest()
    {
        column->addWidget(line);
        column->addStretch();
        show();
    }

    bool shows(const QColor &color, int from, int to) const
    {
        const QImage picture = line->grab().toImage();
        for (int x = from; x < to; ++x) {
            for (int y = 0; y < picture.height(); ++y) {
                if (picture.pixelColor(x, y) == color) {
                    return true;
                }
            }
        }
        return false;
    }

    InlineLine *line = new InlineLine(theme);
};

TEST_F(InlineLineTest, KeepsItsRoomWhileItSaysNothing)
{
    const int empty = line->height();
    EXPECT_GE(empty, QFontMetrics(Theme::font(Theme::Type::Caption)).lineSpacing());
    line->say(u"This is not a MAC address."_s, InlineLine::Kind::Danger);
    settle();
    EXPECT_EQ(line->height(), empty);
}

TEST_F(InlineLineTest, HasASignBesideItsColor)
{
    constexpr int sign = 12;
    line->say(u"Fine"_s);
    EXPECT_TRUE(shows(theme.colors().mutedText, 0, sign)) << "the text begins at the edge";
    line->say(u"Wrong"_s, InlineLine::Kind::Danger);
    settle();
    EXPECT_TRUE(shows(theme.colors().danger, 0, sign));
    line->say(u"Unusual"_s, InlineLine::Kind::Notice);
    settle();
    EXPECT_TRUE(shows(theme.colors().notice, 0, sign));
    line->setLayoutDirection(Qt::RightToLeft);
    line->say(u"שגוי"_s, InlineLine::Kind::Notice);
    settle();
    EXPECT_TRUE(shows(theme.colors().notice, line->width() - sign, line->width()));
    EXPECT_FALSE(shows(theme.colors().notice, 0, sign));
}

TEST_F(InlineLineTest, StandsBesideItsSignInAMirroredWindowWhateverItsLanguage)
{
    constexpr int nearBy = 60;
    line->setLayoutDirection(Qt::RightToLeft);
    line->say(u"Wrong"_s, InlineLine::Kind::Danger);
    settle();
    ASSERT_GT(line->width(), 2 * nearBy);
    EXPECT_FALSE(shows(theme.colors().danger, 0, line->width() - nearBy - nearBy / 2));
    line->setLayoutDirection(Qt::LeftToRight);
    settle();
    EXPECT_FALSE(shows(theme.colors().danger, nearBy + nearBy / 2, line->width()));
}

TEST_F(InlineLineTest, IsOneTextToAssistiveTechnology)
{
    line->say(u"This is not a MAC address."_s, InlineLine::Kind::Danger);
    const auto labels = line->findChildren<QLabel *>();
    ASSERT_EQ(labels.size(), 1);
    EXPECT_EQ(accessible(*labels.first()).text(QAccessible::Name), u"This is not a MAC address."_s);
}

} // namespace
} // namespace quillon::test
