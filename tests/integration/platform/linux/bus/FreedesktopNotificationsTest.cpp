// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/bus/FreedesktopNotifications.h"

#include "fakes/FakeScheduler.h"
#include "integration/platform/linux/Commands.h"
#include "integration/platform/linux/Waiting.h"
#include "integration/platform/linux/bus/NotificationServer.h"
#include "integration/platform/linux/bus/PrivateBus.h"

#include <QDBusArgument>
#include <gtest/gtest.h>

#include <optional>

namespace quillon::test {

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;

namespace {

UserNotificationRequest request(const char *body, std::chrono::milliseconds delay = 1000ms)
{
    return {u"id"_s, u"Quillon"_s, QString::fromUtf8(body), true, delay};
}

} // namespace

class FreedesktopNotificationsTest : public ::testing::Test
{
protected:
    struct Reply
    {
        int count = 0;
        std::optional<Error> error;
    };

    void add(const UserNotificationRequest &wanted)
    {
        center.add(wanted, [this](const std::optional<Error> &error) {
            ++reply.count;
            reply.error = error;
        });
    }
    void addAndShow(const char *body)
    {
        const int before = reply.count;
        add(request(body));
        scheduler.advance(1000ms);
        ASSERT_TRUE(eventually([&] { return reply.count == before + 1; }));
        ASSERT_FALSE(reply.error) << qPrintable(reply.error->message);
    }

    // Whatever the server and the bus said before has arrived when their answer has.
    void hearTheServerOut()
    {
        bool answered = false;
        center.requestAlertAuthorization(
            [&](bool, const std::optional<Error> &) { answered = true; });
        ASSERT_TRUE(eventually([&] { return answered; }));
    }

