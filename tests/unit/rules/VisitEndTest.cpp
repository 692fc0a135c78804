// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// When a visit has ended, and what only looks like its end.
#include "unit/rules/VisitFixture.h"

using namespace std::chrono_literals;

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

class VisitEnd : public VisitFixture
{
protected:
    VisitEnd()
    {
        joinHome();
        news(en0);
        pass(10s);
        news(en1);
        pass(10s);
    }
    void leaveWifi()
    {
        radio.leave();
        linkGoes(en1);
    }
    void returnHome()
    {
        joinHome();
        linkComes(en1);
    }
};

TEST_F(VisitEnd, OfAWiredInterfaceComesWithMoreThanAMinuteInSuspension)
{
    scheduler.setClock(60s);
    news(en0);
    EXPECT_EQ(changes(en0), 1);
    scheduler.setClock(61s);
    news(en0);
    EXPECT_EQ(changes(en0), 2);
    pass(10s);
    news(en0);
    EXPECT_EQ(changes(en0), 2);
}

TEST_F(VisitEnd, OfAWiredInterfaceComesWithASleepHoweverShort)
{
    execution.machineSlept();
    news(en0);
    news(en1);
    EXPECT_EQ(changes(en0), 2);
    EXPECT_EQ(changes(en1), 1) << "a radio says which network it is on";
    pass(10s);
    news(en0);
    EXPECT_EQ(changes(en0), 2);
}

TEST_F(VisitEnd, OfAWiredInterfaceComesWithASleepThatTakesItsLinkDownRightAfterAChange)
{
    linkGoes(en0);
    linkComes(en0);
    ASSERT_EQ(changes(en0), 2);
    linkGoes(en0);
    execution.machineSlept();
    linkComes(en0);
    EXPECT_EQ(changes(en0), 3);
}

TEST_F(VisitEnd, OfAWiredInterfaceIsFoundAlsoWithoutChangedRecord)
{
    scheduler.setClock(1h);
    networkEvent();
    news(en0);
    EXPECT_EQ(changes(en0), 2);
}

