// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// An evaluation that was withheld because the internet could not be reached is made up for, once.
#include "unit/rules/VisitFixture.h"

using namespace std::chrono_literals;

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class VisitWithheld : public VisitFixture
{
protected:
    VisitWithheld() { reachability.reachable = false; }
    /// The internet can be reached, and the system tells of something that shows in no record.
    void internetComes()
    {
        reachability.reachable = true;
        networkEvent();
    }
};

TEST_F(VisitWithheld, IsMadeUpForWhenTheInternetCanBeReachedOnce)
{
    news(en0);
    networkEvent();
    EXPECT_EQ(changes(en0), 0);
    internetComes();
    EXPECT_EQ(changes(en0), 1);
    pass(10s);
    reachability.reachable = false;
    networkEvent();
    internetComes();
    EXPECT_EQ(changes(en0), 1);
    EXPECT_EQ(overviews.size(), 2) << "nothing was evaluated for that";
}

TEST_F(VisitWithheld, IsMadeUpForByTheNewsOfAnotherDevice)
{
    joinHome();
    news(en0);
    reachability.reachable = true;
    news(en1);
    EXPECT_EQ(changes(en0), 1);
    EXPECT_EQ(changes(en1), 1);
}

TEST_F(VisitWithheld, OfSeveralDevicesIsMadeUpForOnEach)
{
    joinHome();
    news(en0);
    news(en1);
    internetComes();
    EXPECT_EQ(changes(en0), 1);
    EXPECT_EQ(changes(en1), 1);
}

TEST_F(VisitWithheld, OfTheWifiInterfaceIsMadeUpForOnTheNetworkThatItIsOnByThen)
{
    ruleOf(en1).setNetwork(u"02:00:00:00:cc:01"_s);
    joinHome();
    news(en1);
    joinWifi(u"Office"_s, u"02:00:00:00:cc:01"_s);
    internetComes();
    EXPECT_EQ(changes(en1), 1);
}

TEST_F(VisitWithheld, OfARuleThatRepeatsStartsOneCountdown)
{
    ruleOf(en0).setChangeAction(Rule::every);
    news(en0);
    EXPECT_FALSE(isCountingDown(en0));
    internetComes();
    EXPECT_TRUE(isCountingDown(en0));
    pass(4min);
    networkEvent();
    pass(1min);
    EXPECT_EQ(changes(en0), 1) << "the countdown was not started again";
}

TEST_F(VisitWithheld, IsMadeUpForOnceWhereTheDeviceHasNewsToo)
{
    ruleOf(en1).setChangeAction(Rule::every);
    joinHome();
    news(en1);
    reachability.reachable = true;
    overviews.clear();
    giveLease(en1);
    news(en0);
    pass(1s);
    networkEvent();
    EXPECT_EQ(overviews.size(), 2) << "one for each";
}

TEST_F(VisitWithheld, IsNotMadeUpForAfterTheUserHadItCarriedOut)
{
    news(en0);
    evaluate(en0, RuleChange::NetworkRule);
    ASSERT_EQ(changes(en0), 1);
    pass(10s);
    internetComes();
    EXPECT_EQ(changes(en0), 1);
}

TEST_F(VisitWithheld, IsNotMadeUpForAfterTheUserChoseAnAddressOnThatVisit)
{
    news(en0);
    changer.updateMacAddressWithAddress(en0, fixedAddress);
    pass(10s);
    internetComes();
    news(en0);
    pass(10s);
    EXPECT_EQ(host.addressOf(en0), fixedAddress);
    linkGoes(en0);
    linkComes(en0);
    pass(10s);
    EXPECT_NE(host.addressOf(en0), fixedAddress) << "another visit";
}

TEST_F(VisitWithheld, IsNotMadeUpForAfterTheUserChoseAnAddressAlsoWhereThatTakesTheLinkDown)
{
    joinHome();
    news(en1);
    changer.updateMacAddressWithAddress(en1, fixedAddress);
    scheduler.runPending();
    linkGoes(en1);
    pass(1s);
    linkComes(en1);
    pass(10s);
    EXPECT_EQ(host.addressOf(en1), fixedAddress);
}

TEST_F(VisitWithheld, IsMadeUpForAfterTheUserChoseAnAddressOffTheNetwork)
{
    news(en0);
    linkGoes(en0);
    changer.updateMacAddressWithAddress(en0, fixedAddress);
    pass(10s);
    linkComes(en0);
    EXPECT_NE(host.addressOf(en0), fixedAddress);
}

TEST_F(VisitWithheld, IsMadeUpForAfterAChangeOfTheUserThatFailed)
{
    news(en0);
    helper.mood = FakeHelper::Mood::Refusing;
    changer.updateMacAddressWithAddress(en0, fixedAddress);
    pass(10s);
    helper.mood = FakeHelper::Mood::Obliging;
    internetComes();
    pass(1s);
    EXPECT_NE(host.addressOf(en0), factory);
}

TEST_F(VisitWithheld, IsMadeUpForAfterACountdownOfTheRuleBefore)
{
    reachability.reachable = true;
    ruleOf(en0).setChangeAction(Rule::every);
    ruleOf(en0).setTimerMins(1);
    news(en0);
    ASSERT_TRUE(isCountingDown(en0));
    reachability.reachable = false;
    ruleOf(en0).setChangeAction(Rule::once);
    ruleOf(en0).setAddress(fixedAddress);
    news(en0);
    pass(70s);
    ASSERT_EQ(changes(en0), 1) << "of the countdown";
    internetComes();
    pass(1s);
    EXPECT_EQ(host.addressOf(en0), fixedAddress);
}

TEST_F(VisitWithheld, ForTheLimitIsNotMadeUpForAfterTheUserChoseAnAddress)
{
    reachability.reachable = true;
    helper.mood = FakeHelper::Mood::Refusing;
    news(en0);
    for (int time = 0; time < 4; ++time) {
        pass(6s);
        linkGoes(en0);
        linkComes(en0);
    }
    ASSERT_EQ(changes(en0), 3);
    helper.mood = FakeHelper::Mood::Obliging;
    changer.updateMacAddressWithAddress(en0, fixedAddress);
    pass(3min);
    EXPECT_EQ(host.addressOf(en0), fixedAddress);
}

TEST_F(VisitWithheld, OfADeviceThatIsAwayWaitsForItsReturn)
{
    news(en0);
    const FakeNetworkHost::Interface taken = host.at(en0);
    host.unplug(en0);
    networkEvent();
    reachability.reachable = true;
    news(en1);
    pass(10s);
    EXPECT_EQ(changes(en0), 0);
    host.plug(taken);
    networkEvent();
    pass(10s);
    EXPECT_EQ(changes(en0), 1);
    networkEvent();
    EXPECT_EQ(changes(en0), 1);
}

TEST_F(VisitWithheld, IsMadeUpForByTheRuleThatIsInForceByThen)
{
    news(en0);
    ruleOf(en0).setAddress(fixedAddress);
    internetComes();
    EXPECT_EQ(changesOf(en0), QStringList{fixedAddress});
}

TEST_F(VisitWithheld, IsNotWhatAnEditOfRulesShows)
{
    reachability.reachable = true;
    evaluation.rulesWereChanged();
    networkEvent();
    EXPECT_TRUE(helper.changes().isEmpty());
    EXPECT_EQ(reachability.questions, 0);
}

} // namespace
} // namespace quillon::test
