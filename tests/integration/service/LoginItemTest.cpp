// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "contract/Names.h"
#include "integration/platform/linux/Commands.h"
#include "integration/platform/linux/Waiting.h"
#include "platform/linux/bus/BusRunningApplications.h"
#include "platform/linux/bus/SessionBusNotificationCenter.h"

#include <QFile>
#include <gtest/gtest.h>

#include <csignal>

namespace quillon::test {

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;

namespace {

const QString itsName = QLatin1String(contract::loginHelperName);

QByteArray contents(const char *file)
{
    QFile opened(QString::fromLatin1(file));
    return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray();
}

} // namespace

/// The login item, built to start a program of the test's instead of the real one.
class LoginItem : public ::testing::Test
{
protected:
    void SetUp() override
    {
        // Looks for the login item as soon as it starts, and says how often it was started.
        program("gdbus call --session --dest org.freedesktop.DBus --object-path / --method "
                "org.freedesktop.DBus.NameHasOwner com.orvandel.Quillon4Helper >/tmp/seen.new\n"
                "echo $$ >>/tmp/started\n"
                "mv /tmp/seen.new /tmp/seen\n"
                "exec sleep 1000\n");
    }

    void TearDown() override
    {
        item.kill();
        item.waitForFinished();
        const QByteArrayList started = contents("/tmp/started").split('\n');
        for (const QByteArray &pid : started) {
            if (pid.toInt() > 1) {
                kill(pid.toInt(), SIGKILL);
            }
        }
    }

    static void program(const char *script)
    {
        QFile file(QStringLiteral(QUILLON_TEST_PROGRAM));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write("#!/bin/sh\n");
        file.write(script);
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    void start()
    {
        item.start(QStringLiteral(QUILLON_TEST_LOGIN_ITEM), QStringList());
        ASSERT_TRUE(eventually([] { return !contents("/tmp/seen").isEmpty(); }));
    }

    bool hasEnded() const { return item.state() == QProcess::NotRunning; }

    QProcess item;
    BusRunningApplications running;
    SessionBusNotificationCenter center;
};

TEST_F(LoginItem, IsSeenByTheProgramThatItStarts)
{
    start();
    EXPECT_EQ(contents("/tmp/seen").trimmed(), "(true,)");
    EXPECT_TRUE(running.isRunning(itsName));
    EXPECT_EQ(contents("/tmp/started").count('\n'), 1);
}

TEST_F(LoginItem, QuitsWhenToldAndLeavesTheProgramRunning)
{
    start();
    center.post(QLatin1String(contract::terminateLoginHelper),
        QLatin1String(contract::terminateLoginHelperObject));
    EXPECT_TRUE(eventually([this] { return hasEnded(); }));
    EXPECT_EQ(item.exitCode(), 0);
    // The bus may notice a moment later that its peer is gone.
    EXPECT_TRUE(eventually([this] { return !running.isRunning(itsName); }));
    EXPECT_EQ(kill(contents("/tmp/started").trimmed().toInt(), 0), 0);
}

TEST_F(LoginItem, StaysForEveryOtherBroadcast)
{
    start();
    center.post(QLatin1String(contract::terminateLoginHelper), u"com.example.Other"_s);
    center.post(QLatin1String(contract::helperUpdated),
        QLatin1String(contract::terminateLoginHelperObject));
    command(u"dbus-send --session --type=signal %1 %2.%3 int32:1"_s.arg(
        QLatin1String(contract::distributed::path), QLatin1String(contract::distributed::interface),
        QLatin1String(contract::distributed::posted.name)));
    EXPECT_FALSE(eventually([this] { return hasEnded(); }, 500ms));
    EXPECT_TRUE(running.isRunning(itsName));
}

TEST_F(LoginItem, EndsWithAProgramThatNeverSaysAWord)
{
    program("echo yes >/tmp/seen; exit 0\n");
    start();
    EXPECT_TRUE(eventually([this] { return hasEnded(); }));
}

TEST_F(LoginItem, EndsWhenThereIsNoProgram)
{
    QFile::remove(QStringLiteral(QUILLON_TEST_PROGRAM));
    item.start(QStringLiteral(QUILLON_TEST_LOGIN_ITEM), QStringList());
    EXPECT_TRUE(eventually([this] { return hasEnded(); }));
    EXPECT_EQ(item.exitCode(), 1);
}

TEST_F(LoginItem, ASecondOneStartsNothing)
{
    start();
    QProcess second;
    second.start(QStringLiteral(QUILLON_TEST_LOGIN_ITEM), QStringList());
    EXPECT_TRUE(eventually([&] { return second.state() == QProcess::NotRunning; }));
    EXPECT_EQ(second.exitCode(), 1);
    EXPECT_EQ(contents("/tmp/started").count('\n'), 1);
    EXPECT_FALSE(hasEnded());
}

TEST_F(LoginItem, WithoutASessionItStartsNothing)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, u"unix:path=/tmp/no-bus"_s);
    item.setProcessEnvironment(environment);
    item.start(QStringLiteral(QUILLON_TEST_LOGIN_ITEM), QStringList());
    EXPECT_TRUE(eventually([this] { return hasEnded(); }));
    EXPECT_NE(item.exitCode(), 0);
    EXPECT_TRUE(contents("/tmp/started").isEmpty());
}

} // namespace quillon::test
