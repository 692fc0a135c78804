// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/rules/RulesPreferencesViewController.h"

#include "unit/presentation/rules/RuleEditorFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using namespace std::chrono_literals;
using Page = RulesPreferencesViewController::Page;
using Tab = RulesPreferencesViewController::Tab;

class RulesPreferencesViewControllerTest : public RuleEditorFixture
{
protected:
    RulesPreferencesViewControllerTest()
    {
        QObject::connect(&editor, &RulesPreferencesViewController::rulesDeleted,
            [this](qsizetype count) { deleted << count; });
    }
    Page page() const { return editor.state().page; }
    std::vector<qsizetype> selected() const { return rows.state().selectedRows; }
    const RulesTableModel::Row &row(qsizetype place) const { return rows.state().rows.at(place); }
    Rule ruleAt(qsizetype place) { return queries.ruleWithID(row(place).objID); }
    void add(const QString &name)
    {
        editor.addRule();
        form.setName(name);
        editor.chooseOK();
        scheduler.runPending();
    }

    QList<qsizetype> deleted;
};

TEST_F(RulesPreferencesViewControllerTest, AddsARuleFromTheForm)
{
    editor.addRule();
    EXPECT_EQ(page(), Page::NetworkForm);
    EXPECT_EQ(editedNetwork(), anyNetwork);
    form.setName(u"Every"_s);
    chooseDevice(en0);
    form.actionSelectionChanged(Rule::changeAddress);
    form.timerSelectionChanged(Rule::every);
    form.setMinutes(u"5"_s);
    const RuleValues shown = form.values();
    editor.chooseOK();
    EXPECT_EQ(page(), Page::List);
    EXPECT_FALSE(settings.get(keys::editingRuleNetwork).isValid());
    ASSERT_EQ(rows.state().rows.size(), 1);
    EXPECT_EQ(row(0).values, shown);
    EXPECT_FALSE(row(0).enabled) << "the user switches it on in the list";
    EXPECT_EQ(selected(), std::vector<qsizetype>{0});
    EXPECT_FALSE(context().hasChanges());
    EXPECT_EQ(hasRule(en0), 2);
}

TEST_F(RulesPreferencesViewControllerTest, SelectsTheLastRowWhichIsTheNewRule)
{
    addRule({.name = u"z"_s, .enabled = false});
    add(u"new"_s);
    EXPECT_EQ(names(), (QStringList{u"z"_s, u"new"_s}));
    EXPECT_EQ(selected(), std::vector<qsizetype>{1});
    // The next command puts it where it belongs.
    editor.switchRule(row(0).objID, true);
    scheduler.runPending();
    editor.switchRule(row(0).objID, false);
    EXPECT_EQ(names(), (QStringList{u"new"_s, u"z"_s}));
}

TEST_F(RulesPreferencesViewControllerTest, GivesNewRulesNamesOfTheirOwn)
{
    add(u"Home"_s);
    add(u"Home"_s);
    add(u"Home"_s);
    QStringList found = names();
    found.sort();
    EXPECT_EQ(found, (QStringList{u"Home"_s, u"Home (2)"_s, u"Home (3)"_s}));
}

TEST_F(RulesPreferencesViewControllerTest, SavesTheNetworkInUseAfterTheLookUps)
{
    join(u"Cafe"_s, homeBssid);
    editor.addRule();
    chooseNetwork(u"Cafe"_s);
    editor.chooseOK();
    EXPECT_TRUE(settings.getDictionary(keys::savedNetworks).contains(homeBssid));
    EXPECT_EQ(row(0).values.network, anyNetwork);
    EXPECT_EQ(row(0).values.ssid, QString());
    EXPECT_FALSE(row(0).values.ssidDefined);
    // The next one can be for it.
    editor.addRule();
    chooseNetwork(u"Cafe"_s);
    editor.chooseOK();
    EXPECT_EQ(ruleAt(selected().front()).network(), homeBssid);
}

TEST_F(RulesPreferencesViewControllerTest, SavesTheNetworkInUseForALoginRuleOrAnUpdateNever)
{
    join(u"Cafe"_s, homeBssid);
    editor.addLoginRule();
    editor.chooseOK();
    rows.selectRow(0);
    editor.editRule();
    editor.chooseOK();
    addRule({.name = u"network"_s});
    rows.selectRow(rows.placeOf(row(0).objID));
    editor.editRule();
    editor.chooseOK();
    EXPECT_TRUE(settings.getDictionary(keys::savedNetworks).isEmpty());
}

TEST_F(RulesPreferencesViewControllerTest, StoresTheUsualMinutesForAnEmptyField)
{
    settings.set(keys::defaultTimerMinutes, 17);
    editor.addRule();
    form.setMinutes({});
    editor.chooseOK();
    EXPECT_EQ(row(0).values.timerMins, 17);
}

