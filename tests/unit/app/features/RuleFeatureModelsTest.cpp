// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What the window shows of rules.
#include "app/features/RuleFeature.h"
#include "unit/app/ProgramOnFakes.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using namespace std::chrono_literals;

class RuleFeatureModelsTest : public ProgramOnFakes
{
protected:
    RuleFeature &rules() { return features().rules; }
    QStringList listed()
    {
        QStringList names;
        for (const auto &row : rules().list.state().rows) {
            names << row.name;
        }
        return names;
    }

    const QString home = u"Home"_s;
};

TEST_F(RuleFeatureModelsTest, RulesAreListedAndNoCountdownIsShownFromTheStartOn)
{
    saveRule(randomOnce(enp2s0, home));
    machine.settings.set(keys::currentInterfaceDict, QVariantMap{{record::device, enp2s0}});
    create();
    rules().countdown.showCountdown(enp2s0, u"old"_s, false);
    start();
    EXPECT_EQ(listed(), QStringList(home));
    EXPECT_EQ(rules().countdown.state().label, QString());
}

TEST_F(RuleFeatureModelsTest, ACheckBoxSwitchesItsRule)
{
    run();
    const ManagedObjectPtr rule = insertRule(randomOnce(enp1s0, home));
    rules().list.filterRulesArrayController();
    ASSERT_EQ(listed(), QStringList(home));
    rules().list.toggleRule(rules().list.state().rows.first().objID, false);
    EXPECT_FALSE(rule->value(model::rule::enabled).toBool());
    EXPECT_FALSE(rules().list.state().rows.first().enabled) << "the list shows it";
    EXPECT_FALSE(context().hasChanges()) << "it is saved";
    machine.scheduler.advance(2s);
    EXPECT_FALSE(isChanged(enp1s0));
}

TEST_F(RuleFeatureModelsTest, ARenamedRuleGetsANameOfItsOwn)
{
    run();
    insertRule(randomOnce(enp1s0, home));
    const ManagedObjectPtr other = insertRule(randomOnce(enp1s0, u"Office"_s));
    machine.notifications.post(notifications::updateNamesArray);
    EXPECT_EQ(rules().queries.namesArray().size(), 2);
    rules().list.filterRulesArrayController();
    ASSERT_EQ(listed().size(), 2);
    bool twice = false;
    QObject::connect(&rules().list, &RulesListModel::changed,
        [&] { twice = twice || listed().count(home) > 1; });
    other->setValue(model::rule::name, home);
    context().processPendingChanges();
    machine.scheduler.runPending();
    const QString name = other->value(model::rule::name).toString();
    EXPECT_NE(name, home);
    EXPECT_TRUE(name.startsWith(home)) << qPrintable(name);
    EXPECT_TRUE(rules().queries.namesArray().contains(name));
    EXPECT_TRUE(listed().contains(name)) << "the table shows the correction";
    EXPECT_FALSE(twice) << "in no turn";
}

TEST_F(RuleFeatureModelsTest, AnotherContainerIsReadAnew)
{
    run();
    rules().list.filterRulesArrayController();
    saveRule(randomOnce(enp1s0, home));
    ASSERT_EQ(rules().queries.namesArray(), QStringList());
    machine.settings.setBool(keys::iCloudSync, true);
    EXPECT_EQ(rules().queries.namesArray(), QStringList(home));
    EXPECT_EQ(listed(), QStringList(home));
}

TEST_F(RuleFeatureModelsTest, TheStatusIsThatOfTheSelectedInterface)
{
    saveRule(randomOnce(enp2s0, home));
    run();
    EXPECT_EQ(rules().status.state().image, u"NSStatusNone"_s);
    select(enp2s0);
    EXPECT_EQ(rules().status.state().image, u"NSStatusAvailable"_s);
    select(enp1s0);
    EXPECT_EQ(rules().status.state().image, u"NSStatusNone"_s);
}

