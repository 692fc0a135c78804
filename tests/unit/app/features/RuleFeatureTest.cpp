// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/features/RuleFeature.h"

#include "unit/app/ProgramOnFakes.h"

namespace quillon::test {
namespace {

using namespace std::chrono_literals;

class RuleFeatureTest : public ProgramOnFakes
{
protected:
    RuleFeature &rules() { return program->rules(); }
    int status(const QString &device) const
    {
        return deviceRecord(device).value(record::hasRule).toInt();
    }
    QStringList listed()
    {
        QStringList names;
        for (const auto &row : rules().list.state().rows) {
            names << row.name;
        }
        return names;
    }
    void giveLease(const QString &device, const QString &address)
    {
        machine.host.at(device).ipv4 = {address};
        machine.networkChanges.networkChanges();
    }

    const QString loginHelper = QStringLiteral("com.orvandel.Quillon4Helper");
    const QString home = QStringLiteral("Home");
};

TEST_F(RuleFeatureTest, TheNamesOfRulesAreKnownWhenTheRecordsAreOpen)
{
    saveRule(randomOnce(enp2s0, home));
    create();
    at(&LaunchSequence::vendorDatabaseDue,
        [this] { EXPECT_EQ(rules().queries.namesArray(), QStringList()); });
    at(&LaunchSequence::recordStoreDue,
        [this] { EXPECT_EQ(rules().queries.namesArray(), QStringList(home)); });
    start();
    EXPECT_EQ(stepsSeen, 2);
}

TEST_F(RuleFeatureTest, RulesActOneSecondAfterTheStartAndNotBefore)
{
    saveRule(randomOnce(enp2s0, home));
    create();
    start();
    machine.scheduler.advance(999ms);
    EXPECT_FALSE(isChanged(enp2s0));
    machine.scheduler.advance(1ms);
    machine.scheduler.runPending();
    EXPECT_TRUE(isChanged(enp2s0));
    EXPECT_FALSE(isChanged(enp1s0));
    EXPECT_EQ(status(enp2s0), 1);
}

TEST_F(RuleFeatureTest, LoginRulesActAtTheFirstCheckAfterALoginAndNeverAgain)
{
    machine.runningApplications.running.insert(loginHelper);
    saveRule(randomAtLogin(enp2s0));
    create();
    at(&LaunchSequence::firstRuleCheckDue,
        [this] { EXPECT_TRUE(program->launch().startedFromLogin()); });
    start();
    machine.scheduler.advance(2s);
    EXPECT_EQ(stepsSeen, 1);
    EXPECT_TRUE(isChanged(enp2s0));
    EXPECT_FALSE(program->launch().startedFromLogin());

    machine.host.giveAddress(enp2s0, factory.value(enp2s0));
    rules().evaluation.checkDeviceForCurrentRuleAndChange(allDevices, true);
    machine.scheduler.advance(2s);
    EXPECT_FALSE(isChanged(enp2s0));
}

TEST_F(RuleFeatureTest, LoginRulesDoNotActAtAnyOtherStart)
{
    saveRule(randomAtLogin(enp2s0));
    create();
    start();
    machine.scheduler.advance(5s);
    EXPECT_FALSE(isChanged(enp2s0));
}

TEST_F(RuleFeatureTest, TheHelpersStatusEvaluatesWithoutChangingAnything)
{
    run();
    insertRule(randomOnce(enp2s0, home));
    ASSERT_EQ(status(enp2s0), 0);
    machine.distributed.deliver(notifications::helperUpdated, notifications::helperUpdatedObject);
    machine.scheduler.advance(2s);
    EXPECT_EQ(status(enp2s0), 1);
    EXPECT_FALSE(isChanged(enp2s0));
}

TEST_F(RuleFeatureTest, ANetworkChangeIsEvaluatedBeforeTheMenuIsBuiltAnew)
{
    run();
    insertRule(randomOnce(enp1s0, home));
    QStringList order;
    QObject::connect(&rules().evaluation, &RuleEvaluation::ruleStatusEvaluated,
        [&] { order << QStringLiteral("rules"); });
    QObject::connect(&program->statusMenu(), &StatusMenuModel::rebuildStarted,
        [&] { order << QStringLiteral("menu"); });
    giveLease(enp1s0, QStringLiteral("203.0.113.1"));
    ASSERT_TRUE(order.contains(QStringLiteral("menu")));
    // Evaluation itself selects the interface again, which builds the menu too.
    EXPECT_EQ(order.count(QStringLiteral("rules")), 1);
    EXPECT_LT(order.indexOf(QStringLiteral("rules")), order.lastIndexOf(QStringLiteral("menu")));
    machine.scheduler.advance(2s);
    EXPECT_TRUE(isChanged(enp1s0));
}

TEST_F(RuleFeatureTest, WhatOwnChangesBringAboutCarriesNoRuleOutAgain)
{
    run();
    insertRule(randomOnce(enp1s0, home));
    giveLease(enp1s0, QStringLiteral("203.0.113.1"));
    // The change takes the link down, up again, and brings another lease.
    QObject::connect(&program->wiring(), &EventWiring::historyRecordDue, [this] {
        machine.host.at(enp1s0).active = false;
        giveLease(enp1s0, QString());
    });
    machine.scheduler.advance(2s);
    ASSERT_EQ(history().size(), 1);
    machine.host.at(enp1s0).active = true;
    giveLease(enp1s0, QStringLiteral("203.0.113.2"));
    machine.scheduler.advance(30s);
    EXPECT_EQ(history().size(), 1);
}

TEST_F(RuleFeatureTest, ANewStayOnTheNetworkCarriesARuleOutAgain)
{
    run();
    insertRule(randomOnce(enp1s0, home));
    giveLease(enp1s0, QStringLiteral("203.0.113.1"));
    machine.scheduler.advance(60s);
    ASSERT_EQ(history().size(), 1);
    machine.random.put(QByteArray::fromHex("220102030405"));
    machine.host.at(enp1s0).active = false;
    giveLease(enp1s0, QString());
    machine.scheduler.advance(2s);
    machine.host.at(enp1s0).active = true;
    giveLease(enp1s0, QStringLiteral("203.0.113.2"));
    machine.scheduler.advance(60s);
    EXPECT_EQ(history().size(), 2);
}

TEST_F(RuleFeatureTest, ACheckBoxSwitchesItsRule)
{
    run();
    const ManagedObjectPtr rule = insertRule(randomOnce(enp1s0, home));
    rules().list.filterRulesArrayController();
    ASSERT_EQ(listed(), QStringList(home));
    rules().list.toggle(0, false);
    EXPECT_FALSE(rule->value(model::rule::enabled).toBool());
    EXPECT_FALSE(rules().list.state().rows.first().enabled) << "the list shows it";
    EXPECT_FALSE(context().hasChanges()) << "it is saved";
    machine.scheduler.advance(2s);
    EXPECT_FALSE(isChanged(enp1s0));
}

TEST_F(RuleFeatureTest, ANetworksNewModeIsEvaluatedForItsRules)
{
    run();
    int evaluated = 0;
    QObject::connect(
        &rules().evaluation, &RuleEvaluation::ruleStatusEvaluated, [&] { ++evaluated; });
    Q_EMIT program->networks().networkEditing.rulesChanged();
    EXPECT_EQ(evaluated, 1);
    EXPECT_FALSE(isChanged(enp1s0));
}

TEST_F(RuleFeatureTest, ARenamedRuleGetsANameOfItsOwn)
{
    run();
    insertRule(randomOnce(enp1s0, home));
    const ManagedObjectPtr other = insertRule(randomOnce(enp1s0, QStringLiteral("Office")));
    machine.notifications.post(notifications::updateNamesArray);
    EXPECT_EQ(rules().queries.namesArray().size(), 2);
    rules().list.filterRulesArrayController();
    ASSERT_EQ(listed().size(), 2);
    other->setValue(model::rule::name, home);
    context().processPendingChanges();
    machine.scheduler.runPending();
    const QString name = other->value(model::rule::name).toString();
    EXPECT_NE(name, home);
    EXPECT_TRUE(name.startsWith(home)) << qPrintable(name);
    EXPECT_TRUE(rules().queries.namesArray().contains(name));
    EXPECT_TRUE(listed().contains(name)) << "the table shows the correction";
}

TEST_F(RuleFeatureTest, AnotherContainerIsReadAnew)
{
    run();
    rules().list.filterRulesArrayController();
    saveRule(randomOnce(enp1s0, home));
    ASSERT_EQ(rules().queries.namesArray(), QStringList());
    machine.settings.setBool(keys::iCloudSync, true);
    EXPECT_EQ(rules().queries.namesArray(), QStringList(home));
    EXPECT_EQ(listed(), QStringList(home));
}

TEST_F(RuleFeatureTest, TheStatusIsThatOfTheSelectedInterface)
{
    saveRule(randomOnce(enp2s0, home));
    run();
    EXPECT_EQ(rules().status.state().image, QStringLiteral("NSStatusNone"));
    program->changeInterfacefromPopup(enp2s0);
    machine.scheduler.runPending();
    EXPECT_EQ(rules().status.state().image, QStringLiteral("NSStatusAvailable"));
    program->changeInterfacefromPopup(enp1s0);
    machine.scheduler.runPending();
    EXPECT_EQ(rules().status.state().image, QStringLiteral("NSStatusNone"));
}

TEST_F(RuleFeatureTest, TheStatusFollowsAnEvaluation)
{
    run();
    insertRule(randomOnce(enp1s0, home));
    rules().evaluation.checkDeviceForCurrentRuleAndChange(enp1s0, false);
    EXPECT_EQ(rules().status.state().image, QStringLiteral("NSStatusAvailable"));
}

TEST_F(RuleFeatureTest, TheListFollowsItsRecords)
{
    run();
    rules().list.filterRulesArrayController();
    ASSERT_EQ(listed(), QStringList());
    insertRule(randomOnce(enp1s0, home));
    EXPECT_EQ(listed(), QStringList(home));
}

TEST_F(RuleFeatureTest, TheListFollowsANetworkChange)
{
    create();
    start();
    insertRule(randomOnce(enp1s0, home));
    ASSERT_EQ(listed(), QStringList());
    machine.networkChanges.networkChanges();
    EXPECT_EQ(listed(), QStringList(home));
    EXPECT_EQ(rules().list.state().symbol, QStringLiteral("network"));
}

TEST_F(RuleFeatureTest, TheListPointsAtTheSelectedInterfaceWhenItsRulesMayBeOthers)
{
    run();
    rules().list.filterRulesArrayController();
    program->changeInterfacefromPopup(enp2s0);
    machine.scheduler.runPending();
    Q_EMIT rules().switches.rulesListStale();
    EXPECT_TRUE(rules().list.state().title.endsWith(enp2s0));
    EXPECT_EQ(rules().list.state().filter, rules().queries.filterPredicateForDevice(enp2s0));
}

TEST_F(RuleFeatureTest, ListAndNamesAreReadAnewWhenRecordsChangedBehindThem)
{
    run();
    rules().list.filterRulesArrayController();
    const ManagedObjectPtr rule = insertRule(randomOnce(enp1s0, home));
    ASSERT_EQ(listed(), QStringList(home));
    // Nobody is told of these.
    rule->setPrimitiveValue(model::rule::name, QStringLiteral("Second"));
    Q_EMIT rules().switches.rulesTableStale();
    EXPECT_EQ(listed(), QStringList(QStringLiteral("Second")));
    rule->setPrimitiveValue(model::rule::name, QStringLiteral("Third"));
    Q_EMIT program->records().store.recordsMerged();
    EXPECT_EQ(listed(), QStringList(QStringLiteral("Third")));
    EXPECT_EQ(rules().queries.namesArray(), QStringList(QStringLiteral("Third")));
}

class CountdownInTheWindow : public RuleFeatureTest
{
protected:
    CountdownInTheWindow()
    {
        saveRule(randomEveryFiveMinutes(enp1s0));
        run();
        machine.scheduler.advance(2s);
    }
    const CountdownModel::State &shown() { return rules().countdown.state(); }
};

TEST_F(CountdownInTheWindow, IsShownAtEveryTick)
{
    EXPECT_TRUE(shown().buttonsVisible);
    const QString before = shown().label;
    EXPECT_TRUE(before.startsWith(QStringLiteral("...changing MAC Address in 00:04:")))
        << qPrintable(before);
    machine.scheduler.advance(1s);
    EXPECT_NE(shown().label, before);
}

TEST_F(CountdownInTheWindow, IsHiddenAtTheBeginningOfTheStart)
{
    create();
    rules().countdown.showCountdown(enp1s0, QStringLiteral("old"), false);
    at(&LaunchSequence::recordStoreDue,
        [this] { EXPECT_EQ(shown().label, QStringLiteral("old")); });
    at(&LaunchSequence::countdownLabelDue, [this] { EXPECT_EQ(shown().label, QString()); });
    start();
    EXPECT_EQ(stepsSeen, 2);
}

TEST_F(CountdownInTheWindow, IsHiddenWhenAnotherInterfaceIsSelected)
{
    program->changeInterfacefromPopup(enp2s0);
    machine.scheduler.runPending();
    EXPECT_EQ(shown().label, QString());
    EXPECT_FALSE(shown().buttonsVisible);
    machine.scheduler.advance(3s);
    EXPECT_EQ(shown().label, QString());
}

TEST_F(CountdownInTheWindow, IsHiddenWhenItIsStopped)
{
    rules().timers.stopCountdownTimer(enp1s0);
    EXPECT_EQ(shown().label, QString());
    EXPECT_FALSE(shown().buttonsVisible);
}

TEST_F(CountdownInTheWindow, ItsButtonsLookNormalOnceTheyHaveWorked)
{
    int reset = 0;
    QObject::connect(&rules().countdown, &CountdownModel::timerButtonsReset, [&] { ++reset; });
    rules().countdown.pauseCountdownTimer();
    EXPECT_EQ(reset, 1);
    rules().countdown.resumeCountdownTimer();
    EXPECT_EQ(reset, 2);
}

} // namespace
} // namespace quillon::test
