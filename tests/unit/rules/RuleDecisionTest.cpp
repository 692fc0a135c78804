// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/RuleDecision.h"

#include "networks/SpecialNetworks.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

const QString en0 = u"en0"_s;
const QString home = u"02:00:00:00:00:01"_s;

RuleInfo rule(const QString &network, bool enabled = true)
{
    return {en0, network, false, enabled};
}

RuleInfo loginRule(bool enabled = true)
{
    return {en0, QString(), true, enabled};
}

TEST(RuleDecisionTest, WithoutRulesThereIsNone)
{
    EXPECT_EQ(decideRules({}, en0), RuleDecision());
    EXPECT_EQ(decideRules({}, en0).status, RuleStatus::NoRule);
}

TEST(RuleDecisionTest, RulesThatAreAllSwitchedOffAreToldApart)
{
    const RuleDecision decision = decideRules({rule(anyNetwork, false), loginRule(false)}, en0);
    EXPECT_EQ(decision, (RuleDecision{RuleStatus::NotActive, {}, {}}));
}

TEST(RuleDecisionTest, ASpecificNetworkWinsOverUnknownAndUnknownOverAnyWhateverTheirOrder)
{
    EXPECT_EQ(
        decideRules({rule(anyNetwork), rule(anUnknownNetwork), rule(home)}, en0).networkRule, 2);
    EXPECT_EQ(
        decideRules({rule(home), rule(anUnknownNetwork), rule(anyNetwork)}, en0).networkRule, 0);
    EXPECT_EQ(decideRules({rule(anyNetwork), rule(anUnknownNetwork)}, en0).networkRule, 1);
    EXPECT_EQ(decideRules({rule(anUnknownNetwork), rule(anyNetwork)}, en0).networkRule, 0);
}

TEST(RuleDecisionTest, OfAGroupTheFirstEnabledRuleIsTaken)
{
    EXPECT_EQ(
        decideRules({rule(home, false), rule(home), rule(u"02:00:00:00:00:02"_s)}, en0).networkRule,
        1);
    EXPECT_EQ(decideRules({loginRule(false), loginRule(), loginRule()}, en0).loginRule, 1);
}

TEST(RuleDecisionTest, AGroupWhoseRulesAreSwitchedOffGivesWay)
{
    EXPECT_EQ(decideRules({rule(home, false), rule(anyNetwork)}, en0).networkRule, 1);
}

TEST(RuleDecisionTest, ALoginRuleIsInForceBesideANetworkRule)
{
    const RuleDecision decision = decideRules({loginRule(), rule(anyNetwork)}, en0);
    EXPECT_EQ(decision, (RuleDecision{RuleStatus::Active, 0, 1}));
}

TEST(RuleDecisionTest, ALoginRuleAloneMakesTheStatusActive)
{
    EXPECT_EQ(decideRules({loginRule(), rule(anyNetwork, false)}, en0),
        (RuleDecision{RuleStatus::Active, 0, {}}));
}

TEST(RuleDecisionTest, ALoginRuleIsOneWhateverItsNetwork)
{
    EXPECT_EQ(ruleGroup({en0, anyNetwork, true, true}), RuleGroup::Login);
    EXPECT_EQ(ruleGroup({en0, anUnknownNetwork, true, true}), RuleGroup::Login);
}

TEST(RuleDecisionTest, EveryOtherNetworkIsASpecificOne)
{
    EXPECT_EQ(ruleGroup(rule(home)), RuleGroup::Specific);
    EXPECT_EQ(ruleGroup(rule(QString())), RuleGroup::Specific);
    EXPECT_EQ(ruleGroup(rule(u"any network"_s)), RuleGroup::Specific);
    EXPECT_EQ(ruleGroup(rule(anUnknownNetwork)), RuleGroup::Unknown);
    EXPECT_EQ(ruleGroup(rule(anyNetwork)), RuleGroup::Any);
}

TEST(RuleDecisionTest, RulesOfOtherDevicesArePassedOver)
{
    RuleInfo other = rule(home);
    other.device = u"EN0"_s;
    EXPECT_EQ(decideRules({other, rule(anyNetwork)}, en0).networkRule, 1);
    EXPECT_EQ(decideRules({other}, en0), (RuleDecision{RuleStatus::NotActive, {}, {}}))
        << "something was selected, nothing of it is enabled here";
}

} // namespace
} // namespace quillon::test
