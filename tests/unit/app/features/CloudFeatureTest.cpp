// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/features/CloudFeature.h"

#include "app/QuillonAppDelegate.h"
#include "base/SettingsKeys.h"
#include "fakes/FakePlatform.h"
#include "fakes/QtPrinting.h"
#include "networks/SpecialNetworks.h"
#include "rules/Rule.h"
#include "store/graph/ManagedObjectContext.h"
#include "store/model/QuillonModel.h"
#include "sync/AccountFile.h"
#include "unit/sync/SeededRandom.h"

#include <gtest/gtest.h>

#include <optional>

namespace quillon::test {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
namespace {

const CloudAccount server{
    CloudAccount::Kind::WebDav, QUrl(u"https://cloud.example/dav/ada"_s), u"ada"_s, u"Quillon"_s};
const QString enp1s0 = u"enp1s0"_s;

/// The whole program on a computer of its own.
struct Desk
{
    explicit Desk(FakeCloudAccount *shared = nullptr, quint64 number = 1)
        : machine(shared)
    {
        // Writers of the account tell themselves apart by what is random.
        constexpr int plenty = 65536;
        machine.random.put(SeededRandom(number).bytes(plenty));
    }

    /// As somebody left it who has signed in.
    void signIn()
    {
        const auto key = [] {
            return AccountKey::fromBytes(QByteArray(AccountKey::size, 'k')).value();
        };
        FakeRandomSource random;
        const QByteArray file = WrappedKey::wrap(key(), "correct horse", random, {1, 8}).value();
        if (!machine.cloud.account.files.contains(keyFileName)) {
            machine.cloud.account.put(keyFileName, file);
        }
        CloudAccounts(machine.settings).set(server);
        CloudSecrets(machine.secrets)
            .keep(server,
                {u"app password"_s, std::make_shared<const OpenedKey>(OpenedKey{key(), file})},
                [](const auto &) {});
        machine.scheduler.runPending();
        machine.secrets.asked.clear();
    }
    void run()
    {
        program.emplace(machine.platform());
        program->launch().awakeFromNib();
        program->launch().applicationWillFinishLaunching();
        program->launch().applicationDidFinishLaunching();
        pass(2s);
    }
    void pass(std::chrono::milliseconds time) { machine.scheduler.advance(time); }
    void switchSync(bool isOn)
    {
        features().preferences.general.synciCloud(isOn);
        pass(1min);
    }
    Features &features() { return program->features(); }
    ManagedObjectContext &context() { return features().history.store.managedObjectContext(); }
    qsizetype ruleCount()
    {
        const auto rules = context().fetch({model::Rule, {}, {}});
        return rules ? rules.value().size() : -1;
    }
    /// An enabled rule that gives the first interface a random address once, on any network.
    void makeRule()
    {
        const QVariantMap values{{model::rule::device, enp1s0}, {model::rule::name, u"Anywhere"_s},
            {model::rule::network, anyNetwork}, {model::rule::enabled, true},
            {model::rule::isLogin, false}, {model::rule::action, Rule::changeAddress},
            {model::rule::changeAction, Rule::once}, {model::rule::address, u"Random Address"_s},
            {model::rule::vendor, QString()}};
        const ManagedObjectPtr rule = context().insertNewObject(model::Rule);
        for (auto value = values.begin(); value != values.end(); ++value) {
            rule->setValue(value.key(), value.value());
        }
        ASSERT_FALSE(context().save());
    }
    QStringList toldBodies() const
    {
        QStringList bodies;
        for (const auto &shown : machine.userNotifications.everShown) {
            if (shown.title == u"iCloud"_s) {
                bodies << shown.body;
            }
        }
        return bodies;
    }

