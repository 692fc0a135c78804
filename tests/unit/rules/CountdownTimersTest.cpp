// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CountdownFixture.h"

using namespace std::chrono_literals;

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

const QString in = u"...changing MAC Address in "_s;

class CountdownTimersTest : public CountdownFixture
{
};

TEST_F(CountdownTimersTest, IsToldWhenItStarts)
{
    timers->startCountDownTimer(en0);
    EXPECT_EQ(notifier.messages(),
        (QList<FakeNotifier::Message>{{u"Quillon Timer started"_s, in + u"00:01:59"_s}}));
}

TEST_F(CountdownTimersTest, IsKeptUnderItsDevice)
{
    timers->startCountDownTimer(en0);
    const QVariantMap entry = timer(en0);
    EXPECT_EQ(entry.value(u"device"_s).toString(), en0);
    EXPECT_EQ(entry.value(u"startDate"_s).toDateTime(), scheduler.now());
    EXPECT_EQ(entry.value(u"interval"_s), QVariant(2));
    EXPECT_FALSE(entry.contains(u"isPaused"_s));
    EXPECT_FALSE(entry.contains(u"label"_s)) << "nothing was shown yet";
    EXPECT_TRUE(isPropertyList(timers->timers()));
}

TEST_F(CountdownTimersTest, TicksOnceASecond)
{
    timers->startCountDownTimer(en0);
    pass(999ms);
    EXPECT_EQ(ticks, 0);
    pass(1ms);
    EXPECT_EQ(shown, en0 + u": "_s + in + u"00:01:59"_s);
    pass(59s);
    EXPECT_EQ(ticks, 60);
    EXPECT_EQ(shown, en0 + u": "_s + in + u"00:01:00"_s);
    EXPECT_EQ(display(en0), in + u"00:01:00"_s);
    EXPECT_FALSE(shownAsPaused);
}

TEST_F(CountdownTimersTest, ChangesTheAddressAtZeroAndStartsAgain)
{
    random.put(QByteArray::fromHex("3f0102030405"));
    timers->startCountDownTimer(en0);
    pass(119s);
    EXPECT_TRUE(changes().isEmpty());
    EXPECT_EQ(started(), 1);
    pass(1s);
    EXPECT_EQ(changes(), QStringList{en0 + u" FE:01:02:03:04:05"_s});
    EXPECT_EQ(started(), 2);
    EXPECT_EQ(timer(en0).value(u"startDate"_s).toDateTime(), scheduler.now());
    pass(120s);
    EXPECT_EQ(changes().size(), 2);
    EXPECT_EQ(started(), 3);
}

TEST_F(CountdownTimersTest, ChangesAfterTheTickHasDoneItsBookkeeping)
{
    timers->startCountDownTimer(en0);
    QStringList order;
    notifications.addObserver(notifications::updateOverview,
        [&](const auto &) { order << QString::number(random.made); });
    pass(119s);
    order.clear();
    pass(1s);
    EXPECT_EQ(order, (QStringList{u"0"_s, u"1"_s}))
        << "the tick first; then the change, and the restart";
}

TEST_F(CountdownTimersTest, GivesARandomAddressWhateverTheVendorOfTheRule)
{
    random.put(QByteArray::fromHex("3f0102030405"));
    timers->startCountDownTimer(en0);
    pass(120s);
    EXPECT_EQ(changes(), QStringList{en0 + u" FE:01:02:03:04:05"_s});
}

TEST_F(CountdownTimersTest, GivesARandomAddressInsideTheVendorChosenForTheInterface)
{
    random.put(QByteArray::fromHex("3f0102030405"));
    table.update(en0, [](DeviceRecord &record) { record.vendor = u"Another (3C22FB)"_s; });
    timers->startCountDownTimer(en0);
    pass(120s);
    EXPECT_EQ(changes(), QStringList{en0 + u" 3C:22:FB:03:04:05"_s});
}

TEST_F(CountdownTimersTest, TakesItsLengthFromTheRuleInForceAtEachStart)
{
    timers->startCountDownTimer(en0);
    ruleSays(en0, 5);
    pass(120s);
    EXPECT_EQ(changes().size(), 1);
    EXPECT_EQ(timer(en0).value(u"interval"_s), QVariant(5));
    pass(299s);
    EXPECT_EQ(changes().size(), 1);
    pass(1s);
    EXPECT_EQ(changes().size(), 2);
}

