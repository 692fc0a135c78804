// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/bus/SessionInstance.h"

#include "integration/platform/linux/Waiting.h"
#include "integration/platform/linux/bus/PrivateBus.h"

#include <QProcess>
#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;

class SessionInstanceTest : public ::testing::Test
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
        desktop.startCommand(
            u"gdbus call --address %1 --dest com.orvandel.Quillon4 "
            "--object-path /com/orvandel/Quillon4 "
            "--method org.freedesktop.Application.%2"_s.arg(bus.address(), operation));
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

TEST_F(SessionInstanceTest, TheFirstStartIsTheProgram)
{
    EXPECT_EQ(first.claim(), SessionInstance::Claim::Owned);
    EXPECT_EQ(second.claim(), SessionInstance::Claim::AlreadyRunning);
}

TEST_F(SessionInstanceTest, ASecondStartBringsTheFirstUp)
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

TEST_F(SessionInstanceTest, TheDesktopMayActivateOpenAndAct)
{
    first.claim();
    for (const char *operation : {"Activate {}", "Open [] {}", "ActivateAction anything [] {}"}) {
        callFromDesktop(QLatin1String(operation));
    }
    EXPECT_EQ(activations, 3);
}

TEST_F(SessionInstanceTest, TheTokenOfTheSecondStartReachesTheWindowsOfTheFirst)
{
    first.claim();
    qputenv("XDG_ACTIVATION_TOKEN", "token-17");
    startAgain();
    EXPECT_EQ(token, u"token-17"_s);
    // The processes are two: what the first finds is what it was sent.
    qunsetenv("XDG_ACTIVATION_TOKEN");
    callFromDesktop(u"Activate \"{'activation-token': <'token-18'>}\""_s);
    EXPECT_EQ(token, u"token-18"_s);
    EXPECT_EQ(tokenForWindows, u"token-18"_s);
}

TEST_F(SessionInstanceTest, AStartupIdStandsInForAToken)
{
    first.claim();
    qputenv("DESKTOP_STARTUP_ID", "panel-4711_TIME99");
    startAgain();
    EXPECT_EQ(token, u"panel-4711_TIME99"_s);
    EXPECT_EQ(tokenForWindows, u"panel-4711_TIME99"_s);
}

TEST_F(SessionInstanceTest, EveryOperationOfTheDesktopHandsItsTokenOn)
{
    first.claim();
    const QString data = u"\"{'activation-token': <'%1'>}\""_s;
    for (const char *operation : {"Activate", "Open []", "ActivateAction anything []"}) {
        callFromDesktop(QLatin1String(operation) + u' ' + data.arg(QLatin1String(operation, 4)));
        EXPECT_EQ(token, QLatin1String(operation, 4));
    }
}

TEST_F(SessionInstanceTest, ATokenIsNotUsedTwice)
{
    first.claim();
    callFromDesktop(u"Activate \"{'activation-token': <'token-18'>}\""_s);
    callFromDesktop(u"Activate {}"_s);
    EXPECT_EQ(activations, 2);
    EXPECT_EQ(token, QString());
    EXPECT_EQ(tokenForWindows, QString());
}

TEST_F(SessionInstanceTest, ATokenOfAnotherTypeIsNone)
{
    first.claim();
    callFromDesktop(u"Activate \"{'activation-token': <[1, 2]>}\""_s);
    EXPECT_EQ(activations, 1);
    EXPECT_EQ(token, QString());
}

TEST_F(SessionInstanceTest, TheOtherMayHaveEndedMeanwhile)
{
    std::optional<bool> reached;
    second.activateOther([&](bool answer) { reached = answer; });
    EXPECT_TRUE(eventually([&] { return reached.has_value(); }));
    EXPECT_FALSE(*reached);
}

TEST(SessionInstanceWithoutASession, GoesOnAlone)
{
    SessionInstance instance{QDBusConnection(u"no such connection"_s)};
    EXPECT_EQ(instance.claim(), SessionInstance::Claim::NoSession);
    std::optional<bool> reached;
    instance.activateOther([&](bool answer) { reached = answer; });
    EXPECT_TRUE(eventually([&] { return reached.has_value(); }));
    EXPECT_FALSE(*reached);
}

} // namespace quillon::test
