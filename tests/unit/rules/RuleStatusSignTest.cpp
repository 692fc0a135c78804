// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/RuleStatusSign.h"

#include "fakes/QtPrinting.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

TEST(RuleStatusSignTest, IsThatOfTheStatus)
{
    EXPECT_EQ(
        RuleStatusSign::of(1), (RuleStatusSign{u"NSStatusAvailable"_s, u"has an Active rule"_s}));
    EXPECT_EQ(RuleStatusSign::of(2),
        (RuleStatusSign{u"NSStatusPartiallyAvailable"_s, u"no rules are currently Active"_s}));
}

TEST(RuleStatusSignTest, HasNoRuleForEveryOtherValue)
{
    for (const qlonglong value : {0LL, 3LL, -1LL, 1LL << 40}) {
        EXPECT_EQ(RuleStatusSign::of(value),
            (RuleStatusSign{u"NSStatusNone"_s, u"no rules have been configured"_s}));
    }
}

} // namespace
} // namespace quillon::test