TEST_F(CountdownTimersTest, OfEachInterfaceRunsOnItsOwn)
{
    ruleSays(en1, 3);
    timers->startCountDownTimer(en0);
    pass(30s);
    timers->startCountDownTimer(en1);
    EXPECT_EQ(timers->timers().keys(), (QStringList{en0, en1}));
    pass(90s);
    EXPECT_EQ(changes().size(), 1);
    pass(90s);
    EXPECT_EQ(changes().last().left(3), en1);
}

TEST_F(CountdownTimersTest, RestartedLeavesOneTimer)
{
    timers->startCountDownTimer(en0);
    pass(60s);
    timers->startCountDownTimer(en0);
    ticks = 0;
    pass(10s);
    EXPECT_EQ(ticks, 10);
    pass(109s);
    EXPECT_TRUE(changes().isEmpty());
    pass(1s);
    EXPECT_EQ(changes().size(), 1);
}

TEST_F(CountdownTimersTest, OfOneMinuteWarnsOnceAMinuteBeforeTheChange)
{
    ruleSays(en0, 1);
    timers->startCountDownTimer(en0);
    pass(1s);
    EXPECT_EQ(
        notifier.messages().last(), (FakeNotifier::Message{u"Quillon"_s, in + u"00:00:59"_s}));
    pass(58s);
    EXPECT_EQ(warnings(), 1);
    pass(2s);
    EXPECT_EQ(changes().size(), 1);
    EXPECT_EQ(warnings(), 2) << "the next minute has begun";
}

TEST_F(CountdownTimersTest, OfMoreMinutesChangesWithoutWarning)
{
    ruleSays(en0, 5);
    timers->startCountDownTimer(en0);
    pass(301s);
    EXPECT_EQ(changes().size(), 1);
    EXPECT_EQ(warnings(), 0);
}

TEST_F(CountdownTimersTest, IsShownInItsMenuItemBehindFourBlanks)
{
    const auto title = [this] { return timer(en0).value(u"label"_s).toMap().value(u"menu"_s); };
    timers->startCountDownTimer(en0);
    pass(1s);
    EXPECT_FALSE(title().isValid());
    timers->setMenuItemShown(en0, true);
    pass(1s);
    EXPECT_EQ(title(), QVariant(u"    "_s + in + u"00:01:58"_s));
    timers->setMenuItemShown(en0, false);
    EXPECT_FALSE(title().isValid());
    timers->setMenuItemShown(en1, true);
}

TEST_F(CountdownTimersTest, TellsWhenMenusHaveOtherItemsForIt)
{
    int told = 0;
    QObject::connect(timers.get(), &CountdownTimers::menuItemsChanged, [&] { ++told; });
    const auto toldBy = [&](const std::function<void()> &act) {
        told = 0;
        act();
        return told;
    };
    EXPECT_EQ(toldBy([&] { timers->startCountDownTimer(en0); }), 1);
    EXPECT_EQ(toldBy([&] { pass(1s); }), 1) << "it has a text";
    EXPECT_EQ(toldBy([&] { pass(10s); }), 0) << "another one";
    EXPECT_EQ(toldBy([&] { timers->pauseCountdownTimer(en0); }), 1);
    EXPECT_EQ(toldBy([&] { timers->resumeCountdownTimer(en0); }), 1);
    EXPECT_EQ(toldBy([&] { timers->stopCountdownTimer(en0); }), 1);
    EXPECT_EQ(toldBy([&] {
        timers->stopCountdownTimer(en0);
        timers->pauseCountdownTimer(en0);
        timers->resumeCountdownTimer(en0);
    }),
        0);
}

TEST_F(CountdownTimersTest, LosesItsMenuItemWithEveryStart)
{
    timers->startCountDownTimer(en0);
    timers->setMenuItemShown(en0, true);
    timers->startCountDownTimer(en0);
    EXPECT_FALSE(timer(en0).contains(u"label"_s));
}

class CountdownTimersOverview : public CountdownFixture
{
protected:
    CountdownTimersOverview()
    {
        notifications.addObserver(notifications::updateOverview,
            [this](const auto &posted) { overviews.append(posted); });
    }
    QList<NotificationCenter::Notification> overviews;
};

