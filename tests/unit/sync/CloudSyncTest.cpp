// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/CloudSync.h"

#include "base/NotificationNames.h"
#include "base/SettingsKeys.h"
#include "fakes/FakeCloudKeyValueStore.h"
#include "fakes/FakeNotifier.h"
#include "fakes/FakeScheduler.h"
#include "fakes/FakeSettingsStore.h"
#include "fakes/QtPrinting.h"
#include "platform/NotificationCenter.h"

#include <gtest/gtest.h>

#include <optional>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class CloudSyncTest : public ::testing::Test
{
protected:
    CloudSyncTest()
    {
        notifications.addObserver(notifications::icloudUpdated, [this](const auto &posted) {
            ++updates;
            EXPECT_EQ(posted.object, &*sync);
        });
    }
    void start()
    {
        sync->start();
        scheduler.runPending();
    }
    void changeElsewhere(const QVariantMap &changes)
    {
        cloud.changeElsewhere(changes);
        scheduler.runPending();
    }

    FakeScheduler scheduler;
    FakeSettingsStore settings{scheduler};
    FakeCloudKeyValueStore cloud;
    NotificationCenter notifications;
    FakeNotifier notifier;
    std::optional<CloudSync> sync{std::in_place,
        CloudSync::Collaborators{cloud, settings, scheduler, notifications, notifier}};
    int updates = 0;
};

TEST_F(CloudSyncTest, SynchronizesTheseKeysInThisOrder)
{
    EXPECT_EQ(CloudSync::synchronizedKeys().join(u' '),
        u"showInMenu hideDock loginStart hideOnLaunch displayNotifications showKeyEnabled "
        "randomKeyEnabled updateKeyEnabled showKeyCombo randomKeyCombo savedNetworks "
        "savedAddresses "
        "defaultTimerMinutes timerEnabled timerMinutes lowerCaseHEX shouldUpdateExternalIP "
        "SUEnableAutomaticChecks SUFeedURL SUAutomaticallyUpdate SUScheduledCheckInterval"_s);
}

TEST_F(CloudSyncTest, IsCreatedPausedRunsUnpausedAndStopsPaused)
{
    EXPECT_FALSE(sync->isRunning());
    EXPECT_TRUE(sync->isPaused());
    sync->start();
    EXPECT_TRUE(sync->isRunning());
    EXPECT_FALSE(sync->isPaused());
    EXPECT_TRUE(cloud.isObserved());
    sync->stop();
    EXPECT_FALSE(sync->isRunning());
    EXPECT_TRUE(sync->isPaused());
    EXPECT_FALSE(cloud.isObserved());
}

TEST_F(CloudSyncTest, StartReadsAllThatTheAccountHolds)
{
    cloud.values = {{u"timerMinutes"_s, 7}, {u"hideDock"_s, true}};
    start();
    EXPECT_EQ(cloud.journal, QStringList({u"synchronize"_s}));
    EXPECT_EQ(settings.getInteger(u"timerMinutes"_s), 7);
    EXPECT_TRUE(settings.getBool(u"hideDock"_s));
    EXPECT_EQ(settings.journal().last(), u"synchronize"_s);
    ASSERT_EQ(notifier.messages().size(), 1) << "once, however many settings it was";
    EXPECT_EQ(
        notifier.messages().first(), (FakeNotifier::Message{u"iCloud"_s, u"updates received"_s}));
    EXPECT_EQ(updates, 1);
}

TEST_F(CloudSyncTest, StoppedBeforeItsFirstReadItReadsNothingAndStaysPaused)
{
    cloud.values = {{u"timerMinutes"_s, 7}};
    sync->start();
    sync->stop();
    scheduler.runPending();
    EXPECT_EQ(settings.getInteger(u"timerMinutes"_s), 0);
    EXPECT_TRUE(sync->isPaused());
}

TEST_F(CloudSyncTest, LooksOnlyAtTheKeysThatChanged)
{
    start();
    cloud.values = {{u"timerMinutes"_s, 7}};
    changeElsewhere({{u"hideDock"_s, true}});
    EXPECT_TRUE(settings.getBool(u"hideDock"_s));
    EXPECT_EQ(settings.getInteger(u"timerMinutes"_s), 0);
}

TEST_F(CloudSyncTest, AKeyThatIsNotInTheListIsWrittenToo)
{
    start();
    changeElsewhere({{u"somethingElse"_s, u"value"_s}});
    EXPECT_EQ(settings.getString(u"somethingElse"_s), u"value"_s);
    EXPECT_EQ(updates, 1);
}

