// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "contract/Names.h"
#include "integration/platform/linux/Commands.h"
#include "integration/platform/linux/Waiting.h"
#include "integration/platform/linux/bus/PrivateBus.h"
#include "platform/linux/bus/BusRunningApplications.h"
#include "platform/linux/bus/SessionBusNotificationCenter.h"
#include "platform/linux/bus/SessionInstance.h"

#include <QElapsedTimer>
#include <gtest/gtest.h>

namespace quillon::test {

using namespace std::chrono_literals;

namespace {

const QString name = QLatin1String(contract::helperUpdated);
const QString object = QLatin1String(contract::helperUpdatedObject);

} // namespace

class DistributedNotifications : public ::testing::Test
{
protected:
    PrivateBus bus;
    SessionBusNotificationCenter ours{bus.connect()};
    SessionBusNotificationCenter theirs{bus.connect()};
    int heard = 0;
    std::function<void()> hear = [this] { ++heard; };

    // Whatever was posted before has arrived when this has.
    void waitForAll()
    {
        bool arrived = false;
        const auto token =
            ours.addObserver(QStringLiteral("last"), QString(), [&] { arrived = true; });
        theirs.post(QStringLiteral("last"), QString());
        EXPECT_TRUE(eventually([&] { return arrived; }));
        ours.removeObserver(token);
    }
};

TEST_F(DistributedNotifications, ReachTheObserversOfNameAndObject)
{
    ours.addObserver(name, object, hear);
    theirs.post(name, object);
    theirs.post(name, QStringLiteral("com.example.Other"));
    theirs.post(QStringLiteral("Other"), object);
    theirs.post(name.toLower(), object);
    waitForAll();
    EXPECT_EQ(heard, 1);
}

TEST_F(DistributedNotifications, EveryObserverHearsUntilItIsRemoved)
{
    const auto first = ours.addObserver(name, object, hear);
    ours.addObserver(name, object, hear);
    theirs.post(name, object);
    waitForAll();
    EXPECT_EQ(heard, 2);
    ours.removeObserver(first);
    ours.removeObserver(12345);
    theirs.post(name, object);
    waitForAll();
    EXPECT_EQ(heard, 3);
}

TEST_F(DistributedNotifications, AnObserverMayRemoveTheNext)
{
    SessionBusNotificationCenter::Token next = 0;
    ours.addObserver(name, object, [&] { ours.removeObserver(next); });
    next = ours.addObserver(name, object, hear);
    theirs.post(name, object);
    waitForAll();
    EXPECT_EQ(heard, 0);
}

TEST_F(DistributedNotifications, ComeFromAnyProgramOfTheSession)
{
    ours.addObserver(name, object, hear);
    command(QStringLiteral("dbus-send --bus=%1 --type=signal %2 %3.%4 string:%5 string:%6")
                .arg(bus.address(), QLatin1String(contract::distributedPath),
                    QLatin1String(contract::distributedInterface),
                    QLatin1String(contract::distributedSignal), name, object));
    EXPECT_TRUE(eventually([this] { return heard == 1; }));
}

TEST_F(DistributedNotifications, OfAnotherShapeAreNotHeard)
{
    ours.addObserver(name, object, hear);
    QDBusConnection stranger = bus.connect();
    for (const QVariantList &contents : {QVariantList{}, QVariantList{name}, QVariantList{1, 2},
             QVariantList{name, object, QStringLiteral("more")}}) {
        QDBusMessage signal = QDBusMessage::createSignal(QLatin1String(contract::distributedPath),
            QLatin1String(contract::distributedInterface),
            QLatin1String(contract::distributedSignal));
        signal.setArguments(contents);
        stranger.send(signal);
    }
    waitForAll();
    EXPECT_EQ(heard, 0);
}

TEST(DistributedNotificationsWithoutASession, AreDropped)
{
    SessionBusNotificationCenter center{QDBusConnection(QStringLiteral("no such connection"))};
    center.addObserver(name, object, [] { ADD_FAILURE(); });
    center.post(name, object);
    eventually([] { return false; }, 50ms);
}

TEST(RunningApplications, AreThoseWhoseNameIsOwned)
{
    PrivateBus bus;
    BusRunningApplications running(bus.connect());
    const QString loginHelper = QLatin1String(contract::loginHelperName);
    EXPECT_FALSE(running.isRunning(loginHelper));
    const QString item = bus.open();
    QDBusConnection(item).registerService(loginHelper);
    EXPECT_TRUE(running.isRunning(loginHelper));
    bus.drop(item);
    EXPECT_TRUE(eventually([&] { return !running.isRunning(loginHelper); }));
}

TEST(RunningApplications, AreUnknownWithoutASession)
{
    PrivateBus bus;
    BusRunningApplications running(bus.connect());
    bus.stop();
    QElapsedTimer time;
    time.start();
    EXPECT_FALSE(running.isRunning(QLatin1String(contract::loginHelperName)));
    EXPECT_LT(time.elapsed(), 2000);
}

class SingleInstance : public ::testing::Test
{
protected:
    PrivateBus bus;
    SessionInstance first{bus.connect()};
    SessionInstance second{bus.connect()};
    int activations = 0;
    QString token;
    /// What a window that asks for the focus upon the activation would find.
    QString tokenForWindows;

