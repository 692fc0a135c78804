// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/FakeScheduler.h"
#include "fakes/FakeUserNotificationCenter.h"
#include "fakes/QtPrinting.h"
#include "integration/platform/linux/Waiting.h"
#include "integration/platform/linux/bus/NotificationServer.h"
#include "platform/linux/bus/FreedesktopNotifications.h"

#include <QStringList>
#include <gtest/gtest.h>

#include <memory>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

using namespace std::chrono_literals;

/// A desktop that shows messages, made up and as a server on a real bus. On both, a clock with
/// hands says when a delay has passed.
struct MadeUpDesktop
{
    QStringList onScreen()
    {
        QStringList bodies;
        for (const UserNotificationRequest &shown : std::as_const(center.onScreen)) {
            bodies << shown.body;
        }
        return bodies;
    }
    void refuseMessages() { center.deliveryError = problem; }
    void loseItsServer() { center.authorizationError = center.deliveryError = problem; }
    void settle() { scheduler.runPending(); }
    bool soon(const std::function<bool()> &condition)
    {
        settle();
        return condition();
    }

    const Error problem{u"com.example.Error"_s, 0, {}};
    FakeScheduler scheduler;
    FakeUserNotificationCenter center{scheduler};
};

struct BusDesktop
{
    QStringList onScreen() { return server->onScreen.values(); }
    void refuseMessages() { server->refuses = true; }
    void loseItsServer() { server.reset(); }
    // A message takes two questions to the server, one after the other.
    void settle()
    {
        for (int question = 0; question < 3; ++question) {
            bool answered = false;
            center.requestAlertAuthorization(
                [&](bool, const std::optional<Error> &) { answered = true; });
            EXPECT_TRUE(eventually([&] { return answered; }));
        }
    }
    bool soon(const std::function<bool()> &condition) { return eventually(condition); }

    PrivateBus bus;
    std::unique_ptr<NotificationServer> server = std::make_unique<NotificationServer>(bus);
    FakeScheduler scheduler;
    FreedesktopNotifications center{scheduler, bus.connect()};
};

template <typename Desktop>
class UserNotificationConformance : public ::testing::Test
{
protected:
    void add(const char *identifier, const char *body, std::chrono::milliseconds delay = 1000ms)
    {
        const QString text = QString::fromUtf8(body);
        UserNotificationRequest request;
        request.identifier = QString::fromUtf8(identifier);
        request.title = u"Quillon"_s;
        request.body = text;
        request.delay = delay;
        center.add(request, [this, text](const std::optional<Error> &error) {
            EXPECT_EQ(desktop.onScreen().contains(text), !error) << "the reply comes afterwards";
            (error ? failed : replied) << text;
        });
    }
    void addAndShow(const char *identifier, const char *body)
    {
        add(identifier, body);
        pass(1000ms);
        ASSERT_TRUE(desktop.soon([&] { return replied.contains(QString::fromUtf8(body)); }));
    }
    void pass(std::chrono::milliseconds time)
    {
        desktop.scheduler.advance(time);
        desktop.settle();
    }
    QStringList onScreen()
    {
        QStringList bodies = desktop.onScreen();
        bodies.sort();
        return bodies;
    }
    static QStringList texts(const char *text)
    {
        return QString::fromUtf8(text).split(u' ', Qt::SkipEmptyParts);
    }

    Desktop desktop;
    UserNotificationCenter &center = desktop.center;
    QStringList replied;
    QStringList failed;
};

using Desktops = ::testing::Types<MadeUpDesktop, BusDesktop>;
TYPED_TEST_SUITE(UserNotificationConformance, Desktops);

TYPED_TEST(UserNotificationConformance, AMessageIsShownWhenItsDelayHasPassedAndReportedOnce)
{
    this->add("id", "hello");
    this->pass(999ms);
    EXPECT_EQ(this->onScreen(), QStringList());
    EXPECT_EQ(this->replied, QStringList());
    this->pass(1ms);
    EXPECT_TRUE(this->desktop.soon([this] { return !this->replied.isEmpty(); }));
    EXPECT_EQ(this->onScreen(), this->texts("hello"));
    this->pass(10s);
    EXPECT_EQ(this->replied, this->texts("hello"));
    EXPECT_EQ(this->failed, QStringList());
}

TYPED_TEST(UserNotificationConformance, WithoutDelayItComesInALaterTurnAllTheSame)
{
    this->add("id", "hello", 0ms);
    EXPECT_EQ(this->onScreen(), QStringList());
    EXPECT_EQ(this->replied, QStringList());
    this->pass(0ms);
    EXPECT_TRUE(this->desktop.soon([this] { return this->replied == this->texts("hello"); }));
    EXPECT_EQ(this->onScreen(), this->texts("hello"));
}