TEST_F(VisitEnd, OfAWiredInterfaceDoesNotComeWithTimeThatPasses)
{
    for (const auto time : {61'000ms, 3'600'000ms, 86'400'000ms}) {
        pass(time);
        news(en0);
    }
    EXPECT_EQ(changes(en0), 1);
}

TEST_F(VisitEnd, OfAWiredInterfaceComesWithAClockThatWasSetBackOverAMinute)
{
    scheduler.setClock(-61s);
    news(en0);
    EXPECT_EQ(changes(en0), 2) << "nobody knows what that was";
}

TEST_F(VisitEnd, OfAWiredInterfaceComesWithASuspensionDuringAChange)
{
    linkGoes(en0);
    linkComes(en0);
    ASSERT_EQ(changes(en0), 2);
    scheduler.setClock(1h);
    pass(1s);
    news(en0);
    EXPECT_EQ(changes(en0), 3);
}

TEST_F(VisitEnd, OfAWifiInterfaceOnTheSameNetworkDoesNotComeWithASuspension)
{
    scheduler.setClock(1h);
    news(en1);
    EXPECT_EQ(changes(en1), 1);
}

TEST_F(VisitEnd, DoesNotComeWithTheSameNetworkBackWithinTenSeconds)
{
    leaveWifi();
    pass(10s);
    returnHome();
    pass(1min);
    news(en1);
    EXPECT_EQ(changes(en1), 1);
}

TEST_F(VisitEnd, ComesWithTheSameNetworkBackLater)
{
    leaveWifi();
    pass(10'001ms);
    returnHome();
    EXPECT_EQ(changes(en1), 2);
}

TEST_F(VisitEnd, ComesWithTheSameNetworkBackAfterASuspension)
{
    leaveWifi();
    scheduler.setClock(11s);
    returnHome();
    EXPECT_EQ(changes(en1), 2);
}

TEST_F(VisitEnd, ComesWithAnotherNetworkBetweenHoweverShort)
{
    leaveWifi();
    joinWifi(u"Office"_s, u"02:00:00:00:cc:01"_s);
    host.at(en1).active = true;
    news(en1);
    EXPECT_EQ(changes(en1), 1) << "the internet was away";
    reachability.reachable = true;
    returnHome();
    EXPECT_EQ(changes(en1), 2);
}

TEST_F(VisitEnd, DoesNotComeWithAnotherAccessPointOfTheNetwork)
{
    joinWifi(u"Home"_s, u"02:00:00:00:aa:02"_s);
    news(en1);
    EXPECT_EQ(changes(en1), 1);
    ruleOf(en1).setNetwork(u"02:00:00:00:aa:02"_s);
    news(en1);
    pass(10s);
    ASSERT_EQ(changes(en1), 2) << "another rule";
    joinHome();
    news(en1);
    pass(5s);
    joinWifi(u"Home"_s, u"02:00:00:00:aa:02"_s);
    news(en1);
    EXPECT_EQ(changes(en1), 2) << "to the access point without rule and back";
    joinHome();
    news(en1);
    pass(11s);
    joinWifi(u"Home"_s, u"02:00:00:00:aa:02"_s);
    news(en1);
    EXPECT_EQ(changes(en1), 3);
}

TEST_F(VisitEnd, ComesWithAnotherNetworkJoinedRightAfterTheChange)
{
    ruleOf(en1).setNetwork(u"02:00:00:00:aa:01"_s);
    news(en1);
    pass(2s);
    ASSERT_EQ(changes(en1), 2) << "the rule was edited";
    joinWifi(u"Office"_s, u"02:00:00:00:cc:01"_s);
    news(en1);
    pass(1h);
    leaveWifi();
    pass(5s);
    returnHome();
    EXPECT_EQ(changes(en1), 3);
}

TEST_F(VisitEnd, OfOneRadioDoesNotComeWithTheNetworkOfAnother)
{
    const QString en9 = u"en9"_s;
    host.plug({u"Wi-Fi"_s, en9, {}, u"02:00:00:00:00:09"_s, {}});
    table.updateNetWorkInterfaces();
    addRule({.name = u"other"_s, .device = en9});
    joinWifi(u"Office"_s, u"02:00:00:00:cc:01"_s);
    radio.interface->device = en9;
    news(en9);
    EXPECT_EQ(changes(en9), 1);
    news(en1);
    EXPECT_EQ(changes(en1), 1) << "that one is on no network that anybody knows";
    joinHome();
    news(en1);
    EXPECT_EQ(changes(en1), 1) << "it has been at home all the time";
}

TEST_F(VisitEnd, ComesWithACableThatWasMovedWhileTheUserWasAsked)
{
    helper.mood = FakeHelper::Mood::Hanging;
    changer.updateMacAddressWithAddress(en0, fixedAddress);
    pass(1s);
    ASSERT_EQ(asked(), 3);
    const QString before = changesOf(en0).value(0);
    linkGoes(en0);
    pass(1s);
    linkComes(en0);
    EXPECT_EQ(asked(), 3) << "the prompt is open";
    helper.mood = FakeHelper::Mood::Obliging;
    helper.timeOut();
    pass(1s);
    EXPECT_EQ(asked(), 4) << "of this network nobody has had it";
    EXPECT_NE(host.addressOf(en0), before);
}

TEST_F(VisitEnd, OfAWiredInterfaceComesWithItsLinkHoweverShort)
{
    linkGoes(en0);
    linkComes(en0);
    EXPECT_EQ(changes(en0), 2);
}

TEST_F(VisitEnd, DoesNotComeWithAnInterfaceThatCannotBeRead)
{
    host.at(en0).broken = true;
    networkEvent();
    pass(1min);
    host.at(en0).broken = false;
    news(en0);
    EXPECT_EQ(changes(en0), 1);
}

TEST_F(VisitEnd, DoesNotComeWithAHostThatCannotBeRead)
{
    host.setUnreadable(true);
    networkEvent();
    pass(1min);
    host.setUnreadable(false);
    news(en0);
    news(en1);
    EXPECT_EQ(changes(en0), 1);
    EXPECT_EQ(changes(en1), 1);
}

TEST_F(VisitEnd, DoesNotComeWithARadioThatCannotBeRead)
{
    radio.leave();
    news(en1);
    pass(1min);
    joinHome();
    news(en1);
    EXPECT_EQ(changes(en1), 1) << "its link was up all the time";
}

TEST_F(VisitEnd, ComesWithAnInterfaceThatWasTakenAway)
{
    const FakeNetworkHost::Interface taken = host.at(en0);
    host.unplug(en0);
    networkEvent();
    host.plug(taken);
    news(en0);
    EXPECT_EQ(changes(en0), 2);
}

/// Texts that no settings file can carry: stored there they are others than in the record.
class VisitEndOfOddRules : public VisitFixture, public ::testing::WithParamInterface<QString>
{
};

TEST_P(VisitEndOfOddRules, DoesNotComeWithEveryEvent)
{
    const QString odd = GetParam();
    const Rule wired = ruleOf(en0);
    wired.setName(odd);
    wired.setNetwork(odd);
    wired.setSsid(odd);
    wired.setVendor(odd);
    ruleOf(en1).setVendor(odd);
    joinWifi(odd, u"02:00:00:00:aa:01"_s);
    for (int time = 0; time < 5; ++time) {
        news(en0);
        pass(1min);
        news(en1);
        pass(1min);
    }
    EXPECT_EQ(changes(en0), 1);
    EXPECT_EQ(changes(en1), 1);
    ASSERT_FALSE(context().save());
    store.refreshPersistentContainer();
    news(en0);
    EXPECT_EQ(changes(en0), 1) << "read from the file again";
}

TEST_P(VisitEndOfOddRules, DoesNotComeWithEveryEventWhereTheAddressIsNone)
{
    ruleOf(en0).setAddress(GetParam());
    for (int time = 0; time < 20; ++time) {
        news(en0);
        pass(1min);
    }
    EXPECT_LE(changes(en0), 4) << "after failures ever more rarely";
}

INSTANTIATE_TEST_SUITE_P(ControlsAndSurrogates, VisitEndOfOddRules,
    ::testing::Values(u"a\u0001b"_s, u"a\0b"_s, u"\u001b[31m"_s, u"\uffff"_s,
        QString(QChar(0xd800)), u"line\r\nbreak"_s, u"\u0085"_s));

} // namespace
} // namespace quillon::test
