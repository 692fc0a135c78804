// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "unit/ui/window/MainWindowFixture.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QPushButton>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class MainWindowKeyboardTest : public MainWindowFixture
{
};

TEST_F(MainWindowKeyboardTest, TheFieldHasTheKeyboardFirst)
{
    EXPECT_EQ(view->focusWidget(), named<QLineEdit>("Address"));
}

TEST_F(MainWindowKeyboardTest, TheFieldGetsTheKeyboardOnceItCanBeUsed)
{
    window.setHelperInstalled(false);
    view = std::make_unique<MainWindow>(models(), theme, taskBar);
    presence.openWindow();
    EXPECT_NE(view->focusWidget(), named<QLineEdit>("Address"));
    window.setHelperInstalled(true);
    EXPECT_EQ(view->focusWidget(), named<QLineEdit>("Address"));
    named<QPushButton>("Randomize address")->setFocus();
    window.setHelperInstalled(false);
    window.setHelperInstalled(true);
    EXPECT_NE(view->focusWidget(), named<QLineEdit>("Address")) << "only once";
}

TEST_F(MainWindowKeyboardTest, KeysDoWhatTheirControlsDo)
{
    auto *field = named<QLineEdit>("Address");
    view->setFocus();
    trigger(Qt::CTRL | Qt::Key_L);
    EXPECT_EQ(view->focusWidget(), field);
    EXPECT_EQ(field->selectedText(), field->text());
    trigger(Qt::CTRL | Qt::Key_R);
    scheduler.runPending();
    EXPECT_EQ(addressOf(wired), u"AA:01:02:03:04:05"_s);
    select(wired);
    trigger(Qt::CTRL | Qt::SHIFT | Qt::Key_R);
    scheduler.runPending();
    EXPECT_EQ(addressOf(wired), u"3C:22:FB:00:00:01"_s);
    select(wired);
    const auto before = machine.helper.changes().size();
    trigger(Qt::CTRL | Qt::SHIFT | Qt::Key_R);
    scheduler.runPending();
    EXPECT_EQ(machine.helper.changes().size(), before) << "there is nothing to restore";
}

TEST_F(MainWindowKeyboardTest, ReturnInTheFieldAppliesOnlyWhatCanBeApplied)
{
    auto *field = named<QLineEdit>("Address");
    press(*field, Qt::Key_Return);
    scheduler.runPending();
    EXPECT_TRUE(machine.helper.changes().isEmpty());
    window.editField(u"02:00:5e:10:ab:cd"_s);
    EXPECT_TRUE(named<QPushButton>("Apply address")->isEnabled());
    press(*field, Qt::Key_Return);
    scheduler.runPending();
    ASSERT_EQ(machine.helper.changes().size(), 1);
    EXPECT_EQ(machine.helper.changes().first().address, u"02:00:5E:10:AB:CD"_s);
}

TEST_F(MainWindowKeyboardTest, TheTabKeyGoesFromTopToBottom)
{
    window.editField(u"02:00:5e:10:ab:cd"_s);
    QList<QPoint> places;
    QWidget *first = named<QLineEdit>("Address");
    QWidget *widget = first;
    do {
        if (widget->isEnabled() && widget->isVisible() &&
            (widget->focusPolicy() & Qt::TabFocus) != 0 &&
            (qobject_cast<QAbstractButton *>(widget) || qobject_cast<QLineEdit *>(widget))) {
            places.append(widget->mapTo(view.get(), QPoint(0, widget->height() / 2)));
        }
        widget = widget->nextInFocusChain();
    } while (widget != first);
    ASSERT_EQ(places.size(), 4) << "field, Apply, Randomize, hardware address";
    for (qsizetype index = 1; index < places.size(); ++index) {
        const QPoint before = places.at(index - 1);
        const QPoint after = places.at(index);
        EXPECT_TRUE(after.y() > before.y() + 4 || after.x() > before.x());
    }
}

} // namespace
} // namespace quillon::test