TEST_F(RuleFeatureModelsTest, TheStatusFollowsAnEvaluation)
{
    run();
    insertRule(randomOnce(enp1s0, home));
    rules().evaluation.checkDeviceForCurrentRuleAndChange(enp1s0, RuleChange::None);
    EXPECT_EQ(rules().status.state().image, u"NSStatusAvailable"_s);
}

TEST_F(RuleFeatureModelsTest, TheListFollowsItsRecords)
{
    run();
    rules().list.filterRulesArrayController();
    ASSERT_EQ(listed(), QStringList());
    insertRule(randomOnce(enp1s0, home));
    EXPECT_EQ(listed(), QStringList(home));
}

TEST_F(RuleFeatureModelsTest, TheListFollowsANetworkChange)
{
    create();
    start();
    insertRule(randomOnce(enp1s0, home));
    ASSERT_EQ(listed(), QStringList());
    machine.networkChanges.networkChanges();
    EXPECT_EQ(listed(), QStringList(home));
    EXPECT_EQ(rules().list.state().symbol, u"network"_s);
}

TEST_F(RuleFeatureModelsTest, TheListPointsAtTheSelectedInterfaceWhenItsRulesMayBeOthers)
{
    run();
    rules().list.filterRulesArrayController();
    select(enp2s0);
    Q_EMIT rules().switches.ruleToggled();
    EXPECT_TRUE(rules().list.state().title.endsWith(enp2s0));
    EXPECT_EQ(rules().list.state().filter, rules().queries.filterPredicateForDevice(enp2s0));
}

TEST_F(RuleFeatureModelsTest, ListAndNamesAreReadAnewWhenRecordsChangedBehindThem)
{
    run();
    rules().list.filterRulesArrayController();
    const ManagedObjectPtr rule = insertRule(randomOnce(enp1s0, home));
    ASSERT_EQ(listed(), QStringList(home));
    // Nobody is told of these.
    rule->setPrimitiveValue(model::rule::name, u"Second"_s);
    Q_EMIT rules().switches.ruleSwitched();
    EXPECT_EQ(listed(), QStringList(u"Second"_s));
    rule->setPrimitiveValue(model::rule::name, u"Third"_s);
    Q_EMIT rules().invariants.rulesCorrected();
    EXPECT_EQ(listed(), QStringList(u"Third"_s));
    rule->setPrimitiveValue(model::rule::name, u"Fourth"_s);
    Q_EMIT features().history.store.recordsMerged();
    EXPECT_EQ(listed(), QStringList(u"Fourth"_s));
    EXPECT_EQ(rules().queries.namesArray(), QStringList(u"Fourth"_s));
}

class RuleFeatureModelsCountdown : public RuleFeatureModelsTest
{
protected:
    RuleFeatureModelsCountdown()
    {
        saveRule(randomEveryFiveMinutes(enp1s0));
        run();
        machine.scheduler.advance(2s);
    }
    const CountdownModel::State &shown() { return rules().countdown.state(); }
};

TEST_F(RuleFeatureModelsCountdown, IsShownAtEveryTick)
{
    EXPECT_TRUE(shown().buttonsVisible);
    const QString before = shown().label;
    EXPECT_TRUE(before.startsWith(u"...changing MAC Address in 00:04:"_s)) << qPrintable(before);
    machine.scheduler.advance(1s);
    EXPECT_NE(shown().label, before);
}

TEST_F(RuleFeatureModelsCountdown, IsHiddenWhenAnotherInterfaceIsSelected)
{
    select(enp2s0);
    EXPECT_EQ(shown().label, QString());
    EXPECT_FALSE(shown().buttonsVisible);
    machine.scheduler.advance(3s);
    EXPECT_EQ(shown().label, QString());
}

TEST_F(RuleFeatureModelsCountdown, IsHiddenWhenItIsStopped)
{
    rules().timers.stopCountdownTimer(enp1s0);
    EXPECT_EQ(shown().label, QString());
    EXPECT_FALSE(shown().buttonsVisible);
}

TEST_F(RuleFeatureModelsCountdown, ItsButtonsLookNormalOnceTheyHaveWorked)
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
