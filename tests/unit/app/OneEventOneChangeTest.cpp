// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "unit/rules/VisitFixture.h"

using namespace std::chrono_literals;

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

/// An interface gets its network, the rule changes the address, and the change makes news itself:
/// the link goes and comes, leases are lost and given. None of it may change the address again.
class OneEventOneChangeTest : public VisitFixture
{
protected:
    /// The event: the interface is given a lease. The change is under way afterwards.
    void plugIn(const QString &device)
    {
        news(device);
        ASSERT_EQ(changesOf(device).size(), 1);
    }
};

TEST_F(OneEventOneChangeTest, MakesOneChangeWhenItIsReportedBeforeTheAnswer)
{
    plugIn(en0);
    networkEvent();
    EXPECT_EQ(storedRecord(en0).value(record::current).toString(), host.addressOf(en0));
    networkEvent();
    pass(1s);
    networkEvent();
    EXPECT_EQ(changesOf(en0).size(), 1);
}

TEST_F(OneEventOneChangeTest, MakesOneChangeWhenItIsReportedAfterTheAnswer)
{
    plugIn(en0);
    pass(1s);
    overviews.clear();
    networkEvent();
    EXPECT_TRUE(overviews.isEmpty()) << "the table knows the new address already";
    EXPECT_EQ(changesOf(en0).size(), 1);
}

TEST_F(OneEventOneChangeTest, MakesOneChangeWhenTheLinkGoesAndComesBeforeTheAnswer)
{
    plugIn(en0);
    linkGoes(en0);
    linkComes(en0);
    pass(1s);
    EXPECT_EQ(changesOf(en0).size(), 1);
}

TEST_F(OneEventOneChangeTest, MakesOneChangeWhenTheLinkComesBackLongAfterTheAnswer)
{
    plugIn(en0);
    linkGoes(en0);
    pass(1min);
    linkComes(en0);
    pass(1min);
    EXPECT_EQ(changesOf(en0).size(), 1);
}

TEST_F(OneEventOneChangeTest, MakesOneChangeWhenTheLinkGoesSoonAfterTheAnswer)
{
    plugIn(en0);
    pass(600ms);
    linkGoes(en0);
    pass(5s);
    linkComes(en0);
    EXPECT_EQ(changesOf(en0).size(), 1);
}

TEST_F(OneEventOneChangeTest, MakesOneChangeWhenTheLinkIsAwayForTwentySeconds)
{
    plugIn(en0);
    pass(600ms);
    linkGoes(en0);
    pass(20s);
    linkComes(en0);
    pass(1min);
    EXPECT_EQ(changesOf(en0).size(), 1);
}