TEST_F(RulesPreferencesViewControllerTest, AddsALoginRule)
{
    addRule({.name = u"z"_s, .device = en1, .enabled = false});
    editor.addLoginRule();
    EXPECT_EQ(page(), Page::LoginForm);
    EXPECT_FALSE(settings.get(keys::editingRuleNetwork).isValid());
    form.setName(u"Clean"_s);
    chooseDevice(en0);
    editor.chooseOK();
    EXPECT_EQ(page(), Page::List);
    const qsizetype place = selected().empty() ? -1 : selected().front();
    ASSERT_GE(place, 0);
    EXPECT_EQ(row(place).values.name, u"Clean"_s);
    EXPECT_TRUE(row(place).values.isLogin);
    EXPECT_EQ(row(place).values.network, QString());
    EXPECT_FALSE(row(place).enabled);
}

TEST_F(RulesPreferencesViewControllerTest, EditsTheRuleThatWasSelectedLast)
{
    addRule({.name = u"a"_s, .timerMins = 3});
    addRule({.name = u"b"_s, .timerMins = 4});
    editor.editRule();
    EXPECT_EQ(page(), Page::List) << "none is selected";
    rows.selectRows({0, 1}, 0);
    editor.editRule();
    EXPECT_EQ(page(), Page::NetworkForm);
    EXPECT_EQ(form.state().name, u"a"_s);
    form.setMinutes(u"9"_s);
    editor.chooseOK();
    EXPECT_EQ(row(0).values.timerMins, 9);
    EXPECT_EQ(row(1).values.timerMins, 4);
    EXPECT_EQ(row(0).values.name, u"a"_s);
    EXPECT_TRUE(row(0).enabled);
    EXPECT_TRUE(context().hasChanges()) << "saved with the next save";
}

TEST_F(RulesPreferencesViewControllerTest, EditsALoginRuleInItsOwnForm)
{
    addRule({.name = u"a"_s, .isLogin = true, .action = -1, .changeAction = -1});
    rows.selectRow(0);
    editor.editRule();
    EXPECT_EQ(page(), Page::LoginForm);
    form.setVendor(u"Harbor (02A0B1)"_s);
    editor.chooseOK();
    EXPECT_EQ(row(0).values.vendor, u"Harbor (02A0B1)"_s);
    EXPECT_EQ(row(0).values.action, -1);
    EXPECT_EQ(row(0).values.network, QString());
}

TEST_F(RulesPreferencesViewControllerTest, StoresAnyNetworkForOneThatIsNoLongerSaved)
{
    addRule({.name = u"a"_s, .device = en1, .network = homeBssid, .ssid = u"H"_s});
    rows.selectRow(0);
    editor.editRule();
    EXPECT_EQ(form.state().network, 0);
    editor.chooseOK();
    EXPECT_EQ(row(0).values.network, anyNetwork);
    EXPECT_EQ(row(0).values.ssid, QString());
}

TEST_F(RulesPreferencesViewControllerTest, CancelsWithoutATrace)
{
    editor.addRule();
    form.setName(u"no"_s);
    editor.cancelRule();
    EXPECT_EQ(page(), Page::List);
    EXPECT_TRUE(rows.state().rows.isEmpty());
    EXPECT_FALSE(settings.get(keys::editingRuleNetwork).isValid());
    editor.chooseOK();
    EXPECT_TRUE(rows.state().rows.isEmpty()) << "no form is open";
}

TEST_F(RulesPreferencesViewControllerTest, LeavesTheListAloneWhileAFormIsOpen)
{
    addRule({.name = u"a"_s});
    rows.selectRow(0);
    editor.addRule();
    form.setName(u"mine"_s);
    editor.addRule();
    editor.addLoginRule();
    editor.editRule();
    editor.deleteRule();
    editor.duplicateRule();
    editor.undo();
    EXPECT_EQ(page(), Page::NetworkForm);
    EXPECT_EQ(form.state().name, u"mine"_s);
    EXPECT_EQ(names(), QStringList{u"a"_s});
}

TEST_F(RulesPreferencesViewControllerTest, SavesNoNetworkBesideOneThatIsCalledByItsBssid)
{
    join(u"Cafe"_s, homeBssid);
    saveNetwork(officeBssid, u"W"_s, officeBssid, false);
    editor.addRule();
    chooseNetwork(officeBssid);
    editor.chooseOK();
    EXPECT_EQ(settings.getDictionary(keys::savedNetworks).keys(), QStringList{officeBssid});
    EXPECT_EQ(row(0).values.network, officeBssid);
}

