// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/NetworkEvents.h"

#include "unit/app/ProgramOnFakes.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using namespace std::chrono_literals;

class NetworkEventsTest : public ProgramOnFakes
{
protected:
    /// Names of interfaces: wired ones sort before wireless ones, or after them.
    void runWith(const QString &wired, const QString &wireless)
    {
        for (const QString &device : {enp1s0, enp2s0}) {
            machine.host.unplug(device);
        }
        for (const QString &device : {wired, wireless}) {
            const QString address = u"3c:22:fb:00:01:0%1"_s.arg(machine.host.interfaces().size());
            machine.host.plug({device == wireless ? u"Wi-Fi"_s : u"Ethernet"_s, device, address,
                address, {}, false});
            saveRule(randomOnce(device, device));
        }
        run();
        machine.settings.setBool(keys::shouldUpdateExternalIP, true);
        requestsBefore = machine.http.requests().size();
        machine.notifications.addObserver(
            notifications::networkChanged, [this](const auto &posted) {
                broadcasts << posted.userInfo.value(record::device).toString();
            });
        machine.notifications.addObserver(notifications::updateOverview,
            [this](const auto &posted) { evaluated << posted.userInfo.keys(); });
    }
    void giveLease(const QString &device)
    {
        machine.host.at(device).ipv4 = QStringList{u"203.0.113.%1"_s.arg(++leases)};
    }

    /// A burst in which both interfaces get a lease, the Wi-Fi interface on a new network.
    void expectOneEachFor(const QStringList &devices)
    {
        machine.host.clearJournal();
        WiFiInterface network;
        network.ssid = u"Home"_s;
        network.bssid = u"02:00:00:00:aa:01"_s;
        machine.wifi.join(network);
        for (const QString &device : devices) {
            machine.host.at(device).active = true;
            giveLease(device);
        }
        machine.networkChanges.networkChanges();
        machine.scheduler.runPending();
        EXPECT_EQ(broadcasts, devices);
        EXPECT_EQ(evaluated, devices);
        EXPECT_EQ(machine.host.journal().count(u"ports"_s), 1) << "the kernel is read once";
        EXPECT_EQ(machine.http.requests().size() - requestsBefore, 1);
        QStringList changed;
        for (const FakeHelper::Change &change : machine.helper.changes()) {
            changed << change.device;
        }
        EXPECT_EQ(changed, devices);
    }

    QStringList broadcasts;
    QStringList evaluated;
    qsizetype requestsBefore = 0;
    int leases = 0;
};

TEST_F(NetworkEventsTest, AnEventOfSeveralInterfacesIsOneNetworkChangeForEach)
{
    const QString wlp2s0 = u"wlp2s0"_s;
    runWith(enp1s0, wlp2s0);
    expectOneEachFor({enp1s0, wlp2s0});
}

TEST_F(NetworkEventsTest, AnEventOfSeveralInterfacesDoesNotMindTheirNames)
{
    const QString ath0 = u"ath0"_s;
    runWith(enp1s0, ath0);
    expectOneEachFor({ath0, enp1s0});
}

TEST_F(NetworkEventsTest, AnEventOfManyInterfacesReadsTheKernelOnce)
{
    QStringList devices;
    for (int i = 0; i < 150; ++i) {
        devices << u"eth%1"_s.arg(i, 4, 10, QChar(u'0'));
    }
    for (const QString &device : devices) {
        machine.host.plug({u"Ethernet"_s, device, {}, u"02:00:00:00:00:01"_s, {}});
    }
    run();
    machine.notifications.addObserver(notifications::networkChanged, [this](const auto &posted) {
        broadcasts << posted.userInfo.value(record::device).toString();
    });
    for (const QString &device : devices) {
        giveLease(device);
    }
    machine.host.clearJournal();
    machine.networkChanges.networkChanges();
    EXPECT_EQ(broadcasts, devices);
    EXPECT_EQ(machine.host.journal(), QStringList(u"ports"_s));
}

TEST_F(NetworkEventsTest, AnEventWithoutAnyNewsIsOneNetworkChangeOfNoInterface)
{
    runWith(enp1s0, u"wlp2s0"_s);
    machine.networkChanges.networkChanges();
    EXPECT_EQ(broadcasts, QStringList(QString()));
    EXPECT_TRUE(evaluated.isEmpty());
}

