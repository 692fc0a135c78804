// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/rules/RulesPreferencesView.h"

#include "ui/rules/RuleFormView.h"
#include "ui/rules/RuleRowDelegate.h"
#include "ui/rules/RulesListView.h"
#include "ui/theme/Theme.h"
#include "ui/widgets/Strip.h"
#include "unit/presentation/rules/RuleEditorFixture.h"

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QTabBar>
#include <QToolButton>
#include <QWheelEvent>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using Page = RulesPreferencesViewController::Page;
using Tab = RulesPreferencesViewController::Tab;

class RulesPreferencesViewTest : public RuleEditorFixture
{
protected:
    RulesPreferencesViewTest()
    {
        theme.setAnimated(false);
        editor.chooseTab(Tab::Rules);
        pane.resize(640, 460);
        pane.show();
        pane.activateWindow();
        settle();
    }
    ~RulesPreferencesViewTest() override { pane.hide(); }

    static void settle()
    {
        for (int round = 0; round < 3; ++round) {
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QCoreApplication::processEvents();
        }
    }
    static void press(int key, Qt::KeyboardModifiers modifiers = {}, bool isRepeated = false)
    {
        QWidget *widget = QApplication::focusWidget();
        ASSERT_NE(widget, nullptr);
        QKeyEvent down(QEvent::KeyPress, key, modifiers, {}, isRepeated);
        QApplication::sendEvent(widget, &down);
        settle();
    }
    RulesListView &list() { return *pane.findChild<RulesListView *>(); }
    RuleFormView &formView() { return *pane.findChild<RuleFormView *>(); }
    QLineEdit &entry(const QString &name)
    {
        for (auto *found : formView().findChildren<QLineEdit *>()) {
            if (found->accessibleName() == name) {
                return *found;
            }
        }
        qFatal("no %s", qUtf8Printable(name));
    }
    QComboBox &popUp(const QString &name)
    {
        for (auto *found : formView().findChildren<QComboBox *>()) {
            if (found->accessibleName() == name) {
                return *found;
            }
        }
        qFatal("no %s", qUtf8Printable(name));
    }
    static void sendMouse(QWidget &widget, QEvent::Type type, const QPoint &place)
    {
        const auto buttons = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(
            type, place, widget.mapToGlobal(place), Qt::LeftButton, buttons, Qt::NoModifier);
        QApplication::sendEvent(&widget, &event);
    }
    void click(const QPoint &place, QEvent::Type type)
    {
        sendMouse(*list().viewport(), type, place);
    }
    /// As it comes from a window system, all of it.
    static void doubleClick(QWidget &widget, const QPoint &place)
    {
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                 QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease}) {
            sendMouse(widget, type, place);
        }
        settle();
    }
    /// Where a row says what it does.
    QPoint placeInRow(int row)
    {
        return RuleRowDelegate::placesIn(
            list().visualRect(list().model()->index(row, 0)), {}, Qt::LeftToRight)
            .sentence.center();
    }
    QPushButton &button(const QString &text)
    {
        for (auto *found : pane.findChildren<QPushButton *>()) {
            if (found->text() == text) {
                return *found;
            }
        }
        qFatal("no %s", qUtf8Printable(text));
    }
    Rule ruleAt(int row) { return queries.ruleWithID(rows.state().rows.at(row).objID); }

    Theme theme;
    RulesPreferencesView pane{{editor, rows, form}, theme, {new QWidget, new QLineEdit}};
};

TEST_F(RulesPreferencesViewTest, SaysOfEachRowWhatItDoesAndWhetherItIsOn)
{
    addRule({.name = u"<b>a</b>"_s});
    evaluate(en0, RuleChange::None);
    settle();
    const auto *accessible = QAccessible::queryAccessibleInterface(&list());
    ASSERT_EQ(accessible->childCount(), 1);
    const auto *row = accessible->child(0);
    EXPECT_EQ(row->text(QAccessible::Name), u"<b>a</b>"_s);
    EXPECT_TRUE(row->state().checked);
    EXPECT_EQ(row->text(QAccessible::Description),
        u"On any network, give Ethernet \u00B7 en0 a random address once. In force now."_s);
    EXPECT_EQ(list().model()->index(0, 0).data(RuleRowDelegate::BadgeRole), u"Active"_s);
}

