// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/MainWindow.h"

#include "ui/theme/Theme.h"
#include "ui/widgets/InlineLine.h"
#include "ui/window/FactsCard.h"
#include "ui/window/HardwareRow.h"
#include "unit/ui/WindowFixture.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QStyleOptionComboBox>
#include <QTranslator>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

/// A language in which everything takes half as much room again.
class WordyLanguage : public QTranslator
{
public:
    QString translate(const char *, const char *text, const char *, int) const override
    {
        const QString english = QString::fromUtf8(text);
        return english + QString(english.size() / 2 + 1, u'n');
    }
    bool isEmpty() const override { return false; }
};

class MainWindowTest : public WindowFixture
{
protected:
    MainWindowTest()
    {
        theme.apply();
        QObject::connect(&presence, &Presence::terminated, [this] { ++terminations; });
        makeView();
    }

    void makeView()
    {
        view = std::make_unique<MainWindow>(models(), theme, taskBar);
        view->facts().add(new HardwareRow(window, theme));
        presence.openWindow();
    }

    MainWindow::Models models() { return {window, readMe, presence}; }

    QString shownIn(const char *row) const
    {
        return view->findChild<RowButton *>(QString::fromLatin1(row))->value();
    }

    template <typename T>
    T *named(const char *accessibleName) const
    {
        for (T *widget : view->findChildren<T *>()) {
            if (widget->accessibleName() == QLatin1String(accessibleName)) {
                return widget;
            }
        }
        ADD_FAILURE() << "nothing is called " << accessibleName;
        return nullptr;
    }

    /// The window anew, without the helper, in a language that needs more room.
    void speakWordily()
    {
        WordyLanguage language;
        QCoreApplication::installTranslator(&language);
        readMe.setHelperInstalled(false);
        makeView();
        QCoreApplication::removeTranslator(&language);
        QCoreApplication::processEvents();
    }

    void expectNothingCutOff() const
    {
        for (QWidget *widget : view->findChildren<QWidget *>()) {
            const bool hasText = qobject_cast<QLabel *>(widget) != nullptr ||
                                 qobject_cast<QPushButton *>(widget) != nullptr;
            if (!hasText || !widget->isVisible()) {
                continue;
            }
            const auto *label = qobject_cast<QLabel *>(widget);
            if (label != nullptr && label->wordWrap()) {
                EXPECT_GE(label->height(), label->heightForWidth(label->width()))
                    << label->text().toStdString();
            } else {
                EXPECT_GE(widget->width(), widget->minimumSizeHint().width())
                    << widget->accessibleName().toStdString();
                EXPECT_GE(widget->height(), widget->minimumSizeHint().height());
            }
        }
    }

    void trigger(const QKeySequence &keys)
    {
        for (QAction *action : view->actions()) {
            if (action->shortcut() == keys) {
                action->trigger();
                return;
            }
        }
        ADD_FAILURE() << "no such shortcut";
    }