TEST_F(CountdownTimersOverview, ComesWithEveryTickAndHoldsEveryCountdown)
{
    ruleSays(en1, 9);
    timers->startCountDownTimer(en0);
    timers->startCountDownTimer(en1);
    overviews.clear();
    pass(1s);
    ASSERT_EQ(overviews.size(), 2);
    EXPECT_EQ(overviews.last().object, timers.get());
    EXPECT_EQ(overviews.last().userInfo, timers->timers());
    EXPECT_EQ(overviews.last().userInfo.keys(), (QStringList{en0, en1}));
}

TEST_F(CountdownTimersOverview, ComesWithEveryStopAlsoWhenNothingRan)
{
    timers->startCountDownTimer(en0);
    EXPECT_EQ(overviews.size(), 1) << "a start stops first";
    timers->stopCountdownTimer(en0);
    EXPECT_EQ(overviews.size(), 2);
    timers->stopCountdownTimer(en0);
    EXPECT_EQ(overviews.size(), 3);
    EXPECT_TRUE(overviews.last().userInfo.isEmpty());
}

class CountdownTimersStopped : public CountdownFixture
{
};

TEST_F(CountdownTimersStopped, TicksNoMore)
{
    timers->startCountDownTimer(en0);
    timers->stopCountdownTimer(en0);
    EXPECT_FALSE(scheduler.hasTimers());
    pass(10min);
    EXPECT_EQ(ticks, 0);
    EXPECT_TRUE(changes().isEmpty());
    EXPECT_TRUE(timers->timers().isEmpty());
}

TEST_F(CountdownTimersStopped, HidesTheLabel)
{
    ruleSays(en1, 9);
    timers->startCountDownTimer(en0);
    timers->startCountDownTimer(en1);
    hidden = 0;
    timers->stopCountdownTimer(en0);
    EXPECT_EQ(hidden, 1);
    timers->stopCountdownTimer(u"en7"_s);
    EXPECT_EQ(hidden, 1) << "another one runs";
    timers->stopCountdownTimer(en1);
    EXPECT_EQ(hidden, 2);
    timers->stopCountdownTimer(en1);
    EXPECT_EQ(hidden, 3) << "none is running";
}

TEST_F(CountdownTimersStopped, BetweenItsZeroAndTheChangeMakesNone)
{
    int late = 0;
    timers->startCountDownTimer(en0);
    const auto token = notifications.addObserver(notifications::updateOverview, [&](const auto &) {
        if (display(en0).endsWith(u"00:00:00"_s)) {
            scheduler.onMain([&] { ++late; });
        }
    });
    QObject::connect(
        timers.get(), &CountdownTimers::ticked, [this](const QString &, const QString &text) {
            if (text.endsWith(u"00:00:00"_s)) {
                scheduler.onMain([this] { timers->stopCountdownTimer(en0); });
            }
        });
    pass(125s);
    notifications.removeObserver(token);
    EXPECT_EQ(late, 1);
    EXPECT_EQ(changes(), QStringList());
    EXPECT_TRUE(timers->timers().isEmpty());
}

TEST_F(CountdownTimersStopped, ByWhoeverHearsOfTheTickIsNotBroughtBack)
{
    QObject::connect(timers.get(), &CountdownTimers::ticked, timers.get(),
        [this](const QString &device) { timers->stopCountdownTimer(device); });
    ruleSays(en0, 0);
    timers->startCountDownTimer(en0);
    pass(5s);
    EXPECT_EQ(ticks, 1);
    EXPECT_TRUE(timers->timers().isEmpty());
}

TEST_F(CountdownTimersStopped, WithTheProgramLeavesNoTimer)
{
    ruleSays(en1, 9);
    timers->startCountDownTimer(en0);
    timers->startCountDownTimer(en1);
    timers.reset();
    EXPECT_FALSE(scheduler.hasTimers());
    pass(10min);
    EXPECT_TRUE(changes().isEmpty());
}

TEST_F(CountdownTimersStopped, WithTheProgramDropsAChangeThatIsQueued)
{
    timers->startCountDownTimer(en0);
    QObject::connect(
        timers.get(), &CountdownTimers::ticked, [this](const QString &, const QString &text) {
            if (text.endsWith(u"00:00:00"_s)) {
                scheduler.onMain([this] { timers.reset(); });
            }
        });
    pass(125s);
    EXPECT_TRUE(changes().isEmpty());
}

} // namespace
} // namespace quillon::test