    FakePlatform machine;
    std::optional<QuillonAppDelegate> program;
};

TEST(CloudFeature, ARuleMadeOnOneComputerActsOnTheOther)
{
    FakeCloudAccount shared;
    Desk one(&shared, 1);
    Desk two(&shared, 2);
    for (Desk *desk : {&one, &two}) {
        desk->machine.settings.setBool(keys::displayNotifications, true);
        desk->signIn();
        desk->run();
        desk->switchSync(true);
        ASSERT_TRUE(desk->machine.settings.getBool(keys::iCloudSync));
    }
    const QString factory = two.machine.host.addressOf(enp1s0);
    one.makeRule();
    one.pass(1min);
    two.pass(4min);
    ASSERT_EQ(two.ruleCount(), 1);
    EXPECT_TRUE(two.toldBodies().contains(u"updates received"_s));
    two.machine.host.unplug(enp1s0);
    two.machine.networkChanges.networkChanges();
    two.pass(10s);
    two.machine.host.plug({u"Ethernet"_s, enp1s0, factory, factory, {u"192.0.2.10"_s}});
    two.machine.networkChanges.networkChanges();
    two.pass(10s);
    EXPECT_NE(two.machine.host.addressOf(enp1s0), factory);
}

TEST(CloudFeature, ASettingChangedOnOneComputerIsTheOthers)
{
    FakeCloudAccount shared;
    Desk one(&shared, 1);
    Desk two(&shared, 2);
    for (Desk *desk : {&one, &two}) {
        desk->signIn();
        desk->run();
        desk->switchSync(true);
    }
    two.pass(5min);
    one.pass(5min);
    one.machine.settings.setBool(keys::lowerCaseHEX, true);
    one.pass(1min);
    two.pass(5min);
    EXPECT_TRUE(two.machine.settings.getBool(keys::lowerCaseHEX));
    two.machine.settings.setBool(keys::lowerCaseHEX, false);
    two.pass(1min);
    one.pass(5min);
    EXPECT_FALSE(one.machine.settings.getBool(keys::lowerCaseHEX));
}

TEST(CloudFeature, SwitchedOffItAsksNobodyForAnything)
{
    Desk desk;
    desk.signIn();
    desk.run();
    desk.pass(24h);
    EXPECT_TRUE(desk.machine.secrets.asked.isEmpty());
    EXPECT_TRUE(desk.machine.cloud.asked.isEmpty());
    EXPECT_EQ(desk.machine.cloud.storages, 0);
    EXPECT_FALSE(desk.machine.powerSaving.isWatched());
    desk.switchSync(true);
    EXPECT_EQ(desk.machine.cloud.storages, 1);
    desk.switchSync(false);
    EXPECT_EQ(desk.machine.cloud.storages, 0);
}

TEST(CloudFeature, WithoutAnAccountThePersonIsAskedToSignIn)
{
    Desk desk;
    desk.run();
    desk.switchSync(true);
    ASSERT_EQ(desk.machine.alerts.alerts.size(), 1);
    EXPECT_EQ(desk.machine.alerts.alerts.first().message, u"Please sign in to iCloud"_s);
    EXPECT_FALSE(desk.machine.settings.getBool(keys::iCloudSync));
    EXPECT_TRUE(desk.machine.secrets.asked.isEmpty());
}

TEST(CloudFeature, ItGoesOnAfterAStart)
{
    Desk desk;
    desk.signIn();
    desk.machine.settings.setBool(keys::iCloudSync, true);
    desk.run();
    desk.pass(1min);
    EXPECT_EQ(desk.machine.cloud.storages, 1);
    EXPECT_TRUE(desk.features().cloud.sync.isRunning());
    EXPECT_TRUE(desk.machine.alerts.alerts.isEmpty());
}

TEST(CloudFeature, WhatKeepsItFromSyncingIsToldInThePane)
{
    Desk desk;
    desk.signIn();
    desk.run();
    desk.machine.secrets.problem = SecretStore::Problem::NoKeyring;
    desk.switchSync(true);
    EXPECT_EQ(desk.features().preferences.general.state().cloud.text,
        secretMessage(SecretStore::Problem::NoKeyring));
    desk.switchSync(false);
    EXPECT_TRUE(desk.features().preferences.general.state().cloud.text.isEmpty());
}

TEST(CloudFeature, SigningOutWhileItRunsAsksNothing)
{
    Desk desk;
    desk.signIn();
    desk.run();
    desk.switchSync(true);
    desk.features().cloud.signIn.signOut();
    desk.pass(1min);
    EXPECT_TRUE(desk.machine.alerts.alerts.isEmpty());
    EXPECT_EQ(desk.machine.cloud.storages, 0);
    EXPECT_TRUE(desk.machine.secrets.secrets.isEmpty());
    EXPECT_FALSE(desk.machine.settings.getBool(keys::iCloudSync));
}

TEST(CloudFeature, AnotherPasswordIsTakenAtOnce)
{
    Desk desk;
    desk.signIn();
    desk.run();
    desk.switchSync(true);
    desk.features().cloud.signIn.begin({.address = u"cloud.example"_s,
        .user = u"ada"_s,
        .password = u"a newer password"_s,
        .passphrase = u"correct horse"_s});
    desk.pass(1min);
    EXPECT_EQ(desk.machine.cloud.storages, 1);
    EXPECT_EQ(desk.machine.cloud.lastPassword, u"a newer password"_s);
    EXPECT_TRUE(desk.features().cloud.session.trouble().isEmpty());
}

} // namespace
} // namespace quillon::test