    PrivateBus bus;
    FakeScheduler scheduler;
    FreedesktopNotifications center{scheduler, bus.connect()};
    Reply reply;
};

TEST_F(FreedesktopNotificationsTest, AMessageIsShownAfterItsDelay)
{
    NotificationServer server(bus);
    add(request("It worked"));
    scheduler.advance(999ms);
    EXPECT_FALSE(eventually([&] { return !server.notified.empty(); }, 100ms));
    scheduler.advance(1ms);
    EXPECT_EQ(reply.count, 0) << "in a later turn";
    ASSERT_TRUE(eventually([&] { return reply.count == 1; }));
    EXPECT_FALSE(reply.error);

    ASSERT_EQ(server.notified.size(), 1U);
    EXPECT_EQ(server.notified[0].signature(), u"susssasa{sv}i"_s);
    const QVariantList arguments = server.notified[0].arguments();
    EXPECT_EQ(arguments[0], u"Quillon"_s);
    EXPECT_EQ(arguments[1], 0U);
    EXPECT_EQ(arguments[2], u"com.orvandel.Quillon4"_s);
    EXPECT_EQ(arguments[3], u"Quillon"_s);
    EXPECT_EQ(arguments[4], u"It worked"_s);
    EXPECT_TRUE(arguments[5].toStringList().isEmpty());
    const auto hints = qdbus_cast<QVariantMap>(arguments[6]);
    EXPECT_EQ(hints[u"desktop-entry"_s], u"com.orvandel.Quillon4"_s);
    EXPECT_EQ(hints[u"sound-name"_s], u"message-new-instant"_s);
    EXPECT_EQ(arguments[7], -1);
}

TEST_F(FreedesktopNotificationsTest, WithoutSoundTheServerIsToldSo)
{
    NotificationServer server(bus);
    UserNotificationRequest silent = request("psst", 0ms);
    silent.defaultSound = false;
    add(silent);
    scheduler.advance(0ms);
    ASSERT_TRUE(eventually([&] { return reply.count == 1; }));
    const auto hints = qdbus_cast<QVariantMap>(server.notified[0].arguments()[6]);
    EXPECT_EQ(hints[u"suppress-sound"_s], true);
    EXPECT_FALSE(hints.contains(u"sound-name"_s));
}

TEST_F(FreedesktopNotificationsTest, MarkupIsShownAsItIsWritten)
{
    {
        NotificationServer plain(bus, {u"body"_s});
        addAndShow("<b>a & b</b>");
        EXPECT_EQ(plain.onScreen.first(), u"<b>a & b</b>"_s);
    }
    NotificationServer rich(bus, {u"body"_s, u"body-markup"_s});
    hearTheServerOut();
    addAndShow("<b>a & b</b>");
    EXPECT_EQ(rich.onScreen.first(), u"&lt;b&gt;a &amp; b&lt;/b&gt;"_s)
        << "also when the server was exchanged meanwhile";
}

TEST_F(FreedesktopNotificationsTest, ARequestWhoseDelayHasNotPassedIsDropped)
{
    NotificationServer server(bus);
    add(request("never"));
    center.removePending(u"unknown"_s);
    center.removePending(u"id"_s);
    scheduler.advance(5s);
    EXPECT_FALSE(eventually([&] { return !server.notified.empty(); }, 100ms));
    EXPECT_EQ(reply.count, 0);
    EXPECT_FALSE(scheduler.hasTimers());
}

TEST_F(FreedesktopNotificationsTest, ANewerRequestTakesThePlaceOfAPendingOne)
{
    NotificationServer server(bus);
    add(request("first"));
    scheduler.advance(500ms);
    addAndShow("second");
    EXPECT_EQ(server.onScreen.values(), QStringList{u"second"_s});
}

TEST_F(FreedesktopNotificationsTest, ADeliveredMessageIsTakenAway)
{
    NotificationServer server(bus);
    addAndShow("old");
    center.removeDelivered(u"unknown"_s);
    center.removeDelivered(u"id"_s);
    EXPECT_TRUE(eventually([&] { return server.onScreen.isEmpty(); }));
    addAndShow("new");
    EXPECT_EQ(server.notified[1].arguments()[1], 0U) << "a closed message cannot be replaced";
    EXPECT_EQ(server.onScreen.values(), QStringList{u"new"_s});
}

TEST_F(FreedesktopNotificationsTest, ANewerMessageReplacesTheOneOnTheScreen)
{
    NotificationServer server(bus);
    addAndShow("first");
    addAndShow("second");
    EXPECT_EQ(server.notified[1].arguments()[1], 41U);
    EXPECT_EQ(server.onScreen.values(), QStringList{u"second"_s});
}

TEST_F(FreedesktopNotificationsTest, AMessageThatThePersonClosedIsNotReplaced)
{
    NotificationServer server(bus);
    addAndShow("first");
    server.close(41);
    hearTheServerOut();
    addAndShow("second");
    addAndShow("third");
    EXPECT_EQ(server.notified[1].arguments()[1], 0U);
    EXPECT_EQ(server.notified[2].arguments()[1], 42U);
}

TEST_F(FreedesktopNotificationsTest, TwoInQuickSuccessionLeaveTheSecond)
{
    NotificationServer server(bus);
    server.holdsBack = true;
    add(request("first", 0ms));
    scheduler.advance(0ms);
    ASSERT_TRUE(eventually([&] { return server.notified.size() == 1; }));
    center.removePending(u"id"_s);
    center.removeDelivered(u"id"_s);
    add(request("second", 0ms));
    scheduler.advance(0ms);
    ASSERT_TRUE(eventually([&] { return server.notified.size() == 2; }));
    server.answerHeld();
    ASSERT_TRUE(eventually([&] { return reply.count == 2; }));
    EXPECT_TRUE(eventually([&] { return server.onScreen.size() == 1; }));
    EXPECT_EQ(server.onScreen.values(), QStringList{u"second"_s});
}

TEST_F(FreedesktopNotificationsTest, AMessageRemovedOnItsWayIsTakenAwayWhenItArrives)
{
    NotificationServer server(bus);
    server.holdsBack = true;
    add(request("late", 0ms));
    scheduler.advance(0ms);
    ASSERT_TRUE(eventually([&] { return server.notified.size() == 1; }));
    center.removeDelivered(u"id"_s);
    server.answerHeld();
    EXPECT_TRUE(eventually([&] { return server.onScreen.isEmpty(); }));
}

TEST_F(FreedesktopNotificationsTest, ANewServerIsNotAskedToCloseWhatAnOlderOneShowed)
{
    {
        NotificationServer old(bus);
        addAndShow("old");
    }
    NotificationServer server(bus);
    hearTheServerOut();
    addAndShow("other"); // has the number that the old server gave
    EXPECT_EQ(server.notified[0].arguments()[1], 0U);
    EXPECT_TRUE(server.closed.empty());
    EXPECT_EQ(server.onScreen.values(), QStringList{u"other"_s});
}

TEST_F(FreedesktopNotificationsTest, ARefusalIsReported)
{
    NotificationServer server(bus);
    server.refuses = true;
    add(request("too much", 0ms));
    scheduler.advance(0ms);
    ASSERT_TRUE(eventually([&] { return reply.count == 1; }));
    ASSERT_TRUE(reply.error);
    EXPECT_EQ(
        reply.error->domain, u"org.freedesktop.Notifications.Error.ExcessNotificationGeneration"_s);
}

TEST_F(FreedesktopNotificationsTest, WithoutAServerTheFailureIsReported)
{
    add(request("nobody shows it", 0ms));
    scheduler.advance(0ms);
    ASSERT_TRUE(eventually([&] { return reply.count == 1; }));
    ASSERT_TRUE(reply.error);
}

TEST_F(FreedesktopNotificationsTest, AlertsAreGrantedWhereThereIsAServer)
{
    std::optional<bool> granted;
    std::optional<Error> problem;
    const auto answer = [&](bool allowed, const std::optional<Error> &error) {
        granted = allowed;
        problem = error;
    };
    center.requestAlertAuthorization(answer);
    EXPECT_FALSE(granted) << "in a later turn";
    ASSERT_TRUE(eventually([&] { return granted.has_value(); }));
    EXPECT_FALSE(*granted);
    EXPECT_TRUE(problem) << "that there is none now is no refusal";

    NotificationServer server(bus);
    granted.reset();
    center.requestAlertAuthorization(answer);
    ASSERT_TRUE(eventually([&] { return granted.has_value(); }));
    EXPECT_TRUE(*granted);
    EXPECT_FALSE(problem);
}

/// A message that asks something, and what was answered.
class FreedesktopNotificationsActions : public FreedesktopNotificationsTest
{
protected:
    void ask(const char *body)
    {
        const int before = reply.count;
        UserNotificationRequest question = request(body, 0ms);
        const QString asked = question.body;
        question.actions = {{u"Yes"_s, [this, asked] { answers << u"yes "_s + asked; }},
            {u"No"_s, [this, asked] { answers << u"no "_s + asked; }}};
        add(question);
        scheduler.advance(0ms);
        ASSERT_TRUE(eventually([&] { return reply.count == before + 1; }));
    }

