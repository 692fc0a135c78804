// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/MainWindow.h"

#include "unit/ui/window/MainWindowFixture.h"

#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class MainWindowTest : public MainWindowFixture
{
};

TEST_F(MainWindowTest, EveryControlSaysWhatItIs)
{
    for (QWidget *widget : view->findChildren<QWidget *>()) {
        const bool isControl = widget->focusPolicy() != Qt::NoFocus &&
                               (qobject_cast<QPushButton *>(widget) != nullptr ||
                                   qobject_cast<QLineEdit *>(widget) != nullptr ||
                                   qobject_cast<QComboBox *>(widget) != nullptr);
        if (isControl) {
            const auto *button = qobject_cast<QPushButton *>(widget);
            const QString name = button == nullptr ? widget->accessibleName()
                                                   : button->accessibleName() + button->text();
            EXPECT_FALSE(name.isEmpty()) << widget->metaObject()->className();
            EXPECT_FALSE(widget->accessibleDescription().isEmpty()) << name.toStdString();
        }
    }
    for (const char *name : {"Apply address", "Randomize address", "Restore hardware address",
             "Install helper", "Helper hint"}) {
        named<QPushButton>(name);
    }
    named<QLineEdit>("Address");
    named<QComboBox>("Interface");
}

TEST_F(MainWindowTest, AnInterfaceThatWasTakenAwayIsNotThere)
{
    host.unplug(wired);
    devices.updateNetWorkInterfaces();
    window.interfacesWereRead();
    const auto *link = view->findChild<QLabel *>(u"linkState"_s);
    EXPECT_EQ(link->text(), u"Not there"_s);
    EXPECT_EQ(link->accessibleName(), u"Not there"_s);
    EXPECT_FALSE(view->findChild<QLabel *>(u"ipAddress"_s)->isVisible());
    EXPECT_TRUE(link->parentWidget()->accessibleName().contains(u"Not there"_s));
    host.unplug(wifi);
    devices.updateNetWorkInterfaces();
    window.interfacesWereRead();
    EXPECT_TRUE(view->findChild<QWidget *>(u"noInterface"_s)->isVisible());
    EXPECT_FALSE(named<QLineEdit>("Address")->isVisible());
}

TEST_F(MainWindowTest, ShowsTheSelectedInterface)
{
    EXPECT_EQ(named<QComboBox>("Interface")->currentText(), wired);
    EXPECT_EQ(named<QLineEdit>("Address")->text(), u"02:00:00:00:00:01"_s);
    EXPECT_EQ(shownIn("hardwareButton"), u"3C:22:FB:00:00:01"_s);
    EXPECT_EQ(view->findChild<QLabel *>(u"ipAddress"_s)->text(), u"192.0.2.10"_s);
    EXPECT_TRUE(view->findChild<QWidget *>(u"hardwareIndicator"_s)->isVisible());
    EXPECT_EQ(view->findChild<QLabel *>(u"portName"_s)->text(), u"Ethernet"_s);
    EXPECT_EQ(view->findChild<QLabel *>(u"linkState"_s)->text(), u"Active"_s);

    select(wifi);
    EXPECT_EQ(named<QComboBox>("Interface")->currentText(), wifi);
    EXPECT_FALSE(view->findChild<QWidget *>(u"hardwareIndicator"_s)->isVisible());
    EXPECT_EQ(view->findChild<QLabel *>(u"linkState"_s)->text(), u"Inactive"_s);
    EXPECT_FALSE(named<QPushButton>("Restore hardware address")->isEnabled());
}

TEST_F(MainWindowTest, OnlyItsGroundIsForMovingIt)
{
    const auto moves = [this](const QPoint &place, Qt::MouseButton button = Qt::LeftButton) {
        QMouseEvent press(QEvent::MouseButtonPress, place, view->mapToGlobal(place), button, button,
            Qt::NoModifier);
        QCoreApplication::sendEvent(view.get(), &press);
        return press.isAccepted();
    };
    const auto middleOf = [this](const QWidget *widget) {
        return widget->mapTo(view.get(), widget->rect().center());
    };
    EXPECT_TRUE(moves(QPoint(4, 4)));
    EXPECT_TRUE(moves(middleOf(view->findChild<QLabel *>(u"portName"_s))));
    EXPECT_FALSE(moves(QPoint(4, 4), Qt::RightButton));
    ASSERT_FALSE(named<QPushButton>("Apply address")->isEnabled());
    for (const char *name : {"Apply address", "Randomize address"}) {
        EXPECT_FALSE(moves(middleOf(named<QPushButton>(name)))) << name;
    }
    EXPECT_FALSE(moves(middleOf(named<QLineEdit>("Address"))));
}

TEST_F(MainWindowTest, ToAssistiveTechnologyItIsAWindow)
{
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(view.get());
    ASSERT_NE(accessible, nullptr);
    EXPECT_EQ(accessible->role(), QAccessible::Window);
    EXPECT_EQ(accessible->text(QAccessible::Name), u"Quillon"_s);
}

} // namespace
} // namespace quillon::test
