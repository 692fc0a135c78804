// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/UserNotifications.h"

#include "base/SettingsKeys.h"
#include "fakes/FakeScheduler.h"
#include "fakes/FakeSettingsStore.h"
#include "fakes/FakeUserNotificationCenter.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
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
        u"Wi-Fi Address Changed"_s, u"Your new MAC Address is: 02:…"_s);

    scheduler.advance(999ms);
    EXPECT_TRUE(center.onScreen.isEmpty());

    scheduler.advance(1ms);
    ASSERT_EQ(center.onScreen.size(), 1);
    EXPECT_EQ(center.onScreen.first().title, u"Wi-Fi Address Changed"_s);
    EXPECT_EQ(center.onScreen.first().body, u"Your new MAC Address is: 02:…"_s);
    EXPECT_TRUE(center.onScreen.first().defaultSound);
}

TEST_F(UserNotificationsTest, TheIdentifierIsTheBase64OfTheTitlesUtf8)
{
    notifications.sendNotificationWithBody(u"Zürich"_s, u"x"_s);
    scheduler.advance(1s);
    ASSERT_EQ(center.onScreen.size(), 1);
    EXPECT_EQ(center.onScreen.first().identifier, u"WsO8cmljaA=="_s);
}

TEST_F(UserNotificationsTest, OfTwoMessagesWithOneTitleInQuickSuccessionOnlyTheSecondIsEverShown)
{
    notifications.sendNotificationWithBody(u"Title"_s, u"first"_s);
    scheduler.advance(500ms);
    notifications.sendNotificationWithBody(u"Title"_s, u"second"_s);
    scheduler.advance(5s);

    ASSERT_EQ(center.everShown.size(), 1);
    EXPECT_EQ(center.everShown.first().body, u"second"_s);
}

TEST_F(UserNotificationsTest, ANewerMessageTakesTheOlderOneWithItsTitleOffTheScreen)
{
    notifications.sendNotificationWithBody(u"Title"_s, u"first"_s);
    scheduler.advance(2s);
    notifications.sendNotificationWithBody(u"Title"_s, u"second"_s);
    scheduler.advance(2s);

    ASSERT_EQ(center.onScreen.size(), 1);
    EXPECT_EQ(center.onScreen.first().body, u"second"_s);
}

TEST_F(UserNotificationsTest, MessagesWithDifferentTitlesStandSideBySide)
{
    notifications.sendNotificationWithBody(u"One"_s, u"1"_s);
    notifications.sendNotificationWithBody(u"Two"_s, u"2"_s);
    scheduler.advance(1s);
    EXPECT_EQ(center.onScreen.size(), 2);
}

TEST_F(UserNotificationsTest, WithNotificationsSwitchedOffNothingHappensAtAll)
{
    settings.setBool(keys::displayNotifications, false);
    notifications.setupNotificationCenter();
    notifications.sendNotificationWithBody(u"Title"_s, u"body"_s);
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
    center.authorizationError = Error{busErrorDomain, 0, u"no notification service"_s};
    notifications.setupNotificationCenter();
    scheduler.runPending();
    EXPECT_TRUE(settings.getBool(keys::displayNotifications));
}

TEST_F(UserNotificationsTest, AMessageThatCannotBeShownIsLogged)
{
    center.deliveryError = Error{busErrorDomain, 0, u"gone"_s};
    notifications.sendNotificationWithBody(u"Title"_s, u"body"_s);

    static QStringList log;
    log.clear();
    const auto previous = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &text) { log.append(text); });
    scheduler.advance(1s);
    qInstallMessageHandler(previous);

    EXPECT_TRUE(log.contains(u"Quillon Local Notification failed to send"_s));
}

TEST_F(UserNotificationsTest, AQuestionIsShownAtOnceWithItsActions)
{
    QStringList chosen;
    notifications.ask({u"en1"_s, u"Title"_s, u"body"_s,
        {{u"Apply again"_s, [&] { chosen << u"again"_s; }},
            {u"Accept"_s, [&] { chosen << u"accepted"_s; }}}});
    scheduler.advance(0ms);
    ASSERT_EQ(center.onScreen.size(), 1);
    const UserNotificationRequest shown = center.onScreen.first();
    EXPECT_EQ(shown.title, u"Title"_s);
    EXPECT_EQ(shown.body, u"body"_s);
    ASSERT_EQ(shown.actions.size(), 2);
    EXPECT_EQ(shown.actions.at(1).label, u"Accept"_s);
    shown.actions.at(1).chosen();
    EXPECT_EQ(chosen, QStringList{u"accepted"_s});
}

TEST_F(UserNotificationsTest, AQuestionStandsBesideTheMessagesAndTakesThePlaceOfItsOwnKind)
{
    notifications.sendNotificationWithBody(u"en1"_s, u"a message"_s);
    scheduler.advance(1s);
    notifications.ask({u"en1"_s, u"en1"_s, u"first"_s, {}});
    notifications.ask({u"en2"_s, u"en1"_s, u"other"_s, {}});
    scheduler.advance(0ms);
    notifications.ask({u"en1"_s, u"en1"_s, u"second"_s, {}});
    scheduler.advance(0ms);
    QStringList bodies;
    for (const UserNotificationRequest &shown : center.onScreen) {
        bodies << shown.body;
    }
    EXPECT_EQ(bodies, (QStringList{u"a message"_s, u"other"_s, u"second"_s}));
}

TEST_F(UserNotificationsTest, AQuestionIsWithdrawnShownOrNot)
{
    notifications.ask({u"en1"_s, u"Title"_s, u"first"_s, {}});
    notifications.withdraw(u"en1"_s);
    scheduler.advance(0ms);
    EXPECT_TRUE(center.everShown.isEmpty());

    notifications.ask({u"en1"_s, u"Title"_s, u"second"_s, {}});
    scheduler.advance(0ms);
    notifications.withdraw(u"en1"_s);
    notifications.withdraw(u"unknown"_s);
    EXPECT_TRUE(center.onScreen.isEmpty());
}

TEST_F(UserNotificationsTest, WithNotificationsSwitchedOffThereAreNoQuestions)
{
    settings.setBool(keys::displayNotifications, false);
    notifications.ask({u"en1"_s, u"Title"_s, u"body"_s, {}});
    scheduler.advance(5s);
    EXPECT_TRUE(center.everShown.isEmpty());
}

TEST_F(UserNotificationsTest, AMessageFromAnotherThreadIsShownByTheMainThread)
{
    scheduler.asBackground([&] { notifications.sendNotificationWithBody(u"Title"_s, u"body"_s); });
    EXPECT_FALSE(scheduler.hasTimers()) << "the centre was called on the other thread";
    scheduler.advance(1s);
    EXPECT_EQ(center.onScreen.size(), 1);
}

} // namespace
} // namespace quillon::test
