// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/rules/CountdownModel.h"

#include "unit/rules/RuleFixture.h"

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class CountdownModelTest : public RuleFixture
{
protected:
    CountdownModelTest()
    {
        QObject::connect(&timers, &CountdownTimers::ticked, &model, &CountdownModel::showCountdown);
        QObject::connect(
            &timers, &CountdownTimers::stopped, &model, &CountdownModel::hideTimerLabel);
        QObject::connect(&timers, &CountdownTimers::pauseOrResumeRequested, &model,
            &CountdownModel::resetTimerButtons);
        QObject::connect(&model, &CountdownModel::timerButtonsReset, [this] { ++resets; });
        setRecord(en0, record::rule, QVariantMap{{timerMinutesKey, 2}});
    }
    void pass(int seconds) { scheduler.advance(std::chrono::seconds(seconds)); }

    CountdownModel model{timers, current};
    int resets = 0;
};

TEST_F(CountdownModelTest, AppearsWithTheFirstTick)
{
    EXPECT_FALSE(model.state().buttonsVisible);
    timers.startCountDownTimer(en0);
    EXPECT_FALSE(model.state().buttonsVisible);
    pass(1);
    EXPECT_EQ(model.state(),
        (CountdownModel::State{u"...changing MAC Address in 00:01:59"_s, true, true, false, en0}));
}

TEST_F(CountdownModelTest, IsThatOfTheSelectedInterfaceOnly)
{
    timers.startCountDownTimer(en1);
    pass(1);
    EXPECT_EQ(model.state().label, QString());
    EXPECT_FALSE(model.state().buttonsVisible);
}

TEST_F(CountdownModelTest, DisablesAButtonThatWasUsedUntilTheNextTickSaysMore)
{
    timers.startCountDownTimer(en0);
    pass(1);
    model.pauseCountdownTimer();
    EXPECT_EQ(resets, 1);
    EXPECT_FALSE(model.state().pauseEnabled);
    EXPECT_FALSE(model.state().resumeEnabled);
    pass(1);
    EXPECT_FALSE(model.state().pauseEnabled);
    EXPECT_TRUE(model.state().resumeEnabled);
    EXPECT_EQ(model.state().label, u"...changing MAC Address in 00:01:59 (paused)"_s);
    model.resumeCountdownTimer();
    EXPECT_EQ(resets, 2);
    EXPECT_FALSE(model.state().resumeEnabled);
    pass(1);
    EXPECT_TRUE(model.state().pauseEnabled);
    EXPECT_FALSE(model.state().resumeEnabled);
}

TEST_F(CountdownModelTest, DisablesTheButtonAlsoWhenTheCountdownHasGone)
{
    timers.startCountDownTimer(en0);
    pass(1);
    timers.stopCountdownTimer(en0);
    model.pauseCountdownTimer();
    EXPECT_FALSE(model.state().pauseEnabled);
    EXPECT_EQ(resets, 1);
}

TEST_F(CountdownModelTest, IsHiddenWithItsButtonsWhenTheLastOneStops)
{
    timers.startCountDownTimer(en0);
    pass(1);
    timers.stopCountdownTimer(en0);
    EXPECT_EQ(model.state().label, QString());
    EXPECT_FALSE(model.state().buttonsVisible);
}

TEST_F(CountdownModelTest, EnablesExactlyOneButton)
{
    model.setTimerButtonStateIsPaused(true);
    EXPECT_TRUE(model.state().resumeEnabled && !model.state().pauseEnabled);
    model.setTimerButtonStateIsPaused(false);
    EXPECT_TRUE(!model.state().resumeEnabled && model.state().pauseEnabled);
}

} // namespace
} // namespace quillon::test