    void SetUp() override
    {
        forgetTokens();
        QObject::connect(&first, &SessionInstance::activated, [this](const QString &given) {
            ++activations;
            token = given;
            tokenForWindows = qEnvironmentVariable("XDG_ACTIVATION_TOKEN");
        });
    }

    void TearDown() override { forgetTokens(); }

    static void forgetTokens()
    {
        qunsetenv("XDG_ACTIVATION_TOKEN");
        qunsetenv("DESKTOP_STARTUP_ID");
    }

    void callFromDesktop(const QString &operation)
    {
        QProcess desktop;
        desktop.startCommand(QStringLiteral("gdbus call --address %1 --dest com.orvandel.Quillon4 "
                                            "--object-path /com/orvandel/Quillon4 "
                                            "--method org.freedesktop.Application.%2")
                                 .arg(bus.address(), operation));
        EXPECT_TRUE(eventually([&] { return desktop.state() == QProcess::NotRunning; }));
        EXPECT_EQ(desktop.exitCode(), 0)
            << operation.toStdString() << desktop.readAllStandardError().toStdString();
    }

    void startAgain()
    {
        bool answered = false;
        second.activateOther([&](bool) { answered = true; });
        EXPECT_TRUE(eventually([&] { return answered; }));
    }
};

TEST_F(SingleInstance, TheFirstStartIsTheProgram)
{
    EXPECT_EQ(first.claim(), SessionInstance::Claim::Owned);
    EXPECT_EQ(second.claim(), SessionInstance::Claim::AlreadyRunning);
}

TEST_F(SingleInstance, ASecondStartBringsTheFirstUp)
{
    first.claim();
    second.claim();
    std::optional<bool> reached;
    second.activateOther([&](bool answer) { reached = answer; });
    EXPECT_FALSE(reached) << "not before the call returns";
    EXPECT_TRUE(eventually([&] { return reached.has_value(); }));
    EXPECT_TRUE(*reached);
    EXPECT_EQ(activations, 1);
}

TEST_F(SingleInstance, TheDesktopMayActivateOpenAndAct)
{
    first.claim();
    for (const char *operation : {"Activate {}", "Open [] {}", "ActivateAction anything [] {}"}) {
        callFromDesktop(QLatin1String(operation));
    }
    EXPECT_EQ(activations, 3);
}

TEST_F(SingleInstance, TheTokenOfTheSecondStartReachesTheWindowsOfTheFirst)
{
    first.claim();
    qputenv("XDG_ACTIVATION_TOKEN", "token-17");
    startAgain();
    EXPECT_EQ(token, QStringLiteral("token-17"));
    // The processes are two: what the first finds is what it was sent.
    qunsetenv("XDG_ACTIVATION_TOKEN");
    callFromDesktop(QStringLiteral("Activate \"{'activation-token': <'token-18'>}\""));
    EXPECT_EQ(token, QStringLiteral("token-18"));
    EXPECT_EQ(tokenForWindows, QStringLiteral("token-18"));
}

TEST_F(SingleInstance, AStartupIdStandsInForAToken)
{
    first.claim();
    qputenv("DESKTOP_STARTUP_ID", "panel-4711_TIME99");
    startAgain();
    EXPECT_EQ(token, QStringLiteral("panel-4711_TIME99"));
    EXPECT_EQ(tokenForWindows, QStringLiteral("panel-4711_TIME99"));
}

TEST_F(SingleInstance, EveryOperationOfTheDesktopHandsItsTokenOn)
{
    first.claim();
    const QString data = QStringLiteral("\"{'activation-token': <'%1'>}\"");
    for (const char *operation : {"Activate", "Open []", "ActivateAction anything []"}) {
        callFromDesktop(QLatin1String(operation) + u' ' + data.arg(QLatin1String(operation, 4)));
        EXPECT_EQ(token, QLatin1String(operation, 4));
    }
}

TEST_F(SingleInstance, ATokenIsNotUsedTwice)
{
    first.claim();
    callFromDesktop(QStringLiteral("Activate \"{'activation-token': <'token-18'>}\""));
    callFromDesktop(QStringLiteral("Activate {}"));
    EXPECT_EQ(activations, 2);
    EXPECT_EQ(token, QString());
    EXPECT_EQ(tokenForWindows, QString());
}

TEST_F(SingleInstance, ATokenOfAnotherTypeIsNone)
{
    first.claim();
    callFromDesktop(QStringLiteral("Activate \"{'activation-token': <[1, 2]>}\""));
    EXPECT_EQ(activations, 1);
    EXPECT_EQ(token, QString());
}

TEST_F(SingleInstance, TheOtherMayHaveEndedMeanwhile)
{
    std::optional<bool> reached;
    second.activateOther([&](bool answer) { reached = answer; });
    EXPECT_TRUE(eventually([&] { return reached.has_value(); }));
    EXPECT_FALSE(*reached);
}

TEST(SingleInstanceWithoutASession, GoesOnAlone)
{
    SessionInstance instance{QDBusConnection(QStringLiteral("no such connection"))};
    EXPECT_EQ(instance.claim(), SessionInstance::Claim::NoSession);
    std::optional<bool> reached;
    instance.activateOther([&](bool answer) { reached = answer; });
    EXPECT_TRUE(eventually([&] { return reached.has_value(); }));
    EXPECT_FALSE(*reached);
}

} // namespace quillon::test
