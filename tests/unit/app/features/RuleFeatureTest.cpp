// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/features/RuleFeature.h"

#include "unit/app/ProgramOnFakes.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using namespace std::chrono_literals;

class RuleFeatureTest : public ProgramOnFakes
{
protected:
    RuleFeature &rules() { return features().rules; }
    int status(const QString &device) const
    {
        return deviceRecord(device).value(record::hasRule).toInt();
    }
    void giveLease(const QString &device, const QString &address)
    {
        machine.host.at(device).ipv4 = {address};
        machine.networkChanges.networkChanges();
    }

    /// The first check of the rules comes half a second after the event.
    void startWithAnEvent()
    {
        create();
        start();
        machine.scheduler.advance(500ms);
        giveLease(enp1s0, u"192.0.2.77"_s);
    }

    const QString loginHelper = u"com.orvandel.Quillon4Helper"_s;
    const QString home = u"Home"_s;
};

TEST_F(RuleFeatureTest, TheNamesOfRulesAreKnownFromTheStartOn)
{
    saveRule(randomOnce(enp2s0, home));
    create();
    EXPECT_EQ(rules().queries.namesArray(), QStringList());
    start();
    EXPECT_EQ(rules().queries.namesArray(), QStringList(home));
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
    run();
    EXPECT_TRUE(isChanged(enp2s0));

    machine.host.giveAddress(enp2s0, factory.value(enp2s0));
    giveLease(enp2s0, u"203.0.113.1"_s);
    machine.scheduler.advance(60s);
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
    QObject::connect(
        &rules().evaluation, &RuleEvaluation::ruleStatusEvaluated, [&] { order << u"rules"_s; });
    QObject::connect(
        &features().statusMenu, &StatusMenuModel::rebuildStarted, [&] { order << u"menu"_s; });
    giveLease(enp1s0, u"203.0.113.1"_s);
    ASSERT_TRUE(order.contains(u"menu"_s));
    // Evaluation itself selects the interface again, which builds the menu too.
    EXPECT_EQ(order.count(u"rules"_s), 1);
    EXPECT_LT(order.indexOf(u"rules"_s), order.lastIndexOf(u"menu"_s));
    machine.scheduler.advance(2s);
    EXPECT_TRUE(isChanged(enp1s0));
}

TEST_F(RuleFeatureTest, WhatOwnChangesBringAboutCarriesNoRuleOutAgain)
{
    run();
    insertRule(randomOnce(enp1s0, home));
    giveLease(enp1s0, u"203.0.113.1"_s);
    // The change takes the link down, up again, and brings another lease.
    QObject::connect(&features().devices.addressChanger, &AddressChanger::addressChanged, [this] {
        machine.host.at(enp1s0).active = false;
        giveLease(enp1s0, QString());
    });
    machine.scheduler.advance(2s);
    ASSERT_EQ(history().size(), 1);
    machine.host.at(enp1s0).active = true;
    giveLease(enp1s0, u"203.0.113.2"_s);
    machine.scheduler.advance(30s);
    EXPECT_EQ(history().size(), 1);
}

TEST_F(RuleFeatureTest, ANewStayOnTheNetworkCarriesARuleOutAgain)
{
    run();
    insertRule(randomOnce(enp1s0, home));
    giveLease(enp1s0, u"203.0.113.1"_s);
    machine.scheduler.advance(60s);
    ASSERT_EQ(history().size(), 1);
    machine.random.put(QByteArray::fromHex("220102030405"));
    machine.host.at(enp1s0).active = false;
    giveLease(enp1s0, QString());
    machine.scheduler.advance(2s);
    machine.host.at(enp1s0).active = true;
    giveLease(enp1s0, u"203.0.113.2"_s);
    machine.scheduler.advance(60s);
    EXPECT_EQ(history().size(), 2);
}

