// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Another program sets an address of its own on the same visit.
#include "unit/rules/VisitFixture.h"

using namespace std::chrono_literals;

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

const QString replaced = u"Ethernet Address was replaced"_s;

class VisitUndone : public VisitFixture
{
protected:
    VisitUndone()
    {
        news(en0);
        pass(10s);
    }
    const QString foreign = u"02:00:00:00:01:01"_s;
};

TEST_F(VisitUndone, ByAnotherProgramIsCarriedOutAgain)
{
    anotherProgramSets(en0, factory);
    pass(10s);
    ASSERT_EQ(changes(en0), 2);
    EXPECT_NE(changesOf(en0).at(1), changesOf(en0).at(0));
    EXPECT_EQ(host.addressOf(en0), changesOf(en0).at(1).toLower());
    EXPECT_EQ(told(replaced), 0);
}

TEST_F(VisitUndone, RightAfterTheChangeIsCarriedOutAgain)
{
    linkGoes(en0);
    linkComes(en0);
    pass(600ms);
    ASSERT_EQ(changes(en0), 2);
    anotherProgramSets(en0, factory);
    EXPECT_EQ(changes(en0), 3);
}

TEST_F(VisitUndone, ForTheThirdTimeIsToldOnceAndLeft)
{
    for (int time = 0; time < 10; ++time) {
        anotherProgramSets(en0, time % 2 == 0 ? factory : foreign);
        pass(2min);
    }
    EXPECT_EQ(changes(en0), 3);
    EXPECT_EQ(told(replaced), 1);
    linkGoes(en0);
    linkComes(en0);
    pass(10s);
    EXPECT_EQ(changes(en0), 4) << "another visit";
    anotherProgramSets(en0, factory);
    EXPECT_EQ(changes(en0), 5);
}

TEST_F(VisitUndone, WhereTheRuleGivesAFixedAddressIsCarriedOutAgain)
{
    ruleOf(en0).setAddress(fixedAddress);
    news(en0);
    pass(10s);
    ASSERT_EQ(host.addressOf(en0), fixedAddress);
    anotherProgramSets(en0, factory);
    pass(10s);
    EXPECT_EQ(host.addressOf(en0), fixedAddress);
    anotherProgramSets(en0, factory);
    pass(10s);
    anotherProgramSets(en0, factory);
    pass(10s);
    EXPECT_EQ(host.addressOf(en0), factory);
    EXPECT_EQ(told(replaced), 1);
}

TEST_F(VisitUndone, IsNotWhatIsWrittenOtherwise)
{
    ruleOf(en0).setAddress(u"2:0:0:0:AB:7"_s);
    news(en0);
    pass(10s);
    ASSERT_EQ(host.addressOf(en0), u"02:00:00:00:ab:07"_s);
    const qsizetype done = changes(en0);
    news(en0);
    pass(10s);
    news(en0);
    EXPECT_EQ(changes(en0), done);
}

TEST_F(VisitUndone, OfAnAddressThatWasInPlaceBeforeIsCarriedOutAgain)
{
    host.giveAddress(en0, fixedAddress);
    ruleOf(en0).setAddress(fixedAddress);
    news(en0);
    const qsizetype before = changes(en0);
    ASSERT_EQ(told(u"Ethernet Address was not Changed"_s), 1) << "identical";
    pass(10s);
    anotherProgramSets(en0, factory);
    EXPECT_EQ(changes(en0), before + 1);
}

TEST_F(VisitUndone, BeforeItWasReadBackIsCarriedOutAgain)
{
    for (const QString &other : {factory, foreign}) {
        linkGoes(en0);
        linkComes(en0);
        const qsizetype done = changes(en0);
        pass(100ms);
        host.giveAddress(en0, other);
        pass(400ms);
        pass(6s);
        EXPECT_EQ(changes(en0), done + 1) << qPrintable(other) << ", and nothing else was told";
        EXPECT_NE(host.addressOf(en0), other);
        pass(1min);
    }
    EXPECT_EQ(told(replaced), 0);
}

TEST_F(VisitUndone, BeforeItWasReadBackIsNewsWhereTheTableDidNotHoldIt)
{
    linkGoes(en0);
    linkComes(en0);
    pass(100ms);
    host.giveAddress(en0, foreign);
    pass(400ms);
    networkEvent();
    EXPECT_EQ(changes(en0), 3);
    pass(10min);
    EXPECT_EQ(changes(en0), 3) << "it is not judged a second time";
}