    Theme theme;
    FakeTaskBar taskBar;
    int terminations = 0;
    std::unique_ptr<MainWindow> view;
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

TEST_F(MainWindowTest, NothingIsMadeForTheDisplayBeforeTheWindowIsShown)
{
    view = std::make_unique<MainWindow>(models(), theme, taskBar);
    presence.showMenuBarItem(true);
    presence.setStatusItemAvailable(true);
    settings.set(keys::hideDock, true);
    presence.updateDock();
    EXPECT_EQ(view->windowHandle(), nullptr);
    EXPECT_FALSE(taskBar.skipped);
    EXPECT_FALSE(view->testAttribute(Qt::WA_SetWindowIcon));
    presence.openWindow();
    EXPECT_TRUE(taskBar.skipped);
    EXPECT_FALSE(view->testAttribute(Qt::WA_SetWindowIcon)) << "the icon delays the window";
    QCoreApplication::processEvents();
    EXPECT_FALSE(view->windowIcon().pixmap(16).isNull());
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

TEST_F(MainWindowTest, AChoiceSelectsTheInterfaceAndIsShownOnceItIsSelected)
{
    auto *selector = named<QComboBox>("Interface");
    selector->setCurrentIndex(0);
    Q_EMIT selector->activated(selector->findData(wifi));
    EXPECT_EQ(selector->currentText(), wired) << "still the selected one";
    scheduler.runPending();
    EXPECT_EQ(current.device(), wifi);
    window.populateSelectionButton();
    EXPECT_EQ(selector->currentText(), wifi);
}

TEST_F(MainWindowTest, ItsListHoldsTheInterfacesThatAreKnownWhenItOpens)
{
    host.plug({u"Ethernet"_s, u"enp9s0"_s, {}, u"3c:22:fb:00:00:09"_s, {}});
    devices.updateNetWorkInterfaces();
    auto *selector = named<QComboBox>("Interface");
    EXPECT_EQ(selector->count(), 2);
    selector->showPopup();
    EXPECT_EQ(selector->count(), 3);
    selector->hidePopup();
}

QStyle::State stateOf(const QComboBox &selector)
{
    // What a style is told of a button is protected.
    struct Told : QComboBox
    {
        using QComboBox::initStyleOption;
    };
    QStyleOptionComboBox told;
    (selector.*&Told::initStyleOption)(&told);
    return told.state;
}

TEST_F(MainWindowTest, TheSelectorLosesItsEmphasisWhenTheModelSaysSo)
{
    auto *selector = named<QComboBox>("Interface");
    selector->setAttribute(Qt::WA_UnderMouse);
    ASSERT_TRUE(stateOf(*selector).testFlag(QStyle::State_MouseOver));
    window.resetInfoButtons();
    EXPECT_FALSE(stateOf(*selector).testFlag(QStyle::State_MouseOver));
}

TEST_F(MainWindowTest, TheSelectorLosesItsEmphasisWhenItsListCloses)
{
    auto *selector = named<QComboBox>("Interface");
    selector->setAttribute(Qt::WA_UnderMouse);
    selector->showPopup();
    ASSERT_TRUE(stateOf(*selector).testFlag(QStyle::State_On));
    selector->hidePopup();
    EXPECT_FALSE(stateOf(*selector).testFlag(QStyle::State_On));
    EXPECT_FALSE(stateOf(*selector).testFlag(QStyle::State_MouseOver));
    EXPECT_FALSE(stateOf(*selector).testFlag(QStyle::State_Sunken));
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

TEST_F(MainWindowTest, TheHintIsDrawnInTheModelsStyle)
{
    readMe.setHelperInstalled(false);
    const auto *hint = named<QPushButton>("Helper hint");
    const auto look = ReadMeModel::style();
    EXPECT_EQ(look.pointSize, 14);
    EXPECT_EQ(hint->font().pointSize(), look.pointSize);
    EXPECT_TRUE(hint->font().bold());
    const QColor color = hint->palette().color(QPalette::ButtonText);
    EXPECT_NEAR(color.redF(), look.red, 0.005);
    EXPECT_NEAR(color.greenF(), look.green, 0.005);
    EXPECT_NEAR(color.blueF(), look.blue, 0.005);
    EXPECT_NEAR(color.alphaF(), look.alpha, 0.005);
}

TEST_F(MainWindowTest, ItsButtonsChangeTheAddress)
{
    named<QPushButton>("Randomize address")->click();
    scheduler.runPending();
    EXPECT_EQ(addressOf(wired), u"AA:01:02:03:04:05"_s);
    named<QPushButton>("Restore hardware address")->click();
    scheduler.runPending();
    EXPECT_EQ(addressOf(wired), u"3C:22:FB:00:00:01"_s);
    window.editField(u"02:00:5e:10:ab:cd"_s);
    named<QPushButton>("Apply address")->click();
    scheduler.runPending();
    EXPECT_EQ(addressOf(wired), u"02:00:5E:10:AB:CD"_s);
}

TEST_F(MainWindowTest, AButtonSaysInItsToolTipWhatItDoesOrWhyItDoesNothing)
{
    const auto *randomize = named<QPushButton>("Randomize address");
    const QString does = randomize->toolTip();
    EXPECT_EQ(does, randomize->accessibleDescription());
    settings.set(keys::currentInterfaceDict, QVariantMap());
    window.populateSelectionButton();
    for (const char *name : {"Apply address", "Randomize address", "Restore hardware address"}) {
        EXPECT_FALSE(named<QPushButton>(name)->isEnabled()) << name;
        EXPECT_TRUE(named<QPushButton>(name)->toolTip().startsWith(u"No interface is selected"_s))
            << name;
        EXPECT_EQ(
            named<QPushButton>(name)->accessibleDescription(), named<QPushButton>(name)->toolTip())
            << name;
    }
    select(wired);
    EXPECT_TRUE(randomize->isEnabled());
    EXPECT_EQ(randomize->toolTip(), does);
    EXPECT_EQ(randomize->accessibleDescription(), does);
}

TEST_F(MainWindowTest, ReturnInTheFieldAppliesOnlyWhatCanBeApplied)
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

TEST_F(MainWindowTest, WithoutTheHelperItOffersToInstallIt)
{
    auto *install = view->findChild<QPushButton *>(u"installButton"_s);
    EXPECT_EQ(install->accessibleName(), u"Install helper"_s);
    EXPECT_FALSE(install->isVisible());
    window.setHelperInstalled(false);
    readMe.setHelperInstalled(false);
    EXPECT_TRUE(install->isVisible());
    EXPECT_TRUE(named<QPushButton>("Helper hint")->isVisible());
    EXPECT_FALSE(named<QLineEdit>("Address")->isEnabled());
    install->click();
    EXPECT_TRUE(machine.helper.journal().contains(u"install"_s));
    readMe.setInstalling(true);
    EXPECT_EQ(install->text(), u"Installing…"_s);
    machine.helper.clearJournal();
    install->click();
    scheduler.runPending();
    EXPECT_FALSE(machine.helper.journal().contains(u"install"_s)) << "once is enough";
}

TEST_F(MainWindowTest, TheHelperIsExplainedOnDemand)
{
    readMe.setHelperInstalled(false);
    auto *explanation = named<QLabel>("About the helper");
    EXPECT_FALSE(explanation->isVisible());
    named<QPushButton>("Helper hint")->click();
    EXPECT_TRUE(explanation->isVisible());
    EXPECT_EQ(explanation->text(), ReadMeModel::text());
    named<QPushButton>("Helper hint")->click();
    EXPECT_FALSE(explanation->isVisible());
}

TEST_F(MainWindowTest, TheHardwareAddressIsRestoredFromItsPopover)
{
    auto *row = view->findChild<RowButton *>(u"hardwareButton"_s);
    auto *restore = named<QPushButton>("Restore hardware address");
    EXPECT_FALSE(restore->isVisible());
    row->click();
    EXPECT_TRUE(restore->isVisible());
    EXPECT_TRUE(restore->isEnabled());
    restore->click();
    EXPECT_FALSE(restore->isVisible()) << "it closes with the act";
    scheduler.runPending();
    EXPECT_EQ(addressOf(wired), u"3C:22:FB:00:00:01"_s);
    select(wired);
    EXPECT_FALSE(restore->isEnabled());
}

TEST_F(MainWindowTest, TheLineBelowTheFieldSaysWhatTheModelSays)
{
    const auto *line = view->findChild<InlineLine *>();
    EXPECT_EQ(line->text(), window.state().fieldLine.text);
    EXPECT_EQ(line->kind(), InlineLine::Kind::Muted);
    window.editField(u"03:00:5e:10:ab:cd"_s);
    EXPECT_EQ(line->text(), u"Group address: most adapters refuse it."_s);
    EXPECT_EQ(line->kind(), InlineLine::Kind::Notice);
    machine.helper.mood = FakeHelper::Mood::Refusing;
    window.changeMacAddress();
    scheduler.runPending();
    EXPECT_EQ(line->kind(), InlineLine::Kind::Danger);
    EXPECT_TRUE(line->text().startsWith(u"Not changed: "_s)) << line->text().toStdString();
}

TEST_F(MainWindowTest, KeysDoWhatTheirControlsDo)
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

TEST_F(MainWindowTest, TheFieldHasTheKeyboardFirst)
{
    EXPECT_EQ(view->focusWidget(), named<QLineEdit>("Address"));
}

TEST_F(MainWindowTest, TheFieldGetsTheKeyboardOnceItCanBeUsed)
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

TEST_F(MainWindowTest, ClosedWithTheStatusItemInSightItOnlyHides)
{
    view->setReachableWhenClosed(true);
    view->close();
    EXPECT_FALSE(view->isVisible());
    EXPECT_EQ(terminations, 0);
    presence.openWindow();
    EXPECT_TRUE(view->isVisible());
}

TEST_F(MainWindowTest, SaysWhetherItIsOpen)
{
    EXPECT_TRUE(presence.isWindowShown());
    presence.hideWindow();
    EXPECT_FALSE(presence.isWindowShown());
    presence.minimizeWindow();
    EXPECT_TRUE(view->isMinimized());
    EXPECT_TRUE(presence.isWindowShown()) << "in the list of open windows it is in reach";
    presence.openWindow();
    EXPECT_FALSE(view->isMinimized());
}

TEST_F(MainWindowTest, OnlyAMinimizedWindowGoesWhenTheStatusItemIsBack)
{
    presence.hideMinimizedWindow();
    EXPECT_TRUE(view->isVisible());
    presence.minimizeWindow();
    presence.hideMinimizedWindow();
    EXPECT_FALSE(view->isVisible());
}

TEST_F(MainWindowTest, ClosedWithNothingElseInSightItEndsTheProgram)
{
    view->close();
    EXPECT_EQ(terminations, 1);
}

TEST_F(MainWindowTest, TheQuitCommandEndsTheProgram)
{
    view->setReachableWhenClosed(true);
    trigger(Qt::CTRL | Qt::Key_Q);
    EXPECT_EQ(terminations, 1);
}

TEST_F(MainWindowTest, WithTheDockIconHiddenQuittingOnlyHides)
{
    settings.set(keys::hideDock, true);
    presence.showMenuBarItem(true);
    presence.setStatusItemAvailable(true);
    trigger(Qt::CTRL | Qt::Key_Q);
    EXPECT_EQ(terminations, 0);
    EXPECT_FALSE(view->isVisible());
}

TEST_F(MainWindowTest, ItComesToTheFrontWhenItIsOpenedOrTheDockIconComesOrGoes)
{
    QWidget other;
    const auto isInFront = [&](const std::function<void()> &act) {
        other.show();
        other.activateWindow();
        QCoreApplication::processEvents();
        EXPECT_FALSE(view->isActiveWindow());
        act();
        QCoreApplication::processEvents();
        return view->isVisible() && !view->isMinimized() && view->isActiveWindow();
    };
    EXPECT_TRUE(isInFront([this] { presence.openWindow(); }));
    EXPECT_TRUE(isInFront([this] { presence.updateDock(); }));
    presence.hideWindow();
    EXPECT_FALSE(isInFront([this] { presence.updateDock(); })) << "one that is not open stays away";
    EXPECT_TRUE(isInFront([this] { presence.openWindow(); }));
    presence.minimizeWindow();
    EXPECT_FALSE(isInFront([this] { presence.updateDock(); }));
}

TEST_F(MainWindowTest, ItsTaskBarEntryFollowsTheDockIcon)
{
    presence.showMenuBarItem(true);
    presence.setStatusItemAvailable(true);
    EXPECT_FALSE(taskBar.skipped);
    settings.set(keys::hideDock, true);
    presence.updateDock();
    EXPECT_TRUE(taskBar.skipped);
    taskBar.skipped = false;
    presence.hideWindow();
    presence.openWindow();
    EXPECT_TRUE(taskBar.skipped) << "said again each time that the window is shown";
    presence.setStatusItemAvailable(false);
    EXPECT_FALSE(taskBar.skipped);
}

TEST_F(MainWindowTest, NothingIsCutOffInAWordyLanguage)
{
    speakWordily();
    expectNothingCutOff();
}

TEST_F(MainWindowTest, NothingIsCutOffInLargeTypeAndFromRightToLeft)
{
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPointSizeF(2 * usual.pointSizeF());
    QApplication::setFont(large);
    QApplication::setLayoutDirection(Qt::RightToLeft);
    theme.apply();
    speakWordily();
    expectNothingCutOff();
    QApplication::setLayoutDirection(Qt::LeftToRight);
    QApplication::setFont(usual);
}

TEST_F(MainWindowTest, TheTabKeyGoesFromTopToBottom)
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
