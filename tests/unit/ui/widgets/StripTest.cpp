// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/Strip.h"

#include "unit/ui/WidgetFixture.h"

#include <QPushButton>
#include <QToolButton>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class StripTest : public WidgetFixture
{
protected:
    StripTest()
    {
        column->addWidget(strip);
        show();
    }

    QToolButton &cross() const { return *strip->findChild<QToolButton *>(); }

    Strip *strip = new Strip(theme);
};

TEST_F(StripTest, IsHiddenWhileItSaysNothing)
{
    EXPECT_TRUE(strip->isHidden());
    strip->say(u"Look"_s);
    EXPECT_FALSE(strip->isHidden());
    strip->clear();
    EXPECT_TRUE(strip->isHidden());
}

TEST_F(StripTest, OffersOneAction)
{
    const SignalLog acts(strip, &Strip::acted);
    strip->say(u"Sync stopped"_s, u"Sign In…"_s);
    EXPECT_TRUE(cross().isHidden());
    strip->button().click();
    EXPECT_EQ(acts.size(), 1);
    EXPECT_FALSE(strip->isHidden());
}

TEST_F(StripTest, OrIsTakenAwayByItsCross)
{
    const SignalLog gone(strip, &Strip::dismissed);
    strip->say(u"Look"_s);
    EXPECT_TRUE(strip->button().isHidden());
    EXPECT_EQ(accessible(cross()).text(QAccessible::Name), u"Close"_s);
    cross().click();
    EXPECT_EQ(gone.size(), 1);
    EXPECT_TRUE(strip->isHidden());
}

TEST_F(StripTest, IsAMessageToAssistiveTechnology)
{
    strip->say(u"<b>Look</b>"_s);
    EXPECT_EQ(accessible(*strip).role(), QAccessible::AlertMessage);
    EXPECT_EQ(accessible(*strip).text(QAccessible::Name), u"<b>Look</b>"_s);
    EXPECT_EQ(strip->sentence(), u"<b>Look</b>"_s);
}

TEST_F(StripTest, WrapsWhereTheWindowIsNarrow)
{
    strip->say(
        u"Another rule for this interface and network was switched off: only one can be on."_s);
    const int wide = strip->heightForWidth(800);
    EXPECT_GT(strip->heightForWidth(250), wide);
}

} // namespace
} // namespace quillon::test
