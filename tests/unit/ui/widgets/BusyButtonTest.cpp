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

TEST_F(BusyButtonTest, KeepsTheKeyboardWhenItCannotBeUsedForAWhile)
{
    auto *other = new QPushButton(u"Vendor"_s);
    column->addWidget(other);
    settle();
    const SignalLog clicked(button, &QPushButton::clicked);
    button->setUsable(false);
    EXPECT_TRUE(button->hasFocus());
    EXPECT_FALSE(button->isUsable());
    EXPECT_TRUE(accessible(*button).state().disabled);
    click(*button);
    press(Qt::Key_Space);
    press(Qt::Key_Return);
    accessible(*button).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QShortcutEvent letter(QKeySequence(Qt::ALT | Qt::Key_R), 0);
    QApplication::sendEvent(button, &letter);
    EXPECT_EQ(clicked.size(), 0);
    button->setUsable(true);
    EXPECT_TRUE(button->hasFocus());
    EXPECT_FALSE(accessible(*button).state().disabled);
    press(Qt::Key_Space);
    EXPECT_EQ(clicked.size(), 1);
}

TEST_F(BusyButtonTest, IsDisabledWhenTheKeyboardLeavesIt)
{
    auto *other = new QPushButton(u"Vendor"_s);
    column->addWidget(other);
    settle();
    button->setUsable(false);
    ASSERT_TRUE(button->isEnabled());
    button->setUsable(false);
    EXPECT_TRUE(button->hasFocus()) << "said twice";
    QFocusEvent away(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QApplication::sendEvent(button, &away);
    EXPECT_TRUE(button->isEnabled()) << "another window has it for a while";
    other->setFocus(Qt::TabFocusReason);
    EXPECT_FALSE(button->isEnabled());
    button->setUsable(false);
    EXPECT_FALSE(button->isEnabled()) << "the keyboard is elsewhere";
    button->setUsable(true);
    EXPECT_TRUE(button->isUsable());
    EXPECT_TRUE(other->hasFocus()) << "nobody asked for it back";
}

TEST_F(BusyButtonTest, LooksDisabledWhenItCannotBeUsed)
{
    // Outside of its round corners is what it lies on.
    const auto inside = [this] {
        return button->grab(button->rect().adjusted(4, 4, -4, -4)).toImage();
    };
    const QImage usual = inside();
    button->setUsable(false);
    const QImage refusing = inside();
    EXPECT_NE(refusing, usual);
    button->clearFocus();
    ASSERT_FALSE(button->isEnabled());
    EXPECT_EQ(inside(), refusing);
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
