// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/textual/ShellCommandRunner.h"

#include <QElapsedTimer>
#include <gtest/gtest.h>

#include <sys/wait.h>

namespace quillon::test {

using namespace Qt::StringLiterals;

TEST(ShellCommandRunner, GivesTheWholeOutputAsUtf8)
{
    ShellCommandRunner runner;
    EXPECT_EQ(runner.run(u"printf 'Größe\\n'"_s), u"Größe\n"_s);
    EXPECT_EQ(runner.run(u"head -c 1000000 /dev/zero | tr '\\0' x"_s).size(), 1'000'000);
}

TEST(ShellCommandRunner, TheExitStatusIsNotLookedAt)
{
    EXPECT_EQ(ShellCommandRunner().run(u"echo seen; exit 3"_s), u"seen\n"_s);
    EXPECT_EQ(ShellCommandRunner().run(u"no-such-command 2>/dev/null"_s), QString());
}

TEST(ShellCommandRunner, StandardInputIsAPipeThatEnds)
{
    ShellCommandRunner runner;
    EXPECT_EQ(runner.run(u"cat; test -p /dev/stdin && echo pipe"_s), u"pipe\n"_s);
}

TEST(ShellCommandRunner, OnlyTheEndOfTheOutputIsWaitedFor)
{
    QElapsedTimer time;
    time.start();
    ShellCommandRunner runner;
    EXPECT_EQ(runner.run(u"echo done; exec sleep 5 >&-"_s), u"done\n"_s);
    EXPECT_LT(time.elapsed(), 4000);
}

TEST(ShellCommandRunner, LeavesNoZombiesBehind)
{
    ShellCommandRunner runner;
    for (int i = 0; i < 20; ++i) {
        runner.run(u"true"_s);
    }
    // All but the very last may be gone already; one more run collects those that took their time.
    runner.run(u"sleep 0.1"_s);
    runner.run(u"sleep 0.1"_s);
    int zombies = 0;
    while (waitpid(-1, nullptr, WNOHANG) > 0) {
        ++zombies;
    }
    EXPECT_LE(zombies, 1);
}

} // namespace quillon::test