TYPED_TEST(UserNotificationConformance, APendingRequestThatIsRemovedIsNeverShownNorReported)
{
    this->add("id", "never");
    this->add("other", "hello");
    this->center.removePending(u"unknown"_s);
    this->center.removePending(u"id"_s);
    this->center.removePending(u"id"_s);
    this->pass(5s);
    EXPECT_EQ(this->onScreen(), this->texts("hello"));
    EXPECT_EQ(this->replied, this->texts("hello"));
    EXPECT_EQ(this->failed, QStringList());
}

TYPED_TEST(UserNotificationConformance, AMessageOnTheScreenIsNotPendingAndAPendingOneNotOnTheScreen)
{
    this->addAndShow("shown", "one");
    this->add("pending", "two");
    this->center.removePending(u"shown"_s);
    this->center.removeDelivered(u"pending"_s);
    this->pass(1000ms);
    EXPECT_EQ(this->onScreen(), this->texts("one two"));
}

TYPED_TEST(UserNotificationConformance, ADeliveredMessageIsTakenAway)
{
    this->addAndShow("id", "old");
    this->addAndShow("other", "stays");
    this->center.removeDelivered(u"unknown"_s);
    this->center.removeDelivered(u"id"_s);
    this->center.removeDelivered(u"id"_s);
    this->desktop.settle();
    EXPECT_EQ(this->onScreen(), this->texts("stays"));
    this->addAndShow("id", "new");
    EXPECT_EQ(this->onScreen(), this->texts("new stays"));
}

TYPED_TEST(UserNotificationConformance, ANewerMessageReplacesTheOneOnTheScreen)
{
    this->addAndShow("id", "first");
    this->addAndShow("id", "second");
    EXPECT_EQ(this->onScreen(), this->texts("second"));
    EXPECT_EQ(this->replied, this->texts("first second"));
    this->center.removeDelivered(u"id"_s);
    this->desktop.settle();
    EXPECT_EQ(this->onScreen(), QStringList());
}

TYPED_TEST(UserNotificationConformance, ANewerRequestTakesThePlaceOfAPendingOne)
{
    this->add("id", "first");
    this->pass(600ms);
    this->add("id", "second");
    this->pass(600ms);
    EXPECT_EQ(this->onScreen(), QStringList()) << "the first is dropped, the second not yet due";
    this->pass(400ms);
    EXPECT_EQ(this->onScreen(), this->texts("second"));
    EXPECT_EQ(this->replied, this->texts("second"));
}

TYPED_TEST(UserNotificationConformance, MessagesOfOtherIdentifiersStandBesideEachOther)
{
    this->add("one", "a", 300ms);
    this->add("two", "b", 100ms);
    this->pass(100ms);
    EXPECT_EQ(this->onScreen(), this->texts("b"));
    this->pass(200ms);
    EXPECT_EQ(this->onScreen(), this->texts("a b"));
    EXPECT_EQ(this->replied, this->texts("b a"));
}

TYPED_TEST(UserNotificationConformance, ARefusedMessageIsReportedOnceAndNotShown)
{
    this->desktop.refuseMessages();
    this->add("id", "refused");
    this->pass(1000ms);
    this->pass(5s);
    EXPECT_EQ(this->failed, this->texts("refused"));
    EXPECT_EQ(this->replied, QStringList());
    EXPECT_EQ(this->onScreen(), QStringList());
}

TYPED_TEST(UserNotificationConformance, AlertsAreGrantedOnceInALaterTurn)
{
    int answers = 0;
    this->center.requestAlertAuthorization([&](bool granted, const std::optional<Error> &error) {
        ++answers;
        EXPECT_TRUE(granted);
        EXPECT_FALSE(error);
    });
    EXPECT_EQ(answers, 0);
    EXPECT_TRUE(this->desktop.soon([&] { return answers == 1; }));
    this->desktop.settle();
    EXPECT_EQ(answers, 1);
}

TYPED_TEST(UserNotificationConformance, WithoutAServerTheQuestionEndsInAnErrorWhichIsNoGrant)
{
    this->desktop.loseItsServer();
    int answers = 0;
    this->center.requestAlertAuthorization([&](bool granted, const std::optional<Error> &error) {
        ++answers;
        EXPECT_FALSE(granted);
        EXPECT_TRUE(error);
    });
    EXPECT_EQ(answers, 0);
    EXPECT_TRUE(this->desktop.soon([&] { return answers == 1; }));
    this->desktop.settle();
    EXPECT_EQ(answers, 1);
}

} // namespace
} // namespace quillon::test
