// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/UserInterface.h"

#include "base/NetworkKeys.h"
#include "base/SettingsKeys.h"
#include "ui/widgets/Popover.h"
#include "ui/widgets/RowButton.h"
#include "ui/widgets/TokenField.h"
#include "unit/ui/UserInterfaceFixture.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSet>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

/// The whole program with its window open.
class UserInterfaceTest : public UserInterfaceFixture
{
protected:
    UserInterfaceTest()
    {
        createWithWindows();
        startWithWindows();
        features().presence.openWindow();
        machine.scheduler.runPending();
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            if (widget->objectName() == "windowView"_L1) {
                window = widget;
            }
        }
    }

    /// The ones that are shown, in `root` and not in a popover below it.
    static QList<QWidget *> shownIn(QWidget &root)
    {
        QList<QWidget *> shown;
        for (auto *widget : root.findChildren<QWidget *>()) {
            if (widget->window() == root.window() && widget->isVisible()) {
                shown.append(widget);
            }
        }
        return shown;
    }

    /// What somebody who does not see it needs to know of each control and each picture.
    static void expectDescribed(QWidget &root)
    {
        QSet<std::pair<QString, int>> known;
        for (QWidget *widget : shownIn(root)) {
            const auto *label = qobject_cast<QLabel *>(widget);
            QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(widget);
            const std::string which =
                (QString::fromLatin1(widget->metaObject()->className()) + u' ' +
                    widget->objectName() + u' ' + widget->accessibleName())
                    .toStdString();
            if (label != nullptr && !label->pixmap(Qt::ReturnByValue).isNull()) {
                EXPECT_FALSE(accessible->text(QAccessible::Name).isEmpty())
                    << "a nameless picture: " << which;
            }
            // The label of a text that can be selected takes the pointer, not the keyboard.
            if ((widget->focusPolicy() & Qt::TabFocus) == 0 || widget->focusProxy() != nullptr) {
                continue;
            }
            const QString name = accessible->text(QAccessible::Name);
            EXPECT_FALSE(widget->accessibleName().isEmpty()) << which;
            const bool isRow = qobject_cast<RowButton *>(widget) != nullptr;
            EXPECT_FALSE(!isRow && widget->toolTip().isEmpty() &&
                         accessible->text(QAccessible::Description).isEmpty())
                << "says nothing more: " << which;
            const std::pair key(widget->accessibleName(), int(accessible->role()));
            EXPECT_FALSE(known.contains(key)) << "twice: " << which;
            known.insert(key);
        }
        EXPECT_FALSE(known.isEmpty());
    }

    template <typename T>
    T *part(const QString &name) const
    {
        auto *found = window->findChild<T *>(name);
        EXPECT_NE(found, nullptr) << name.toStdString();
        return found;
    }

    QWidget *window = nullptr;
};

TEST_F(UserInterfaceTest, EveryControlOfTheWindowSaysWhatItIs)
{
    expectDescribed(*window);
    features().readMe.setHelperInstalled(false);
    features().rules.countdown.showCountdown(
        features().devices.currentInterface.device(), u"...in 00:01:00"_s, false);
    QCoreApplication::processEvents();
    expectDescribed(*window);
}

TEST_F(UserInterfaceTest, EveryControlOfTheHistorySaysWhatItIs)
{
    features().presence.goTo(Destination::History);
    machine.scheduler.runPending();
    QCoreApplication::processEvents();
    QWidget *history = nullptr;
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        history = widget->objectName() == "history"_L1 ? widget : history;
    }
    ASSERT_NE(history, nullptr);
    expectDescribed(*history);
    features().history.history.addHistoryItemForDeviceWithNewAddress(u"enp1s0"_s, u"02:00"_s);
    machine.scheduler.runPending();
    QCoreApplication::processEvents();
    expectDescribed(*history);
}

TEST_F(UserInterfaceTest, EveryControlOfEveryPopoverSaysWhatItIs)
{
    int opened = 0;
    features().readMe.setHelperInstalled(false);
    QList<QWidget *> anchors{part<QWidget>(u"readMeLabel"_s)};
    for (auto *row : window->findChildren<RowButton *>()) {
        if (row->hasPopover() && row->isVisible()) {
            anchors.append(row);
        }
    }
    for (QWidget *anchor : std::as_const(anchors)) {
        qobject_cast<QAbstractButton *>(anchor)->click();
        machine.scheduler.runPending();
        QCoreApplication::processEvents();
        auto *popover = qobject_cast<Popover *>(QApplication::activePopupWidget());
        ASSERT_NE(popover, nullptr) << anchor->objectName().toStdString();
        ++opened;
        for (QWidget *widget : shownIn(*popover)) {
            const auto *label = qobject_cast<QLabel *>(widget);
            const bool isPicture = label != nullptr && !label->pixmap(Qt::ReturnByValue).isNull();
            const bool isControl = (widget->focusPolicy() & Qt::TabFocus) != 0;
            EXPECT_FALSE((isPicture || isControl) && widget->accessibleName().isEmpty())
                << anchor->objectName().toStdString() << ": " << widget->metaObject()->className();
            EXPECT_FALSE(isControl && widget->toolTip().isEmpty() &&
                         widget->accessibleDescription().isEmpty())
                << anchor->objectName().toStdString() << ": "
                << widget->accessibleName().toStdString();
        }
        popover->close();
    }
    EXPECT_GE(opened, 4);
}