TEST_F(NetworkEventsTest, AnInterfaceIsEvaluatedOnceWhenAPortalHasLetUsIn)
{
    runWith(enp1s0, u"wlp2s0"_s);
    machine.reachability.reachable = false;
    giveLease(enp1s0);
    machine.networkChanges.networkChanges();
    evaluated.clear();
    machine.reachability.become(true);
    EXPECT_EQ(evaluated, QStringList(enp1s0));
    machine.networkChanges.networkChanges();
    EXPECT_EQ(evaluated, QStringList(enp1s0)) << "once";
}

TEST_F(NetworkEventsTest, AfterASleepNoEventOfTheNetworkIsNeeded)
{
    runWith(enp1s0, u"wlp2s0"_s);
    giveLease(enp1s0);
    machine.sleep.resume();
    EXPECT_EQ(broadcasts, QStringList(enp1s0));
    EXPECT_EQ(evaluated, QStringList(enp1s0));
}

TEST_F(NetworkEventsTest, AfterASleepTheRuleOfAWiredInterfaceActsOnceMore)
{
    runWith(enp1s0, u"wlp2s0"_s);
    machine.host.at(enp1s0).active = true;
    const auto changesAfterALease = [this] {
        giveLease(enp1s0);
        machine.networkChanges.networkChanges();
        machine.scheduler.advance(10s);
        return machine.helper.changes().size();
    };
    ASSERT_EQ(changesAfterALease(), 1);
    ASSERT_EQ(changesAfterALease(), 1);
    machine.sleep.resume();
    machine.scheduler.advance(10s);
    EXPECT_EQ(machine.helper.changes().size(), 1) << "nothing is new of it yet";
    EXPECT_EQ(changesAfterALease(), 2);
    EXPECT_EQ(changesAfterALease(), 2);
}

TEST_F(NetworkEventsTest, AnInterfaceThatWasHeldBackIsEvaluatedOnce)
{
    const QString wlp2s0 = u"wlp2s0"_s;
    runWith(enp1s0, wlp2s0);
    machine.reachability.reachable = false;
    for (const QString &device : {enp1s0, wlp2s0}) {
        giveLease(device);
    }
    machine.networkChanges.networkChanges();
    ASSERT_EQ(evaluated, (QStringList{enp1s0, wlp2s0}));
    machine.reachability.reachable = true;
    evaluated.clear();
    giveLease(wlp2s0);
    giveLease(enp1s0);
    machine.networkChanges.networkChanges();
    EXPECT_EQ(evaluated, (QStringList{enp1s0, wlp2s0}));
}

TEST_F(NetworkEventsTest, WhatCannotBeReadIsReadAgainAFewTimes)
{
    runWith(enp1s0, u"wlp2s0"_s);
    giveLease(enp1s0);
    machine.host.setUnreadable(true);
    machine.networkChanges.networkChanges();
    machine.networkChanges.networkChanges();
    machine.scheduler.advance(1s);
    machine.host.clearJournal();
    machine.scheduler.advance(1s);
    EXPECT_EQ(machine.host.journal(), QStringList(u"ports"_s)) << "once for both";
    machine.host.setUnreadable(false);
    EXPECT_TRUE(evaluated.isEmpty());
    machine.scheduler.advance(1s);
    EXPECT_EQ(evaluated, QStringList(enp1s0));
    machine.host.clearJournal();
    machine.scheduler.advance(1min);
    EXPECT_FALSE(machine.host.journal().contains(u"ports"_s));
}

TEST_F(NetworkEventsTest, WhatCanNeverBeReadIsGivenUpUntilTheNextEvent)
{
    runWith(enp1s0, u"wlp2s0"_s);
    machine.host.setUnreadable(true);
    machine.host.clearJournal();
    machine.networkChanges.networkChanges();
    machine.scheduler.advance(1min);
    EXPECT_EQ(machine.host.journal().count(u"ports"_s), 6);
    machine.networkChanges.networkChanges();
    machine.scheduler.advance(1min);
    EXPECT_EQ(machine.host.journal().count(u"ports"_s), 12);
}

TEST_F(NetworkEventsTest, AnEventThatEndsTheProgramMeanwhileDoesNoHarm)
{
    runWith(enp1s0, u"wlp2s0"_s);
    machine.notifications.addObserver(
        notifications::networkChanged, [this](const auto &) { program.reset(); });
    giveLease(u"enp1s0"_s);
    giveLease(u"wlp2s0"_s);
    machine.networkChanges.networkChanges();
    EXPECT_EQ(broadcasts.size(), 1);
}

} // namespace
} // namespace quillon::test