TEST_F(RulesPreferencesViewControllerTest, OpensAnotherFormInPlaceOfOneThatNobodyTouched)
{
    const Rule rule = addRule({.name = u"a"_s});
    rows.selectRow(0);
    editor.editRule();
    editor.addLoginRule();
    EXPECT_EQ(page(), Page::LoginForm);
    editor.addRule();
    EXPECT_EQ(page(), Page::NetworkForm);
    EXPECT_TRUE(form.state().isNew);
    editor.chooseOK();
    EXPECT_EQ(rows.state().rows.size(), 2);
    EXPECT_EQ(rule.name(), u"a"_s) << "it is not the rule that was open before";
    EXPECT_EQ(editor.state().warning, QString());
}

TEST_F(RulesPreferencesViewControllerTest, SaysThatAnOpenFormIsToBeClosedFirst)
{
    editor.addRule();
    form.setName(u"mine"_s);
    editor.goTo(Destination::NewLoginRule);
    EXPECT_EQ(page(), Page::NetworkForm);
    EXPECT_EQ(form.state().name, u"mine"_s);
    EXPECT_EQ(editor.state().warning, u"Save or cancel this rule before you begin another one."_s);
    editor.cancelRule();
    editor.goTo(Destination::NewLoginRule);
    EXPECT_EQ(page(), Page::LoginForm);
}

TEST_F(RulesPreferencesViewControllerTest, SavesNoRuleForNoInterface)
{
    settings.set(keys::deviceDict, QVariantMap());
    editor.addRule();
    editor.chooseOK();
    EXPECT_EQ(page(), Page::NetworkForm);
    EXPECT_TRUE(rows.state().rows.isEmpty());
}

TEST_F(RulesPreferencesViewControllerTest, ClosesTheFormOfARuleThatGoes)
{
    const Rule rule = addRule({.name = u"a"_s});
    rows.selectRow(0);
    editor.editRule();
    context().deleteObject(rule.object());
    context().processPendingChanges();
    EXPECT_EQ(page(), Page::List);
    EXPECT_EQ(editor.state().warning, u"The rule that was open is not there any more."_s);
    EXPECT_FALSE(settings.get(keys::editingRuleNetwork).isValid());
}

TEST_F(RulesPreferencesViewControllerTest, FollowsARuleThatIsRenamedElsewhere)
{
    const Rule rule = addRule({.name = u"a"_s});
    rows.selectRow(0);
    editor.editRule();
    rule.setName(u"b"_s);
    context().processPendingChanges();
    EXPECT_EQ(form.state().name, u"b"_s);
}

TEST_F(RulesPreferencesViewControllerTest, DeletesAllThatIsSelectedAndSelectsWhatFollows)
{
    for (const auto *name : {"a", "b", "c", "d"}) {
        addRule({.name = QString::fromLatin1(name)});
    }
    rows.selectRows({1, 2});
    editor.deleteRule();
    scheduler.runPending();
    EXPECT_EQ(names(), (QStringList{u"a"_s, u"d"_s}));
    EXPECT_EQ(selected(), std::vector<qsizetype>{1});
    EXPECT_EQ(deleted, QList<qsizetype>{2});
    editor.deleteRule();
    EXPECT_EQ(selected(), std::vector<qsizetype>{0}) << "the last row";
    editor.deleteRule();
    EXPECT_EQ(selected(), std::vector<qsizetype>());
    editor.deleteRule();
    EXPECT_EQ(deleted, (QList<qsizetype>{2, 1, 1}));
}

TEST_F(RulesPreferencesViewControllerTest, BringsBackWhatWasDeleted)
{
    addRule({.name = u"a"_s});
    addRule({.name = u"b"_s});
    context().save();
    scheduler.runPending();
    int forgotten = 0;
    QObject::connect(
        &editor, &RulesPreferencesViewController::deletedForgotten, [&forgotten] { ++forgotten; });
    rows.selectRow(0);
    editor.deleteRule();
    scheduler.runPending();
    EXPECT_EQ(forgotten, 0);
    editor.restoreDeleted();
    scheduler.runPending();
    EXPECT_EQ(names(), (QStringList{u"a"_s, u"b"_s}));
    EXPECT_GT(forgotten, 0);
    EXPECT_FALSE(context().hasChanges());
}

