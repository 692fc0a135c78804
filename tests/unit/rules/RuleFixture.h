// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/NetworkChange.h"
#include "base/NetworkKeys.h"
#include "base/NotificationNames.h"
#include "base/SettingsKeys.h"
#include "devices/AddressChanger.h"
#include "devices/CurrentInterface.h"
#include "devices/DeviceTable.h"
#include "devices/RandomAddress.h"
#include "fakes/FakeAddressOwners.h"
#include "fakes/FakeHelper.h"
#include "fakes/FakeHttpClient.h"
#include "fakes/FakeInterfaceAddresses.h"
#include "fakes/FakeNetworkHost.h"
#include "fakes/FakeNotifier.h"
#include "fakes/FakeRandomSource.h"
#include "fakes/FakeReachability.h"
#include "fakes/FakeScheduler.h"
#include "fakes/FakeSettingsStore.h"
#include "fakes/FakeWiFiClient.h"
#include "fakes/LogCapture.h"
#include "fakes/QtPrinting.h"
#include "helperlink/XPCMethods.h"
#include "networks/ExternalIPAddress.h"
#include "networks/SpecialNetworks.h"
#include "networks/WiFiNetwork.h"
#include "platform/NotificationCenter.h"
#include "presentation/rules/RulesListModel.h"
#include "rules/CountdownTimers.h"
#include "rules/RuleEvaluation.h"
#include "rules/RuleExecution.h"
#include "rules/RuleInvariants.h"
#include "rules/RuleQueries.h"
#include "rules/RuleSwitches.h"
#include "store/RecordStore.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace quillon::test {

/// What a test says of a rule; the rest is what an everyday rule has.
struct RuleText
{
    QString name;
    QString device = QStringLiteral("en0");
    QString network = anyNetwork;
    bool enabled = true;
    bool isLogin = false;
    int action = Rule::changeAddress;
    QString address = QStringLiteral("Random Address");
    int changeAction = Rule::once;
    int timerMins = 5;
    QString vendor = {};
    QString ssid = {};
    bool ssidDefined = false;
};

/// A machine with a wired interface (en0, selected), a Wi-Fi interface (en1) and a bridge, the
/// rules, and everything that rules act upon: the helper really changes the machine's addresses.
class RuleFixture : public ::testing::Test
{
protected:
    RuleFixture()
    {
        random.put(QByteArray::fromHex("3f0203040506"
                                       "3e0b0c0d0e0f"
                                       "3d1213141516"
                                       "3c1b1c1d1e1f"));
        table.updateNetWorkInterfaces();
        select(en0);
        QObject::connect(
            &changer, &AddressChanger::changeBegan, &execution, &RuleExecution::addressChangeBegan);
        QObject::connect(
            &changer, &AddressChanger::changeEnded, &execution, &RuleExecution::addressChangeEnded);
        QObject::connect(&execution, &RuleExecution::obstacleEnded,
            [this] { networkChange.makeUpForWithheld(); });
        QObject::connect(
            &store, &RecordStore::objectsDidChange, &invariants, &RuleInvariants::contextDidChange);
        notifications.addObserver(notifications::updateOverview, [this](const auto &posted) {
            if (posted.object != &timers) {
                overviews.append(posted);
            }
        });
        settings.clearJournal();
        host.clearJournal();
    }

    void select(const QString &device)
    {
        QVariantMap selection = storedRecord(device);
        selection[record::device] = device;
        settings.set(keys::currentInterfaceDict, selection);
    }
    void setRecord(const QString &device, const QString &key, const QVariant &value)
    {
        QVariantMap devices = settings.getDictionary(keys::deviceDict);
        QVariantMap record = devices.value(device).toMap();
        record.remove(key);
        if (value.isValid()) {
            record[key] = value;
        }
        devices[device] = record;
        settings.set(keys::deviceDict, devices);
    }

    Rule addRule(const RuleText &text)
    {
        const Rule rule(context().insertNewObject(QStringLiteral("Rule")));
        rule.setName(text.name);
        rule.setDevice(text.device);
        rule.setNetwork(text.isLogin ? QString() : text.network);
        rule.setEnabled(text.enabled);
        rule.setActive(false);
        rule.setIsLogin(text.isLogin);
        rule.setAction(text.action);
        rule.setAddress(text.address);
        rule.setChangeAction(text.changeAction);
        rule.setTimerMins(text.timerMins);
        rule.setVendor(text.vendor);
        rule.setSsid(text.ssid);
        rule.setSsidDefined(text.ssidDefined);
        context().processPendingChanges();
        return rule;
    }
    ManagedObjectContext &context() { return store.managedObjectContext(); }

