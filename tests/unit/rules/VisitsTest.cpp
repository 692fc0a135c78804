// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/Visits.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
namespace {

const QString en0 = u"en0"_s;
const QString en1 = u"en1"_s;
const Visits::Act home{{{u"address"_s, u"Random Address"_s}}, u"Home"_s};
const Visits::Act office{home.rule, u"Office"_s};

class VisitsTest : public ::testing::Test
{
protected:
    /// The change has settled now and left the link down.
    void settleDown()
    {
        rules.carryOut(en0, home);
        rules.changeBegan(en0);
        rules.sawOffNetwork(en0, now);
        rules.changeSettled(en0, false, now);
    }

    Visits rules;
    const QDateTime now = QDateTime::fromSecsSinceEpoch(1'750'000'000, Qt::UTC);
};

TEST_F(VisitsTest, IsRememberedForItsDeviceRuleAndNetwork)
{
    rules.carryOut(en0, home);
    EXPECT_TRUE(rules.isCarriedOut(en0, home));
    EXPECT_FALSE(rules.isCarriedOut(en1, home));
    EXPECT_FALSE(rules.isCarriedOut(en0, office));
    EXPECT_FALSE(rules.isCarriedOut(en0, {{}, u"Home"_s}));
    EXPECT_EQ(rules.devices(), QStringList{en0});
}

TEST_F(VisitsTest, IsForgottenWhenTheLinkGoesByItself)
{
    rules.carryOut(en0, home);
    rules.sawOnNetwork(en0, now);
    EXPECT_TRUE(rules.isCarriedOut(en0, home));
    rules.sawOffNetwork(en0, now);
    EXPECT_FALSE(rules.isCarriedOut(en0, home));
    EXPECT_TRUE(rules.devices().isEmpty());
}

TEST_F(VisitsTest, OutlivesALinkThatGoesDuringAChange)
{
    rules.carryOut(en0, home);
    rules.changeBegan(en0);
    rules.sawOffNetwork(en0, now);
    EXPECT_TRUE(rules.isCarriedOut(en0, home));
    rules.sawOnNetwork(en0, now);
    rules.changeSettled(en0, true, now);
    EXPECT_TRUE(rules.isCarriedOut(en0, home));
    rules.sawOffNetwork(en0, now);
    EXPECT_FALSE(rules.isCarriedOut(en0, home));
}

TEST_F(VisitsTest, OutlivesALinkThatComesBackAfterTheChange)
{
    rules.carryOut(en0, home);
    rules.changeBegan(en0);
    rules.changeSettled(en0, false, now);
    rules.sawOffNetwork(en0, now);
    rules.sawOffNetwork(en0, now);
    EXPECT_TRUE(rules.isCarriedOut(en0, home));
    rules.sawOnNetwork(en0, now);
    EXPECT_TRUE(rules.isCarriedOut(en0, home));
    rules.sawOffNetwork(en0, now);
    EXPECT_FALSE(rules.isCarriedOut(en0, home)) << "the next loss is none of ours";
}

TEST_F(VisitsTest, OutlivesALinkThatComesBackWithinAMinute)
{
    settleDown();
    rules.sawOffNetwork(en0, now.addSecs(60));
    rules.sawOnNetwork(en0, now.addSecs(60));
    EXPECT_TRUE(rules.isCarriedOut(en0, home));
}

TEST_F(VisitsTest, IsForgottenWhenTheLinkComesBackAfterAMinute)
{
    settleDown();
    rules.sawOnNetwork(en0, now.addSecs(61));
    EXPECT_FALSE(rules.isCarriedOut(en0, home));
}

TEST_F(VisitsTest, IsForgottenWhenTheLinkIsStillDownAfterAMinute)
{
    settleDown();
    rules.sawOffNetwork(en0, now.addSecs(61));
    EXPECT_FALSE(rules.isCarriedOut(en0, home));
}

TEST_F(VisitsTest, IsForgottenWhenTheClockWasSetBackWhileTheLinkWasDown)
{
    settleDown();
    rules.sawOnNetwork(en0, now.addSecs(-1));
    EXPECT_FALSE(rules.isCarriedOut(en0, home));
}

TEST_F(VisitsTest, OutlivesALinkThatComesBackLateDuringAnotherChange)
{
    settleDown();
    rules.changeBegan(en0);
    rules.sawOnNetwork(en0, now.addSecs(61));
    EXPECT_TRUE(rules.isCarriedOut(en0, home));
}

TEST_F(VisitsTest, AnewIsNotForgottenForALinkThatWasDownBefore)
{
    settleDown();
    rules.carryOut(en0, office);
    rules.sawOnNetwork(en0, now.addSecs(3600));
    EXPECT_TRUE(rules.isCarriedOut(en0, office));
}

TEST_F(VisitsTest, WaitsForTheLastOfSeveralChanges)
{
    rules.carryOut(en0, home);
    rules.changeBegan(en0);
    rules.changeBegan(en0);
    rules.changeSettled(en0, true, now);
    rules.sawOffNetwork(en0, now);
    EXPECT_TRUE(rules.isCarriedOut(en0, home));
}

TEST_F(VisitsTest, IsForgottenWithTheDeviceEvenDuringAChange)
{
    rules.carryOut(en0, home);
    rules.changeBegan(en0);
    rules.sawGone(en0);
    EXPECT_FALSE(rules.isCarriedOut(en0, home));
    rules.changeSettled(en0, false, now);
    rules.sawGone(en0);
    rules.carryOut(en0, home);
    rules.sawOffNetwork(en0, now);
    EXPECT_FALSE(rules.isCarriedOut(en0, home));
}

TEST_F(VisitsTest, ToleratesWhatItNeverHeardOf)
{
    rules.sawOnNetwork(en0, now);
    rules.sawOffNetwork(en0, now);
    rules.sawGone(en0);
    rules.changeSettled(en0, true, now);
    rules.changeSettled(en0, true, now);
    rules.carryOut(en0, home);
    rules.sawOffNetwork(en0, now);
    EXPECT_FALSE(rules.isCarriedOut(en0, home));
}

class VisitsStanding : public VisitsTest
{
protected:
    Visits::Standing standing(const QString &address = u"02:00:00:00:00:01"_s) const
    {
        return rules.standing(en0, home, address);
    }
    /// Asked for, answered and settled.
    void fail(std::chrono::milliseconds at = {})
    {
        EXPECT_FALSE(rules.failed(en0, rules.carryOut(en0, home), own, at));
    }
    void succeed() { rules.succeeded(en0, rules.carryOut(en0, home), u"02:00:00:00:00:01"_s); }
    const QString own = u"02:00:00:00:00:01"_s;
    const QString foreign = u"02:00:00:00:00:99"_s;
};

TEST_F(VisitsStanding, OfWhatWasAskedForIsUnderWayUntilTheAnswer)
{
    EXPECT_EQ(standing(), Visits::Standing::New);
    const quint64 number = rules.carryOut(en0, home);
    EXPECT_EQ(standing(foreign), Visits::Standing::UnderWay);
    rules.succeeded(en0, number, u"02:00:00:00:00:01"_s);
    EXPECT_EQ(standing(), Visits::Standing::Done);
    EXPECT_EQ(rules.standing(en0, office, foreign), Visits::Standing::New);
}

TEST_F(VisitsStanding, OfAFailureIsItsOwnNewsUntilItHasSettled)
{
    rules.changeBegan(en0);
    fail();
    EXPECT_EQ(standing(), Visits::Standing::UnderWay);
    rules.changeAnswered(en0);
    EXPECT_EQ(standing(), Visits::Standing::OwnNews);
    rules.changeSettled(en0, true, now);
    EXPECT_EQ(standing(), Visits::Standing::Failed);
}

TEST_F(VisitsStanding, OfFailuresIsNeverDoneButPausesEverLonger)
{
    EXPECT_EQ(rules.pause(en0, 0s), 0s);
    for (const auto pause : {0min, 1min, 5min, 15min, 60min, 60min}) {
        fail(10s);
        EXPECT_EQ(standing(), Visits::Standing::Failed);
        EXPECT_EQ(rules.pause(en0, 10s), pause);
        EXPECT_EQ(rules.pause(en0, 10s + pause + 1s), 0s);
    }
    rules.sawOffNetwork(en0, now);
    EXPECT_EQ(standing(), Visits::Standing::New);
    fail();
    EXPECT_EQ(rules.pause(en0, 0s), 0s);
}

TEST_F(VisitsStanding, OfFailuresThatWereOvercomeCountsThemNoMore)
{
    fail();
    fail();
    succeed();
    fail();
    EXPECT_EQ(rules.pause(en0, 0s), 0s);
}

TEST_F(VisitsStanding, OfFailuresWhoseCauseHasGoneIsNew)
{
    fail();
    rules.succeeded(en1, rules.carryOut(en1, home), own);
    EXPECT_EQ(rules.forgetFailures(), QStringList{en0});
    EXPECT_EQ(standing(), Visits::Standing::New);
    EXPECT_TRUE(rules.isCarriedOut(en1, home));
    EXPECT_EQ(rules.forgetFailures(), QStringList());
}

TEST_F(VisitsStanding, OfAFailureThatWasNoneIsDone)
{
    fail();
    rules.sawAddress(en0, QString());
    rules.sawAddress(en0, foreign);
    rules.sawAddress(en1, own);
    EXPECT_EQ(standing(own), Visits::Standing::Failed);
    rules.sawAddress(en0, u"2:0:0:0:0:1"_s);
    EXPECT_EQ(standing(own), Visits::Standing::Done);
    EXPECT_EQ(standing(foreign), Visits::Standing::Undone);
}

TEST_F(VisitsStanding, OfAnAddressThatIsNotToBeHadIsNotLateSuccess)
{
    rules.failed(en0, rules.carryOut(en0, home), QString(), 0s);
    rules.sawAddress(en0, QString());
    EXPECT_EQ(standing(QString()), Visits::Standing::Failed);
}

TEST_F(VisitsStanding, IsNewWhereTheDeviceWasMovedDuringAChangeOfTheUserThatFailed)
{
    rules.changeBegan(en0);
    const quint64 number = rules.carryOut(en0, home);
    rules.sawOffNetwork(en0, now);
    rules.succeeded(en0, number, own);
    rules.changeAnswered(en0);
    rules.changeBegan(en0);
    rules.changeAnswered(en0);
    rules.otherChangeFailed(en0);
    EXPECT_EQ(standing(), Visits::Standing::Done) << "what its own change did to the link";
    rules.changeBegan(en0);
    rules.sawOffNetwork(en0, now);
    rules.changeAnswered(en0);
    rules.otherChangeFailed(en0);
    EXPECT_EQ(standing(), Visits::Standing::New);
}

TEST_F(VisitsStanding, OfAFailureTellsOnceWhetherTheDeviceWasAway)
{
    rules.changeBegan(en0);
    const quint64 number = rules.carryOut(en0, home);
    rules.sawOffNetwork(en0, now);
    EXPECT_TRUE(rules.failed(en0, number, own, 0s));
    rules.changeAnswered(en0);
    EXPECT_EQ(standing(), Visits::Standing::Failed) << "not settled, but moved";
    EXPECT_FALSE(rules.failed(en0, rules.carryOut(en0, home), own, 0s));
}

TEST_F(VisitsStanding, OfAnotherAddressIsUndoneTwiceAndThenGivenUp)
{
    succeed();
    EXPECT_EQ(standing(QString()), Visits::Standing::Done) << "nobody knows";
    EXPECT_EQ(standing(u"2:0:0:0:0:1"_s), Visits::Standing::Done);
    EXPECT_EQ(standing(foreign), Visits::Standing::Undone);
    succeed();
    EXPECT_EQ(standing(foreign), Visits::Standing::Undone);
    succeed();
    EXPECT_EQ(standing(foreign), Visits::Standing::GivenUp);
    rules.leaveAsItIs(en0);
    EXPECT_EQ(standing(foreign), Visits::Standing::Done);
}

TEST_F(VisitsStanding, IsNotJudgedWhileAnyChangeIsUnanswered)
{
    succeed();
    rules.changeBegan(en0);
    EXPECT_EQ(standing(foreign), Visits::Standing::UnderWay);
    rules.changeAnswered(en0);
    EXPECT_EQ(standing(foreign), Visits::Standing::Undone);
}

TEST_F(VisitsStanding, IsNotMovedByAnAnswerFromAnotherVisit)
{
    const quint64 early = rules.carryOut(en0, home);
    rules.sawGone(en0);
    rules.succeeded(en0, early, foreign);
    EXPECT_FALSE(rules.failed(en0, early, own, 0s));
    EXPECT_EQ(standing(), Visits::Standing::New);
    rules.carryOut(en0, home);
    rules.succeeded(en0, early, foreign);
    EXPECT_EQ(standing(), Visits::Standing::UnderWay);
}

TEST_F(VisitsStanding, LeftAsItIsIsNotTriedAgainWhateverTheAnswer)
{
    const quint64 number = rules.carryOut(en0, home);
    rules.leaveAsItIs(en0);
    EXPECT_FALSE(rules.failed(en0, number, own, 0s));
    EXPECT_EQ(standing(foreign), Visits::Standing::Done);
}

TEST_F(VisitsTest, OutlivesAnAbsenceWithinItsGrace)
{
    rules.carryOut(en0, home);
    rules.sawOffNetwork(en0, now, 10s);
    rules.sawOffNetwork(en0, now.addSecs(10), 10s);
    rules.sawLinkUp(en0, now.addSecs(10));
    EXPECT_TRUE(rules.isCarriedOut(en0, home));
    rules.sawLinkUp(en0, now.addMSecs(10'001));
    EXPECT_FALSE(rules.isCarriedOut(en0, home)) << "the grace is not begun anew";
}

TEST_F(VisitsTest, EndsElsewhereUnlessAChangeIsUnderWay)
{
    rules.carryOut(en0, home);
    rules.changeBegan(en0);
    rules.sawElsewhere(en0);
    EXPECT_EQ(rules.ssid(en0), u"Home"_s);
    rules.sawOnNetwork(en0, now);
    rules.changeSettled(en0, true, now);
    EXPECT_EQ(rules.ssid(en0), u"Home"_s) << "back before the change had settled";
    rules.sawOffNetwork(en0, now, 10s);
    rules.sawElsewhere(en0);
    EXPECT_EQ(rules.ssid(en0), std::nullopt);
}

TEST_F(VisitsTest, EndsWhenAllHasSettledWhereTheDeviceIsElsewhereStill)
{
    rules.succeeded(en0, rules.carryOut(en0, home), {});
    rules.changeBegan(en0);
    rules.changeBegan(en0);
    rules.sawElsewhere(en0);
    rules.changeSettled(en0, true, now);
    EXPECT_TRUE(rules.isCarriedOut(en0, home));
    rules.changeSettled(en0, true, now);
    EXPECT_FALSE(rules.isCarriedOut(en0, home));
}

TEST_F(VisitsTest, DoesNotEndWhereTheNextNetworkHasAnActOfItsOwn)
{
    rules.succeeded(en0, rules.carryOut(en0, home), {});
    rules.changeBegan(en0);
    rules.sawElsewhere(en0);
    rules.carryOut(en0, office);
    rules.changeSettled(en0, true, now);
    EXPECT_TRUE(rules.isCarriedOut(en0, office));
}

} // namespace
} // namespace quillon::test