TEST_F(UserInterfaceTest, AKeyThatIsHeldDoesNothingInThePopoverThatItOpens)
{
    const QString current = features().mainWindow.state().fieldText;
    auto *row = part<QWidget>(u"hardwareButton"_s);
    row->setFocus();
    for (int time = 0; time < 5; ++time) {
        QWidget *popup = QApplication::activePopupWidget();
        QWidget *target = popup == nullptr ? row : popup->focusWidget();
        QKeyEvent down(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s, time > 0);
        QCoreApplication::sendEvent(target, &down);
        machine.scheduler.runPending();
    }
    EXPECT_NE(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(features().mainWindow.state().fieldText, current) << "nobody pressed Restore";
    EXPECT_TRUE(machine.helper.changes().isEmpty());
}

TEST_F(UserInterfaceTest, NoShortcutOfAWindowRepeats)
{
    for (const auto *action : window->findChildren<QAction *>()) {
        const bool edits = action->shortcutContext() == Qt::WidgetShortcut ||
                           action->shortcut() == QKeySequence(QKeySequence::Undo) ||
                           action->shortcut() == QKeySequence(QKeySequence::Redo);
        EXPECT_TRUE(edits || action->shortcut().isEmpty() || !action->autoRepeat())
            << action->text().toStdString();
    }
}

TEST_F(UserInterfaceTest, LooksAndMovesAsTheDesktopWants)
{
    const QColor usual = QApplication::palette().color(QPalette::Window);
    desktop->appearance.become({ColorScheme::Dark, false, false});
    const QColor dark = QApplication::palette().color(QPalette::Window);
    EXPECT_LT(dark.lightness(), 64);
    const QImage normal = part<QWidget>(u"updateButton"_s)->grab().toImage();
    desktop->appearance.become({ColorScheme::Dark, true, false});
    EXPECT_NE(part<QWidget>(u"updateButton"_s)->grab().toImage(), normal) << "higher contrast";
    desktop->appearance.become({});
    EXPECT_EQ(QApplication::palette().color(QPalette::Window), usual) << "no preference any more";
}

TEST_F(UserInterfaceTest, WithoutAnInterfaceThereIsASentenceAndNoDeadControl)
{
    EXPECT_TRUE(part<QWidget>(u"noInterface"_s)->isHidden());
    machine.settings.set(keys::deviceDict, QVariantMap());
    machine.settings.set(keys::currentInterfaceDict, QVariantMap());
    features().mainWindow.populateSelectionButton();
    EXPECT_TRUE(part<QWidget>(u"noInterface"_s)->isVisible());
    EXPECT_FALSE(part<QWidget>(u"hexField"_s)->isVisible());
    EXPECT_FALSE(part<QWidget>(u"hardwareButton"_s)->isVisible());
}

TEST_F(UserInterfaceTest, AMissingListOfVendorsLeadsToItsPane)
{
    auto *missing = part<QWidget>(u"missingVendors"_s);
    ASSERT_TRUE(missing->isVisible()) << "there is no database here";
    part<QPushButton>(u"missingVendorsButton"_s)->click();
    QCoreApplication::processEvents();
    QWidget *const preferences = QApplication::activeWindow();
    ASSERT_NE(preferences, nullptr);
    EXPECT_EQ(preferences->windowTitle(), u"Vendor Data"_s);
    auto *download = preferences->findChild<QPushButton *>(u"downloadButton"_s);
    ASSERT_TRUE(download->isVisible());
    download->click();
    EXPECT_TRUE(features().vendors.pane.state().isUpdating);
    features().vendors.pane.showCount(3);
    EXPECT_TRUE(missing->isHidden());
}

TEST_F(UserInterfaceTest, ACountdownIsNotSaidEachSecond)
{
    const QString device = features().devices.currentInterface.device();
    const auto show = [&](const QString &text, bool isPaused) {
        features().rules.countdown.showCountdown(device, text, isPaused);
    };
    show(u"...in 00:01:00"_s, false);
    auto *label = part<QLabel>(u"timerLabel"_s);
    const QWidget *row = label->parentWidget();
    const QString name = row->accessibleName();
    show(u"...in 00:00:59"_s, false);
    EXPECT_EQ(row->accessibleName(), name) << "nothing is announced";
    EXPECT_EQ(label->accessibleName(), u"...in 00:00:59"_s) << "for who asks";
    show(u"...in 00:00:59 (paused)"_s, true);
    EXPECT_EQ(row->accessibleName(), u"Countdown paused"_s);
    show(u"...in 00:00:58"_s, false);
    EXPECT_EQ(row->accessibleName(), u"Countdown resumed"_s);
}

TEST_F(UserInterfaceTest, CloseWindowClosesTheOneThatIsInUse)
{
    desktop->trayHost.become(true);
    features().presence.goTo(Destination::SavedItems);
    QCoreApplication::processEvents();
    QWidget *const other = QApplication::activeWindow();
    ASSERT_NE(other, nullptr);
    ASSERT_NE(other, window);
    features().presence.closeWindow();
    EXPECT_FALSE(other->isVisible());
    EXPECT_TRUE(window->isVisible());
    window->activateWindow();
    QCoreApplication::processEvents();
    features().presence.closeWindow();
    EXPECT_FALSE(window->isVisible());
    QCoreApplication::processEvents();
    features().presence.closeWindow();
    features().presence.openWindow();
    EXPECT_TRUE(window->isVisible());
}

TEST_F(UserInterfaceTest, TheStateLineSaysInterfaceLinkAndAddressAsOne)
{
    const auto *header = part<QWidget>(u"portName"_s)->parentWidget();
    const QString said = header->accessibleName();
    const QString device = features().devices.currentInterface.device();
    EXPECT_TRUE(said.contains(device)) << said.toStdString();
    EXPECT_TRUE(said.contains(u"Link active"_s)) << said.toStdString();
    EXPECT_TRUE(said.contains(features().mainWindow.state().ipAddress)) << said.toStdString();
    machine.settings.set(keys::externalIPAddress, u"203.0.113.9"_s);
    EXPECT_EQ(header->accessibleName(), said);
}

/// With the window of the saved items open, and one address in it.
class UserInterfaceSavedItems : public UserInterfaceTest
{
protected:
    UserInterfaceSavedItems()
    {
        machine.settings.set(keys::savedAddresses,
            QVariantMap{{address,
                QVariantMap{{savedentry::address, address}, {savedentry::name, u"Desk"_s}}}});
        turn();
    }
    void turn()
    {
        machine.scheduler.runPending();
        for (int round = 0; round < 5; ++round) {
            QCoreApplication::processEvents();
        }
    }
    /// Types it for the name of the address, and leaves it there.
    void type(const QString &text)
    {
        features().presence.goTo(Destination::SavedItems);
        turn();
        for (QWidget *widget : QApplication::allWidgets()) {
            auto *tokens = qobject_cast<TokenField *>(widget);
            if (tokens != nullptr && tokens->isVisible() &&
                tokens->accessibleName() == u"Addresses"_s) {
                Q_EMIT tokens->opened(0);
                break;
            }
        }
        turn();
        auto *popover = qobject_cast<Popover *>(QApplication::activePopupWidget());
        ASSERT_NE(popover, nullptr);
        popover->findChild<QLineEdit *>()->setText(text);
    }
    QString saved()
    {
        return machine.settings.getDictionary(keys::savedAddresses)
            .value(address)
            .toMap()
            .value(savedentry::name)
            .toString();
    }

    const QString address = u"02:00:5e:00:53:0a"_s;
};

TEST_F(UserInterfaceSavedItems, ANameThatIsTypedIsSavedHoweverItIsLeft)
{
    type(u"Hidden"_s);
    features().presence.hideWindow();
    EXPECT_EQ(saved(), u"Hidden"_s);
    turn();
    type(u"Closed"_s);
    QApplication::activePopupWidget()->parentWidget()->window()->close();
    EXPECT_EQ(saved(), u"Closed"_s);
    turn();
    type(u"Quit"_s);
    features().presence.quitFromSysMenu();
    EXPECT_EQ(saved(), u"Quit"_s);
    turn();
    type(u"Elsewhere"_s);
    QApplication::activePopupWidget()->close();
    EXPECT_EQ(saved(), u"Elsewhere"_s);
    turn();
    type(u"Ended"_s);
    desktop.reset();
    EXPECT_EQ(saved(), u"Ended"_s);
}

TEST_F(UserInterfaceSavedItems, AnEntryThatGoesIsNotBroughtBackByTheNameTypedForIt)
{
    type(u"Late"_s);
    machine.settings.changeFromOutside(keys::savedAddresses, QVariantMap{});
    features().presence.hideWindow();
    turn();
    EXPECT_EQ(saved(), QString());
}

} // namespace
} // namespace quillon::test
