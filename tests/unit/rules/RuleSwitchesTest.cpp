// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "unit/rules/RuleFixture.h"

#include <QUndoStack>

#include <SQLiteCpp/Database.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

const QString home = u"02:00:00:00:aa:01"_s;

class RuleSwitchesTest : public RuleFixture
{
protected:
    RuleSwitchesTest()
    {
        QObject::connect(&switches, &RuleSwitches::ruleToggled, [this] { order << u"list"_s; });
        QObject::connect(&switches, &RuleSwitches::ruleSwitched,
            [this] { order << (context().hasChanges() ? u"table before saving"_s : u"table"_s); });
        notifications.addObserver(notifications::showNetworkWarning, [this](const auto &posted) {
            order << u"warning"_s;
            EXPECT_EQ(posted.object, &switches);
            EXPECT_TRUE(posted.userInfo.isEmpty());
        });
    }
    void toggle(const Rule &rule, bool state)
    {
        switches.toggleRule({{u"objID"_s, rule.objID()}, {u"state"_s, state}});
        scheduler.runPending();
    }
    QStringList order;
};

TEST_F(RuleSwitchesTest, SwitchEvaluateShowAndSave)
{
    const Rule rule = addRule({.name = u"a"_s, .enabled = false});
    toggle(rule, true);
    EXPECT_TRUE(rule.enabled());
    EXPECT_EQ(ruleInForce(en0), u"a"_s);
    EXPECT_EQ(changesOf(en0).size(), 1);
    EXPECT_FALSE(context().hasChanges());
    EXPECT_EQ(order, (QStringList{u"table before saving"_s, u"list"_s}));
}

TEST_F(RuleSwitchesTest, CarryOutThoughTheInternetCannotBeReached)
{
    reachability.reachable = false;
    toggle(addRule({.name = u"a"_s, .enabled = false}), true);
    EXPECT_EQ(changesOf(en0).size(), 1);
    EXPECT_EQ(reachability.questions, 0);
}

TEST_F(RuleSwitchesTest, TakeTheStateAsANumberToo)
{
    const Rule rule = addRule({.name = u"a"_s, .enabled = false});
    switches.toggleRule({{u"objID"_s, rule.objID()}, {u"state"_s, 1}});
    EXPECT_TRUE(rule.enabled());
    switches.toggleRule({{u"objID"_s, rule.objID()}});
    EXPECT_FALSE(rule.enabled());
}

TEST_F(RuleSwitchesTest, DoNothingWithoutAnIdentity)
{
    addRule({.name = u"a"_s, .enabled = false});
    switches.toggleRule({{u"state"_s, true}});
    switches.toggleRule({});
    EXPECT_TRUE(order.isEmpty());
    EXPECT_TRUE(overviews.isEmpty());
}

TEST_F(RuleSwitchesTest, DoNothingForAnIdentityOfNoRule)
{
    const ManagedObjectPtr connection = context().insertNewObject(u"Connection"_s);
    for (const QVariant &identity :
        {QVariant(u"text"_s), QVariant(7), QVariant(), QVariant(connection->uriRepresentation())}) {
        order.clear();
        switches.toggleRule({{u"objID"_s, identity}, {u"state"_s, true}});
        EXPECT_EQ(order, QStringList{u"list"_s});
    }
    EXPECT_TRUE(overviews.isEmpty());
}

TEST_F(RuleSwitchesTest, LeaveOneEnabledRuleForAnInterfaceAndANetworkAndWarn)
{
    const Rule other = addRule({.name = u"other"_s, .network = home});
    const Rule elsewhere = addRule({.name = u"elsewhere"_s, .device = en1, .network = home});
    const Rule any = addRule({.name = u"any"_s});
    const Rule rule = addRule({.name = u"rule"_s, .network = home, .enabled = false});
    toggle(rule, true);
    EXPECT_TRUE(rule.enabled());
    EXPECT_FALSE(other.enabled());
    EXPECT_TRUE(elsewhere.enabled());
    EXPECT_TRUE(any.enabled());
    EXPECT_EQ(ruleInForce(en0), u"rule"_s);
    EXPECT_EQ(order, (QStringList{u"warning"_s, u"table before saving"_s, u"list"_s}));
}

