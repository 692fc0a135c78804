// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "SettingsFileTest.h"

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace quillon {

using namespace Qt::StringLiterals;
namespace {

/// A program that does nothing but save, by turns in the background and by flushing; it says
/// through `report` what it has durably saved.
[[noreturn]] void saveForever(const QString &path, qlonglong from, int report)
{
    test::FakeScheduler scheduler;
    PlistSettingsStore store(path, scheduler, {});
    const QString filling(20'000, u'x');
    for (qlonglong round = from;; ++round) {
        store.set(u"first"_s, round);
        store.set(u"filling"_s, filling + QString::number(round));
        store.set(u"second"_s, round);
        if (round % 2 == 0) {
            store.synchronize();
            scheduler.advance(std::chrono::milliseconds(50));
        } else if (!store.flush()) {
            ::_exit(1);
        }
        if (::write(report, &round, sizeof round) != sizeof round) {
            ::_exit(1);
        }
    }
}

qlonglong lastReport(int pipe)
{
    qlonglong last = 0;
    while (::read(pipe, &last, sizeof last) == sizeof last) {
    }
    return last;
}

using KilledWriter = test::SettingsFileTest;

TEST_F(KilledWriter, LeavesTheOldOrTheNewFileAndNothingBetween)
{
    constexpr int rounds = 40;
    qlonglong saved = 0;
    for (int round = 0; round < rounds; ++round) {
        int report[2] = {};
        ASSERT_EQ(::pipe(report), 0);
        const pid_t writer = ::fork();
        ASSERT_GE(writer, 0);
        if (writer == 0) {
            ::close(report[0]);
            saveForever(path, saved + 1, report[1]);
        }
        ::close(report[1]);
        qlonglong reported = 0;
        ASSERT_EQ(::read(report[0], &reported, sizeof reported), ssize_t(sizeof reported));
        // The moment of the kill moves through the writer's cycle.
        std::this_thread::sleep_for(std::chrono::microseconds(731 * round));
        ::kill(writer, SIGKILL);
        int status = 0;
        ASSERT_EQ(::waitpid(writer, &status, 0), writer);
        EXPECT_TRUE(WIFSIGNALED(status)) << "the writer failed by itself";
        reported = std::max(reported, lastReport(report[0]));
        ::close(report[0]);

        const QVariantMap values = content();
        const qlonglong stored = values.value(u"first"_s).toLongLong();
        EXPECT_EQ(values.value(u"second"_s).toLongLong(), stored);
        EXPECT_TRUE(stored == 0 ||
                    values.value(u"filling"_s).toString().endsWith(u'x' + QString::number(stored)));
        EXPECT_GE(stored, std::max(saved, reported)) << "what was reported as saved is lost";
        saved = stored;
    }
    EXPECT_GE(saved, rounds);
}

} // namespace
} // namespace quillon
