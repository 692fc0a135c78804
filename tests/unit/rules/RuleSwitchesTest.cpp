// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "unit/rules/RuleMachine.h"

#include <SQLiteCpp/Database.h>

namespace quillon::test {
namespace {

const QString home = QStringLiteral("02:00:00:00:aa:01");

class RuleSwitchesTest : public RuleMachine
{
protected:
    RuleSwitchesTest()
    {
        QObject::connect(
            &switches, &RuleSwitches::ruleToggled, [this] { order << QStringLiteral("list"); });
        QObject::connect(&switches, &RuleSwitches::ruleSwitched, [this] {
            order << (context().hasChanges() ? QStringLiteral("table before saving")
                                             : QStringLiteral("table"));
        });
        notifications.addObserver(notifications::showNetworkWarning, [this](const auto &posted) {
            order << QStringLiteral("warning");
            EXPECT_EQ(posted.object, &switches);
            EXPECT_TRUE(posted.userInfo.isEmpty());
        });
    }
    void toggle(const Rule &rule, bool state)
    {
        switches.toggleRule(
            {{QStringLiteral("objID"), rule.objID()}, {QStringLiteral("state"), state}});
        scheduler.runPending();
    }
    QStringList order;
};

TEST_F(RuleSwitchesTest, SwitchEvaluateShowAndSave)
{
    const Rule rule = addRule({.name = QStringLiteral("a"), .enabled = false});
    toggle(rule, true);
    EXPECT_TRUE(rule.enabled());
    EXPECT_EQ(ruleInForce(en0), QStringLiteral("a"));
    EXPECT_EQ(changesOf(en0).size(), 1);
    EXPECT_FALSE(context().hasChanges());
    EXPECT_EQ(order, (QStringList{QStringLiteral("table before saving"), QStringLiteral("list")}));
}

TEST_F(RuleSwitchesTest, CarryOutThoughTheInternetCannotBeReached)
{
    reachability.reachable = false;
    toggle(addRule({.name = QStringLiteral("a"), .enabled = false}), true);
    EXPECT_EQ(changesOf(en0).size(), 1);
    EXPECT_EQ(reachability.questions, 0);
}

TEST_F(RuleSwitchesTest, TakeTheStateAsANumberToo)
{
    const Rule rule = addRule({.name = QStringLiteral("a"), .enabled = false});
    switches.toggleRule({{QStringLiteral("objID"), rule.objID()}, {QStringLiteral("state"), 1}});
    EXPECT_TRUE(rule.enabled());
    switches.toggleRule({{QStringLiteral("objID"), rule.objID()}});
    EXPECT_FALSE(rule.enabled());
}

TEST_F(RuleSwitchesTest, DoNothingWithoutAnIdentity)
{
    addRule({.name = QStringLiteral("a"), .enabled = false});
    switches.toggleRule({{QStringLiteral("state"), true}});
    switches.toggleRule({});
    EXPECT_TRUE(order.isEmpty());
    EXPECT_TRUE(overviews.isEmpty());
}

TEST_F(RuleSwitchesTest, DoNothingForAnIdentityOfNoRule)
{
    const ManagedObjectPtr connection = context().insertNewObject(QStringLiteral("Connection"));
    for (const QVariant &identity : {QVariant(QStringLiteral("text")), QVariant(7), QVariant(),
             QVariant(connection->uriRepresentation())}) {
        order.clear();
        switches.toggleRule({{QStringLiteral("objID"), identity}, {QStringLiteral("state"), true}});
        EXPECT_EQ(order, QStringList{QStringLiteral("list")});
    }
    EXPECT_TRUE(overviews.isEmpty());
}

TEST_F(RuleSwitchesTest, LeaveOneEnabledRuleForAnInterfaceAndANetworkAndWarn)
{
    const Rule other = addRule({.name = QStringLiteral("other"), .network = home});
    const Rule elsewhere =
        addRule({.name = QStringLiteral("elsewhere"), .device = en1, .network = home});
    const Rule any = addRule({.name = QStringLiteral("any")});
    const Rule rule = addRule({.name = QStringLiteral("rule"), .network = home, .enabled = false});
    toggle(rule, true);
    EXPECT_TRUE(rule.enabled());
    EXPECT_FALSE(other.enabled());
    EXPECT_TRUE(elsewhere.enabled());
    EXPECT_TRUE(any.enabled());
    EXPECT_EQ(ruleInForce(en0), QStringLiteral("rule"));
    EXPECT_EQ(order, (QStringList{QStringLiteral("warning"), QStringLiteral("table before saving"),
                         QStringLiteral("list")}));
}

TEST_F(RuleSwitchesTest, DoSoAlsoWhenTheRuleIsSwitchedOff)
{
    const Rule other = addRule({.name = QStringLiteral("other"), .network = home});
    const Rule rule = addRule({.name = QStringLiteral("rule"), .network = home});
    toggle(rule, false);
    EXPECT_FALSE(rule.enabled());
    EXPECT_FALSE(other.enabled());
    EXPECT_EQ(hasRule(en0), QVariant(2));
    EXPECT_TRUE(order.contains(QStringLiteral("warning")));
}

TEST_F(RuleSwitchesTest, DoNotWarnWhenNothingElseWasOn)
{
    addRule({.name = QStringLiteral("other"), .network = home, .enabled = false});
    toggle(addRule({.name = QStringLiteral("rule"), .network = home, .enabled = false}), true);
    EXPECT_FALSE(order.contains(QStringLiteral("warning")));
}

TEST_F(RuleSwitchesTest, LeaveOneLoginRuleForAnInterface)
{
    const Rule first = addRule({.name = QStringLiteral("first"), .isLogin = true});
    const Rule second =
        addRule({.name = QStringLiteral("second"), .enabled = false, .isLogin = true});
    toggle(second, true);
    EXPECT_FALSE(first.enabled());
    EXPECT_EQ(loginRuleInForce(en0), QStringLiteral("second"));
}

TEST_F(RuleSwitchesTest, EndTheCountdownOfTheRuleThatIsSwitchedOff)
{
    const Rule rule =
        addRule({.name = QStringLiteral("every"), .enabled = false, .changeAction = Rule::every});
    toggle(rule, true);
    EXPECT_TRUE(isCountingDown(en0));
    toggle(rule, false);
    EXPECT_FALSE(isCountingDown(en0));
}

TEST_F(RuleSwitchesTest, LogARuleThatCannotBeSaved)
{
    const Rule rule = addRule({.name = QStringLiteral("a"), .enabled = false});
    ASSERT_FALSE(context().save());
    SQLite::Database(
        folder.filePath(QStringLiteral("Quillon.sqlite")).toStdString(), SQLite::OPEN_READWRITE)
        .exec("CREATE TRIGGER broken BEFORE UPDATE ON Rule BEGIN SELECT RAISE(FAIL, 'full'); END");
    const LogCapture log;
    toggle(rule, true);
    EXPECT_EQ(LogCapture::taken().filter(QStringLiteral("quillon.rules")),
        QStringList{QStringLiteral("quillon.rules: Rule not updated...")});
    EXPECT_TRUE(context().hasChanges());
    EXPECT_EQ(changesOf(en0).size(), 1) << "it was evaluated already";
}

TEST_F(RuleSwitchesTest, CanBeAllSwitchedOffWithoutSavingOrEvaluating)
{
    const Rule a = addRule({.name = QStringLiteral("a")});
    const Rule b = addRule({.name = QStringLiteral("b"), .device = en1});
    const Rule off = addRule({.name = QStringLiteral("off"), .enabled = false});
    evaluate(QStringLiteral("all"), RuleChange::None);
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
