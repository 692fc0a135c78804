// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CountdownFixture.h"

#include <limits>
#include <utility>
#include <vector>

using namespace std::chrono_literals;

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

const QString in = u"...changing MAC Address in "_s;

/// The wall clock does not run as it should, or the rule says something odd.
class CountdownClock : public CountdownFixture
{
};

TEST_F(CountdownClock, ThatJumpsBeyondTheEndStartsAgainWithoutAChange)
{
    timers->startCountDownTimer(en0);
    pass(10s);
    scheduler.setClock(8h);
    pass(1s);
    EXPECT_EQ(shown, en0 + u": "_s + in + u"-7:-58:-11"_s);
    EXPECT_TRUE(changes().isEmpty());
    EXPECT_EQ(started(), 2);
    pass(119s);
    EXPECT_TRUE(changes().isEmpty());
    pass(1s);
    EXPECT_EQ(changes().size(), 1);
}

TEST_F(CountdownClock, ThatJumpsOntoTheEndChangesOnce)
{
    timers->startCountDownTimer(en0);
    pass(10s);
    scheduler.setClock(109s);
    pass(1s);
    EXPECT_EQ(changes().size(), 1);
    EXPECT_EQ(started(), 2);
    pass(119s);
    EXPECT_EQ(changes().size(), 1);
}

TEST_F(CountdownClock, ThatIsASecondLateAtTheEndStartsAgainWithoutAChange)
{
    timers->startCountDownTimer(en0);
    pass(119s);
    scheduler.setClock(1s);
    pass(1s);
    EXPECT_TRUE(changes().isEmpty());
    EXPECT_EQ(started(), 2);
}

TEST_F(CountdownClock, ThatIsLessThanASecondLateStillChanges)
{
    timers->startCountDownTimer(en0);
    pass(119s);
    scheduler.setClock(999ms);
    pass(1s);
    EXPECT_EQ(changes().size(), 1);
}

TEST_F(CountdownClock, ThatIsSetBackMakesTheCountdownLonger)
{
    timers->startCountDownTimer(en0);
    pass(60s);
    scheduler.setClock(-3h);
    pass(1s);
    EXPECT_EQ(display(en0), in + u"03:00:59"_s);
    pass(3h);
    EXPECT_TRUE(changes().isEmpty());
    pass(59s);
    EXPECT_EQ(changes().size(), 1);
}

TEST_F(CountdownClock, ThatIsSetBackOverTheMinuteWarnsAgainWhenItPassesItAgain)
{
    ruleSays(en0, 1);
    timers->startCountDownTimer(en0);
    pass(30s);
    EXPECT_EQ(warnings(), 1);
    scheduler.setClock(-1h);
    pass(1h - 31s);
    EXPECT_EQ(warnings(), 1);
    pass(1s);
    EXPECT_EQ(warnings(), 2);
    EXPECT_TRUE(changes().isEmpty());
}

