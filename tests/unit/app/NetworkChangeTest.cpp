// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "unit/rules/RuleFixture.h"

#include <QUrl>

#include <functional>
#include <utility>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

const QString homeBssid = u"02:00:00:00:aa:01"_s;

class NetworkChangeTest : public RuleFixture
{
protected:
    NetworkChangeTest()
    {
        addRule({.name = u"wired"_s});
        addRule({.name = u"wifi"_s, .device = en1});
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
    list.toggleRule(list.state().rows.first().objID, true);
    select(u"bridge0"_s);
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

TEST_F(NetworkChangeTest, OfTheSelectedInterfaceReadsTheKernelOnceAndNeverWaitsForTheDisk)
{
    // A rule was carried out before: whether its device is still there has to be known.
    giveLease(en0);
    networkEvent();
    ASSERT_EQ(changesOf(en0).size(), 1);
    host.clearJournal();
    settings.clearJournal();
    reachability.reachable = false;
    giveLease(en0);
    networkEvent();
    EXPECT_EQ(host.journal(), QStringList(u"ports"_s));
    EXPECT_TRUE(settings.journal().contains(u"synchronize"_s));
    EXPECT_FALSE(settings.journal().contains(u"flush"_s));
}

TEST_F(NetworkChangeTest, DoesNotTakeADeviceThatIsNoPortForNowForOneThatWasTakenAway)
{
    giveLease(en0);
    networkEvent();
    ASSERT_EQ(changesOf(en0).size(), 1);
    const QString port = std::exchange(host.at(en0).port, QString());
    networkEvent();
    host.at(en0).port = port;
    giveLease(en0);
    networkEvent();
    EXPECT_EQ(changesOf(en0).size(), 1) << "it never left its network";
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
    EXPECT_EQ(ruleInForce(en0), u"wired"_s);
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
    ASSERT_EQ(overviews.size(), 2) << "the other one is news still";
    EXPECT_EQ(overviews.last().userInfo.keys(), QStringList{en1});
    networkEvent();
    EXPECT_EQ(overviews.size(), 2);
}

TEST_F(NetworkChangeTest, CountsWhatARefreshInBetweenHasSeenAlready)
{
    struct Refresh
    {
        const char *what;
        std::function<void()> make;
    };
    for (const auto &[what, make] :
        {Refresh{"the menu opens", [this] { table.updateNetWorkInterfaces(); }},
            Refresh{"an interface is chosen", [this] { current.updateInterface(en1); }},
            Refresh{"the address is read back", [this] {
                        table.update(en0, [&](DeviceRecord &record) {
                            const InterfaceInfo info = table.getInfoForDevice(en0);
                            record.ipAddress = info.ipAddress;
                            record.status = info.status;
                        });
                    }}}) {
        overviews.clear();
        giveLease(en0);
        make();
        scheduler.runPending();
        EXPECT_TRUE(overviews.isEmpty()) << what;
        networkEvent();
        EXPECT_EQ(overviews.size(), 1) << what;
        networkEvent();
        EXPECT_EQ(overviews.size(), 1) << what;
    }
    EXPECT_EQ(changesOf(en0).size(), 1);
}

TEST_F(NetworkChangeTest, CountsTheRouteThatComesAfterEverythingElse)
{
    reachability.reachable = false;
    giveLease(en0);
    networkEvent();
    EXPECT_TRUE(helper.changes().isEmpty());
    for (const QString &router : {u"192.0.2.1"_s, u"direct"_s, u"192.0.2.1 fe80::1"_s}) {
        host.at(en0).router = router;
        reachability.reachable = true;
        overviews.clear();
        networkEvent();
        EXPECT_EQ(overviews.size(), 1) << qPrintable(router);
    }
    EXPECT_EQ(changesOf(en0).size(), 1);
}

TEST_F(NetworkChangeTest, MakesUpOnceForWhatTheInternetWasMissingFor)
{
    reachability.reachable = false;
    for (const QString &device : {en0, en1}) {
        joinWifi(u"Home"_s, homeBssid);
        giveLease(device);
        networkEvent();
    }
    ASSERT_TRUE(helper.changes().isEmpty());
    networkEvent();
    ASSERT_TRUE(helper.changes().isEmpty()) << "it is missing still";
    reachability.reachable = true;
    const int readsBefore = radio.reads;
    networkEvent();
    EXPECT_EQ(radio.reads, readsBefore + 1) << "what the radio has joined may be another network";
    EXPECT_EQ(changesOf(en0).size(), 1) << "by a route of an interface that is no port";
    EXPECT_EQ(changesOf(en1).size(), 1);
    overviews.clear();
    networkEvent();
    EXPECT_TRUE(overviews.isEmpty());
}

TEST_F(NetworkChangeTest, ThatCannotReadTheInterfacesTakesNoneForTakenAway)
{
    giveLease(en0);
    networkEvent();
    ASSERT_EQ(changesOf(en0).size(), 1);
    host.setUnreadable(true);
    networkEvent();
    host.setUnreadable(false);
    giveLease(en0);
    networkEvent();
    EXPECT_EQ(changesOf(en0).size(), 1) << "it never left its network";
}

TEST_F(NetworkChangeTest, SelectsAnInterfaceWhileNoneIs)
{
    settings.set(keys::currentInterfaceDict, QVariantMap());
    QStringList selected;
    QObject::connect(&current, &CurrentInterface::interfaceSelected,
        [&](const QString &device) { selected << device; });
    for (const QString &device : {en0, en1, u"bridge0"_s}) {
        host.at(device).broken = true;
    }
    networkEvent();
    EXPECT_TRUE(selected.isEmpty());
    EXPECT_EQ(current.device(), QString());
    host.at(en0).broken = false;
    networkEvent();
    EXPECT_EQ(current.device(), en0);
    EXPECT_EQ(selected.value(0), en0);
    host.at(en1).broken = false;
    networkEvent();
    EXPECT_EQ(current.device(), en0) << "that one stays";
}

TEST_F(NetworkChangeTest, DoesNotCountAnInterfaceThatIsNew)
{
    host.plug({.port = u"USB Ethernet"_s,
        .device = u"en5"_s,
        .factory = {},
        .address = u"02:00:00:00:00:55"_s,
        .ipv4 = {}});
    addRule({.name = u"usb"_s, .device = u"en5"_s});
    networkEvent();
    EXPECT_TRUE(helper.changes().isEmpty());
    EXPECT_TRUE(table.contains(u"en5"_s));
    giveLease(u"en5"_s);
    networkEvent();
    EXPECT_EQ(changesOf(u"en5"_s).size(), 1);
}

TEST_F(NetworkChangeTest, OfTheWifiInterfaceReadsTheNetworkBeforeRulesAreMatched)
{
    joinWifi(u"Home"_s, homeBssid);
    giveLease(en1);
    networkEvent();
    EXPECT_EQ(radio.reads, 1);
    EXPECT_EQ(ruleInForce(en1), u"wifi"_s);
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
    joinWifi(u"Home"_s, homeBssid);
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

class NetworkChangeToSavedNetworks : public RuleFixture
{
protected:
    NetworkChangeToSavedNetworks()
    {
        addRule({.name = u"any"_s, .device = en1});
        addRule({.name = u"unknown"_s, .device = en1, .network = anUnknownNetwork});
        addRule({.name = u"home"_s, .device = en1, .network = homeBssid});
        saveNetwork(u"Home"_s, u"Home"_s, homeBssid, false);
        saveNetwork(u"Office"_s, u"Office"_s, u"02:00:00:00:cc:01"_s, false);
        saveNetwork(u"Mesh"_s, u"Mesh"_s, u"02:00:00:00:bb:01"_s, true);
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
    EXPECT_EQ(inForceOn(u"Home"_s, homeBssid.toUpper()), u"home"_s);
}

TEST_F(NetworkChangeToSavedNetworks, AnotherSavedNetworkHasTheOneForAny)
{
    EXPECT_EQ(inForceOn(u"Office"_s, u"02:00:00:00:cc:01"_s), u"any"_s);
}

TEST_F(NetworkChangeToSavedNetworks, ANetworkThatIsNotSavedHasTheOneForUnknownNetworks)
{
    EXPECT_EQ(inForceOn(u"Cafe"_s, u"02:00:00:00:dd:01"_s), u"unknown"_s);
}

TEST_F(NetworkChangeToSavedNetworks, ANetworkSavedByItsSsidIsKnownAtEveryAccessPoint)
{
    EXPECT_EQ(inForceOn(u"Mesh"_s, u"02:00:00:00:bb:99"_s), u"any"_s);
}

} // namespace
} // namespace quillon::test
