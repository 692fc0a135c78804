// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "unit/rules/RuleFixture.h"

#include <QUndoStack>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class RuleEvaluationTest : public RuleFixture
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
    addRule({.name = u"off"_s, .enabled = false});
    evaluate(en0, RuleChange::NetworkRule);
    EXPECT_EQ(hasRule(en0), QVariant(2));
    EXPECT_TRUE(recordedRule(en0).isEmpty());
    EXPECT_TRUE(helper.changes().isEmpty());
}

TEST_F(RuleEvaluationTest, RecordsAFlatCopyOfTheRuleInForce)
{
    const Rule rule = addRule({.name = u"on"_s, .timerMins = 7});
    evaluate(en0, RuleChange::None);
    EXPECT_EQ(hasRule(en0), QVariant(1));
    EXPECT_TRUE(rule.active());
    EXPECT_EQ(recordedRule(en0), updateRuledictWithRule({}, rule));
    EXPECT_EQ(recordedRule(en0).value(u"active"_s), QVariant(1));
    EXPECT_EQ(recordedRule(en0).value(u"timerMinutes"_s), QVariant(7));
}

TEST_F(RuleEvaluationTest, WithoutChangeLeavesTheAddressAlone)
{
    addRule({.name = u"on"_s});
    evaluate(en0, RuleChange::None);
    EXPECT_EQ(ruleInForce(en0), u"on"_s);
    EXPECT_TRUE(helper.changes().isEmpty());
}

TEST_F(RuleEvaluationTest, WithChangeCarriesTheRuleOut)
{
    addRule({.name = u"on"_s});
    evaluate(en0, RuleChange::NetworkRule);
    EXPECT_EQ(host.addressOf(en0), u"fe:02:03:04:05:06"_s);
}

TEST_F(RuleEvaluationTest, GivesAFixedAddressOnceAlsoWhenTheRuleSaysEvery)
{
    addRule({.name = u"on"_s, .address = fixedAddress, .changeAction = Rule::every});
    evaluate(en0, RuleChange::NetworkRule);
    EXPECT_EQ(host.addressOf(en0), fixedAddress);
    EXPECT_FALSE(isCountingDown(en0));
}

TEST_F(RuleEvaluationTest, GivesARandomAddressInsideTheVendorOfTheRule)
{
    addRule({.name = u"on"_s, .vendor = u"Maker (3C22FB)"_s});
    setRecord(en0, record::vendor, u"Another (A0B0C0)"_s);
    evaluate(en0, RuleChange::NetworkRule);
    EXPECT_TRUE(changesOf(en0).value(0).startsWith(u"3C:22:FB"_s));
}

TEST_F(RuleEvaluationTest, OfEveryStartsACountdownAndChangesNothingAtOnce)
{
    addRule({.name = u"every"_s, .changeAction = Rule::every, .timerMins = 3});
    evaluate(en0, RuleChange::NetworkRule);
    EXPECT_TRUE(helper.changes().isEmpty());
    ASSERT_TRUE(isCountingDown(en0));
    EXPECT_EQ(timers.timers().value(en0).toMap().value(u"interval"_s), QVariant(3));
    scheduler.advance(std::chrono::minutes(3));
    EXPECT_EQ(changesOf(en0).size(), 1);
}

TEST_F(RuleEvaluationTest, AgainRestartsTheCountdown)
{
    addRule({.name = u"every"_s, .changeAction = Rule::every, .timerMins = 3});
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
    addRule({.name = u"every"_s, .changeAction = Rule::every});
    evaluate(en0, RuleChange::NetworkRule);
    switches.disableAllRules();
    evaluate(en0, RuleChange::None);
    EXPECT_EQ(hasRule(en0), QVariant(2));
    EXPECT_TRUE(isCountingDown(en0));
}