TEST_F(RuleFeatureTest, ANetworksNewModeIsEvaluatedForItsRules)
{
    run();
    const ManagedObjectPtr rule = insertRule(randomOnce(enp2s0, home));
    const QString bssid = u"0a:0b:0c:0d:0e:0f"_s;
    rule->setValue(model::rule::network, bssid);
    ASSERT_EQ(status(enp2s0), 0);
    SavedEntry network;
    network.name = home;
    network.ssid = home;
    network.bssid = bssid;
    machine.settings.set(keys::savedNetworks, QVariantMap{{bssid, network.toPropertyList()}});
    SavedEntryPopoverModel &popover = features().networks.savedEntryPopover;
    popover.tokenFieldMenuForRepresentedObject(TokenFieldKind::SavedNetworks, network, {});
    machine.scheduler.runPending();
    popover.chooseSsidTickButton();
    EXPECT_TRUE(rule->value(model::rule::ssidDefined).toBool());
    EXPECT_EQ(status(enp2s0), 1);
    EXPECT_FALSE(isChanged(enp2s0));
}

TEST_F(RuleFeatureTest, TheEmptyVendorOfARuleFromTheFileIsNotThatOfTheDevice)
{
    saveRule(randomOnce(enp2s0, home));
    create();
    setDeviceRecord(enp2s0, record::vendor, u"Maker (3C22FB)"_s);
    start();
    machine.scheduler.advance(5s);
    ASSERT_EQ(machine.helper.changes().size(), 1);
    EXPECT_EQ(machine.helper.changes().first().address, u"AA:01:02:03:04:05"_s);
}

TEST_F(RuleFeatureTest, AnEventJustBeforeTheFirstCheckIsNotActedOnTwice)
{
    machine.helper.changeTakes = 100ms;
    saveRule(randomOnce(enp1s0, home));
    startWithAnEvent();
    machine.scheduler.advance(400ms);
    ASSERT_EQ(machine.helper.changes().size(), 1);
    machine.scheduler.advance(1min);
    EXPECT_EQ(machine.helper.changes().size(), 1);
}

TEST_F(RuleFeatureTest, AnEventDuringWhichTheFirstCheckComesIsNotActedOnTwice)
{
    machine.helper.changeTakes = 800ms;
    saveRule(randomOnce(enp1s0, home));
    startWithAnEvent();
    machine.scheduler.advance(1min);
    EXPECT_EQ(machine.helper.changes().size(), 1);
}

TEST_F(RuleFeatureTest, AfterALoginRuleTheRuleOfTheNetworkHasTheLastWordAlsoAfterAnEvent)
{
    machine.runningApplications.running.insert(loginHelper);
    QVariantMap login = randomAtLogin(enp1s0);
    login[model::rule::address] = u"02:00:00:00:00:11"_s;
    QVariantMap fixed = randomOnce(enp1s0, home);
    fixed[model::rule::address] = u"02:00:00:00:00:22"_s;
    saveRule(login);
    saveRule(fixed);
    startWithAnEvent();
    machine.scheduler.advance(1min);
    EXPECT_EQ(machine.helper.changes().size(), 3);
    EXPECT_EQ(machine.host.addressOf(enp1s0), u"02:00:00:00:00:22"_s);
}

TEST_F(RuleFeatureTest, WhatFailedWhileTheCableWasMovedIsMadeUpForWithoutAnotherEvent)
{
    run();
    insertRule(randomOnce(enp1s0, home));
    machine.helper.mood = FakeHelper::Mood::Hanging;
    giveLease(enp1s0, u"192.0.2.77"_s);
    machine.scheduler.advance(1s);
    for (const bool active : {false, true}) {
        machine.host.at(enp1s0).active = active;
        machine.networkChanges.networkChanges();
    }
    machine.helper.mood = FakeHelper::Mood::Obliging;
    EXPECT_FALSE(isChanged(enp1s0));
    machine.helper.timeOut();
    machine.scheduler.advance(1s);
    EXPECT_TRUE(isChanged(enp1s0));
}

TEST_F(RuleFeatureTest, AnAddressThatTheUserChoosesInTheWindowIsNotTakenForAnotherPrograms)
{
    machine.random.put(QByteArray::fromHex("bb0102030405"
                                           "cb0102030405"));
    saveRule(randomOnce(enp1s0, home));
    run();
    machine.scheduler.advance(10s);
    features().mainWindow.randomizeAddress();
    machine.scheduler.advance(10s);
    const QString chosen = machine.host.addressOf(enp1s0);
    giveLease(enp1s0, u"192.0.2.77"_s);
    machine.scheduler.advance(10s);
    EXPECT_EQ(machine.host.addressOf(enp1s0), chosen);
}

} // namespace
} // namespace quillon::test
