// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/RealtimeAlarm.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <gtest/gtest.h>

#include <unistd.h>

namespace quillon::test {

namespace {

using namespace std::chrono_literals;

constexpr auto onlyAHang = 60s;

class RealtimeAlarmTest : public ::testing::Test
{
protected:
    static QDateTime now() { return QDateTime::currentDateTimeUtc(); }

    void wait()
    {
        const QDeadlineTimer limit(onlyAHang);
        while (rings == 0 && !limit.hasExpired()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
        }
    }

    int rings = 0;
    std::unique_ptr<Scheduler::Alarm> alarm;
};

} // namespace

TEST_F(RealtimeAlarmTest, RingsOnceTheClockIsThereAndNotBefore)
{
    const QDateTime moment = now().addMSecs(60);
    alarm = RealtimeAlarm::make(moment, [this] { ++rings; });
    wait();
    EXPECT_GE(now(), moment);
    QCoreApplication::processEvents();
    EXPECT_EQ(rings, 1);
}

TEST_F(RealtimeAlarmTest, OfAMomentThatIsPastRingsAtOnce)
{
    for (const QDateTime &moment : {now().addSecs(-3600), QDateTime::fromMSecsSinceEpoch(0),
             QDateTime::fromMSecsSinceEpoch(-5)}) {
        rings = 0;
        alarm = RealtimeAlarm::make(moment, [this] { ++rings; });
        wait();
        EXPECT_EQ(rings, 1);
    }
}

TEST_F(RealtimeAlarmTest, MayEndItselfOrBeSetAnewWhenItRings)
{
    alarm = RealtimeAlarm::make(now(), [this] {
        alarm = RealtimeAlarm::make(now(), [this] {
            alarm.reset();
            ++rings;
        });
    });
    wait();
    EXPECT_EQ(rings, 1);
}

TEST_F(RealtimeAlarmTest, IsSilentOnceItIsGone)
{
    alarm = RealtimeAlarm::make(now(), [this] { ++rings; });
    alarm.reset();
    bool isOver = false;
    const auto later = RealtimeAlarm::make(now().addMSecs(30), [&isOver] { isOver = true; });
    const QDeadlineTimer limit(onlyAHang);
    while (!isOver && !limit.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
    }
    EXPECT_TRUE(isOver);
    EXPECT_EQ(rings, 0);
}

TEST_F(RealtimeAlarmTest, LeavesNoDescriptor)
{
    const int before = ::dup(0);
    ::close(before);
    alarm = RealtimeAlarm::make(now().addSecs(3600), [] {});
    alarm.reset();
    const int after = ::dup(0);
    ::close(after);
    EXPECT_EQ(after, before);
}

} // namespace quillon::test