    /// The radio associates; the system tells of it when networkEvent() is called.
    void joinWifi(const QString &ssid, const QString &bssid)
    {
        WiFiInterface interface;
        interface.device = en1;
        interface.ssid = ssid;
        interface.bssid = bssid;
        radio.join(interface);
    }
    void saveNetwork(const QString &name, const QString &ssid, const QString &bssid, bool bySsid)
    {
        QVariantMap networks = settings.getDictionary(keys::savedNetworks);
        QVariantMap entry{
            {savedentry::name, name}, {savedentry::SSID, ssid}, {savedentry::BSSID, bssid}};
        if (bySsid) {
            entry[savedentry::ssidDefined] = true;
        }
        networks[bssid.toLower()] = entry;
        settings.set(keys::savedNetworks, networks);
    }

    /// The interface gets another IPv4 address, which makes its record another one.
    void giveLease(const QString &device)
    {
        host.at(device).ipv4 = QStringList{QStringLiteral("203.0.113.%1").arg(++leases)};
    }
    /// The system tells of a change, and everything that follows happens.
    void networkEvent()
    {
        networkChange.networkChanged();
        scheduler.runPending();
    }
    void evaluate(const QString &device, RuleChange change)
    {
        evaluation.checkDeviceForCurrentRuleAndChange(device, change);
        scheduler.runPending();
    }

    QVariantMap storedRecord(const QString &device) const
    {
        return settings.getDictionary(keys::deviceDict).value(device).toMap();
    }
    QVariantMap recordedRule(const QString &device) const
    {
        return storedRecord(device).value(record::rule).toMap();
    }
    QString ruleInForce(const QString &device) const
    {
        return recordedRule(device).value(QStringLiteral("name")).toString();
    }
    QString loginRuleInForce(const QString &device) const
    {
        const QVariantMap rule = storedRecord(device).value(record::loginRule).toMap();
        return rule.value(QStringLiteral("name")).toString();
    }
    QVariant hasRule(const QString &device) const
    {
        return storedRecord(device).value(record::hasRule);
    }
    /// The addresses that the helper was asked to set on `device`, in order.
    QStringList changesOf(const QString &device) const
    {
        QStringList asked;
        for (const FakeHelper::Change &change : helper.changes()) {
            if (change.device == device) {
                asked << change.address;
            }
        }
        return asked;
    }
    bool isCountingDown(const QString &device) const { return timers.timers().contains(device); }

    const QString en0 = QStringLiteral("en0");
    const QString en1 = QStringLiteral("en1");
    const QString fixedAddress = QStringLiteral("02:00:00:00:00:77");

    QTemporaryDir folder;
    FakeScheduler scheduler;
    FakeSettingsStore settings{scheduler};
    FakeNetworkHost host{QStringLiteral("desk")};
    FakeInterfaceAddresses addresses{host};
    DeviceTable table{settings, host, addresses};
    NotificationCenter notifications;
    FakeNotifier notifier;
    FakeHelper helper{scheduler, host};
    FakeAddressOwners owners{scheduler};
    XPCMethods xpc{helper, scheduler, notifications};
    CurrentInterface current{settings, scheduler, table};
    FakeRandomSource random;
    RandomAddress randomAddress{random, table};
    AddressChanger changer{
        {settings, scheduler, notifications, notifier, xpc, owners, table, current, randomAddress}};
    FakeWiFiClient radio;
    WiFiNetwork wifi{settings, radio, table};
    FakeHttpClient http{scheduler};
    ExternalIPAddress externalAddress{http, settings, QUrl(QStringLiteral("https://ip.example"))};
    FakeReachability reachability;
    RecordStore store{scheduler, folder.path()};
    RuleQueries queries{store, settings, table};
    RuleInvariants invariants{{store, scheduler, notifications, queries}};
    CountdownTimers timers{{scheduler, notifications, notifier, table, changer}};
    RuleExecution execution{{scheduler, table, changer, timers}};
    RuleEvaluation evaluation{
        {settings, notifications, table, current, store, invariants, queries, execution}};
    RuleSwitches switches{{store, notifications, queries, evaluation}};
    RulesListModel list{{settings, notifications, current, queries}};
    NetworkChange networkChange{
        {externalAddress, table, wifi, current, reachability, execution, evaluation, list}};
    /// What evaluation told the overview; countdowns tell it more.
    QList<NotificationCenter::Notification> overviews;
    int leases = 0;
};

} // namespace quillon::test