TEST_F(CloudSyncTest, AnEqualValueIsNoWriteAndNoUpdate)
{
    settings.set(u"savedNetworks"_s, QVariantMap{{u"aa"_s, QVariantMap{{u"SSID"_s, u"x"_s}}}});
    start();
    settings.clearJournal();
    changeElsewhere(
        {{u"savedNetworks"_s, QVariantMap{{u"aa"_s, QVariantMap{{u"SSID"_s, u"x"_s}}}}}});
    EXPECT_EQ(settings.journal(), QStringList({u"synchronize"_s}));
    EXPECT_TRUE(notifier.messages().isEmpty());
    EXPECT_EQ(updates, 0);
}

TEST_F(CloudSyncTest, AValueOfAnotherTypeIsAnotherValue)
{
    settings.set(u"timerMinutes"_s, 1);
    start();
    changeElsewhere({{u"timerMinutes"_s, true}});
    EXPECT_EQ(settings.get(u"timerMinutes"_s), QVariant(true));
}

TEST_F(CloudSyncTest, ARemovedKeyLeavesTheSettingAsItIs)
{
    settings.set(u"timerMinutes"_s, 7);
    cloud.values = {{u"timerMinutes"_s, 7}};
    start();
    settings.clearJournal();
    changeElsewhere({{u"timerMinutes"_s, QVariant()}});
    EXPECT_EQ(settings.getInteger(u"timerMinutes"_s), 7);
    EXPECT_EQ(settings.journal(), QStringList({u"synchronize"_s}));
    EXPECT_EQ(updates, 0);
}

TEST_F(CloudSyncTest, IsPausedWhileItGathersAndNotWhileItWrites)
{
    start();
    QList<bool> gathering;
    QList<bool> writing;
    cloud.changeElsewhere({{u"timerMinutes"_s, 7}});
    cloud.whileRead = [&] { gathering << sync->isPaused(); };
    settings.addObserver(u"timerMinutes"_s, [&](const auto &) { writing << sync->isPaused(); });
    scheduler.runPending();
    EXPECT_EQ(gathering, QList<bool>({false})) << "the snapshot is taken before";
    EXPECT_EQ(writing, QList<bool>({false}));
}

TEST_F(CloudSyncTest, ReadsInTheBackground)
{
    start();
    bool onMain = true;
    cloud.whileRead = [&] { onMain = scheduler.isMainThread(); };
    changeElsewhere({{u"timerMinutes"_s, 7}});
    EXPECT_FALSE(onMain);
}

TEST_F(CloudSyncTest, UploadReplacesWhatTheAccountHolds)
{
    settings.set(u"timerMinutes"_s, 7);
    settings.registerDefaults({{u"hideDock"_s, true}});
    settings.set(u"deviceDict"_s, QVariantMap{{u"en0"_s, 1}});
    cloud.values = {{u"timerMinutes"_s, 3}, {u"foreign"_s, 1}, {u"SUFeedURL"_s, u"x"_s}};
    sync->syncFromCurrentState();
    EXPECT_TRUE(cloud.journal.isEmpty()) << "in the background";
    scheduler.runPending();
    EXPECT_EQ(cloud.values, QVariantMap({{u"timerMinutes"_s, 7}, {u"hideDock"_s, true}}));
    EXPECT_EQ(cloud.journal.last(), u"synchronize"_s);
    EXPECT_EQ(cloud.journal.first(3),
        QStringList({u"remove SUFeedURL"_s, u"remove foreign"_s, u"remove timerMinutes"_s}));
}

TEST_F(CloudSyncTest, AfterTheUploadTheFirstReadFindsNothingNew)
{
    settings.set(u"timerMinutes"_s, 7);
    cloud.values = {{u"timerMinutes"_s, 3}};
    sync->syncFromCurrentState();
    start();
    EXPECT_EQ(settings.getInteger(u"timerMinutes"_s), 7);
    EXPECT_EQ(updates, 0);
}

TEST_F(CloudSyncTest, WritesAndRemovesOneKey)
{
    sync->updateObjToiCloudForKey(7, u"timerMinutes"_s);
    EXPECT_EQ(sync->icloudKeysArray(), QStringList({u"timerMinutes"_s}));
    sync->updateObjToiCloudForKey({}, u"timerMinutes"_s);
    EXPECT_EQ(sync->icloudKeysArray(), QStringList());
    sync->sync();
    scheduler.runPending();
    EXPECT_EQ(cloud.journal.last(), u"synchronize"_s);
}

TEST_F(CloudSyncTest, WhatRunsInTheBackgroundWhenItGoesDoesNothing)
{
    start();
    cloud.changeElsewhere({{u"timerMinutes"_s, 7}});
    sync.reset();
    EXPECT_FALSE(cloud.isObserved());
    scheduler.runPending();
    EXPECT_EQ(settings.getInteger(u"timerMinutes"_s), 0);
}

} // namespace
} // namespace quillon::test
