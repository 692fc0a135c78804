// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/textual/ShellCommandRunner.h"

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QFile>
#include <gtest/gtest.h>

#include <chrono>

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
    EXPECT_EQ(runner.run(u"echo done; exec sleep 60 >&- 2>&-"_s), u"done\n"_s);
    EXPECT_LT(time.elapsed(), 50'000);
}

TEST(ShellCommandRunner, LeavesNoZombiesBehind)
{
    ShellCommandRunner runner;
    for (int i = 0; i < 20; ++i) {
        runner.run(u"true"_s);
    }
    // Each run collects those before it that have ended by then, which may take a moment.
    const auto children = [] {
        QFile list(u"/proc/thread-self/children"_s);
        EXPECT_TRUE(list.open(QIODevice::ReadOnly));
        return list.readAll().split(' ').size() - 1;
    };
    QDeadlineTimer deadline(std::chrono::minutes(2));
    while (children() > 1 && !deadline.hasExpired()) {
        runner.run(u"true"_s);
    }
    EXPECT_LE(children(), 1);
}

} // namespace quillon::test
