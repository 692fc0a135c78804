// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/textual/ShellCommandRunner.h"

#include <QElapsedTimer>
#include <gtest/gtest.h>

#include <sys/wait.h>

namespace quillon::test {

TEST(ShellCommandRunner, GivesTheWholeOutputAsUtf8)
{
    ShellCommandRunner runner;
    EXPECT_EQ(runner.run(QStringLiteral("printf 'Größe\\n'")), QStringLiteral("Größe\n"));
    EXPECT_EQ(
        runner.run(QStringLiteral("head -c 1000000 /dev/zero | tr '\\0' x")).size(), 1'000'000);
}

TEST(ShellCommandRunner, TheExitStatusIsNotLookedAt)
{
    EXPECT_EQ(
        ShellCommandRunner().run(QStringLiteral("echo seen; exit 3")), QStringLiteral("seen\n"));
    EXPECT_EQ(ShellCommandRunner().run(QStringLiteral("no-such-command 2>/dev/null")), QString());
}

TEST(ShellCommandRunner, StandardInputIsAPipeThatEnds)
{
    ShellCommandRunner runner;
    EXPECT_EQ(runner.run(QStringLiteral("cat; test -p /dev/stdin && echo pipe")),
        QStringLiteral("pipe\n"));
}

TEST(ShellCommandRunner, OnlyTheEndOfTheOutputIsWaitedFor)
{
    QElapsedTimer time;
    time.start();
    ShellCommandRunner runner;
    EXPECT_EQ(runner.run(QStringLiteral("echo done; exec sleep 5 >&-")), QStringLiteral("done\n"));
    EXPECT_LT(time.elapsed(), 4000);
}

TEST(ShellCommandRunner, LeavesNoZombiesBehind)
{
    ShellCommandRunner runner;
    for (int i = 0; i < 20; ++i) {
        runner.run(QStringLiteral("true"));
    }
    // All but the very last may be gone already; one more run collects those that took their time.
    runner.run(QStringLiteral("sleep 0.1"));
    runner.run(QStringLiteral("sleep 0.1"));
    int zombies = 0;
    while (waitpid(-1, nullptr, WNOHANG) > 0) {
        ++zombies;
    }
    EXPECT_LE(zombies, 1);
}

} // namespace quillon::test
