// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/CloudAccountWatch.h"

#include "base/SettingsKeys.h"
#include "fakes/FakeAlertPresenter.h"
#include "fakes/FakeCloudAccountStatus.h"
#include "fakes/FakeCloudKeyValueStore.h"
#include "fakes/FakeNotifier.h"
#include "fakes/FakeScheduler.h"
#include "fakes/FakeSettingsStore.h"
#include "fakes/QtPrinting.h"
#include "platform/NotificationCenter.h"
#include "sync/CloudSync.h"

#include <gtest/gtest.h>

#include <optional>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

constexpr int okButton = 0;
constexpr int cancelButton = 1;

class CloudAccountWatchTest : public ::testing::Test
{
protected:
    void switchSync(bool isOn)
    {
        settings.setBool(keys::iCloudSync, isOn);
        check();
    }
    void check()
    {
        watch->checkiCloudSync();
        scheduler.runPending();
    }
    /// On, with an account that is known.
    void begin()
    {
        account.signIn(u"me"_s);
        switchSync(true);
        ASSERT_TRUE(sync.isRunning());
    }
    void setHere(const QString &key, const QVariant &value)
    {
        settings.set(key, value);
        scheduler.runPending();
    }
    void signIn(const QVariant &token)
    {
        account.signIn(token);
        scheduler.runPending();
    }

    FakeScheduler scheduler;
    FakeSettingsStore settings{scheduler};
    FakeCloudKeyValueStore cloud;
    NotificationCenter notifications;
    FakeNotifier notifier;
    CloudSync sync{{cloud, settings, scheduler, notifications, notifier}};
    FakeCloudAccountStatus account;
    FakeAlertPresenter alerts;
    std::optional<CloudAccountWatch> watch{std::in_place,
        CloudAccountWatch::Collaborators{sync, account, settings, scheduler, alerts}};
};

TEST_F(CloudAccountWatchTest, AdoptsTheFirstAccountSilently)
{
    account.signIn(u"me"_s);
    check();
    EXPECT_EQ(settings.get(keys::iCloudToken), u"me"_s);
    EXPECT_EQ(settings.journal(), QStringList({u"set iCloudToken"_s, u"synchronize"_s}));
    EXPECT_FALSE(sync.isRunning()) << "sync is off";
    EXPECT_TRUE(alerts.alerts.isEmpty());
}

TEST_F(CloudAccountWatchTest, StartsAndStopsWithTheSetting)
{
    begin();
    EXPECT_TRUE(settings.hasObservers());
    cloud.values = {{u"timerMinutes"_s, 7}};
    switchSync(false);
    EXPECT_FALSE(sync.isRunning());
    EXPECT_FALSE(settings.hasObservers());
    EXPECT_EQ(cloud.values, QVariantMap({{u"timerMinutes"_s, 7}})) << "the account keeps it";
    EXPECT_TRUE(alerts.alerts.isEmpty());
}

TEST_F(CloudAccountWatchTest, AnotherCheckIsANewReadAndNoSecondObserver)
{
    begin();
    cloud.values = {{u"timerMinutes"_s, 7}};
    check();
    EXPECT_EQ(settings.getInteger(u"timerMinutes"_s), 7);
    cloud.journal.clear();
    setHere(u"hideDock"_s, true);
    EXPECT_EQ(cloud.journal, QStringList({u"set hideDock"_s}));
    EXPECT_EQ(account.observerCount(), 1U);
}

TEST_F(CloudAccountWatchTest, AChangedSettingIsWrittenIntoTheAccount)
{
    begin();
    setHere(u"timerMinutes"_s, 7);
    setHere(u"deviceDict"_s, QVariantMap{{u"en0"_s, 1}});
    EXPECT_EQ(cloud.values, QVariantMap({{u"timerMinutes"_s, 7}}));
    setHere(u"timerMinutes"_s, QVariant());
    EXPECT_EQ(cloud.values, QVariantMap());
}

TEST_F(CloudAccountWatchTest, WhatCameFromElsewhereIsWrittenBackTheSame)
{
    begin();
    cloud.journal.clear();
    cloud.changeElsewhere({{u"timerMinutes"_s, 7}});
    scheduler.runPending();
    EXPECT_EQ(cloud.journal, QStringList({u"set timerMinutes"_s}));
    EXPECT_EQ(cloud.values, QVariantMap({{u"timerMinutes"_s, 7}}));
}

TEST_F(CloudAccountWatchTest, AKeyOutsideTheListIsNeverWrittenIntoTheAccount)
{
    begin();
    watch->updateCloudSetting(u"deviceDict"_s);
    EXPECT_TRUE(cloud.values.isEmpty());
}