TEST_F(RulesPreferencesViewTest, ASwitchIsClickedOnce)
{
    addRule({.name = u"a"_s, .enabled = false});
    settle();
    const QPoint toggle = RuleRowDelegate::placesIn(
        list().visualRect(list().model()->index(0, 0)), {}, Qt::LeftToRight)
                              .toggle.center();
    click(toggle, QEvent::MouseButtonPress);
    click(toggle, QEvent::MouseButtonRelease);
    EXPECT_TRUE(ruleAt(0).enabled());
    EXPECT_EQ(editor.state().page, Page::List);
    click(toggle, QEvent::MouseButtonDblClick);
    EXPECT_EQ(editor.state().page, Page::List) << "a second click is no wish to edit";
}

TEST_F(RulesPreferencesViewTest, TheKeyboardSwitchesDuplicatesDeletesAndUndoes)
{
    addRule({.name = u"a"_s, .enabled = false});
    settle();
    list().setFocus();
    press(Qt::Key_Space);
    EXPECT_TRUE(ruleAt(0).enabled());
    press(Qt::Key_Space, {}, true);
    EXPECT_TRUE(ruleAt(0).enabled()) << "a held key switches once";
    press(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(names(), (QStringList{u"a"_s, u"a copy"_s}));
    scheduler.runPending();
    press(Qt::Key_Delete);
    EXPECT_EQ(names(), QStringList{u"a"_s});
    scheduler.runPending();
    press(Qt::Key_Z, Qt::ControlModifier);
    scheduler.runPending();
    EXPECT_EQ(names(), (QStringList{u"a"_s, u"a copy"_s}));
    press(Qt::Key_Return);
    EXPECT_EQ(editor.state().page, Page::NetworkForm);
}

TEST_F(RulesPreferencesViewTest, ANameIsEditedInItsPlace)
{
    addRule({.name = u"a"_s});
    settle();
    list().setFocus();
    press(Qt::Key_F2);
    auto *field = list().findChild<QLineEdit *>(u"nameCellField"_s);
    ASSERT_NE(field, nullptr);
    ASSERT_TRUE(field->hasFocus());
    field->insert(u"b"_s);
    field->setModified(true);
    // What is told of the rule meanwhile takes nothing away.
    ruleAt(0).setVendor(u"x"_s);
    context().processPendingChanges();
    settle();
    press(Qt::Key_Return);
    EXPECT_EQ(names(), QStringList{u"b"_s});
    EXPECT_EQ(editor.state().page, Page::List) << "the key was the field's";
}

TEST_F(RulesPreferencesViewTest, TheFormMirrorsItsModelAndSavesWhatItShows)
{
    editor.addRule();
    settle();
    EXPECT_TRUE(entry(u"Name"_s).hasFocus());
    entry(u"Name"_s).insert(u"Line\nbreak <i>"_s);
    Q_EMIT entry(u"Name"_s).textEdited(entry(u"Name"_s).text());
    popUp(u"Interface"_s).setCurrentIndex(1);
    Q_EMIT popUp(u"Interface"_s).activated(1);
    Q_EMIT popUp(u"Action"_s).activated(1);
    Q_EMIT popUp(u"Repeat"_s).activated(1);
    EXPECT_TRUE(entry(u"Minutes"_s).isEnabled());
    entry(u"Minutes"_s).setText(u"12x"_s);
    Q_EMIT entry(u"Minutes"_s).textEdited(u"12x"_s);
    EXPECT_EQ(entry(u"Minutes"_s).text(), u"30"_s) << "what is no minutes is not shown";
    EXPECT_EQ(popUp(u"Network"_s).count(), 1);
    entry(u"Name"_s).setFocus();
    press(Qt::Key_Return);
    ASSERT_EQ(rows.state().rows.size(), 1);
    const RuleValues &saved = rows.state().rows.first().values;
    EXPECT_EQ(saved.device, en0);
    EXPECT_EQ(saved.changeAction, Rule::every);
    EXPECT_FALSE(saved.name.contains(u'\n'));
    EXPECT_TRUE(list().hasFocus()) << "with the new rule";
}

TEST_F(RulesPreferencesViewTest, EscapeLeavesTheForm)
{
    editor.addLoginRule();
    settle();
    EXPECT_FALSE(popUp(u"Network"_s).isVisible());
    EXPECT_FALSE(popUp(u"Action"_s).isVisible());
    press(Qt::Key_Escape);
    EXPECT_EQ(editor.state().page, Page::List);
    EXPECT_TRUE(rows.state().rows.isEmpty());
}

TEST_F(RulesPreferencesViewTest, AWarningIsTakenAway)
{
    editor.showNetworkWarning();
    auto *strip = pane.findChild<Strip *>();
    EXPECT_TRUE(strip->isVisible());
    Q_EMIT strip->dismissed();
    EXPECT_FALSE(strip->isVisible());
}

TEST_F(RulesPreferencesViewTest, TheTabsFollowTheSettingAndSetIt)
{
    auto *tabs = pane.findChild<QTabBar *>();
    EXPECT_EQ(tabs->currentIndex(), 1);
    tabs->setCurrentIndex(0);
    EXPECT_EQ(settings.getInteger(keys::customTabIndex), 0);
    settings.set(keys::customTabIndex, 1);
    EXPECT_EQ(tabs->currentIndex(), 1);
}

TEST_F(RulesPreferencesViewTest, ADoubleClickOnARowEdits)
{
    addRule({.name = u"a"_s});
    addRule({.name = u"b"_s});
    settle();
    doubleClick(*list().viewport(), placeInRow(1));
    EXPECT_EQ(editor.state().page, Page::NetworkForm);
    EXPECT_EQ(form.state().name, u"b"_s);
}

TEST_F(RulesPreferencesViewTest, TheSecondClickOnSaveIsNoneOnTheRowThatComesUnderIt)
{
    addRule({.name = u"a"_s});
    settle();
    doubleClick(*list().viewport(), placeInRow(0));
    ASSERT_EQ(editor.state().page, Page::NetworkForm);
    editor.chooseOK();
    settle();
    click(placeInRow(0), QEvent::MouseButtonDblClick);
    click(placeInRow(0), QEvent::MouseButtonRelease);
    EXPECT_EQ(editor.state().page, Page::List);
}

TEST_F(RulesPreferencesViewTest, ADoubleClickOnACommandActsOnce)
{
    for (const auto *name : {"a", "b", "c"}) {
        addRule({.name = QString::fromLatin1(name)});
    }
    rows.selectRow(0);
    settle();
    doubleClick(button(u"Delete"_s), button(u"Delete"_s).rect().center());
    EXPECT_EQ(names(), (QStringList{u"b"_s, u"c"_s}));
    doubleClick(button(u"Duplicate"_s), button(u"Duplicate"_s).rect().center());
    EXPECT_EQ(names(), (QStringList{u"b"_s, u"b copy"_s, u"c"_s}));
}

TEST_F(RulesPreferencesViewTest, OneAddressIsMadeForADoubleClick)
{
    editor.addRule();
    form.actionSelectionChanged(Rule::changeAddress);
    settle();
    for (auto *made : formView().findChildren<QToolButton *>()) {
        if (made->accessibleName() == u"New Random Address"_s) {
            doubleClick(*made, made->rect().center());
        }
    }
    EXPECT_EQ(settings.getDictionary(keys::savedAddresses).size(), 1);
    EXPECT_EQ(form.state().addresses.at(form.state().address).stored,
        settings.getDictionary(keys::savedAddresses).firstKey());
}

TEST_F(RulesPreferencesViewTest, TheWheelOverAPopUpScrollsThePage)
{
    editor.addRule();
    settle();
    QComboBox &interface = popUp(u"Interface"_s);
    const auto turnWheel = [&interface] {
        QWheelEvent event(QPointF(5, 5), interface.mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120),
            Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&interface, &event);
    };
    ASSERT_FALSE(interface.hasFocus());
    turnWheel();
    EXPECT_EQ(form.state().device, 0);
    EXPECT_FALSE(interface.hasFocus());
    interface.setFocus();
    turnWheel();
    EXPECT_EQ(form.state().device, 1) << "the user is at it";
}