TEST_F(RuleEvaluationTest, OfDoNothingEndsTheCountdownOfAnEarlierRule)
{
    const Rule every = addRule({.name = u"every"_s, .changeAction = Rule::every});
    evaluate(en0, RuleChange::NetworkRule);
    every.setEnabled(false);
    addRule({.name = u"nothing"_s, .action = Rule::doNothing});
    evaluate(en0, RuleChange::NetworkRule);
    EXPECT_FALSE(isCountingDown(en0));
    EXPECT_TRUE(helper.changes().isEmpty());
}

TEST_F(RuleEvaluationTest, WithoutRuleInForceEndsTheCountdown)
{
    const Rule every = addRule({.name = u"every"_s, .changeAction = Rule::every});
    evaluate(en0, RuleChange::NetworkRule);
    every.setEnabled(false);
    evaluate(en0, RuleChange::NetworkRule);
    EXPECT_FALSE(isCountingDown(en0));
}

TEST_F(RuleEvaluationTest, OfAnInterfaceThatIsNotActiveKeepsItsCountdownAndChangesNothing)
{
    const Rule every = addRule({.name = u"every"_s, .changeAction = Rule::every});
    evaluate(en0, RuleChange::NetworkRule);
    every.setEnabled(false);
    addRule({.name = u"once"_s});
    setRecord(en0, record::status, u"inactive"_s);
    evaluate(en0, RuleChange::NetworkRule);
    EXPECT_EQ(ruleInForce(en0), u"once"_s);
    EXPECT_TRUE(isCountingDown(en0));
    EXPECT_TRUE(helper.changes().isEmpty());
}

TEST_F(RuleEvaluationTest, MarksOneNetworkRuleAndOneLoginRuleActive)
{
    const Rule stale = addRule({.name = u"stale"_s, .enabled = false});
    stale.setActive(true);
    const Rule any = addRule({.name = u"any"_s});
    const Rule second = addRule({.name = u"second"_s});
    const Rule specific = addRule({.name = u"specific"_s, .network = u"02:00:00:00:aa:01"_s});
    const Rule login = addRule({.name = u"login"_s, .isLogin = true});
    const Rule login2 = addRule({.name = u"login 2"_s, .isLogin = true});
    const Rule other = addRule({.name = u"other"_s, .device = en1});
    other.setActive(true);
    evaluate(en0, RuleChange::None);
    EXPECT_TRUE(specific.active());
    EXPECT_TRUE(login.active());
    EXPECT_FALSE(stale.active());
    EXPECT_FALSE(any.active());
    EXPECT_FALSE(second.active());
    EXPECT_FALSE(login2.active());
    EXPECT_TRUE(other.active()) << "of an interface that was not evaluated";
    EXPECT_EQ(loginRuleInForce(en0), u"login"_s);
}

TEST_F(RuleEvaluationTest, OfAllTakesEveryInterfaceInTheOrderOfTheTable)
{
    addRule({.name = u"wired"_s});
    evaluate(u"all"_s, RuleChange::None);
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
    settings.set(keys::currentWiFiDict, QVariantMap{{wifirecord::name, u"Home"_s}});
    addRule({.name = u"on"_s});
    evaluate(en0, RuleChange::None);
    ASSERT_EQ(overviews.size(), 1);
    EXPECT_EQ(overviews.first().object, &evaluation);
    EXPECT_EQ(overviews.first().userInfo,
        (QVariantMap{{en0, QVariantMap{{u"hasRule"_s, 1}, {u"status"_s, u"active"_s},
                               {u"network"_s, u"Home"_s}}}}));
}

TEST_F(RuleEvaluationTest, ShowsTheStatusOfTheSelectedInterfaceBeforeTheOverviewHears)
{
    QStringList order;
    QObject::connect(&evaluation, &RuleEvaluation::ruleStatusEvaluated,
        [&](const QString &device) { order << u"status "_s + device; });
    notifications.addObserver(
        notifications::updateOverview, [&](const auto &) { order << u"overview"_s; });
    evaluate(en0, RuleChange::None);
    evaluate(en1, RuleChange::None);
    EXPECT_EQ(order, (QStringList{u"status en0"_s, u"overview"_s, u"overview"_s}));
}

