// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "devices/DriftAlarm.h"

#include "AddressChangeFixture.h"
#include "devices/AddressText.h"

#include <optional>

namespace quillon::test {

using namespace Qt::StringLiterals;

namespace {

using namespace std::chrono_literals;

const QString theirs = u"02:00:5e:00:53:99"_s;
const QString others = u"02:00:5e:00:53:98"_s;

/// en1, a radio in the hands of a network manager, and en0, which nobody manages.
class DriftAlarmTest : public AddressChangeFixture
{
protected:
    DriftAlarmTest()
    {
        settings.registerDefaults({{keys::driftAlarm, true}});
        owners.own(en1);
        startAlarm();
    }

    void startAlarm()
    {
        alarm.emplace(
            DriftAlarm::Collaborators{settings, scheduler, notifier, owners, table, *changer});
        QObject::connect(
            changer.get(), &AddressChanger::changeBegan, &*alarm, &DriftAlarm::changeBegan);
        QObject::connect(
            changer.get(), &AddressChanger::changeEnded, &*alarm, &DriftAlarm::changeEnded);
        alarm->begin();
    }
    /// The system tells that something about the network is different.
    void news()
    {
        table.updateNetWorkInterfaces();
        alarm->look();
        scheduler.runPending();
    }
    void setBySomebodyElse(const QString &device, const QString &address)
    {
        ASSERT_TRUE(host.giveAddress(device, address));
        news();
    }
    QString given(const QString &device) const
    {
        return settings.getDictionary(keys::givenAddresses).value(device).toString();
    }