TEST_F(CloudAccountWatchTest, SwitchedOnWithNobodySignedInItAsksToSignInAndIsOff)
{
    int shown = 0;
    QObject::connect(&*watch, &CloudAccountWatch::alertShown, &*watch, [&] {
        EXPECT_TRUE(alerts.alerts.isEmpty()) << "first to the front";
        ++shown;
    });
    switchSync(true);
    ASSERT_EQ(alerts.alerts.size(), 1);
    EXPECT_EQ(alerts.alerts.first(),
        (Alert{u"Please sign in to iCloud"_s,
            u"Open System Settings, and login into your iCloud account to enable sync across all "
            "your devices."_s,
            {u"OK"_s}}));
    EXPECT_EQ(shown, 1);
    EXPECT_FALSE(settings.getBool(keys::iCloudSync));
    EXPECT_EQ(settings.journal().last(), u"synchronize"_s);
    EXPECT_FALSE(sync.isRunning());
}

TEST_F(CloudAccountWatchTest, SwitchedOffNobodyIsAsked)
{
    check();
    settings.set(keys::iCloudToken, u"me"_s);
    account.signIn(u"another"_s);
    check();
    EXPECT_TRUE(alerts.alerts.isEmpty());
    EXPECT_EQ(settings.get(keys::iCloudToken), u"me"_s);
}

TEST_F(CloudAccountWatchTest, SigningOutStopsAndAsksToSignIn)
{
    begin();
    signIn({});
    EXPECT_FALSE(sync.isRunning());
    ASSERT_EQ(alerts.alerts.size(), 1);
    EXPECT_EQ(alerts.alerts.first().message, u"Please sign in to iCloud"_s);
    EXPECT_FALSE(settings.getBool(keys::iCloudSync));
    EXPECT_EQ(settings.get(keys::iCloudToken), u"me"_s) << "it is kept for the next time";
}

TEST_F(CloudAccountWatchTest, AnotherAccountIsAskedAboutAndAdopted)
{
    begin();
    alerts.answer = okButton;
    cloud.values = {{u"timerMinutes"_s, 9}};
    signIn(u"another"_s);
    ASSERT_EQ(alerts.alerts.size(), 1);
    EXPECT_EQ(alerts.alerts.first().message,
        u"Your iCloud account has changed. Do you want to synchronise with the new account?"_s);
    EXPECT_EQ(alerts.alerts.first().buttons, QStringList({u"OK"_s, u"Cancel"_s}));
    EXPECT_EQ(settings.get(keys::iCloudToken), u"another"_s);
    EXPECT_TRUE(sync.isRunning());
    EXPECT_EQ(settings.getInteger(u"timerMinutes"_s), 9);
}

TEST_F(CloudAccountWatchTest, AnotherAccountThatHasGoneAgainSwitchesOff)
{
    begin();
    alerts.answer = okButton;
    alerts.whileShown = [this] {
        alerts.whileShown = nullptr;
        account.signOut();
    };
    signIn(u"another"_s);
    EXPECT_EQ(alerts.alerts.size(), 1) << "no second question beside the first";
    EXPECT_FALSE(settings.getBool(keys::iCloudSync));
    EXPECT_EQ(settings.get(keys::iCloudToken), u"me"_s);
}

TEST_F(CloudAccountWatchTest, AfterCancelSyncIsOnButStoppedAndTheNextCheckAsksAgain)
{
    begin();
    alerts.answer = cancelButton;
    settings.clearJournal();
    signIn(u"another"_s);
    EXPECT_TRUE(settings.getBool(keys::iCloudSync));
    EXPECT_FALSE(sync.isRunning());
    EXPECT_EQ(settings.journal(), QStringList({u"synchronize"_s}));
    setHere(u"timerMinutes"_s, 7);
    watch->updateCloudSetting(u"timerMinutes"_s);
    EXPECT_TRUE(cloud.values.isEmpty());
    check();
    EXPECT_EQ(alerts.alerts.size(), 2);
}

TEST_F(CloudAccountWatchTest, ChangesOfTheAccountAreHeardAfterSyncWasStopped)
{
    begin();
    switchSync(false);
    EXPECT_EQ(account.observerCount(), 1U);
    account.signOut();
    settings.setBool(keys::iCloudSync, true);
    signIn(u"me"_s);
    EXPECT_TRUE(sync.isRunning()) << "nobody else has asked for a check";
}

TEST_F(CloudAccountWatchTest, StoppingWhatWasNotStartedIsNoFailure)
{
    watch->stopCloudObservers();
    watch->startCloudObservers();
    watch->stopCloudObservers();
    watch->stopCloudObservers();
    EXPECT_FALSE(settings.hasObservers());
}

TEST_F(CloudAccountWatchTest, GoesWhileItsAlertIsShown)
{
    alerts.whileShown = [this] { watch.reset(); };
    settings.setBool(keys::iCloudSync, true);
    check();
    EXPECT_TRUE(settings.getBool(keys::iCloudSync));
    EXPECT_FALSE(settings.hasObservers());
    EXPECT_EQ(account.observerCount(), 0U);
}

} // namespace
} // namespace quillon::test