TEST_F(RulesPreferencesViewControllerTest, DuplicatesAndSelectsTheRowAfterTheSelection)
{
    addRule({.name = u"Home"_s});
    addRule({.name = u"Home and garden"_s});
    rows.selectRow(0);
    editor.duplicateRule();
    scheduler.runPending();
    EXPECT_EQ(names(), (QStringList{u"Home"_s, u"Home copy"_s, u"Home and garden"_s}));
    EXPECT_EQ(selected(), std::vector<qsizetype>{1});
    EXPECT_TRUE(row(1).enabled) << "as the original is";
    EXPECT_TRUE(row(0).enabled);
    rows.selectRow(0);
    editor.duplicateRule();
    EXPECT_EQ(row(selected().front()).values.name, u"Home copy (2)"_s);
}

TEST_F(RulesPreferencesViewControllerTest, RenamesInTheListAsTyped)
{
    addRule({.name = u"a"_s});
    addRule({.name = u"b"_s});
    settings.set(keys::editingRuleNetwork, homeBssid);
    editor.updateNameAtRow(u"b"_s, 0);
    scheduler.runPending();
    EXPECT_EQ(names(), (QStringList{u"b"_s, u"b"_s}));
    EXPECT_EQ(queries.namesArray(), (QStringList{u"b"_s, u"b"_s}));
    EXPECT_FALSE(settings.get(keys::editingRuleNetwork).isValid());
    editor.updateNameAtRow(u"c"_s, 5);
    EXPECT_EQ(names(), (QStringList{u"b"_s, u"b"_s}));
}

TEST_F(RulesPreferencesViewControllerTest, SwitchesOnceThoughTwoHandleTheClick)
{
    addRule({.name = u"a"_s, .enabled = false});
    editor.switchRule(row(0).objID, true);
    scheduler.runPending();
    EXPECT_TRUE(row(0).enabled);
    EXPECT_TRUE(row(0).active);
    EXPECT_EQ(changesOf(en0).size(), 1);
    EXPECT_FALSE(context().hasChanges());
}

TEST_F(RulesPreferencesViewControllerTest, SwitchesAlsoWhereNobodyElseHandlesTheClick)
{
    const Rule rule = addRule({.name = u"a"_s, .enabled = false});
    editor.toggleRule({{u"state"_s, true}});
    EXPECT_FALSE(rule.enabled());
    editor.toggleRule({{u"objID"_s, rule.objID()}, {u"state"_s, true}});
    scheduler.runPending();
    EXPECT_TRUE(rule.enabled());
    EXPECT_EQ(changesOf(en0).size(), 1);
}

TEST_F(RulesPreferencesViewControllerTest, WarnsForHalfAMinuteThatAnotherRuleIsOff)
{
    addRule({.name = u"a"_s});
    const Rule other = addRule({.name = u"b"_s, .enabled = false});
    editor.switchRule(other.objID(), true);
    scheduler.runPending();
    EXPECT_EQ(names(), (QStringList{u"b"_s, u"a"_s}));
    EXPECT_FALSE(row(1).enabled);
    EXPECT_EQ(editor.state().warning,
        u"Another rule for this interface and network was switched off: only one can be on."_s);
    scheduler.advance(29s);
    EXPECT_NE(editor.state().warning, QString());
    editor.showNetworkWarning();
    scheduler.advance(29s);
    EXPECT_NE(editor.state().warning, QString()) << "the half minute begins anew";
    scheduler.advance(1s);
    EXPECT_EQ(editor.state().warning, QString());
    editor.showNetworkWarning();
    editor.dismissWarning();
    EXPECT_EQ(editor.state().warning, QString());
    scheduler.advance(31s);
    EXPECT_EQ(editor.state().warning, QString());
}

TEST_F(RulesPreferencesViewControllerTest, UndoesAndRedoes)
{
    const Rule rule = addRule({.name = u"a"_s, .enabled = false});
    scheduler.runPending();
    rule.setVendor(u"x"_s);
    scheduler.runPending();
    editor.undo();
    scheduler.runPending();
    EXPECT_EQ(rule.vendor(), QString());
    editor.redo();
    scheduler.runPending();
    EXPECT_EQ(rule.vendor(), u"x"_s);
}

TEST_F(RulesPreferencesViewControllerTest, RemembersItsTab)
{
    EXPECT_EQ(editor.state().tab, Tab::SavedItems);
    editor.chooseTab(Tab::Rules);
    EXPECT_EQ(editor.state().tab, Tab::Rules);
    EXPECT_EQ(settings.getInteger(keys::customTabIndex), 1);
    settings.set(keys::customTabIndex, 0);
    EXPECT_EQ(editor.state().tab, Tab::SavedItems) << "whoever set it";
    for (const QVariant &odd : {QVariant(7), QVariant(u"1"_s), QVariant()}) {
        settings.set(keys::customTabIndex, odd);
        EXPECT_EQ(editor.state().tab, Tab::SavedItems);
    }
}

} // namespace
} // namespace quillon::test
