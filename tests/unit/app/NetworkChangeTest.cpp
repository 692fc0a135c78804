// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "unit/rules/RuleMachine.h"

#include <QUrl>

namespace quillon::test {
namespace {

const QString homeBssid = QStringLiteral("02:00:00:00:aa:01");

class NetworkChangeTest : public RuleMachine
{
protected:
    NetworkChangeTest()
    {
        addRule({.name = QStringLiteral("wired")});
        addRule({.name = QStringLiteral("wifi"), .device = en1});
    }
};

TEST_F(NetworkChangeTest, StartsARefreshOfTheExternalAddressWhenThatIsWanted)
{
    networkEvent();
    EXPECT_TRUE(http.requests().isEmpty());
    settings.setBool(keys::shouldUpdateExternalIP, true);
    networkEvent();
    EXPECT_EQ(http.requests().size(), 1);
}

TEST_F(NetworkChangeTest, WithoutAChangedRecordEvaluatesNothing)
{
    networkEvent();
    EXPECT_TRUE(overviews.isEmpty());
    EXPECT_EQ(reachability.questions, 0);
    EXPECT_FALSE(table.record(en0).hasRule);
}

TEST_F(NetworkChangeTest, AlwaysFinishesWithTheListOfRules)
{
    networkEvent();
    EXPECT_EQ(list.state().rows.size(), 1) << "also when nothing changed";
    list.toggle(0, true);
    select(QStringLiteral("bridge0"));
    networkEvent();
    EXPECT_TRUE(list.state().rows.isEmpty());
    select(en0);
    bool activeWhenShown = false;
    QObject::connect(&list, &RulesListModel::changed,
        [&] { activeWhenShown = list.state().rows.value(0).active; });
    giveLease(en0);
    networkEvent();
    EXPECT_TRUE(activeWhenShown) << "after the evaluation";
}

TEST_F(NetworkChangeTest, CarriesTheRuleOutWhenTheInternetCanBeReached)
{
    giveLease(en0);
    networkEvent();
    EXPECT_EQ(reachability.questions, 1);
    EXPECT_EQ(changesOf(en0).size(), 1);
}

TEST_F(NetworkChangeTest, OnlyRecordsWhatIsInForceWhenItCannot)
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

TEST_F(NetworkChangeTest, TakesTheFirstInterfaceInTheOrderOfTheTableOnly)
{
    giveLease(en1);
    giveLease(en0);
    networkEvent();
    ASSERT_EQ(overviews.size(), 1);
    EXPECT_EQ(overviews.first().userInfo.keys(), QStringList{en0});
    networkEvent();
    EXPECT_EQ(overviews.size(), 1) << "the other one is news no more";
}

TEST_F(NetworkChangeTest, DoesNotCountAnInterfaceThatIsNew)
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

TEST_F(NetworkChangeTest, OfTheWifiInterfaceReadsTheNetworkBeforeRulesAreMatched)
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

TEST_F(NetworkChangeTest, OfTheSelectedInterfaceRefreshesTheSelectionBeforeTheInternetIsTested)
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
    EXPECT_EQ(current.record().ipAddress, table.record(en0).ipAddress);
}

TEST_F(NetworkChangeTest, ThatLeavesTheWifiNetworkEndsTheCountdown)
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

class NetworkChangeToSavedNetworks : public RuleMachine
{
protected:
    NetworkChangeToSavedNetworks()
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

TEST_F(NetworkChangeToSavedNetworks, ASavedNetworkHasItsOwn)
{
    EXPECT_EQ(inForceOn(QStringLiteral("Home"), homeBssid.toUpper()), QStringLiteral("home"));
}

TEST_F(NetworkChangeToSavedNetworks, AnotherSavedNetworkHasTheOneForAny)
{
    EXPECT_EQ(inForceOn(QStringLiteral("Office"), QStringLiteral("02:00:00:00:cc:01")),
        QStringLiteral("any"));
}

TEST_F(NetworkChangeToSavedNetworks, ANetworkThatIsNotSavedHasTheOneForUnknownNetworks)
{
    EXPECT_EQ(inForceOn(QStringLiteral("Cafe"), QStringLiteral("02:00:00:00:dd:01")),
        QStringLiteral("unknown"));
}

TEST_F(NetworkChangeToSavedNetworks, ANetworkSavedByItsSsidIsKnownAtEveryAccessPoint)
{
    EXPECT_EQ(inForceOn(QStringLiteral("Mesh"), QStringLiteral("02:00:00:00:bb:99")),
        QStringLiteral("any"));
}

} // namespace
} // namespace quillon::test