TEST_F(RuleEvaluationTest, WritesTheRecordBeforeItCarriesOut)
{
    addRule({.name = u"every"_s, .changeAction = Rule::every});
    bool wasRecorded = false;
    notifications.addObserver(notifications::updateOverview,
        [&](const auto &) { wasRecorded = wasRecorded || ruleInForce(en0) == u"every"_s; });
    settings.clearJournal();
    evaluation.checkDeviceForCurrentRuleAndChange(en0, RuleChange::NetworkRule);
    EXPECT_TRUE(wasRecorded);
    EXPECT_EQ(settings.journal(), (QStringList{u"set deviceDict"_s, u"synchronize"_s}));
}

TEST_F(RuleEvaluationTest, KeepsWhatOthersWroteIntoTheRecord)
{
    setRecord(en0, record::vendor, u"Maker (A1B2C3)"_s);
    evaluate(en0, RuleChange::None);
    EXPECT_EQ(storedRecord(en0).value(record::vendor), QVariant(u"Maker (A1B2C3)"_s));
}

TEST_F(RuleEvaluationTest, IsNotWatchedAndLeavesNothingToUndo)
{
    const Rule rule = addRule({.name = u"on"_s});
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
    rule.setVendor(u"Maker (A1B2C3)"_s);
    scheduler.runPending();
    EXPECT_EQ(stale, 1) << "others are watched again";
    EXPECT_EQ(context().undoManager().count(), steps + 1);
}

TEST_F(RuleEvaluationTest, DoesNotSaveAndTouchesNoRuleThatIsAsItShouldBe)
{
    addRule({.name = u"on"_s});
    addRule({.name = u"off"_s, .enabled = false});
    evaluate(en0, RuleChange::None);
    EXPECT_TRUE(context().hasChanges());
    ASSERT_FALSE(context().save());
    evaluate(en0, RuleChange::None);
    EXPECT_FALSE(context().hasChanges());
}

TEST_F(RuleEvaluationTest, OfARuleThatWasEditedFollowsWithoutAChange)
{
    const Rule rule = addRule({.name = u"on"_s});
    evaluate(u"all"_s, RuleChange::None);
    rule.setEnabled(false);
    evaluation.rulesWereChanged();
    scheduler.runPending();
    EXPECT_EQ(hasRule(en0), QVariant(2));
    EXPECT_FALSE(rule.active());
    EXPECT_TRUE(helper.changes().isEmpty());
}

TEST_F(RuleEvaluationTest, OfADeviceThatIsNotOneOfThisComputerAddsNoRecord)
{
    const Rule rule = addRule({.name = u"there"_s, .device = u"en9"_s});
    const DeviceRecords before = table.devices();
    evaluate(u"en9"_s, RuleChange::NetworkRule);
    EXPECT_EQ(table.devices(), before);
    EXPECT_TRUE(rule.active());
    EXPECT_TRUE(helper.changes().isEmpty());
    ASSERT_EQ(overviews.last().userInfo.keys(), QStringList{u"en9"_s});
}

TEST_F(RuleEvaluationTest, ToleratesRecordsAndSettingsThatAreNone)
{
    addRule({.name = u"on"_s});
    settings.set(keys::currentWiFiDict, u"text"_s);
    settings.set(keys::currentInterfaceDict, 7);
    settings.set(keys::deviceDict, QVariantMap{{en0, QVariant(u"text"_s)}});
    evaluate(u"all"_s, RuleChange::NetworkRule);
    EXPECT_EQ(ruleInForce(en0), u"on"_s);
    EXPECT_TRUE(helper.changes().isEmpty()) << "nobody knows whether it is up";
    settings.set(keys::deviceDict, u"text"_s);
    evaluate(u"all"_s, RuleChange::NetworkRule);
    evaluate(en0, RuleChange::NetworkRule);
    evaluate(QString(), RuleChange::NetworkRule);
    EXPECT_TRUE(helper.changes().isEmpty());
}

