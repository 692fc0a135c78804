// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/Toast.h"

#include "fakes/FakeScheduler.h"
#include "unit/ui/WidgetFixture.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using namespace std::chrono_literals;

class ToastTest : public WidgetFixture
{
protected:
    ToastTest()
    {
        show();
        toast->say(u"Rule deleted"_s, [this] { ++undone; });
        settle();
    }
    ~ToastTest() override { delete toast; }

    QPushButton &button() const { return *toast->findChild<QPushButton *>(); }
    void pointAt(bool isThere) const
    {
        QEnterEvent enter(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
        QEvent leave(QEvent::Leave);
        // What the display does before it tells.
        toast->setAttribute(Qt::WA_UnderMouse, isThere);
        QApplication::sendEvent(toast, isThere ? static_cast<QEvent *>(&enter) : &leave);
    }

    FakeScheduler scheduler;
    Toast *toast = new Toast(theme, scheduler, &window);
    int undone = 0;
};

TEST_F(ToastTest, LiesAtTheBottomInTheMiddleForTenSeconds)
{
    EXPECT_TRUE(toast->isVisible());
    EXPECT_EQ(toast->message(), u"Rule deleted"_s);
    EXPECT_NEAR(toast->geometry().center().x(), window.rect().center().x(), 1);
    EXPECT_EQ(toast->geometry().bottom(), window.height() - Theme::windowMargin - 1);
    scheduler.advance(9'900ms);
    EXPECT_TRUE(toast->isVisible());
    scheduler.advance(200ms);
    EXPECT_FALSE(toast->isVisible());
    EXPECT_FALSE(scheduler.hasTimers());
    EXPECT_EQ(undone, 0);
}

TEST_F(ToastTest, KeepsAboveTheButtonsOfItsWindowWhileTheyAreShown)
{
    auto *buttons = new QWidget(&window);
    buttons->setGeometry(0, window.height() - 60, window.width(), 40);
    buttons->show();
    toast->keepAbove(*buttons);
    toast->say(u"Rule deleted"_s, [] {});
    settle();
    EXPECT_EQ(toast->geometry().bottom(), buttons->y() - Theme::unit - 1);
    buttons->hide();
    toast->say(u"Rule deleted"_s, [] {});
    EXPECT_EQ(toast->geometry().bottom(), window.height() - Theme::windowMargin - 1);
}

TEST_F(ToastTest, UndoesOnce)
{
    button().click();
    EXPECT_EQ(undone, 1);
    EXPECT_FALSE(toast->isVisible());
    window.setFocus();
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(undone, 1);
}

TEST_F(ToastTest, AnotherOneCoversItUntilThatIsGone)
{
    int otherUndone = 0;
    auto *other = new Toast(theme, scheduler, &window);
    button().setFocus();
    other->say(u"1 address added."_s, [&otherUndone] { ++otherUndone; });
    settle();
    EXPECT_FALSE(toast->isVisible());
    EXPECT_FALSE(button().hasFocus());
    other->findChild<QPushButton *>()->click();
    EXPECT_EQ(std::pair(undone, otherUndone), std::pair(0, 1));
    EXPECT_FALSE(other->isVisible());
    EXPECT_TRUE(toast->isVisible());
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(std::pair(undone, otherUndone), std::pair(1, 1));
    EXPECT_FALSE(toast->isVisible());
    delete other;
}

TEST_F(ToastTest, CoveredItsTimeGoesOn)
{
    int expired = 0;
    QObject::connect(toast, &Toast::expired, toast, [&expired] { ++expired; });
    scheduler.advance(5s);
    auto *other = new Toast(theme, scheduler, &window);
    other->say(u"Nothing in the history that is not saved."_s);
    EXPECT_FALSE(toast->isVisible());
    scheduler.advance(5'100ms);
    EXPECT_EQ(expired, 1);
    EXPECT_TRUE(other->isVisible());
    scheduler.advance(5s);
    EXPECT_FALSE(other->isVisible());
    EXPECT_FALSE(toast->isVisible()) << "what is over does not come back";
    EXPECT_FALSE(scheduler.hasTimers());
    delete other;
}

TEST_F(ToastTest, CoveredUnderThePointerItsTimeBegins)
{
    pointAt(true);
    EXPECT_FALSE(scheduler.hasTimers());
    auto *other = new Toast(theme, scheduler, &window);
    other->say(u"1 address added."_s, [] {});
    scheduler.advance(10'100ms);
    EXPECT_FALSE(toast->isVisible());
    EXPECT_FALSE(other->isVisible());
    EXPECT_FALSE(scheduler.hasTimers());
    delete other;
}

TEST_F(ToastTest, UndoesByItsKey)
{
    button().setFocus();
    press(Qt::Key_Z);
    EXPECT_EQ(undone, 0);
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(undone, 1);
    EXPECT_FALSE(toast->isVisible());
}

TEST_F(ToastTest, HasItsKeyBeforeAFieldOfText)
{
    QLineEdit field(&window);
    field.show();
    field.setFocus();
    press(Qt::Key_A);
    field.insert(u"typed"_s);
    QKeyEvent asked(QEvent::ShortcutOverride, Qt::Key_Z, Qt::ControlModifier);
    asked.ignore();
    QApplication::sendEvent(&field, &asked);
    EXPECT_TRUE(asked.isAccepted()) << "no shortcut has it either";
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(undone, 1);
    EXPECT_EQ(field.text(), u"typed"_s);
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(undone, 1);
    EXPECT_EQ(field.text(), QString()) << "then it is the field's again";
}

TEST_F(ToastTest, HasItsKeyInPopoversOverItsWindowAndInNoOtherWindow)
{
    QWidget other;
    QKeyEvent elsewhere(QEvent::KeyPress, Qt::Key_Z, Qt::ControlModifier);
    QApplication::sendEvent(&other, &elsewhere);
    EXPECT_EQ(undone, 0);
    QWidget popover(&window, Qt::Popup);
    QKeyEvent here(QEvent::KeyPress, Qt::Key_Z, Qt::ControlModifier);
    QApplication::sendEvent(&popover, &here);
    EXPECT_EQ(undone, 1);
}

TEST_F(ToastTest, WaitsUnderThePointer)
{
    pointAt(true);
    scheduler.advance(60s);
    EXPECT_TRUE(toast->isVisible());
    pointAt(false);
    scheduler.advance(9'900ms);
    EXPECT_TRUE(toast->isVisible());
    scheduler.advance(200ms);
    EXPECT_FALSE(toast->isVisible());
}

TEST_F(ToastTest, WaitsWhileItHasTheKeyboard)
{
    button().setFocus();
    scheduler.advance(60s);
    EXPECT_TRUE(toast->isVisible());
    button().clearFocus();
    scheduler.advance(10'100ms);
    EXPECT_FALSE(toast->isVisible());
}

TEST_F(ToastTest, ANextOneTakesItsPlaceAndItsTime)
{
    scheduler.advance(8s);
    toast->say(u"Favorite removed"_s);
    EXPECT_TRUE(button().isHidden());
    scheduler.advance(8s);
    EXPECT_EQ(toast->message(), u"Favorite removed"_s);
    window.setFocus();
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(undone, 0);
    scheduler.advance(3s);
    EXPECT_EQ(toast->message(), QString());
}

TEST_F(ToastTest, StaysInItsWindow)
{
    toast->say(
        u"A message that is so long that it does not fit into one line of this window, by far"_s,
        [] {});
    settle();
    EXPECT_TRUE(window.rect().contains(toast->geometry()));
    const auto *label = toast->findChild<QLabel *>();
    EXPECT_GE(label->height(), label->heightForWidth(label->width()));
    window.resize(600, 500);
    settle();
    EXPECT_EQ(toast->geometry().bottom(), window.height() - Theme::windowMargin - 1);
}

TEST_F(ToastTest, IsAMessageToAssistiveTechnology)
{
    EXPECT_EQ(accessible(*toast).role(), QAccessible::AlertMessage);
    EXPECT_EQ(accessible(*toast).text(QAccessible::Name), u"Rule deleted"_s);
}

TEST_F(ToastTest, GivesTheKeyboardBackToWhereItWas)
{
    auto *first = new QLineEdit(&window);
    auto *second = new QLineEdit(&window);
    auto *beside = new QLineEdit(&window);
    for (QLineEdit *field : {first, second, beside}) {
        field->show();
    }
    second->setFocus();
    button().setFocus();
    button().click();
    EXPECT_EQ(QApplication::focusWidget(), second);
    toast->say(u"Rule deleted"_s, [] {});
    second->setFocus();
    button().setFocus();
    second->hide();
    button().click();
    EXPECT_EQ(QApplication::focusWidget(), first) << "the first control, when that is gone";
    toast->say(u"Rule deleted"_s, [] {});
    beside->setFocus();
    toast->dismiss();
    EXPECT_EQ(QApplication::focusWidget(), beside) << "it had no keyboard";
}

TEST_F(ToastTest, SaysWhenItsTimeIsOver)
{
    const SignalLog ends(toast, &Toast::expired);
    button().click();
    scheduler.advance(11s);
    EXPECT_EQ(ends.size(), 0);
    toast->say(u"Rule deleted"_s, [] {});
    scheduler.advance(11s);
    EXPECT_EQ(ends.size(), 1);
}

} // namespace
} // namespace quillon::test
