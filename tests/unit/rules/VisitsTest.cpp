// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/Visits.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
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

} // namespace
} // namespace quillon::test