    QStringList answers;
};

TEST_F(FreedesktopNotificationsActions, AreShownInOrderAndStay)
{
    NotificationServer server(bus, {u"body"_s, u"actions"_s});
    ask("first?");
    const QVariantList arguments = server.notified[0].arguments();
    EXPECT_EQ(arguments[5].toStringList(), (QStringList{u"0"_s, u"Yes"_s, u"1"_s, u"No"_s}));
    const auto hints = qdbus_cast<QVariantMap>(arguments[6]);
    EXPECT_EQ(hints[u"urgency"_s], QVariant::fromValue<uchar>(2));
    EXPECT_EQ(hints[u"urgency"_s].typeId(), QMetaType::UChar);
}

TEST_F(FreedesktopNotificationsActions, AreLeftAwayWhereTheServerHasNone)
{
    NotificationServer server(bus, {u"body"_s});
    ask("first?");
    EXPECT_TRUE(server.notified[0].arguments()[5].toStringList().isEmpty());
    EXPECT_EQ(server.onScreen.first(), u"first?"_s);
}

TEST_F(FreedesktopNotificationsActions, OneIsChosenOnceAndTheMessageGoes)
{
    NotificationServer server(bus, {u"actions"_s});
    ask("first?");
    server.invoke(41, u"1"_s);
    server.invoke(41, u"0"_s);
    hearTheServerOut();
    EXPECT_EQ(answers, QStringList{u"no first?"_s});
    EXPECT_TRUE(eventually([&] { return server.onScreen.isEmpty(); }));
}

TEST_F(FreedesktopNotificationsActions, WhatNobodyOfferedIsNotChosen)
{
    NotificationServer server(bus, {u"actions"_s});
    ask("first?");
    for (const QString &key : {u"2"_s, u"-1"_s, u"default"_s, u""_s, u"0x0"_s}) {
        server.invoke(41, key);
    }
    server.invoke(0, u"0"_s);
    server.invoke(40, u"0"_s);
    hearTheServerOut();
    EXPECT_TRUE(answers.isEmpty());
}

TEST_F(FreedesktopNotificationsActions, OthersThanTheServerChooseNothing)
{
    NotificationServer server(bus, {u"actions"_s});
    ask("first?");
    QDBusMessage forged = QDBusMessage::createSignal(
        NotificationServer::path, NotificationServer::name, u"ActionInvoked"_s);
    forged << 41U << u"0"_s;
    QDBusConnection stranger = bus.connect();
    ASSERT_TRUE(stranger.send(forged));
    stranger.call(QDBusMessage::createMethodCall(
        u"org.freedesktop.DBus"_s, u"/"_s, u"org.freedesktop.DBus"_s, u"GetId"_s));
    hearTheServerOut();
    EXPECT_TRUE(answers.isEmpty());
}

TEST_F(FreedesktopNotificationsActions, OfARemovedOrClosedMessageNoneIsChosen)
{
    NotificationServer server(bus, {u"actions"_s});
    ask("first?");
    center.removeDelivered(u"id"_s);
    server.invoke(41, u"0"_s);
    ask("second?");
    server.close(42);
    server.invoke(42, u"0"_s);
    hearTheServerOut();
    EXPECT_TRUE(answers.isEmpty());
}

TEST_F(FreedesktopNotificationsActions, OfAReplacedMessageNoneIsTakenForTheNewOnes)
{
    NotificationServer server(bus, {u"actions"_s});
    ask("first?");
    server.holdsBack = true;
    UserNotificationRequest question = request("second?", 0ms);
    question.actions = {{u"Yes"_s, [this] { answers << u"yes second?"_s; }}};
    add(question);
    scheduler.advance(0ms);
    ASSERT_TRUE(eventually([&] { return server.notified.size() == 2; }));
    server.invoke(41, u"0"_s);
    server.answerHeld();
    ASSERT_TRUE(eventually([&] { return reply.count == 2; }));
    EXPECT_TRUE(answers.isEmpty()) << "the user saw the first one";

    server.invoke(41, u"0"_s);
    hearTheServerOut();
    EXPECT_EQ(answers, QStringList{u"yes second?"_s});
}

TEST(FreedesktopNotificationsWithoutASession, ReportTheirFailureInALaterTurn)
{
    FakeScheduler scheduler;
    FreedesktopNotifications center(scheduler, QDBusConnection(u"no connection"_s));
    int replies = 0;
    center.requestAlertAuthorization([&](bool granted, const std::optional<Error> &error) {
        EXPECT_FALSE(granted);
        EXPECT_TRUE(error);
        ++replies;
    });
    center.add(request("lost", 0ms), [&](const std::optional<Error> &error) {
        EXPECT_TRUE(error);
        ++replies;
    });
    scheduler.advance(0ms);
    EXPECT_EQ(replies, 0);
    EXPECT_TRUE(eventually([&] { return replies == 2; }));
}

/// dunst on a display of its own.
class FreedesktopNotificationsOnDunst : public FreedesktopNotificationsTest
{
protected:
    void SetUp() override
    {
        display.setProgram(u"Xvfb"_s);
        display.setArguments({u"-displayfd"_s, u"1"_s});
        display.setStandardErrorFile(QProcess::nullDevice());
        display.start(QIODevice::ReadOnly);
        ASSERT_TRUE(eventually([this] { return display.canReadLine(); }));
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"DISPLAY"_s, u':' + QString::fromUtf8(display.readLine()).trimmed());
        environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, bus.address());
        environment.remove(u"WAYLAND_DISPLAY"_s);
        dunst.setProcessEnvironment(environment);
        dunst.setStandardErrorFile(QProcess::nullDevice());
        dunst.start(u"dunst"_s, QStringList());
        const QDBusConnection watcher = bus.connect();
        ASSERT_TRUE(eventually([&] {
            return watcher.interface()->isServiceRegistered(NotificationServer::name).value();
        }));
    }

    void TearDown() override
    {
        for (QProcess *process : {&dunst, &display}) {
            process->kill();
            process->waitForFinished();
        }
    }

    QString count(const char *which)
    {
        QProcess ask;
        ask.setProcessEnvironment(dunst.processEnvironment());
        ask.start(u"dunstctl"_s, {u"count"_s, QLatin1String(which)});
        ask.waitForFinished();
        return QString::fromUtf8(ask.readAllStandardOutput()).trimmed();
    }

    QProcess display;
    QProcess dunst;
};

TEST_F(FreedesktopNotificationsOnDunst, ShowsOneMessagePerIdentifier)
{
    addAndShow("first");
    addAndShow("second");
    center.removePending(u"id"_s);
    center.removeDelivered(u"id"_s);
    addAndShow("third");
    EXPECT_TRUE(eventually([this] { return count("displayed") == "1"_L1; }))
        << count("displayed").toStdString();
    center.removeDelivered(u"id"_s);
    EXPECT_TRUE(eventually([this] { return count("displayed") == "0"_L1; }));
}

} // namespace quillon::test