TEST_F(RuleEvaluationTest, ToleratesARuleThatHoldsNothing)
{
    const Rule empty(context().insertNewObject(u"Rule"_s));
    const Rule bare(context().insertNewObject(u"Rule"_s));
    bare.setDevice(en0);
    bare.setEnabled(true);
    evaluate(u"all"_s, RuleChange::NetworkRule);
    EXPECT_EQ(hasRule(en0), QVariant(1));
    EXPECT_TRUE(bare.active());
    EXPECT_TRUE(helper.changes().isEmpty()) << "no action is to do nothing";
    switches.enabledStatusChanged(empty);
    scheduler.runPending();
}

class RuleEvaluationAtLogin : public RuleFixture
{
protected:
    RuleEvaluationAtLogin()
    {
        addRule({.name = u"login"_s,
            .isLogin = true,
            .action = Rule::notChosen,
            .address = fixedAddress,
            .changeAction = Rule::notChosen});
    }
};

TEST_F(RuleEvaluationAtLogin, OfAWiredInterfaceIsCarriedOutForALaunchAtLogin)
{
    evaluate(u"all"_s, RuleChange::LoginAndNetworkRule);
    EXPECT_EQ(changesOf(en0), QStringList{fixedAddress});
}

TEST_F(RuleEvaluationAtLogin, IsNotCarriedOutOtherwise)
{
    evaluate(u"all"_s, RuleChange::NetworkRule);
    EXPECT_EQ(loginRuleInForce(en0), u"login"_s);
    EXPECT_TRUE(helper.changes().isEmpty());
    evaluate(u"all"_s, RuleChange::None);
    EXPECT_TRUE(helper.changes().isEmpty());
}

TEST_F(RuleEvaluationAtLogin, GoesBeforeTheNetworkRule)
{
    addRule({.name = u"any"_s});
    evaluate(u"all"_s, RuleChange::LoginAndNetworkRule);
    EXPECT_EQ(changesOf(en0), (QStringList{fixedAddress, u"FE:02:03:04:05:06"_s}));
}

TEST_F(RuleEvaluationAtLogin, WaitsForTheFirstEvaluationAlsoWhenTheNetworkChangesBefore)
{
    giveLease(en0);
    networkEvent();
    EXPECT_EQ(loginRuleInForce(en0), u"login"_s);
    EXPECT_TRUE(helper.changes().isEmpty());
}

TEST_F(RuleEvaluationAtLogin, IsCarriedOutWhetherTheInterfaceIsActiveOrNot)
{
    setRecord(en0, record::status, u"inactive"_s);
    evaluate(u"all"_s, RuleChange::LoginAndNetworkRule);
    EXPECT_EQ(changesOf(en0), QStringList{fixedAddress});
}

TEST_F(RuleEvaluationAtLogin, IsCarriedOutOnceThoughARuleIsSwitchedBeforeTheFirstEvaluation)
{
    const Rule any = addRule({.name = u"any"_s, .enabled = false});
    switches.updateEnabledWithID(true, any.objID());
    scheduler.runPending();
    EXPECT_EQ(loginRuleInForce(en0), u"login"_s);
    EXPECT_EQ(changesOf(en0), QStringList{u"FE:02:03:04:05:06"_s}) << "what was switched on, alone";
    evaluate(u"all"_s, RuleChange::LoginAndNetworkRule);
    EXPECT_EQ(changesOf(en0).count(fixedAddress), 1);
}

TEST_F(RuleEvaluationAtLogin, OfAWifiInterfaceIsNeverInForce)
{
    addRule({.name = u"wifi login"_s, .device = en1, .isLogin = true});
    joinWifi(u"Home"_s, u"02:00:00:00:aa:01"_s);
    wifi.updateWiFiNetwork();
    evaluate(u"all"_s, RuleChange::LoginAndNetworkRule);
    EXPECT_EQ(loginRuleInForce(en1), QString());
    EXPECT_EQ(hasRule(en1), QVariant(0));
    EXPECT_TRUE(changesOf(en1).isEmpty());
}

} // namespace
} // namespace quillon::test
