// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Once per visit means once successfully: what failed is tried again, but not without end.
#include "unit/rules/VisitFixture.h"

using namespace std::chrono_literals;

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class VisitFailure : public VisitFixture
{
protected:
    /// The machine is well again; there is other news on the same visit.
    void expectTriedAgain()
    {
        helper.mood = FakeHelper::Mood::Obliging;
        helper.installed = true;
        helper.serviceExists = true;
        host.at(en0).keepsAddress = false;
        ASSERT_EQ(host.addressOf(en0), factory);
        pass(10s);
        news(en0);
        pass(1s);
        EXPECT_NE(host.addressOf(en0), factory);
        const qsizetype done = changes(en0);
        pass(10s);
        news(en0);
        EXPECT_EQ(changes(en0), done) << "done is done";
    }
    /// During that the helper is in `mood`; afterwards it obliges.
    void newsInMood(FakeHelper::Mood mood)
    {
        helper.mood = mood;
        news(en0);
        helper.mood = FakeHelper::Mood::Obliging;
    }
    /// With the lease that it had.
    void takeAwayAndBack(const QString &device)
    {
        const FakeNetworkHost::Interface taken = host.at(device);
        host.unplug(device);
        networkEvent();
        helper.mood = FakeHelper::Mood::Obliging;
        pass(10s);
        host.plug(taken);
        networkEvent();
        pass(1s);
    }
    void newsEvery(std::chrono::milliseconds period, int times)
    {
        for (int time = 0; time < times; ++time) {
            news(en0);
            pass(period);
        }
    }
};

TEST_F(VisitFailure, BecauseThereIsNoHelperIsTriedAgain)
{
    helper.installed = false;
    news(en0);
    expectTriedAgain();
}

TEST_F(VisitFailure, BecauseThereIsNoServiceIsTriedAgain)
{
    helper.serviceExists = false;
    news(en0);
    expectTriedAgain();
}

TEST_F(VisitFailure, BecauseThePromptWasDismissedIsTriedAgain)
{
    helper.mood = FakeHelper::Mood::Refusing;
    news(en0);
    expectTriedAgain();
}

TEST_F(VisitFailure, BecauseThePromptTimedOutIsTriedAgain)
{
    helper.mood = FakeHelper::Mood::Hanging;
    news(en0);
    pass(1min);
    news(en0);
    EXPECT_EQ(asked(), 1) << "somebody is being asked";
    helper.timeOut();
    expectTriedAgain();
}

TEST_F(VisitFailure, BecauseTheHelperWentIsTriedAgain)
{
    helper.mood = FakeHelper::Mood::Dropping;
    news(en0);
    expectTriedAgain();
}

TEST_F(VisitFailure, BecauseTheDriverKeepsTheAddressIsTriedAgain)
{
    host.at(en0).keepsAddress = true;
    news(en0);
    expectTriedAgain();
}

TEST_F(VisitFailure, AsAnotherAddressIsReadBackIsTriedAgain)
{
    news(en0);
    pass(100ms);
    host.giveAddress(en0, factory);
    pass(1s);
    expectTriedAgain();
}

TEST_F(VisitFailure, ToTellThatItSucceededIsDone)
{
    ruleOf(en0).setAddress(fixedAddress);
    helper.mood = FakeHelper::Mood::Hanging;
    news(en0);
    host.giveAddress(en0, fixedAddress);
    helper.timeOut();
    pass(10s);
    news(en0);
    EXPECT_EQ(asked(), 1) << "the answer was lost, not the address";
}

TEST_F(VisitFailure, IsTriedEverMoreRarelyOnOneVisit)
{
    helper.mood = FakeHelper::Mood::Refusing;
    newsEvery(2min, 10);
    EXPECT_EQ(changes(en0), 4) << "after 2, 4 and 9 minutes";
    newsEvery(2min, 20);
    EXPECT_EQ(changes(en0), 5) << "after 24";
    newsEvery(2min, 30);
    EXPECT_EQ(changes(en0), 6) << "an hour later";
    linkGoes(en0);
    linkComes(en0);
    EXPECT_EQ(changes(en0), 7) << "another visit";
}

