// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/RecordState.h"

#include "SyncExamples.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

SyncChanges joined(SyncChanges a, const SyncChanges &b)
{
    join(a, b);
    return a;
}

TEST(RecordStateTest, MergingIsTheSameInEveryOrderAndHoweverOften)
{
    SeededRandom random(1);
    for (int i = 0; i < 20'000; ++i) {
        const SyncChanges a = randomChanges(random);
        const SyncChanges b = randomChanges(random);
        const SyncChanges c = randomChanges(random);
        ASSERT_EQ(joined(a, b), joined(b, a)) << i;
        ASSERT_EQ(joined(joined(a, b), c), joined(a, joined(b, c))) << i;
        ASSERT_EQ(joined(a, a), a) << i;
        ASSERT_EQ(joined(joined(a, b), b), joined(a, b)) << i;
    }
}

RecordState inserted(const Stamp &stamp, const SyncValue &name)
{
    return {stamp, {}, {{u"name"_s, {name, stamp}}}};
}

TEST(RecordStateTest, LaterChangeOfADeletedRecordDoesNotBringItBack)
{
    RecordState state = inserted({1, 0, 1}, u"a"_s);
    join(state, {{}, {2, 0, 1}, {}});
    join(state, {{}, {}, {{u"name"_s, {u"b"_s, {3, 0, 2}}}}});
    EXPECT_FALSE(state.isPresent());
}

TEST(RecordStateTest, DeletionTakenBackBringsTheValuesThatWereWrittenWithIt)
{
    RecordState state = inserted({1, 0, 1}, u"a"_s);
    join(state, {{}, {2, 0, 1}, {}});
    EXPECT_TRUE(state.attributes.isEmpty());
    join(state, inserted({3, 0, 1}, u"c"_s));
    EXPECT_TRUE(state.isPresent());
    EXPECT_EQ(state.values(), (RecordValues{{u"name"_s, u"c"_s}}));
}

TEST(RecordStateTest, DeletionWinsOnEqualFooting)
{
    RecordState state = inserted({1, 0, 1}, u"a"_s);
    join(state, {{}, {1, 0, 1}, {}});
    EXPECT_FALSE(state.isPresent());
}

TEST(RecordStateTest, OfTwoWritesTheLaterHoldsAndDifferentAttributesBoth)
{
    RecordState state = inserted({1, 0, 1}, u"a"_s);
    EXPECT_TRUE(join(state, {{}, {}, {{u"name"_s, {u"late"_s, {9, 0, 2}}}}}));
    EXPECT_FALSE(join(state, {{}, {}, {{u"name"_s, {u"stale"_s, {8, 0, 3}}}}}));
    join(state, {{}, {}, {{u"vendor"_s, {u"v"_s, {2, 0, 3}}}}});
    EXPECT_EQ(state.values(), (RecordValues{{u"name"_s, u"late"_s}, {u"vendor"_s, u"v"_s}}));
}

} // namespace
} // namespace quillon::test