TEST_F(OneEventOneChangeTest, MakesOneChangeHoweverLateAnotherLeaseComes)
{
    plugIn(en0);
    for (const auto wait : {100ms, 1000ms, 60'000ms, 3'600'000ms}) {
        pass(wait);
        news(en0);
    }
    EXPECT_EQ(changesOf(en0).size(), 1);
}

TEST_F(OneEventOneChangeTest, MakesOneChangeOfTheWifiInterfaceThatLeavesItsNetworkForIt)
{
    joinHome();
    plugIn(en1);
    radio.leave();
    linkGoes(en1);
    EXPECT_EQ(hasRule(en1), QVariant(0));
    reachability.reachable = true;
    news(en1);
    pass(1s);
    joinWifi(u"Home"_s, u"02:00:00:00:aa:99"_s);
    linkComes(en1);
    pass(1min);
    EXPECT_EQ(ruleInForce(en1), u"once"_s);
    EXPECT_EQ(changesOf(en1).size(), 1);
}

TEST_F(OneEventOneChangeTest, MakesThreeChangesAtMostWhereAnotherProgramPutsTheAddressBack)
{
    plugIn(en0);
    pass(10s);
    for (int time = 0; time < 20; ++time) {
        host.giveAddress(en0, u"02:00:00:00:01:%1"_s.arg(10 + time));
        networkEvent();
        pass(10s);
    }
    EXPECT_EQ(changesOf(en0).size(), 3);
}

TEST_F(OneEventOneChangeTest, DoesNotFeedItselfWhateverEachChangeBringsAbout)
{
    // The world answers every change of the address with all of it, at several paces.
    for (const auto pace : {0ms, 100ms, 400ms, 700ms, 3000ms}) {
        pass(1min);
        const qsizetype before = helper.changes().size();
        linkGoes(en0);
        linkComes(en0);
        qsizetype answered = before;
        int rounds = 0;
        while (helper.changes().size() > answered && ++rounds < 50) {
            answered = helper.changes().size();
            networkEvent();
            pass(pace);
            linkGoes(en0);
            pass(pace);
            linkComes(en0);
            pass(pace);
            news(en0);
        }
        EXPECT_EQ(helper.changes().size() - before, 1) << pace.count();
    }
}

TEST_F(OneEventOneChangeTest, OfAFixedAddressIsToldOnce)
{
    for (const Rule &rule : queries.managedRuleArrayForDevice(en0)) {
        rule.setAddress(fixedAddress);
    }
    plugIn(en0);
    networkEvent();
    linkGoes(en0);
    linkComes(en0);
    pass(1min);
    EXPECT_EQ(notifier.messages(), (QList<FakeNotifier::Message>{{u"Ethernet Address Changed"_s,
                                       u"Your new MAC Address is: "_s + fixedAddress}}));
}

TEST_F(OneEventOneChangeTest, ThatFailsIsNotTriedAgainByItsOwnNewsBeforeItHasSettled)
{
    helper.mood = FakeHelper::Mood::Refusing;
    plugIn(en0);
    pass(1s);
    news(en0);
    pass(4s);
    EXPECT_EQ(changesOf(en0).size(), 1);
}

TEST_F(OneEventOneChangeTest, LeavesAnAddressThatTheUserChoseAlone)
{
    plugIn(en0);
    pass(10s);
    changer.updateMacAddressWithAddress(en0, fixedAddress);
    scheduler.runPending();
    linkGoes(en0);
    pass(1s);
    linkComes(en0);
    pass(10s);
    EXPECT_EQ(host.addressOf(en0), fixedAddress);
}

class OneEventOneChangeUntil : public OneEventOneChangeTest
{
protected:
    void plugInAndSettle(const QString &device)
    {
        plugIn(device);
        networkEvent();
        pass(10s);
    }
};

TEST_F(OneEventOneChangeUntil, OfAPlugThatIsPulledAndPutBackIsCarriedOut)
{
    plugInAndSettle(en0);
    linkGoes(en0);
    linkComes(en0);
    EXPECT_EQ(changesOf(en0).size(), 2);
}

TEST_F(OneEventOneChangeUntil, OfAPlugThatWasPulledRightAfterTheChangeAndPutElsewhereIsCarriedOut)
{
    plugIn(en0);
    pass(600ms);
    linkGoes(en0);
    pass(1h);
    linkComes(en0);
    EXPECT_EQ(changesOf(en0).size(), 2);
}

TEST_F(OneEventOneChangeUntil, OfAPlugThatWasPutElsewhereWhileTheMachineSleptIsCarriedOut)
{
    plugIn(en0);
    pass(600ms);
    linkGoes(en0);
    pass(10s);
    scheduler.setClock(1h);
    linkComes(en0);
    EXPECT_EQ(changesOf(en0).size(), 2);
}

TEST_F(OneEventOneChangeUntil, OfAPlugIsSeenAlsoWhenAnotherInterfaceIsTheOneEvaluated)
{
    joinHome();
    plugInAndSettle(en1);
    giveLease(en0);
    radio.leave();
    linkGoes(en1);
    pass(11s);
    joinHome();
    linkComes(en1);
    EXPECT_EQ(changesOf(en1).size(), 2);
}

TEST_F(OneEventOneChangeUntil, OfAnInterfaceThatWasTakenAwayAndPutBackIsCarriedOut)
{
    plugInAndSettle(en0);
    const FakeNetworkHost::Interface taken = host.at(en0);
    host.unplug(en0);
    networkEvent();
    host.plug(taken);
    host.giveAddress(en0, u"02:00:00:00:00:55"_s);
    networkEvent();
    EXPECT_EQ(changesOf(en0).size(), 2);
}

TEST_F(OneEventOneChangeUntil, OfAnotherWifiNetworkIsCarriedOutThoughTheLinkWasNeverSeenToGo)
{
    joinHome();
    plugInAndSettle(en1);
    joinWifi(u"Office"_s, u"02:00:00:00:cc:01"_s);
    news(en1);
    EXPECT_EQ(changesOf(en1).size(), 2);
    joinHome();
    news(en1);
    EXPECT_EQ(changesOf(en1).size(), 3);
}

TEST_F(OneEventOneChangeUntil, OfAWifiNetworkSeenWhileTheInternetWasAwayEndsTheStay)
{
    joinHome();
    plugInAndSettle(en1);
    joinWifi(u"Office"_s, u"02:00:00:00:cc:01"_s);
    giveLease(en1);
    reachability.reachable = false;
    networkEvent();
    joinHome();
    giveLease(en1);
    reachability.reachable = true;
    networkEvent();
    EXPECT_EQ(changesOf(en1).size(), 2);
}

TEST_F(OneEventOneChangeUntil, AfterTheRuleWasEditedIsCarriedOut)
{
    plugInAndSettle(en0);
    for (const Rule &rule : queries.managedRuleArrayForDevice(en0)) {
        rule.setName(u"renamed"_s);
    }
    news(en0);
    EXPECT_EQ(changesOf(en0).size(), 1) << "under another name it is the same rule";
    for (const Rule &rule : queries.managedRuleArrayForDevice(en0)) {
        rule.setVendor(u"Maker (3C22FB)"_s);
    }
    news(en0);
    EXPECT_EQ(changesOf(en0).size(), 2);
}

TEST_F(OneEventOneChangeUntil, ThatFindsTheInternetWhereItWasMissingIsCarriedOut)
{
    reachability.reachable = false;
    news(en0);
    reachability.reachable = true;
    news(en0);
    EXPECT_EQ(changesOf(en0).size(), 1);
}

TEST_F(OneEventOneChangeUntil, IsNotNeededWhereTheUserAsksForAChange)
{
    plugInAndSettle(en0);
    evaluate(en0, RuleChange::NetworkRule);
    EXPECT_EQ(changesOf(en0).size(), 2);
    evaluate(en0, RuleChange::NetworkRule);
    EXPECT_EQ(changesOf(en0).size(), 3);
}

TEST_F(OneEventOneChangeUntil, OfARuleThatRepeatsRestartsItsCountdownAndEachCountdownMakesOneChange)
{
    for (const Rule &rule : queries.managedRuleArrayForDevice(en0)) {
        rule.setChangeAction(Rule::every);
        rule.setTimerMins(5);
    }
    news(en0);
    pass(3min);
    news(en0);
    pass(3min);
    EXPECT_TRUE(helper.changes().isEmpty());
    pass(2min);
    EXPECT_EQ(changesOf(en0).size(), 1);
    linkGoes(en0);
    linkComes(en0);
    pass(4min);
    EXPECT_EQ(changesOf(en0).size(), 1);
    EXPECT_TRUE(isCountingDown(en0));
    pass(2min);
    EXPECT_EQ(changesOf(en0).size(), 2);
}

TEST_F(OneEventOneChangeUntil, ThatComesWhenTheProgramEndsDoesNoHarm)
{
    auto brief = std::make_unique<RuleExecution>(
        RuleExecution::Collaborators{scheduler, table, changer, timers});
    brief->addressChangeBegan(en0);
    brief->addressChangeEnded(en0);
    brief.reset();
    pass(1min);
}

} // namespace
} // namespace quillon::test
