// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/rules/CountdownModel.h"
#include "presentation/rules/RuleStatusModel.h"
#include "presentation/rules/RulesListModel.h"
#include "unit/rules/RuleMachine.h"

namespace quillon::test {
namespace {

class RuleStatusShown : public RuleMachine
{
protected:
    RuleStatusModel::State shownFor(const QVariant &status)
    {
        setRecord(en0, record::hasRule, status);
        model.updateRuleStatusForDevice(en0);
        return model.state();
    }
    RuleStatusModel model{table};
};

TEST_F(RuleStatusShown, IsNoneBeforeAnythingIsEvaluated)
{
    EXPECT_EQ(model.state().image, QStringLiteral("NSStatusNone"));
}

TEST_F(RuleStatusShown, TellsAnActiveRule)
{
    EXPECT_EQ(shownFor(1), (RuleStatusModel::State{QStringLiteral("NSStatusAvailable"),
                               QStringLiteral("has an Active rule"), false, true, true}));
}

TEST_F(RuleStatusShown, TellsRulesOfWhichNoneIsActive)
{
    EXPECT_EQ(
        shownFor(2), (RuleStatusModel::State{QStringLiteral("NSStatusPartiallyAvailable"),
                         QStringLiteral("no rules are currently Active"), true, false, true}));
}

TEST_F(RuleStatusShown, TellsEverythingElseAsNoRules)
{
    const RuleStatusModel::State none{QStringLiteral("NSStatusNone"),
        QStringLiteral("no rules have been configured"), true, true, false};
    for (const QVariant &status : {QVariant(0), QVariant(), QVariant(3), QVariant(-1),
             QVariant(QStringLiteral("text")), QVariant(QVariantMap())}) {
        EXPECT_EQ(shownFor(status), none);
    }
    model.updateRuleStatusForDevice(QStringLiteral("en9"));
    EXPECT_EQ(model.state(), none);
}

TEST_F(RuleStatusShown, SaysWhenItChanges)
{
    int changes = 0;
    QObject::connect(&model, &RuleStatusModel::changed, [&] { ++changes; });
    shownFor(1);
    shownFor(1);
    EXPECT_EQ(changes, 1);
    shownFor(2);
    EXPECT_EQ(changes, 2);
}

class RulesShown : public RuleMachine
{
protected:
    QStringList names() const
    {
        QStringList names;
        for (const RulesListModel::Row &row : model.state().rows) {
            names << row.name;
        }
        return names;
    }
    RulesListModel model{{settings, notifications, current, queries}};
};

TEST_F(RulesShown, AreFetchedAgainOnlyWhenARuleIsAmongTheChangedRecords)
{
    model.filterRulesArrayController();
    addRule({.name = QStringLiteral("new")});
    const RuleList rules = queries.managedRuleArrayForDevice(allDevices);
    ASSERT_EQ(rules.size(), 1);
    const auto change = [](const ManagedObjectPtr &inserted) {
        return ObjectsDidChange{{inserted}, {}, {}};
    };
    model.reloadAfter(change(context().insertNewObject(QStringLiteral("Connection"))));
    EXPECT_EQ(names(), QStringList());
    model.reloadAfter(change(rules.first().object()));
    EXPECT_EQ(names(), QStringList{QStringLiteral("new")});
}

TEST_F(RulesShown, AreExactlyThoseThatEvaluationConsiders)
{
    addRule({.name = QStringLiteral("mine")});
    addRule({.name = QStringLiteral("login"), .isLogin = true});
    addRule({.name = QStringLiteral("other"), .device = en1});
    model.filterRulesArrayController();
    EXPECT_EQ(model.state().filter, queries.filterPredicateForDevice(en0));
    EXPECT_EQ(names(), (QStringList{QStringLiteral("login"), QStringLiteral("mine")}));
}

TEST_F(RulesShown, OfAWiredInterfaceStandUnderItsPortAndDevice)
{
    model.filterRulesArrayController();
    EXPECT_EQ(model.state().symbol, QStringLiteral("network"));
    EXPECT_EQ(model.state().title, QStringLiteral("Ethernet \u00B7 en0"));
}

TEST_F(RulesShown, OfTheWifiInterfaceStandUnderTheNetworksName)
{
    select(en1);
    settings.set(keys::currentWiFiDict, QVariantMap{{wifirecord::name, QStringLiteral("Home")}});
    model.filterRulesArrayController();
    EXPECT_EQ(model.state().symbol, QStringLiteral("wifi"));
    EXPECT_EQ(model.state().title, QStringLiteral("Home"));
    EXPECT_EQ(model.state().filter.format(), QStringLiteral("network == 'empty'"));
}

TEST_F(RulesShown, StandEnabledFirstAndByName)
{
    addRule({.name = QStringLiteral("b"), .enabled = false});
    addRule({.name = QStringLiteral("d"), .network = QStringLiteral("x")});
    addRule({.name = QStringLiteral("a"), .enabled = false});
    addRule({.name = QStringLiteral("C")});
    model.filterRulesArrayController();
    EXPECT_EQ(names(), (QStringList{QStringLiteral("C"), QStringLiteral("d"), QStringLiteral("a"),
                           QStringLiteral("b")}));
    EXPECT_TRUE(model.state().rows.first().enabled);
    EXPECT_FALSE(model.state().rows.last().enabled);
}

TEST_F(RulesShown, KeepTheirSelectionAndBeginWithTheFirst)
{
    addRule({.name = QStringLiteral("a")});
    const Rule b = addRule({.name = QStringLiteral("b"), .network = QStringLiteral("x")});
    EXPECT_EQ(model.state().selectedRow, -1);
    model.filterRulesArrayController();
    EXPECT_EQ(model.state().selectedRow, 0);
    model.selectRow(1);
    b.setName(QStringLiteral("0"));
    model.reload();
    EXPECT_EQ(model.state().selectedRow, 0) << "the same rule, in its new place";
    model.selectRow(2);
    model.selectRow(-1);
    EXPECT_EQ(model.state().selectedRow, 0);
    context().deleteObject(b.object());
    model.reload();
    EXPECT_EQ(names(), QStringList{QStringLiteral("a")});
    EXPECT_EQ(model.state().selectedRow, 0);
}

TEST_F(RulesShown, AreSwitchedByABroadcast)
{
    const Rule rule = addRule({.name = QStringLiteral("a"), .enabled = false});
    const auto token = notifications.addObserver(notifications::toggleCheckbox,
        [this](const auto &posted) { switches.toggleRule(posted.userInfo); });
    QObject::connect(
        &switches, &RuleSwitches::rulesListStale, [this] { model.filterRulesArrayController(); });
    model.filterRulesArrayController();
    model.toggle(0, true);
    EXPECT_TRUE(rule.enabled());
    EXPECT_TRUE(model.state().rows.first().enabled);
    EXPECT_TRUE(model.state().rows.first().active);
    model.toggle(7, true);
    model.toggle(-1, true);
    notifications.removeObserver(token);
}

class CountdownShown : public RuleMachine
{
protected:
    CountdownShown()
    {
        QObject::connect(&timers, &CountdownTimers::ticked, &model, &CountdownModel::showCountdown);
        QObject::connect(
            &timers, &CountdownTimers::timerLabelStale, &model, &CountdownModel::hideTimerLabel);
        QObject::connect(&timers, &CountdownTimers::timerButtonsStale, &model,
            &CountdownModel::resetTimerButtons);
        QObject::connect(&model, &CountdownModel::timerButtonsReset, [this] { ++resets; });
        setRecord(en0, record::rule, QVariantMap{{timerMinutesKey, 2}});
    }
    void pass(int seconds) { scheduler.advance(std::chrono::seconds(seconds)); }