TEST_F(VisitUndone, BeforeItWasReadBackEachTimeIsToldOnceAndLeft)
{
    host.at(en0).keepsAddress = true;
    linkGoes(en0);
    linkComes(en0);
    const qsizetype done = changes(en0);
    pass(1min);
    EXPECT_EQ(changes(en0), done + 2);
    EXPECT_EQ(told(replaced), 1);
    for (int time = 0; time < 100; ++time) {
        news(en0);
        pass(2min);
    }
    EXPECT_EQ(changes(en0), done + 2);
    EXPECT_EQ(told(replaced), 1);
}

TEST_F(VisitUndone, BeforeItWasReadBackWhileTheLinkIsDownWaitsForIt)
{
    const QString old = host.addressOf(en0);
    linkGoes(en0);
    linkComes(en0);
    const qsizetype done = changes(en0);
    pass(100ms);
    host.giveAddress(en0, old);
    const FakeNetworkHost::Interface before = host.at(en0);
    host.at(en0).active = false;
    host.at(en0).ipv4.clear();
    pass(7s);
    ASSERT_EQ(changes(en0), done);
    host.at(en0) = before;
    networkEvent();
    EXPECT_EQ(changes(en0), done + 1) << "though everything is as it was";
    pass(1min);
    EXPECT_EQ(changes(en0), done + 1);
    EXPECT_NE(host.addressOf(en0), old);
}

TEST_F(VisitUndone, AsAFailedChangeOfTheUserReadItIsCarriedOutAgain)
{
    helper.mood = FakeHelper::Mood::Refusing;
    host.giveAddress(en0, factory);
    changer.updateMacAddressWithAddress(en0, fixedAddress);
    pass(1s);
    helper.mood = FakeHelper::Mood::Obliging;
    ASSERT_EQ(storedRecord(en0).value(record::current).toString(), factory);
    networkEvent();
    pass(1s);
    EXPECT_NE(host.addressOf(en0), factory);
    EXPECT_NE(host.addressOf(en0), fixedAddress);
}

TEST_F(VisitUndone, IsNotWhatTheUserChose)
{
    changer.updateMacAddressWithAddress(en0, fixedAddress);
    scheduler.runPending();
    networkEvent();
    news(en0);
    pass(100ms);
    EXPECT_EQ(host.addressOf(en0), fixedAddress) << "before the helper has answered";
    pass(10s);
    news(en0);
    EXPECT_EQ(host.addressOf(en0), fixedAddress);
    anotherProgramSets(en0, factory);
    pass(10s);
    EXPECT_EQ(changes(en0), 2) << "the user's own address is none of the rule's";
    EXPECT_EQ(told(replaced), 0);
}

TEST_F(VisitUndone, IsSeenAlsoAfterAChangeOfTheUserThatFailed)
{
    helper.mood = FakeHelper::Mood::Refusing;
    changer.updateMacAddressWithAddress(en0, fixedAddress);
    pass(10s);
    helper.mood = FakeHelper::Mood::Obliging;
    anotherProgramSets(en0, factory);
    EXPECT_EQ(changes(en0), 3);
}

TEST_F(VisitUndone, WhileTheUserIsAskedIsSeenWhenThePromptWasDismissed)
{
    helper.mood = FakeHelper::Mood::Hanging;
    changer.updateMacAddressWithAddress(en0, fixedAddress);
    pass(1s);
    anotherProgramSets(en0, factory);
    helper.mood = FakeHelper::Mood::Obliging;
    ASSERT_EQ(asked(), 2);
    helper.timeOut();
    pass(1s);
    EXPECT_EQ(asked(), 3);
    EXPECT_NE(host.addressOf(en0), factory);
}

TEST_F(VisitUndone, WhileTheInternetIsAwayWaitsForIt)
{
    reachability.reachable = false;
    anotherProgramSets(en0, factory);
    EXPECT_EQ(changes(en0), 1);
    reachability.reachable = true;
    networkEvent();
    EXPECT_EQ(changes(en0), 2);
}

TEST_F(VisitUndone, WhileTheLinkIsDownWaitsForIt)
{
    linkGoes(en0);
    pass(1s);
    host.giveAddress(en0, factory);
    networkEvent();
    EXPECT_EQ(changes(en0), 1);
    linkComes(en0);
    EXPECT_EQ(changes(en0), 2);
}

TEST_F(VisitUndone, IsNotAnAddressThatCannotBeRead)
{
    host.at(en0).broken = true;
    networkEvent();
    host.at(en0).broken = false;
    networkEvent();
    pass(10s);
    EXPECT_EQ(changes(en0), 1);
}

TEST_F(VisitUndone, WhereTheRuleWasEditedMeanwhileIsWhatTheNewOneSays)
{
    anotherProgramSets(en0, factory);
    ruleOf(en0).setAddress(fixedAddress);
    pass(10s);
    news(en0);
    pass(10s);
    EXPECT_EQ(host.addressOf(en0), fixedAddress);
}

} // namespace
} // namespace quillon::test
