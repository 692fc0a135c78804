// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/UserNotifications.h"

#include "base/SettingsKeys.h"
#include "fakes/FakeScheduler.h"
#include "fakes/FakeSettingsStore.h"
#include "fakes/FakeUserNotificationCenter.h"

#include <gtest/gtest.h>

namespace quillon::test {
namespace {

using namespace std::chrono_literals;

class UserNotificationsTest : public ::testing::Test
{
protected:
    UserNotificationsTest() { settings.setBool(keys::displayNotifications, true); }

    FakeScheduler scheduler;
    FakeSettingsStore settings{scheduler};
    FakeUserNotificationCenter center{scheduler};
    UserNotifications notifications{settings, scheduler, center};
};

TEST_F(UserNotificationsTest, AMessageIsShownOneSecondAfterItWasSent)
{
    notifications.sendNotificationWithBody(
        QStringLiteral("Wi-Fi Address Changed"), QStringLiteral("Your new MAC Address is: 02:…"));

    scheduler.advance(999ms);
    EXPECT_TRUE(center.onScreen.isEmpty());

    scheduler.advance(1ms);
    ASSERT_EQ(center.onScreen.size(), 1);
    EXPECT_EQ(center.onScreen.first().title, QStringLiteral("Wi-Fi Address Changed"));
    EXPECT_EQ(center.onScreen.first().body, QStringLiteral("Your new MAC Address is: 02:…"));
    EXPECT_TRUE(center.onScreen.first().defaultSound);
}

TEST_F(UserNotificationsTest, TheIdentifierIsTheBase64OfTheTitlesUtf8)
{
    notifications.sendNotificationWithBody(QStringLiteral("Zürich"), QStringLiteral("x"));
    scheduler.advance(1s);
    ASSERT_EQ(center.onScreen.size(), 1);
    EXPECT_EQ(center.onScreen.first().identifier, QStringLiteral("WsO8cmljaA=="));
}

TEST_F(UserNotificationsTest, OfTwoMessagesWithOneTitleInQuickSuccessionOnlyTheSecondIsEverShown)
{
    notifications.sendNotificationWithBody(QStringLiteral("Title"), QStringLiteral("first"));
    scheduler.advance(500ms);
    notifications.sendNotificationWithBody(QStringLiteral("Title"), QStringLiteral("second"));
    scheduler.advance(5s);

    ASSERT_EQ(center.everShown.size(), 1);
    EXPECT_EQ(center.everShown.first().body, QStringLiteral("second"));
}

TEST_F(UserNotificationsTest, ANewerMessageTakesTheOlderOneWithItsTitleOffTheScreen)
{
    notifications.sendNotificationWithBody(QStringLiteral("Title"), QStringLiteral("first"));
    scheduler.advance(2s);
    notifications.sendNotificationWithBody(QStringLiteral("Title"), QStringLiteral("second"));
    scheduler.advance(2s);

    ASSERT_EQ(center.onScreen.size(), 1);
    EXPECT_EQ(center.onScreen.first().body, QStringLiteral("second"));
}

TEST_F(UserNotificationsTest, MessagesWithDifferentTitlesStandSideBySide)
{
    notifications.sendNotificationWithBody(QStringLiteral("One"), QStringLiteral("1"));
    notifications.sendNotificationWithBody(QStringLiteral("Two"), QStringLiteral("2"));
    scheduler.advance(1s);
    EXPECT_EQ(center.onScreen.size(), 2);
}

TEST_F(UserNotificationsTest, WithNotificationsSwitchedOffNothingHappensAtAll)
{
    settings.setBool(keys::displayNotifications, false);
    notifications.setupNotificationCenter();
    notifications.sendNotificationWithBody(QStringLiteral("Title"), QStringLiteral("body"));
    scheduler.advance(5s);

    EXPECT_EQ(center.authorizationRequests, 0);
    EXPECT_TRUE(center.everShown.isEmpty());
    EXPECT_FALSE(scheduler.hasTimers());
}

TEST_F(UserNotificationsTest, ARefusedPermissionSwitchesNotificationsOff)
{
    center.granted = false;
    notifications.setupNotificationCenter();
    scheduler.runPending();
    EXPECT_FALSE(settings.getBool(keys::displayNotifications));
}

TEST_F(UserNotificationsTest, AGrantedPermissionLeavesNotificationsOn)
{
    notifications.setupNotificationCenter();
    scheduler.runPending();
    EXPECT_EQ(center.authorizationRequests, 1);
    EXPECT_TRUE(settings.getBool(keys::displayNotifications));
}

TEST_F(UserNotificationsTest, APermissionThatCouldNotBeFoundOutIsNoRefusal)
{
    center.authorizationError = Error{busErrorDomain, 0, QStringLiteral("no notification service")};
    notifications.setupNotificationCenter();
    scheduler.runPending();
    EXPECT_TRUE(settings.getBool(keys::displayNotifications));
}

TEST_F(UserNotificationsTest, AMessageThatCannotBeShownIsLogged)
{
    center.deliveryError = Error{busErrorDomain, 0, QStringLiteral("gone")};
    notifications.sendNotificationWithBody(QStringLiteral("Title"), QStringLiteral("body"));

    static QStringList log;
    log.clear();
    const auto previous = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &text) { log.append(text); });
    scheduler.advance(1s);
    qInstallMessageHandler(previous);

    EXPECT_TRUE(log.contains(QStringLiteral("Quillon Local Notification failed to send")));
}

TEST_F(UserNotificationsTest, AMessageFromAnotherThreadIsShownByTheMainThread)
{
    scheduler.asBackground([&] {
        notifications.sendNotificationWithBody(QStringLiteral("Title"), QStringLiteral("body"));
    });
    EXPECT_FALSE(scheduler.hasTimers()) << "the centre was called on the other thread";
    scheduler.advance(1s);
    EXPECT_EQ(center.onScreen.size(), 1);
}

} // namespace
} // namespace quillon::test
