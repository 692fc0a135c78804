// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/EmptyState.h"

#include "unit/ui/WidgetFixture.h"

#include <QImage>
#include <QLabel>
#include <QPushButton>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class EmptyStateTest : public WidgetFixture
{
protected:
    EmptyStateTest()
    {
        column->addWidget(empty);
        show();
    }

    EmptyState *empty = new EmptyState(theme, u"list"_s);
};

TEST_F(EmptyStateTest, SaysASentenceAndOffersOneAction)
{
    const SignalLog acts(empty, &EmptyState::acted);
    empty->say(u"No rule for this interface."_s, u"New Network Rule…"_s);
    EXPECT_EQ(empty->sentence(), u"No rule for this interface."_s);
    empty->button().click();
    EXPECT_EQ(acts.size(), 1);
    empty->say(u"No rule for this interface."_s);
    EXPECT_TRUE(empty->button().isHidden());
}

TEST_F(EmptyStateTest, ItsPictureStandsAboveTheSentence)
{
    empty->say(u"No rule for this interface."_s);
    settle();
    const QImage picture = empty->grab().toImage();
    const auto *sentence = empty->findChild<QLabel *>();
    int highest = picture.height();
    for (int y = 0; y < picture.height(); ++y) {
        if (picture.pixelColor(picture.width() / 2, y) == theme.colors().mutedText) {
            highest = std::min(highest, y);
        }
    }
    EXPECT_GE(highest, 0);
    EXPECT_LT(highest, sentence->y() - Theme::spacing);
}

} // namespace
} // namespace quillon::test