TEST_F(RuleSwitchesTest, AreOneStepOfUndoWithWhatTheySwitchOff)
{
    const Rule other = addRule({.name = u"other"_s, .network = home});
    const Rule rule = addRule({.name = u"rule"_s, .network = home, .enabled = false});
    scheduler.runPending();
    context().undoManager().clear();
    toggle(rule, true);
    ASSERT_TRUE(rule.enabled());
    ASSERT_FALSE(other.enabled());
    EXPECT_EQ(context().undoManager().count(), 1);
    context().undoManager().undo();
    scheduler.runPending();
    EXPECT_FALSE(rule.enabled());
    EXPECT_TRUE(other.enabled()) << "never two, and the one from before";
    context().undoManager().redo();
    scheduler.runPending();
    EXPECT_TRUE(rule.enabled());
    EXPECT_FALSE(other.enabled());

    switches.disableAllRules();
    scheduler.runPending();
    EXPECT_EQ(context().undoManager().count(), 2);
    context().undoManager().undo();
    EXPECT_TRUE(rule.enabled());
}

TEST_F(RuleSwitchesTest, DoSoAlsoWhenTheRuleIsSwitchedOff)
{
    const Rule other = addRule({.name = u"other"_s, .network = home});
    const Rule rule = addRule({.name = u"rule"_s, .network = home});
    toggle(rule, false);
    EXPECT_FALSE(rule.enabled());
    EXPECT_FALSE(other.enabled());
    EXPECT_EQ(hasRule(en0), QVariant(2));
    EXPECT_TRUE(order.contains(u"warning"_s));
}

TEST_F(RuleSwitchesTest, DoNotWarnWhenNothingElseWasOn)
{
    addRule({.name = u"other"_s, .network = home, .enabled = false});
    toggle(addRule({.name = u"rule"_s, .network = home, .enabled = false}), true);
    EXPECT_FALSE(order.contains(u"warning"_s));
}

TEST_F(RuleSwitchesTest, LeaveOneLoginRuleForAnInterface)
{
    const Rule first = addRule({.name = u"first"_s, .isLogin = true});
    const Rule second = addRule({.name = u"second"_s, .enabled = false, .isLogin = true});
    toggle(second, true);
    EXPECT_FALSE(first.enabled());
    EXPECT_EQ(loginRuleInForce(en0), u"second"_s);
}

TEST_F(RuleSwitchesTest, EndTheCountdownOfTheRuleThatIsSwitchedOff)
{
    const Rule rule = addRule({.name = u"every"_s, .enabled = false, .changeAction = Rule::every});
    toggle(rule, true);
    EXPECT_TRUE(isCountingDown(en0));
    toggle(rule, false);
    EXPECT_FALSE(isCountingDown(en0));
}

TEST_F(RuleSwitchesTest, LogARuleThatCannotBeSaved)
{
    const Rule rule = addRule({.name = u"a"_s, .enabled = false});
    ASSERT_FALSE(context().save());
    SQLite::Database(folder.filePath(u"Quillon.sqlite"_s).toStdString(), SQLite::OPEN_READWRITE)
        .exec("CREATE TRIGGER broken BEFORE UPDATE ON Rule BEGIN SELECT RAISE(FAIL, 'full'); END");
    const LogCapture log;
    toggle(rule, true);
    EXPECT_EQ(LogCapture::taken().filter(u"quillon.rules"_s),
        QStringList{u"quillon.rules: Rule not updated..."_s});
    EXPECT_TRUE(context().hasChanges());
    EXPECT_EQ(changesOf(en0).size(), 1) << "it was evaluated already";
}

TEST_F(RuleSwitchesTest, CanBeAllSwitchedOffWithoutSavingOrEvaluating)
{
    const Rule a = addRule({.name = u"a"_s});
    const Rule b = addRule({.name = u"b"_s, .device = en1});
    const Rule off = addRule({.name = u"off"_s, .enabled = false});
    evaluate(u"all"_s, RuleChange::None);
    ASSERT_FALSE(context().save());
    overviews.clear();
    switches.disableAllRules();
    EXPECT_FALSE(a.enabled());
    EXPECT_FALSE(b.enabled());
    EXPECT_FALSE(off.object()->hasChanges());
    EXPECT_TRUE(context().hasChanges());
    EXPECT_TRUE(overviews.isEmpty());
    EXPECT_EQ(hasRule(en0), QVariant(1));
    EXPECT_TRUE(a.active());
}

} // namespace
} // namespace quillon::test
