// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/Sign.h"

#include "unit/ui/WidgetFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class SignTest : public WidgetFixture
{
protected:
    SignTest()
    {
        column->addWidget(sign);
        show();
        sign->installEventFilter(&paints);
    }

    /// Counts how often the sign is drawn.
    class Paints : public QObject
    {
    public:
        bool eventFilter(QObject *, QEvent *event) override
        {
            count += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
        int count = 0;
    };

    Sign *sign = new Sign(theme, 20);
    Paints paints;
};

TEST_F(SignTest, IsDrawnAnewOnlyWhenItIsAnother)
{
    sign->setSign(u"link-active"_s, Theme::Ink::Positive);
    settle();
    EXPECT_EQ(paints.count, 1);
    sign->setSign(u"link-active"_s, Theme::Ink::Positive);
    settle();
    EXPECT_EQ(paints.count, 1);
    sign->setSign(u"link-inactive"_s, Theme::Ink::Positive);
    settle();
    EXPECT_EQ(paints.count, 2);
    sign->setSign(u"link-inactive"_s, Theme::Ink::Muted);
    settle();
    EXPECT_EQ(paints.count, 3);
}

TEST_F(SignTest, FollowsTheTheme)
{
    sign->setSign(u"link-active"_s, Theme::Ink::Positive);
    settle();
    theme.setScheme(ColorScheme::Dark);
    settle();
    EXPECT_EQ(sign->grab().toImage().pixelColor(10, 10),
        ThemeColors::forScheme(ColorScheme::Dark).positive);
}

} // namespace
} // namespace quillon::test