    std::optional<DriftAlarm> alarm;
};

TEST_F(DriftAlarmTest, TellsWhatTheInterfaceHasNowAndWhoOwnsIt)
{
    change(en1, wanted);
    setBySomebodyElse(en1, theirs);

    ASSERT_EQ(notifier.questions.size(), 1);
    const Question &question = notifier.questions.first();
    EXPECT_EQ(question.title, u"Wi-Fi shows another Address"_s);
    EXPECT_EQ(question.body,
        u"en1 now has 02:00:5e:00:53:99 in place of 02:AA:BB:CC:DD:01. NetworkManager owns this interface."_s);
    ASSERT_EQ(question.actions.size(), 2);
    EXPECT_EQ(question.actions.at(0).title, u"Apply again"_s);
    EXPECT_EQ(question.actions.at(1).title, u"Accept"_s);
}

TEST_F(DriftAlarmTest, NamesNoOwnerWhereThereIsNone)
{
    change(en0, wanted);
    setBySomebodyElse(en0, theirs);
    ASSERT_EQ(notifier.questions.size(), 1);
    EXPECT_EQ(notifier.questions.first().body,
        u"en0 now has 02:00:5e:00:53:99 in place of 02:AA:BB:CC:DD:01."_s);
}

TEST_F(DriftAlarmTest, WaitsALittleForAnOwnerWhoDoesNotAnswer)
{
    change(en1, wanted);
    owners.hang();
    setBySomebodyElse(en1, theirs);
    EXPECT_TRUE(notifier.questions.isEmpty());
    scheduler.advance(500ms);
    ASSERT_EQ(notifier.questions.size(), 1);
    EXPECT_FALSE(notifier.questions.first().body.contains(u"owns"_s));
}

TEST_F(DriftAlarmTest, TellsOncePerDrift)
{
    change(en1, wanted);
    setBySomebodyElse(en1, theirs);
    news();
    setBySomebodyElse(en1, others);
    scheduler.advance(1h);
    EXPECT_EQ(notifier.questionsEver, 1);
}

TEST_F(DriftAlarmTest, TellsAgainOfTheNextDrift)
{
    change(en1, wanted);
    setBySomebodyElse(en1, theirs);
    setBySomebodyElse(en1, wanted);
    EXPECT_TRUE(notifier.questions.isEmpty()) << "there is nothing left to decide";
    setBySomebodyElse(en1, theirs);
    EXPECT_EQ(notifier.questionsEver, 2);
}

TEST_F(DriftAlarmTest, AppliesAgainWhatTheInterfaceWasGiven)
{
    change(en1, wanted);
    setBySomebodyElse(en1, theirs);
    notifier.choose(en1, u"Apply again"_s);
    scheduler.runPending();
    news();
    EXPECT_TRUE(isSameAddress(host.addressOf(en1), wanted));
    EXPECT_TRUE(notifier.questions.isEmpty());

    setBySomebodyElse(en1, theirs);
    EXPECT_EQ(notifier.questionsEver, 2);
}

TEST_F(DriftAlarmTest, DoesNotAskAgainWhenApplyingFails)
{
    change(en1, wanted);
    setBySomebodyElse(en1, theirs);
    helper.mood = FakeHelper::Mood::Refusing;
    notifier.choose(en1, u"Apply again"_s);
    scheduler.runPending();
    news();
    EXPECT_EQ(notifier.questionsEver, 1);
    EXPECT_EQ(notifier.messages().last().title, u"Wi-Fi Address was not Changed"_s);
}

TEST_F(DriftAlarmTest, LeavesAnAcceptedAddressAlone)
{
    change(en1, wanted);
    setBySomebodyElse(en1, theirs);
    notifier.choose(en1, u"Accept"_s);
    EXPECT_EQ(given(en1), QString());
    setBySomebodyElse(en1, others);
    setBySomebodyElse(en1, wanted);
    setBySomebodyElse(en1, theirs);
    EXPECT_EQ(notifier.questionsEver, 1);
    EXPECT_EQ(helper.changes().size(), 1);
}

TEST_F(DriftAlarmTest, IsSilentWhileTheProgramItselfChangesTheAddress)
{
    change(en1, wanted);
    owners.think();
    change(en1, others);
    // What its owner gives it meanwhile is none of the user's business.
    setBySomebodyElse(en1, theirs);
    owners.answer();
    owners.think();
    scheduler.runPending();
    news();
    owners.answer();
    scheduler.runPending();
    news();
    EXPECT_EQ(host.addressOf(en1), others);
    EXPECT_EQ(notifier.questionsEver, 0);
    EXPECT_EQ(given(en1), others);
}

TEST_F(DriftAlarmTest, SeesWhatHappenedWhileAnotherChangeFailed)
{
    change(en1, wanted);
    owners.think();
    owners.keepHold();
    change(en1, others);
    setBySomebodyElse(en1, theirs);
    owners.answer();
    scheduler.runPending();
    EXPECT_EQ(notifier.questionsEver, 1);
}

TEST_F(DriftAlarmTest, ChangesOfNoInterfaceThatItGaveAnAddressAreNews)
{
    setBySomebodyElse(en1, theirs);
    EXPECT_EQ(notifier.questionsEver, 0);
}

TEST_F(DriftAlarmTest, ARadioOnNoNetworkScansWithAddressesOfItsOwners)
{
    change(en1, wanted);
    host.at(en1).active = false;
    setBySomebodyElse(en1, theirs);
    setBySomebodyElse(en1, others);
    EXPECT_EQ(notifier.questionsEver, 0);

    host.at(en1).active = true;
    news();
    EXPECT_EQ(notifier.questionsEver, 1) << "now it is on a network with it";
}

TEST_F(DriftAlarmTest, ARadioThatLostItsNetworkInAChangeIsExpectedBackWithTheNewAddress)
{
    owners.settleAs(AddressOwner::Outcome::NotBack);
    owners.whenSettling([this] {
        host.at(en1).active = false;
        host.giveAddress(en1, theirs);
    });
    change(en1, wanted);
    host.at(en1).active = true;
    setBySomebodyElse(en1, wanted);
    EXPECT_EQ(notifier.questionsEver, 0);
    setBySomebodyElse(en1, others);
    EXPECT_EQ(notifier.questionsEver, 1);
}

TEST_F(DriftAlarmTest, AWireWithoutALinkDoesNotScan)
{
    change(en0, wanted);
    host.at(en0).active = false;
    setBySomebodyElse(en0, theirs);
    EXPECT_EQ(notifier.questionsEver, 1);
}

TEST_F(DriftAlarmTest, AnInterfaceThatIsAwayIsJudgedWhenItIsBack)
{
    change(en1, wanted);
    const FakeNetworkHost::Interface radio = host.at(en1);
    host.unplug(en1);
    news();
    EXPECT_EQ(notifier.questionsEver, 0);

    host.plug(radio);
    setBySomebodyElse(en1, radio.factory);
    EXPECT_EQ(notifier.questionsEver, 1);
}

TEST_F(DriftAlarmTest, TheFactoryAddressByTheUsersWishIsWatchedOverNoLonger)
{
    change(en1, wanted);
    change(en1, host.at(en1).factory);
    setBySomebodyElse(en1, theirs);
    EXPECT_EQ(notifier.questionsEver, 0);
    EXPECT_EQ(given(en1), QString());
}

TEST_F(DriftAlarmTest, AnotherChangeOfOursEndsADrift)
{
    change(en1, wanted);
    setBySomebodyElse(en1, theirs);
    change(en1, others);
    EXPECT_TRUE(notifier.questions.isEmpty());
    EXPECT_EQ(given(en1), others);
}

TEST_F(DriftAlarmTest, WhatAnOwnerMadeOfOurChangeWasToldOfAlready)
{
    change(en1, wanted);
    owners.whenSettling([this] { host.giveAddress(en1, theirs); });
    change(en1, others);
    news();
    EXPECT_EQ(notifier.messages().last().title, u"Wi-Fi Address was not Changed"_s);
    EXPECT_EQ(notifier.questionsEver, 0);
}

TEST_F(DriftAlarmTest, IsSilentWhereTheUserWantsItSo)
{
    settings.setBool(keys::driftAlarm, false);
    change(en1, wanted);
    setBySomebodyElse(en1, theirs);
    scheduler.advance(1s);
    EXPECT_EQ(notifier.questionsEver, 0);
}

TEST_F(DriftAlarmTest, WatchesOverWhatAnEarlierRunGave)
{
    change(en1, wanted);
    startAlarm();
    setBySomebodyElse(en1, theirs);
    EXPECT_EQ(notifier.questionsEver, 1);
}

TEST_F(DriftAlarmTest, ForgetsWhatWentWithTheMachinesLastStart)
{
    change(en1, wanted);
    change(en0, others);
    host.giveAddress(en1, host.at(en1).factory);
    host.unplug(en0);
    table.updateNetWorkInterfaces();
    startAlarm();
    EXPECT_TRUE(settings.getDictionary(keys::givenAddresses).isEmpty());
    news();
    EXPECT_EQ(notifier.questionsEver, 0);
}

TEST_F(DriftAlarmTest, LeavesNoQuestionBehind)
{
    change(en1, wanted);
    setBySomebodyElse(en1, theirs);
    const Question question = notifier.questions.first();
    alarm.reset();
    EXPECT_TRUE(notifier.questions.isEmpty());
    question.actions.at(0).chosen();
    scheduler.runPending();
    EXPECT_EQ(helper.changes().size(), 1);
}

} // namespace
} // namespace quillon::test
