// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "RuleMachine.h"

#include <QUrl>

namespace quillon::test {
namespace {

const QString homeBssid = QStringLiteral("02:00:00:00:aa:01");

class NetworkChange : public RuleMachine
{
protected:
    NetworkChange()
    {
        addRule({.name = QStringLiteral("wired")});
        addRule({.name = QStringLiteral("wifi"), .device = en1});
    }
};

TEST_F(NetworkChange, StartsARefreshOfTheExternalAddressWhenThatIsWanted)
{
    networkEvent();
    EXPECT_TRUE(http.requests().isEmpty());
    settings.setBool(keys::shouldUpdateExternalIP, true);
    networkEvent();
    EXPECT_EQ(http.requests().size(), 1);
}

TEST_F(NetworkChange, WithoutAChangedRecordEvaluatesNothing)
{
    networkEvent();
    EXPECT_TRUE(overviews.isEmpty());
    EXPECT_EQ(reachability.questions, 0);
    EXPECT_FALSE(table.record(en0).contains(record::hasRule));
}

TEST_F(NetworkChange, AlwaysFinishesWithTheListOfRules)
{
    int stale = 0;
    QObject::connect(&evaluation, &RuleEvaluation::rulesListStale, [&] {
        ++stale;
        EXPECT_EQ(overviews.size(), stale - 1);
    });
    networkEvent();
    giveLease(en0);
    networkEvent();
    EXPECT_EQ(stale, 2);
}

TEST_F(NetworkChange, CarriesTheRuleOutWhenTheInternetCanBeReached)
{
    giveLease(en0);
    networkEvent();
    EXPECT_EQ(reachability.questions, 1);
    EXPECT_EQ(changesOf(en0).size(), 1);
}

TEST_F(NetworkChange, OnlyRecordsWhatIsInForceWhenItCannot)
{
    reachability.reachable = false;
    giveLease(en0);
    networkEvent();
    EXPECT_EQ(hasRule(en0), QVariant(1));
    EXPECT_EQ(ruleInForce(en0), QStringLiteral("wired"));
    EXPECT_TRUE(helper.changes().isEmpty());
    switches.updateEnabledWithID(true, queries.managedRuleArrayForDevice(en0).first().objID());
    scheduler.runPending();
    EXPECT_EQ(changesOf(en0).size(), 1) << "the next evaluation with a change carries it out";
}

TEST_F(NetworkChange, TakesTheFirstInterfaceInTheOrderOfTheTableOnly)
{
    giveLease(en1);
    giveLease(en0);
    networkEvent();
    ASSERT_EQ(overviews.size(), 1);
    EXPECT_EQ(overviews.first().userInfo.keys(), QStringList{en0});
    networkEvent();
    EXPECT_EQ(overviews.size(), 1) << "the other one is news no more";
}

TEST_F(NetworkChange, DoesNotCountAnInterfaceThatIsNew)
{
    host.plug({.port = QStringLiteral("USB Ethernet"),
        .device = QStringLiteral("en5"),
        .factory = {},
        .address = QStringLiteral("02:00:00:00:00:55"),
        .ipv4 = {}});
    addRule({.name = QStringLiteral("usb"), .device = QStringLiteral("en5")});
    networkEvent();
    EXPECT_TRUE(helper.changes().isEmpty());
    EXPECT_TRUE(table.contains(QStringLiteral("en5")));
    giveLease(QStringLiteral("en5"));
    networkEvent();
    EXPECT_EQ(changesOf(QStringLiteral("en5")).size(), 1);
}

TEST_F(NetworkChange, OfTheWifiInterfaceReadsTheNetworkBeforeRulesAreMatched)
{
    joinWifi(QStringLiteral("Home"), homeBssid);
    giveLease(en1);
    networkEvent();
    EXPECT_EQ(radio.reads, 1);
    EXPECT_EQ(ruleInForce(en1), QStringLiteral("wifi"));
    EXPECT_EQ(changesOf(en1).size(), 1);
    giveLease(en0);
    networkEvent();
    EXPECT_EQ(radio.reads, 1);
}

TEST_F(NetworkChange, OfTheSelectedInterfaceRefreshesTheSelectionBeforeTheInternetIsTested)
{
    QStringList order;
    QObject::connect(&current, &CurrentInterface::interfaceSelected, [&](const QString &device) {
        order << device;
        EXPECT_EQ(reachability.questions, 0);
    });
    giveLease(en0);
    networkEvent();
    giveLease(en1);
    networkEvent();
    EXPECT_EQ(order, QStringList{en0});
    EXPECT_EQ(
        current.record().value(record::ipAddress), table.record(en0).value(record::ipAddress));
}

TEST_F(NetworkChange, ThatLeavesTheWifiNetworkEndsTheCountdown)
{
    for (const Rule &rule : queries.managedRuleArrayForDevice(en1)) {
        rule.setChangeAction(Rule::every);
    }
    joinWifi(QStringLiteral("Home"), homeBssid);
    giveLease(en1);
    networkEvent();
    ASSERT_TRUE(isCountingDown(en1));
    radio.leave();
    host.at(en1).active = false;
    networkEvent();
    EXPECT_EQ(hasRule(en1), QVariant(0));
    EXPECT_TRUE(recordedRule(en1).isEmpty());
    EXPECT_FALSE(isCountingDown(en1));
}

class RulesOfNetworks : public RuleMachine
{
protected:
    RulesOfNetworks()
    {
        addRule({.name = QStringLiteral("any"), .device = en1});
        addRule({.name = QStringLiteral("unknown"), .device = en1, .network = anUnknownNetwork});
        addRule({.name = QStringLiteral("home"), .device = en1, .network = homeBssid});
        saveNetwork(QStringLiteral("Home"), QStringLiteral("Home"), homeBssid, false);
        saveNetwork(QStringLiteral("Office"), QStringLiteral("Office"),
            QStringLiteral("02:00:00:00:cc:01"), false);
        saveNetwork(QStringLiteral("Mesh"), QStringLiteral("Mesh"),
            QStringLiteral("02:00:00:00:bb:01"), true);
    }
    QString inForceOn(const QString &ssid, const QString &bssid)
    {
        joinWifi(ssid, bssid);
        giveLease(en1);
        networkEvent();
        return ruleInForce(en1);
    }
};

TEST_F(RulesOfNetworks, ASavedNetworkHasItsOwn)
{
    EXPECT_EQ(inForceOn(QStringLiteral("Home"), homeBssid.toUpper()), QStringLiteral("home"));
}

TEST_F(RulesOfNetworks, AnotherSavedNetworkHasTheOneForAny)
{
    EXPECT_EQ(inForceOn(QStringLiteral("Office"), QStringLiteral("02:00:00:00:cc:01")),
        QStringLiteral("any"));
}

TEST_F(RulesOfNetworks, ANetworkThatIsNotSavedHasTheOneForUnknownNetworks)
{
    EXPECT_EQ(inForceOn(QStringLiteral("Cafe"), QStringLiteral("02:00:00:00:dd:01")),
        QStringLiteral("unknown"));
}

TEST_F(RulesOfNetworks, ANetworkSavedByItsSsidIsKnownAtEveryAccessPoint)
{
    EXPECT_EQ(inForceOn(QStringLiteral("Mesh"), QStringLiteral("02:00:00:00:bb:99")),
        QStringLiteral("any"));
}

} // namespace
} // namespace quillon::test