TEST_F(VisitFailure, IsNotTriedAgainWithoutNews)
{
    helper.mood = FakeHelper::Mood::Refusing;
    newsEvery(20min, 4);
    const qsizetype tries = changes(en0);
    pass(3h);
    EXPECT_EQ(changes(en0), tries);
}

TEST_F(VisitFailure, IsTriedAgainOnceWhenTheHelperIsFound)
{
    helper.installed = false;
    newsEvery(6s, 3);
    helper.installed = true;
    ASSERT_EQ(host.addressOf(en0), factory);
    execution.helperWasFound();
    pass(1s);
    EXPECT_NE(host.addressOf(en0), factory);
    execution.helperWasFound();
    pass(2h);
    EXPECT_EQ(changes(en0), 1);
}

TEST_F(VisitFailure, IsNotTriedAgainForAHelperThatWasThereAllTheTime)
{
    helper.mood = FakeHelper::Mood::Refusing;
    news(en0);
    for (int time = 0; time < 1200; ++time) {
        execution.helperWasFound();
        pass(3s);
    }
    EXPECT_EQ(changes(en0), 1);
}

TEST_F(VisitFailure, IsTriedAgainOnceAMinuteHoweverOftenTheHelperComesAndGoes)
{
    helper.mood = FakeHelper::Mood::Refusing;
    news(en0);
    for (int time = 0; time < 100; ++time) {
        execution.helperWasMissed();
        execution.helperWasFound();
        pass(3s);
    }
    EXPECT_EQ(changes(en0), 6) << "in five minutes";
}

TEST_F(VisitFailure, IsNotTriedAgainForTheHelperWhileTheInternetIsAway)
{
    helper.installed = false;
    news(en0);
    pass(10s);
    helper.installed = true;
    reachability.reachable = false;
    execution.helperWasFound();
    pass(1s);
    EXPECT_EQ(changes(en0), 0);
    reachability.reachable = true;
    networkEvent();
    EXPECT_EQ(changes(en0), 1);
}

TEST_F(VisitFailure, LeavesTheWithheldRuleOfAnotherVisitToItsOwnPause)
{
    helper.mood = FakeHelper::Mood::Refusing;
    newsEvery(20min, 5);
    news(en0); // put off for the greater part of an hour
    for (int time = 0; time < 4; ++time) {
        linkGoes(en0);
        linkComes(en0);
        pass(6s);
    }
    helper.mood = FakeHelper::Mood::Obliging;
    pass(1min);
    EXPECT_NE(host.addressOf(en0), factory) << "a minute is what a new visit waits";
}

TEST_F(VisitFailure, ThatWasAnsweredJustAfterTheLimitIsASuccess)
{
    ruleOf(en0).setAddress(fixedAddress);
    helper.mood = FakeHelper::Mood::Hanging;
    news(en0);
    const QString late = changesOf(en0).value(0, fixedAddress);
    helper.timeOut();
    pass(10s);
    helper.mood = FakeHelper::Mood::Obliging;
    anotherProgramSets(en0, late); // the helper, after all
    news(en0);
    pass(10s);
    EXPECT_EQ(asked(), 1);
    anotherProgramSets(en0, factory);
    EXPECT_EQ(asked(), 2) << "what was in place is looked after";
}

TEST_F(VisitFailure, ToReadTheAddressBackIsNoneWhereTheHelperSaysThatItIsSet)
{
    news(en0);
    host.setUnreadable(true);
    pass(1s);
    host.setUnreadable(false);
    const QString given = host.addressOf(en0);
    ASSERT_NE(given, factory);
    for (int time = 0; time < 3; ++time) {
        pass(10s);
        news(en0);
    }
    EXPECT_EQ(host.addressOf(en0), given);
    EXPECT_EQ(changes(en0), 1);
}