TEST_F(RulesPreferencesViewTest, NoRowMovesWhenAWarningComes)
{
    addRule({.name = u"a"_s});
    settle();
    const QPoint before = list().mapTo(&pane, QPoint());
    const QPoint buttonBefore = button(u"Delete"_s).mapTo(&pane, QPoint());
    editor.showNetworkWarning();
    settle();
    auto *strip = pane.findChild<Strip *>();
    ASSERT_TRUE(strip->isVisible());
    EXPECT_EQ(list().mapTo(&pane, QPoint()), before);
    EXPECT_EQ(button(u"Delete"_s).mapTo(&pane, QPoint()), buttonBefore);
    EXPECT_GT(strip->mapTo(&pane, QPoint()).y(), before.y());
    editor.addRule();
    settle();
    EXPECT_TRUE(strip->isVisible()) << "also while a form is open";
    editor.cancelRule();
    settle();
    EXPECT_TRUE(strip->isVisible());
}

TEST_F(RulesPreferencesViewTest, ThePaneIsNotTallerThanItsPage)
{
    const int empty = pane.heightForWidth(640);
    editor.addRule();
    settle();
    const int filledIn = pane.heightForWidth(640);
    EXPECT_LT(empty, filledIn) << "the hidden form takes no room";
}

TEST_F(RulesPreferencesViewTest, TheNamesAreCollectedWhenARenamingBegins)
{
    const Rule rule = addRule({.name = u"a"_s});
    settle();
    rule.object()->setPrimitiveValue(model::rule::name, u"silent"_s);
    EXPECT_NE(queries.namesArray(), QStringList{u"silent"_s});
    list().setFocus();
    press(Qt::Key_F2);
    EXPECT_EQ(queries.namesArray(), QStringList{u"silent"_s});
}