TEST_F(CountdownClock, NeverMakesTwoChangesAtOnceWhateverItDoes)
{
    ruleSays(en0, 1);
    timers->startCountDownTimer(en0);
    const std::chrono::milliseconds jumps[] = {
        1s, -1s, 59s, -59s, 60s, -60s, 61s, 999ms, -999ms, 8h, -8h, 365 * 24h, -365 * 24h};
    for (const std::chrono::milliseconds wait : {0ms, 1000ms, 30'000ms, 58'000ms, 59'000ms}) {
        for (const auto jump : jumps) {
            timers->startCountDownTimer(en0);
            pass(wait);
            const auto before = changes().size();
            scheduler.setClock(jump);
            pass(1s);
            const auto soFar = changes().size();
            EXPECT_LE(soFar, before + 1);
            pass(1s);
            EXPECT_LE(changes().size(), before + 1) << wait.count() << " " << jump.count();
            EXPECT_EQ(timers->timers().size(), 1);
            EXPECT_GE(changes().size(), soFar);
        }
    }
}

/// A main loop that is held up: timers fire, what was put off waits.
class HeldUpScheduler : public FakeScheduler
{
public:
    void onMain(Task task) override
    {
        if (isHeldUp) {
            m_waiting.push_back(std::move(task));
        } else {
            FakeScheduler::onMain(std::move(task));
        }
    }
    void goOn()
    {
        isHeldUp = false;
        for (Task &task : m_waiting) {
            FakeScheduler::onMain(std::move(task));
        }
        runPending();
    }
    bool isHeldUp = false;

private:
    std::vector<Task> m_waiting;
};

TEST_F(CountdownClock, LetsTwoTicksMeetOneZeroAndStillChangesOnce)
{
    HeldUpScheduler slow;
    CountdownTimers late({slow, notifications, notifier, table, changer});
    late.startCountDownTimer(en0);
    slow.setClock(500ms);
    slow.isHeldUp = true;
    int zeros = 0;
    QObject::connect(&late, &CountdownTimers::ticked,
        [&](const QString &, const QString &text) { zeros += text.endsWith(u"00:00:00"_s); });
    slow.advance(120s);
    EXPECT_EQ(zeros, 2);
    EXPECT_TRUE(changes().isEmpty());
    slow.goOn();
    scheduler.runPending();
    EXPECT_EQ(changes().size(), 1);
    EXPECT_EQ(started(), 2);
}

TEST_F(CountdownClock, IsNotAskedForALengthThatIsNotThere)
{
    for (const QVariant &minutes :
        {QVariant(0), QVariant(), QVariant(u"many"_s), QVariant(QVariantMap()), QVariant(-3)}) {
        ruleSays(en0, minutes);
        timers->startCountDownTimer(en0);
        const int before = started();
        pass(5s);
        EXPECT_EQ(started() - before, 5) << "it starts again at every tick";
        EXPECT_TRUE(changes().isEmpty());
    }
}

TEST_F(CountdownClock, OfACountdownWithoutLengthMayTickEarly)
{
    ruleSays(en0, 0);
    timers->startCountDownTimer(en0);
    scheduler.setClock(-3ms);
    pass(1s);
    EXPECT_TRUE(changes().isEmpty());
    EXPECT_EQ(started(), 2);
}

TEST_F(CountdownClock, CountsNoMoreMinutesThanARuleCanHold)
{
    ruleSays(en0, std::numeric_limits<qlonglong>::max());
    timers->startCountDownTimer(en0);
    EXPECT_EQ(timer(en0).value(u"interval"_s), QVariant(32767));
    ruleSays(en0, std::numeric_limits<qlonglong>::min());
    timers->startCountDownTimer(en0);
    EXPECT_EQ(timer(en0).value(u"interval"_s), QVariant(-32768));
}

TEST_F(CountdownClock, MayFindARecordThatIsNone)
{
    settings.set(keys::deviceDict, QVariantMap{{en0, QVariant(u"text"_s)}});
    timers->startCountDownTimer(en0);
    pass(3s);
    settings.set(keys::deviceDict, u"text"_s);
    timers->startCountDownTimer(QString());
    pass(3s);
    EXPECT_TRUE(changes().isEmpty());
}

/// Three years of countdowns of sixteen hours and a bit. What lies between the last seconds of one
/// and the first of the next is slept through, as late ticks add up to nothing.
TEST_F(CountdownClock, OfThreeYearsGivesEveryChangeAtItsTime)
{
    ruleSays(en0, 999);
    timers->startCountDownTimer(en0);
    const QDateTime begin = scheduler.now();
    constexpr int rounds = 3 * 365 * 24 * 60 / 999;
    for (int round = 1; round <= rounds; ++round) {
        scheduler.setClock(999min - 5s);
        pass(4s);
        ASSERT_EQ(changes().size(), round - 1);
        pass(1s);
        ASSERT_EQ(changes().size(), round);
    }
    EXPECT_EQ(begin.secsTo(scheduler.now()), rounds * 999LL * 60);
    EXPECT_EQ(started(), rounds + 1);
}

TEST_F(CountdownClock, OfAWholeDayTicksEverySecondWithoutDrift)
{
    ruleSays(en0, 5);
    timers->startCountDownTimer(en0);
    pass(24h);
    EXPECT_EQ(ticks, 86'400);
    EXPECT_EQ(changes().size(), 288);
}

} // namespace
} // namespace quillon::test