TEST_F(VisitFailure, AsksNobodyMoreThanThreeTimesAMinute)
{
    helper.mood = FakeHelper::Mood::Refusing;
    for (int second = 0; second < 54; second += 6) {
        linkComes(en0);
        pass(6s);
        linkGoes(en0);
    }
    EXPECT_EQ(changes(en0), 3);
}

TEST_F(VisitFailure, WhileTheCableWasMovedIsTriedAgainAtOnce)
{
    helper.mood = FakeHelper::Mood::Hanging;
    news(en0);
    pass(8s);
    linkGoes(en0);
    linkComes(en0);
    EXPECT_EQ(asked(), 1);
    helper.mood = FakeHelper::Mood::Obliging;
    helper.timeOut();
    pass(1s);
    EXPECT_EQ(asked(), 2);
    EXPECT_NE(host.addressOf(en0), factory);
}

TEST_F(VisitFailure, RightBeforeTheCableIsMovedIsTriedAgain)
{
    newsInMood(FakeHelper::Mood::Refusing);
    pass(600ms);
    linkGoes(en0);
    pass(1s);
    linkComes(en0);
    EXPECT_EQ(changes(en0), 2);
}

TEST_F(VisitFailure, AtEachRestartOfTheLinkEnds)
{
    helper.mood = FakeHelper::Mood::Refusing;
    news(en0);
    for (int time = 0; time < 20; ++time) {
        linkGoes(en0);
        linkComes(en0);
        pass(1s);
    }
    EXPECT_EQ(changes(en0), 3);
}

TEST_F(VisitFailure, LeavesTheAddressThatTheUserChoseSince)
{
    newsInMood(FakeHelper::Mood::Refusing);
    changer.updateMacAddressWithAddress(en0, fixedAddress);
    pass(10s);
    news(en0);
    pass(10s);
    EXPECT_EQ(host.addressOf(en0), fixedAddress);
}

TEST_F(VisitFailure, AfterTheUserChoseAnAddressLeavesThat)
{
    newsInMood(FakeHelper::Mood::Hanging);
    changer.updateMacAddressWithAddress(en0, fixedAddress);
    pass(10s);
    helper.timeOut();
    pass(10s);
    news(en0);
    pass(10s);
    EXPECT_EQ(host.addressOf(en0), fixedAddress);
}

TEST_F(VisitFailure, AfterItsDeviceWentIsNoneOfTheNextVisit)
{
    helper.mood = FakeHelper::Mood::Hanging;
    news(en0);
    const FakeNetworkHost::Interface taken = host.at(en0);
    host.unplug(en0);
    networkEvent();
    helper.mood = FakeHelper::Mood::Obliging;
    helper.timeOut();
    pass(10s);
    EXPECT_EQ(asked(), 1);
    host.plug(taken);
    news(en0);
    pass(10s);
    news(en0);
    EXPECT_EQ(asked(), 2);
}

TEST_F(VisitFailure, BeforeItsDeviceWentAndCameBackAsItWasIsTriedAgain)
{
    newsInMood(FakeHelper::Mood::Refusing);
    pass(10s);
    takeAwayAndBack(en0);
    EXPECT_EQ(changes(en0), 2);
}

TEST_F(VisitFailure, WhileItsDeviceWentAndCameBackAsItWasIsTriedAgain)
{
    newsInMood(FakeHelper::Mood::Hanging);
    takeAwayAndBack(en0);
    EXPECT_EQ(asked(), 2);
    EXPECT_NE(host.addressOf(en0), factory);
}

TEST_F(VisitFailure, OnOneDeviceIsNothingToTheOther)
{
    joinHome();
    newsInMood(FakeHelper::Mood::Refusing);
    pass(10s);
    news(en1);
    pass(10s);
    news(en1);
    EXPECT_EQ(changes(en1), 1);
    news(en0);
    EXPECT_EQ(changes(en0), 2);
}

} // namespace
} // namespace quillon::test
