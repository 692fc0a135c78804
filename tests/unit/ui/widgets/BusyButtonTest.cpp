// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/BusyButton.h"

#include "unit/ui/WidgetFixture.h"

#include <QHBoxLayout>
#include <QVariantAnimation>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class BusyButtonTest : public WidgetFixture
{
protected:
    BusyButtonTest()
    {
        button->setAccessibleName(u"Randomize address"_s);
        button->setIcon(theme.icon(u"random"_s, Theme::Ink::Text));
        button->setBusyText(u"Randomizing…"_s);
        auto *line = new QHBoxLayout;
        line->addWidget(button);
        line->addStretch();
        column->addLayout(line);
        show();
        button->setFocus();
    }
    bool turns() const
    {
        return button->findChild<QVariantAnimation *>()->state() == QAbstractAnimation::Running;
    }

    BusyButton *button = new BusyButton(theme, Theme::Ink::Text, u"&Randomize"_s);
};

TEST_F(BusyButtonTest, SaysWhatGoesOnWithTheSameWidth)
{
    const int width = button->width();
    const QImage idle = button->grab().toImage();
    button->setBusy(true);
    settle();
    EXPECT_EQ(button->text(), u"Randomizing…"_s);
    EXPECT_EQ(button->width(), width);
    EXPECT_NE(button->grab().toImage(), idle);
    button->setBusy(false);
    settle();
    EXPECT_EQ(button->text(), u"&Randomize"_s);
    EXPECT_EQ(button->width(), width);
    EXPECT_EQ(button->accessibleName(), u"Randomize address"_s);
}

TEST_F(BusyButtonTest, WithoutAWordTheRingStandsAlone)
{
    auto *apply = new BusyButton(theme, Theme::Ink::Text, u"&Apply"_s);
    apply->setBusyName(u"Applying…"_s);
    const int width = apply->sizeHint().width();
    apply->setBusy(true);
    EXPECT_EQ(apply->text(), QString());
    EXPECT_EQ(apply->sizeHint().width(), width);
    EXPECT_EQ(apply->accessibleName(), u"Applying…"_s);
    EXPECT_FALSE(apply->icon().pixmap(20).isNull());
    delete apply;
}

TEST_F(BusyButtonTest, APressWhileItIsBusyDoesNothingAndItKeepsTheKeyboard)
{
    const SignalLog clicked(button, &QPushButton::clicked);
    button->setBusy(true);
    click(*button);
    press(Qt::Key_Space);
    press(Qt::Key_Return);
    accessible(*button).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(clicked.size(), 0);
    EXPECT_TRUE(button->hasFocus());
    button->setBusy(false);
    click(*button);
    press(Qt::Key_Space);
    accessible(*button).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(clicked.size(), 3);
}

TEST_F(BusyButtonTest, ToAssistiveTechnologyItIsBusyAndDisabled)
{
    EXPECT_EQ(accessible(*button).role(), QAccessible::Button);
    EXPECT_FALSE(accessible(*button).state().busy);
    EXPECT_FALSE(accessible(*button).state().disabled);
    button->setBusy(true);
    EXPECT_TRUE(accessible(*button).state().busy);
    EXPECT_TRUE(accessible(*button).state().disabled);
    EXPECT_EQ(accessible(*button).text(QAccessible::Name), u"Randomizing…"_s);
}

TEST_F(BusyButtonTest, TheRingTurnsWhileItIsSeenUnlessNothingIsToMove)
{
    button->setBusy(true);
    EXPECT_FALSE(turns()) << "nothing is to move";
    button->setBusy(false);
    theme.setAnimated(true);
    button->setBusy(true);
    EXPECT_TRUE(turns());
    window.hide();
    EXPECT_FALSE(turns());
    window.show();
    EXPECT_TRUE(turns());
    button->setBusy(false);
    EXPECT_FALSE(turns());
}

} // namespace
} // namespace quillon::test