    CountdownModel model{timers, current};
    int resets = 0;
};

TEST_F(CountdownShown, AppearsWithTheFirstTick)
{
    EXPECT_FALSE(model.state().buttonsVisible);
    timers.startCountDownTimer(en0);
    EXPECT_FALSE(model.state().buttonsVisible);
    pass(1);
    EXPECT_EQ(
        model.state(), (CountdownModel::State{QStringLiteral("...changing MAC Address in 00:01:59"),
                           true, true, false, en0}));
}

TEST_F(CountdownShown, IsThatOfTheSelectedInterfaceOnly)
{
    timers.startCountDownTimer(en1);
    pass(1);
    EXPECT_EQ(model.state().label, QString());
    EXPECT_FALSE(model.state().buttonsVisible);
}

TEST_F(CountdownShown, DisablesAButtonThatWasUsedUntilTheNextTickSaysMore)
{
    timers.startCountDownTimer(en0);
    pass(1);
    model.pauseCountdownTimer();
    EXPECT_EQ(resets, 1);
    EXPECT_FALSE(model.state().pauseEnabled);
    EXPECT_FALSE(model.state().resumeEnabled);
    pass(1);
    EXPECT_FALSE(model.state().pauseEnabled);
    EXPECT_TRUE(model.state().resumeEnabled);
    EXPECT_EQ(model.state().label, QStringLiteral("...changing MAC Address in 00:01:59 (paused)"));
    model.resumeCountdownTimer();
    EXPECT_EQ(resets, 2);
    EXPECT_FALSE(model.state().resumeEnabled);
    pass(1);
    EXPECT_TRUE(model.state().pauseEnabled);
    EXPECT_FALSE(model.state().resumeEnabled);
}

TEST_F(CountdownShown, DisablesTheButtonAlsoWhenTheCountdownHasGone)
{
    timers.startCountDownTimer(en0);
    pass(1);
    timers.stopCountdownTimer(en0);
    model.pauseCountdownTimer();
    EXPECT_FALSE(model.state().pauseEnabled);
    EXPECT_EQ(resets, 1);
}

TEST_F(CountdownShown, IsHiddenWithItsButtonsWhenTheLastOneStops)
{
    timers.startCountDownTimer(en0);
    pass(1);
    timers.stopCountdownTimer(en0);
    EXPECT_EQ(model.state().label, QString());
    EXPECT_FALSE(model.state().buttonsVisible);
}

TEST_F(CountdownShown, EnablesExactlyOneButton)
{
    model.setTimerButtonStateIsPaused(true);
    EXPECT_TRUE(model.state().resumeEnabled && !model.state().pauseEnabled);
    model.setTimerButtonStateIsPaused(false);
    EXPECT_TRUE(!model.state().resumeEnabled && model.state().pauseEnabled);
}

} // namespace
} // namespace quillon::test
