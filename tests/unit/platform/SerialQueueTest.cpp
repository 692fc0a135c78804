// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SerialQueue.h"

#include "fakes/FakeScheduler.h"
#include "platform/qt/QtScheduler.h"

#include <QStringList>
#include <gtest/gtest.h>

#include <atomic>
#include <future>
#include <vector>

namespace quillon {

using namespace Qt::StringLiterals;
namespace {

TEST(SerialQueue, TasksRunInTheBackgroundInTheirOrder)
{
    test::FakeScheduler scheduler;
    SerialQueue queue(scheduler);
    QStringList done;
    for (const char *name : {"a", "b", "c"}) {
        queue.add([&scheduler, &done, name] {
            EXPECT_FALSE(scheduler.isMainThread());
            done << QString::fromLatin1(name);
        });
    }
    EXPECT_TRUE(done.isEmpty());
    scheduler.runPending();
    EXPECT_EQ(done.join(u' '), u"a b c"_s);
}

TEST(SerialQueue, ATaskMayAddAnother)
{
    test::FakeScheduler scheduler;
    SerialQueue queue(scheduler);
    QStringList done;
    queue.add([&] {
        queue.add([&] { done << u"inner"_s; });
        done << u"outer"_s;
    });
    scheduler.runPending();
    EXPECT_EQ(done.join(u' '), u"outer inner"_s);
}

TEST(SerialQueue, ItGoesOnAfterItWasIdle)
{
    test::FakeScheduler scheduler;
    SerialQueue queue(scheduler);
    int done = 0;
    queue.add([&] { ++done; });
    scheduler.runPending();
    queue.add([&] { ++done; });
    scheduler.runPending();
    EXPECT_EQ(done, 2);
}

TEST(SerialQueue, DestroyingItDropsWhatHasNotBegun)
{
    test::FakeScheduler scheduler;
    int done = 0;
    {
        SerialQueue queue(scheduler);
        queue.add([&] { ++done; });
    }
    scheduler.runPending();
    EXPECT_EQ(done, 0);
}

TEST(SerialQueue, OnRealThreadsNeverTwoAtOnceAndInOrder)
{
    QtScheduler scheduler;
    SerialQueue queue(scheduler);
    std::atomic<int> running = 0;
    std::atomic<bool> overlapped = false;
    std::vector<int> order;
    std::promise<void> finished;
    constexpr int count = 500;
    for (int number = 0; number < count; ++number) {
        queue.add([&, number] {
            overlapped = overlapped || ++running > 1;
            order.push_back(number);
            --running;
            if (number == count - 1) {
                finished.set_value();
            }
        });
    }
    ASSERT_EQ(finished.get_future().wait_for(std::chrono::minutes(2)), std::future_status::ready);
    EXPECT_FALSE(overlapped);
    EXPECT_TRUE(std::is_sorted(order.begin(), order.end()));
    EXPECT_EQ(order.size(), static_cast<std::size_t>(count));
}

} // namespace
} // namespace quillon