TEST_F(RulesPreferencesViewTest, ARenamingIsGivenUpByEscape)
{
    addRule({.name = u"a"_s});
    settle();
    list().setFocus();
    press(Qt::Key_F2);
    auto *field = list().findChild<QLineEdit *>(u"nameCellField"_s);
    ASSERT_NE(field, nullptr);
    field->setText(u"b"_s);
    field->setModified(true);
    press(Qt::Key_Escape);
    EXPECT_EQ(names(), QStringList{u"a"_s});
    EXPECT_EQ(editor.state().page, Page::List);
}

TEST_F(RulesPreferencesViewTest, NothingIsSavedForNoInterface)
{
    settings.set(keys::deviceDict, QVariantMap());
    editor.addRule();
    settle();
    EXPECT_FALSE(button(u"Save Rule"_s).isEnabled());
    press(Qt::Key_Return);
    EXPECT_TRUE(rows.state().rows.isEmpty());
}

TEST_F(RulesPreferencesViewTest, TheButtonsOpenTheForms)
{
    button(u"Network Rule"_s).click();
    settle();
    EXPECT_EQ(editor.state().page, Page::NetworkForm);
    button(u"Cancel"_s).click();
    button(u"Login Rule"_s).click();
    settle();
    EXPECT_EQ(editor.state().page, Page::LoginForm);
    EXPECT_TRUE(entry(u"Name"_s).hasFocus());
    button(u"Cancel"_s).click();
    button(u"New Network Rule"_s).click();
    EXPECT_EQ(editor.state().page, Page::NetworkForm) << "there is no rule yet";
    button(u"Save Rule"_s).click();
    settle();
    button(u"Edit"_s).click();
    EXPECT_EQ(editor.state().page, Page::NetworkForm);
    EXPECT_FALSE(form.state().isNew);
}

TEST_F(RulesPreferencesViewTest, ThousandsOfRulesAreShownByThoseInSight)
{
    for (int index = 0; index < 3000; ++index) {
        const Rule rule(context().insertNewObject(u"Rule"_s));
        rule.setName(u"Rule %1"_s.arg(index));
        rule.setDevice(en0);
        rule.setNetwork(anyNetwork);
    }
    context().processPendingChanges();
    settle();
    EXPECT_EQ(list().model()->rowCount(), 3000);
    list().setFocus();
    press(Qt::Key_End);
    EXPECT_EQ(rows.state().selectedRows, std::vector<qsizetype>{2999});
}

} // namespace
} // namespace quillon::test
