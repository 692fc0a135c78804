// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/RuleProjection.h"

#include "SyncExamples.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

RecordState rule(qint64 time, const QString &name, bool enabled, const QString &network = u"n"_s)
{
    const Stamp stamp{time, 0, 1};
    return {stamp, {},
        {{u"name"_s, {name, stamp}}, {u"enabled"_s, {enabled, stamp}},
            {u"device"_s, {u"wlan0"_s, stamp}}, {u"network"_s, {network, stamp}}}};
}

QString nameOf(const QMap<QUuid, RecordValues> &shown, int number)
{
    return std::get<QString>(shown[ruleId(number).id][u"name"_s]);
}

bool isEnabled(const QMap<QUuid, RecordValues> &shown, int number)
{
    return shown[ruleId(number).id][u"enabled"_s] == SyncValue(true);
}

TEST(RuleProjectionTest, WhatKeepsThePromisesStaysAsItIs)
{
    const RuleStates rules{{ruleId(1).id, rule(1, u"a"_s, true)},
        {ruleId(2).id, rule(2, u"b"_s, false)}, {ruleId(3).id, rule(3, u"c"_s, true, u"m"_s)}};
    const auto shown = shownRules(rules);
    for (auto it = rules.begin(); it != rules.end(); ++it) {
        EXPECT_EQ(shown[it.key()], it->values());
    }
}

TEST(RuleProjectionTest, NameIsTheFirstOnesAndAGivenNumberStays)
{
    const auto shown = shownRules({{ruleId(1).id, rule(3, u"Home"_s, false)},
        {ruleId(2).id, rule(1, u"Home"_s, false)}, {ruleId(3).id, rule(4, u"Home (2)"_s, false)},
        {ruleId(4).id, rule(5, u"Home"_s, false)}});
    EXPECT_EQ(nameOf(shown, 2), u"Home"_s);
    EXPECT_EQ(nameOf(shown, 3), u"Home (2)"_s);
    EXPECT_EQ(nameOf(shown, 1), u"Home (3)"_s);
    EXPECT_EQ(nameOf(shown, 4), u"Home (4)"_s);
}

TEST(RuleProjectionTest, LastOneThatWasSwitchedOnHolds)
{
    const auto shown = shownRules({{ruleId(1).id, rule(2, u"a"_s, true)},
        {ruleId(2).id, rule(1, u"b"_s, true)}, {ruleId(3).id, rule(9, u"c"_s, false)},
        {ruleId(4).id, rule(1, u"d"_s, true, u"other"_s)}});
    EXPECT_TRUE(isEnabled(shown, 1));
    EXPECT_FALSE(isEnabled(shown, 2));
    EXPECT_FALSE(isEnabled(shown, 3));
    EXPECT_TRUE(isEnabled(shown, 4));
}

TEST(RuleProjectionTest, SilencedRulesAreThoseOfThePlacesThatAreEdited)
{
    const RuleStates rules{{ruleId(1).id, rule(2, u"a"_s, true)},
        {ruleId(2).id, rule(1, u"b"_s, true)}, {ruleId(3).id, rule(1, u"c"_s, true, u"m"_s)},
        {ruleId(4).id, rule(2, u"d"_s, true, u"m"_s)}};
    EXPECT_EQ(silencedRules(rules, rules, {ruleId(1).id}), QList<QUuid>{ruleId(2).id});
    EXPECT_EQ(silencedRules(rules, rules, {}), QList<QUuid>());
}

TEST(RuleProjectionTest, ThousandsOfOneNameAreQuicklyTold)
{
    RuleStates rules;
    for (int i = 0; i < 5000; ++i) {
        rules.insert(ruleId(i).id, rule(i + 1, u"Home"_s, true));
    }
    const auto shown = shownRules(rules);
    QSet<QString> names;
    for (int i = 0; i < 5000; ++i) {
        names.insert(nameOf(shown, i));
    }
    EXPECT_EQ(names.size(), 5000);
    EXPECT_EQ(nameOf(shown, 4999), u"Home (5000)"_s);
}

} // namespace
} // namespace quillon::test
