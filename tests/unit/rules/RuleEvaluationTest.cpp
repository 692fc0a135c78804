// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "unit/rules/RuleMachine.h"

#include <QUndoStack>

namespace quillon::test {
namespace {

class RuleEvaluationTest : public RuleMachine
{
};

TEST_F(RuleEvaluationTest, WithoutRulesSaysThereIsNone)
{
    evaluate(en0, RuleChange::NetworkRule);
    EXPECT_EQ(hasRule(en0), QVariant(0));
    EXPECT_EQ(storedRecord(en0).value(record::rule), QVariant(QVariantMap()));
    EXPECT_EQ(storedRecord(en0).value(record::loginRule), QVariant(QVariantMap()));
    EXPECT_TRUE(helper.changes().isEmpty());
}

TEST_F(RuleEvaluationTest, OfASwitchedOffRuleSaysSo)
{
    addRule({.name = QStringLiteral("off"), .enabled = false});
    evaluate(en0, RuleChange::NetworkRule);
    EXPECT_EQ(hasRule(en0), QVariant(2));
    EXPECT_TRUE(recordedRule(en0).isEmpty());
    EXPECT_TRUE(helper.changes().isEmpty());
}

TEST_F(RuleEvaluationTest, RecordsAFlatCopyOfTheRuleInForce)
{
    const Rule rule = addRule({.name = QStringLiteral("on"), .timerMins = 7});
    evaluate(en0, RuleChange::None);
    EXPECT_EQ(hasRule(en0), QVariant(1));
    EXPECT_TRUE(rule.active());
    EXPECT_EQ(recordedRule(en0), updateRuledictWithRule({}, rule));
    EXPECT_EQ(recordedRule(en0).value(QStringLiteral("active")), QVariant(1));
    EXPECT_EQ(recordedRule(en0).value(QStringLiteral("timerMinutes")), QVariant(7));
}

TEST_F(RuleEvaluationTest, WithoutChangeLeavesTheAddressAlone)
{
    addRule({.name = QStringLiteral("on")});
    evaluate(en0, RuleChange::None);
    EXPECT_EQ(ruleInForce(en0), QStringLiteral("on"));
    EXPECT_TRUE(helper.changes().isEmpty());
}

TEST_F(RuleEvaluationTest, WithChangeCarriesTheRuleOut)
{
    addRule({.name = QStringLiteral("on")});
    evaluate(en0, RuleChange::NetworkRule);
    EXPECT_EQ(host.addressOf(en0), QStringLiteral("fe:02:03:04:05:06"));
}

TEST_F(RuleEvaluationTest, GivesAFixedAddressOnceAlsoWhenTheRuleSaysEvery)
{
    addRule({.name = QStringLiteral("on"), .address = fixedAddress, .changeAction = Rule::every});
    evaluate(en0, RuleChange::NetworkRule);
    EXPECT_EQ(host.addressOf(en0), fixedAddress);
    EXPECT_FALSE(isCountingDown(en0));
}

TEST_F(RuleEvaluationTest, GivesARandomAddressInsideTheVendorOfTheRule)
{
    addRule({.name = QStringLiteral("on"), .vendor = QStringLiteral("Maker (3C22FB)")});
    setRecord(en0, record::vendor, QStringLiteral("Another (A0B0C0)"));
    evaluate(en0, RuleChange::NetworkRule);
    EXPECT_TRUE(changesOf(en0).value(0).startsWith(QStringLiteral("3C:22:FB")));
}

TEST_F(RuleEvaluationTest, OfEveryStartsACountdownAndChangesNothingAtOnce)
{
    addRule({.name = QStringLiteral("every"), .changeAction = Rule::every, .timerMins = 3});
    evaluate(en0, RuleChange::NetworkRule);
    EXPECT_TRUE(helper.changes().isEmpty());
    ASSERT_TRUE(isCountingDown(en0));
    EXPECT_EQ(timers.timers().value(en0).toMap().value(QStringLiteral("interval")), QVariant(3));
    scheduler.advance(std::chrono::minutes(3));
    EXPECT_EQ(changesOf(en0).size(), 1);
}

TEST_F(RuleEvaluationTest, AgainRestartsTheCountdown)
{
    addRule({.name = QStringLiteral("every"), .changeAction = Rule::every, .timerMins = 3});
    evaluate(en0, RuleChange::NetworkRule);
    scheduler.advance(std::chrono::minutes(2));
    evaluate(en0, RuleChange::NetworkRule);
    scheduler.advance(std::chrono::minutes(2));
    EXPECT_TRUE(helper.changes().isEmpty());
    scheduler.advance(std::chrono::minutes(1));
    EXPECT_EQ(changesOf(en0).size(), 1);
}

TEST_F(RuleEvaluationTest, WithoutChangeLeavesACountdownRunning)
{
    addRule({.name = QStringLiteral("every"), .changeAction = Rule::every});
    evaluate(en0, RuleChange::NetworkRule);
    switches.disableAllRules();
    evaluate(en0, RuleChange::None);
    EXPECT_EQ(hasRule(en0), QVariant(2));
    EXPECT_TRUE(isCountingDown(en0));
}

TEST_F(RuleEvaluationTest, OfDoNothingEndsTheCountdownOfAnEarlierRule)
{
    const Rule every = addRule({.name = QStringLiteral("every"), .changeAction = Rule::every});
    evaluate(en0, RuleChange::NetworkRule);
    every.setEnabled(false);
    addRule({.name = QStringLiteral("nothing"), .action = Rule::doNothing});
    evaluate(en0, RuleChange::NetworkRule);
    EXPECT_FALSE(isCountingDown(en0));
    EXPECT_TRUE(helper.changes().isEmpty());
}

TEST_F(RuleEvaluationTest, WithoutRuleInForceEndsTheCountdown)
{
    const Rule every = addRule({.name = QStringLiteral("every"), .changeAction = Rule::every});
    evaluate(en0, RuleChange::NetworkRule);
    every.setEnabled(false);
    evaluate(en0, RuleChange::NetworkRule);
    EXPECT_FALSE(isCountingDown(en0));
}

TEST_F(RuleEvaluationTest, OfAnInterfaceThatIsNotActiveKeepsItsCountdownAndChangesNothing)
{
    const Rule every = addRule({.name = QStringLiteral("every"), .changeAction = Rule::every});
    evaluate(en0, RuleChange::NetworkRule);
    every.setEnabled(false);
    addRule({.name = QStringLiteral("once")});
    setRecord(en0, record::status, QStringLiteral("inactive"));
    evaluate(en0, RuleChange::NetworkRule);
    EXPECT_EQ(ruleInForce(en0), QStringLiteral("once"));
    EXPECT_TRUE(isCountingDown(en0));
    EXPECT_TRUE(helper.changes().isEmpty());
}

TEST_F(RuleEvaluationTest, MarksOneNetworkRuleAndOneLoginRuleActive)
{
    const Rule stale = addRule({.name = QStringLiteral("stale"), .enabled = false});
    stale.setActive(true);
    const Rule any = addRule({.name = QStringLiteral("any")});
    const Rule second = addRule({.name = QStringLiteral("second")});
    const Rule specific = addRule(
        {.name = QStringLiteral("specific"), .network = QStringLiteral("02:00:00:00:aa:01")});
    const Rule login = addRule({.name = QStringLiteral("login"), .isLogin = true});
    const Rule login2 = addRule({.name = QStringLiteral("login 2"), .isLogin = true});
    const Rule other = addRule({.name = QStringLiteral("other"), .device = en1});
    other.setActive(true);
    evaluate(en0, RuleChange::None);
    EXPECT_TRUE(specific.active());
    EXPECT_TRUE(login.active());
    EXPECT_FALSE(stale.active());
    EXPECT_FALSE(any.active());
    EXPECT_FALSE(second.active());
    EXPECT_FALSE(login2.active());
    EXPECT_TRUE(other.active()) << "of an interface that was not evaluated";
    EXPECT_EQ(loginRuleInForce(en0), QStringLiteral("login"));
}

TEST_F(RuleEvaluationTest, OfAllTakesEveryInterfaceInTheOrderOfTheTable)
{
    addRule({.name = QStringLiteral("wired")});
    evaluate(QStringLiteral("all"), RuleChange::None);
    QStringList devices;
    for (const auto &posted : overviews) {
        devices << posted.userInfo.keys();
    }
    EXPECT_EQ(devices, table.names());
    EXPECT_EQ(hasRule(en0), QVariant(1));
    EXPECT_EQ(hasRule(en1), QVariant(0));
}

TEST_F(RuleEvaluationTest, TellsTheOverviewStatusAndTheWifiNetworkWhateverTheInterface)
{
    settings.set(keys::currentWiFiDict, QVariantMap{{wifirecord::name, QStringLiteral("Home")}});
    addRule({.name = QStringLiteral("on")});
    evaluate(en0, RuleChange::None);
    ASSERT_EQ(overviews.size(), 1);
    EXPECT_EQ(overviews.first().object, &evaluation);
    EXPECT_EQ(overviews.first().userInfo,
        (QVariantMap{{en0, QVariantMap{{QStringLiteral("hasRule"), 1},
                               {QStringLiteral("status"), QStringLiteral("active")},
                               {QStringLiteral("network"), QStringLiteral("Home")}}}}));
}

TEST_F(RuleEvaluationTest, ShowsTheStatusOfTheSelectedInterfaceBeforeTheOverviewHears)
{
    QStringList order;
    QObject::connect(&evaluation, &RuleEvaluation::ruleStatusEvaluated,
        [&](const QString &device) { order << QStringLiteral("status ") + device; });
    notifications.addObserver(
        notifications::updateOverview, [&](const auto &) { order << QStringLiteral("overview"); });
    evaluate(en0, RuleChange::None);
    evaluate(en1, RuleChange::None);
    EXPECT_EQ(order, (QStringList{QStringLiteral("status en0"), QStringLiteral("overview"),
                         QStringLiteral("overview")}));
}

TEST_F(RuleEvaluationTest, WritesTheRecordBeforeItCarriesOut)
{
    addRule({.name = QStringLiteral("every"), .changeAction = Rule::every});
    bool wasRecorded = false;
    notifications.addObserver(notifications::updateOverview, [&](const auto &) {
        wasRecorded = wasRecorded || ruleInForce(en0) == QStringLiteral("every");
    });
    settings.clearJournal();
    evaluation.checkDeviceForCurrentRuleAndChange(en0, RuleChange::NetworkRule);
    EXPECT_TRUE(wasRecorded);
    EXPECT_EQ(settings.journal(),
        (QStringList{QStringLiteral("set deviceDict"), QStringLiteral("synchronize")}));
}

TEST_F(RuleEvaluationTest, KeepsWhatOthersWroteIntoTheRecord)
{
    setRecord(en0, record::vendor, QStringLiteral("Maker (A1B2C3)"));
    evaluate(en0, RuleChange::None);
    EXPECT_EQ(storedRecord(en0).value(record::vendor), QVariant(QStringLiteral("Maker (A1B2C3)")));
}

TEST_F(RuleEvaluationTest, IsNotWatchedAndLeavesNothingToUndo)
{
    const Rule rule = addRule({.name = QStringLiteral("on")});
    ASSERT_FALSE(context().save());
    scheduler.runPending();
    int stale = 0;
    int corrections = 0;
    QObject::connect(&invariants, &RuleInvariants::rulesCorrected, [&] { ++stale; });
    notifications.addObserver(notifications::ruleTable, [&](const auto &) { ++corrections; });
    const int steps = context().undoManager().count();
    evaluate(en0, RuleChange::None);
    EXPECT_TRUE(rule.active());
    EXPECT_EQ(context().undoManager().count(), steps);
    EXPECT_EQ(stale, 0);
    EXPECT_EQ(corrections, 0);
    rule.setVendor(QStringLiteral("Maker (A1B2C3)"));
    scheduler.runPending();
    EXPECT_EQ(stale, 1) << "others are watched again";
    EXPECT_EQ(context().undoManager().count(), steps + 1);
}

TEST_F(RuleEvaluationTest, DoesNotSaveAndTouchesNoRuleThatIsAsItShouldBe)
{
    addRule({.name = QStringLiteral("on")});
    addRule({.name = QStringLiteral("off"), .enabled = false});
    evaluate(en0, RuleChange::None);
    EXPECT_TRUE(context().hasChanges());
    ASSERT_FALSE(context().save());
    evaluate(en0, RuleChange::None);
    EXPECT_FALSE(context().hasChanges());
}

TEST_F(RuleEvaluationTest, OfARuleThatWasEditedFollowsWithoutAChange)
{
    const Rule rule = addRule({.name = QStringLiteral("on")});
    evaluate(QStringLiteral("all"), RuleChange::None);
    rule.setEnabled(false);
    evaluation.rulesWereChanged();
    scheduler.runPending();
    EXPECT_EQ(hasRule(en0), QVariant(2));
    EXPECT_FALSE(rule.active());
    EXPECT_TRUE(helper.changes().isEmpty());
}

TEST_F(RuleEvaluationTest, OfADeviceThatIsNotOneOfThisComputerAddsNoRecord)
{
    const Rule rule = addRule({.name = QStringLiteral("there"), .device = QStringLiteral("en9")});
    const DeviceRecords before = table.devices();
    evaluate(QStringLiteral("en9"), RuleChange::NetworkRule);
    EXPECT_EQ(table.devices(), before);
    EXPECT_TRUE(rule.active());
    EXPECT_TRUE(helper.changes().isEmpty());
    ASSERT_EQ(overviews.last().userInfo.keys(), QStringList{QStringLiteral("en9")});
}

TEST_F(RuleEvaluationTest, ToleratesRecordsAndSettingsThatAreNone)
{
    addRule({.name = QStringLiteral("on")});
    settings.set(keys::currentWiFiDict, QStringLiteral("text"));
    settings.set(keys::currentInterfaceDict, 7);
    settings.set(keys::deviceDict, QVariantMap{{en0, QVariant(QStringLiteral("text"))}});
    evaluate(QStringLiteral("all"), RuleChange::NetworkRule);
    EXPECT_EQ(ruleInForce(en0), QStringLiteral("on"));
    EXPECT_TRUE(helper.changes().isEmpty()) << "nobody knows whether it is up";
    settings.set(keys::deviceDict, QStringLiteral("text"));
    evaluate(QStringLiteral("all"), RuleChange::NetworkRule);
    evaluate(en0, RuleChange::NetworkRule);
    evaluate(QString(), RuleChange::NetworkRule);
    EXPECT_TRUE(helper.changes().isEmpty());
}

TEST_F(RuleEvaluationTest, ToleratesARuleThatHoldsNothing)
{
    const Rule empty(context().insertNewObject(QStringLiteral("Rule")));
    const Rule bare(context().insertNewObject(QStringLiteral("Rule")));
    bare.setDevice(en0);
    bare.setEnabled(true);
    evaluate(QStringLiteral("all"), RuleChange::NetworkRule);
    EXPECT_EQ(hasRule(en0), QVariant(1));
    EXPECT_TRUE(bare.active());
    EXPECT_TRUE(helper.changes().isEmpty()) << "no action is to do nothing";
    switches.enabledStatusChanged(empty);
    scheduler.runPending();
}

class RuleEvaluationAtLogin : public RuleMachine
{
protected:
    RuleEvaluationAtLogin()
    {
        addRule({.name = QStringLiteral("login"),
            .isLogin = true,
            .action = Rule::notChosen,
            .address = fixedAddress,
            .changeAction = Rule::notChosen});
    }
};

TEST_F(RuleEvaluationAtLogin, OfAWiredInterfaceIsCarriedOutForALaunchAtLogin)
{
    evaluate(QStringLiteral("all"), RuleChange::LoginAndNetworkRule);
    EXPECT_EQ(changesOf(en0), QStringList{fixedAddress});
}

TEST_F(RuleEvaluationAtLogin, IsNotCarriedOutOtherwise)
{
    evaluate(QStringLiteral("all"), RuleChange::NetworkRule);
    EXPECT_EQ(loginRuleInForce(en0), QStringLiteral("login"));
    EXPECT_TRUE(helper.changes().isEmpty());
    evaluate(QStringLiteral("all"), RuleChange::None);
    EXPECT_TRUE(helper.changes().isEmpty());
}

TEST_F(RuleEvaluationAtLogin, GoesBeforeTheNetworkRule)
{
    addRule({.name = QStringLiteral("any")});
    evaluate(QStringLiteral("all"), RuleChange::LoginAndNetworkRule);
    EXPECT_EQ(changesOf(en0), (QStringList{fixedAddress, QStringLiteral("FE:02:03:04:05:06")}));
}

TEST_F(RuleEvaluationAtLogin, WaitsForTheFirstEvaluationAlsoWhenTheNetworkChangesBefore)
{
    giveLease(en0);
    networkEvent();
    EXPECT_EQ(loginRuleInForce(en0), QStringLiteral("login"));
    EXPECT_TRUE(helper.changes().isEmpty());
}

TEST_F(RuleEvaluationAtLogin, IsCarriedOutWhetherTheInterfaceIsActiveOrNot)
{
    setRecord(en0, record::status, QStringLiteral("inactive"));
    evaluate(QStringLiteral("all"), RuleChange::LoginAndNetworkRule);
    EXPECT_EQ(changesOf(en0), QStringList{fixedAddress});
}

TEST_F(RuleEvaluationAtLogin, IsCarriedOutOnceThoughARuleIsSwitchedBeforeTheFirstEvaluation)
{
    const Rule any = addRule({.name = QStringLiteral("any"), .enabled = false});
    switches.updateEnabledWithID(true, any.objID());
    scheduler.runPending();
    EXPECT_EQ(loginRuleInForce(en0), QStringLiteral("login"));
    EXPECT_EQ(changesOf(en0), QStringList{QStringLiteral("FE:02:03:04:05:06")})
        << "what was switched on, alone";
    evaluate(QStringLiteral("all"), RuleChange::LoginAndNetworkRule);
    EXPECT_EQ(changesOf(en0).count(fixedAddress), 1);
}

TEST_F(RuleEvaluationAtLogin, OfAWifiInterfaceIsNeverInForce)
{
    addRule({.name = QStringLiteral("wifi login"), .device = en1, .isLogin = true});
    joinWifi(QStringLiteral("Home"), QStringLiteral("02:00:00:00:aa:01"));
    wifi.updateWiFiNetwork();
    evaluate(QStringLiteral("all"), RuleChange::LoginAndNetworkRule);
    EXPECT_EQ(loginRuleInForce(en1), QString());
    EXPECT_EQ(hasRule(en1), QVariant(0));
    EXPECT_TRUE(changesOf(en1).isEmpty());
}

} // namespace
} // namespace quillon::test
