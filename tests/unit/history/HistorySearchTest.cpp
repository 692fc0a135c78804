// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/HistorySearch.h"

#include "fakes/QtPrinting.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;

TEST(HistorySearchTest, AnEmptyTextIsNoCondition)
{
    EXPECT_FALSE(historyCondition(u"all"_s, QString()));
    EXPECT_FALSE(historyCondition(u"ssid"_s, u""_s));
}

TEST(HistorySearchTest, AllLooksInEveryText)
{
    const auto condition = historyCondition(u"all"_s, u"x"_s);
    ASSERT_TRUE(condition);
    QList<Predicate> parts;
    for (const auto &attribute :
        {u"device"_s, u"interface"_s, u"address"_s, u"ssid"_s, u"bssid"_s, u"notes"_s}) {
        parts << Predicate::contains(attribute, u"x"_s);
    }
    EXPECT_TRUE(*condition == Predicate::any(parts));
}

TEST(HistorySearchTest, AnyOtherTypeIsTheAttributeItself)
{
    EXPECT_TRUE(historyCondition(u"ssid"_s, u" x"_s) == Predicate::contains(u"ssid"_s, u" x"_s));
    // Only the identifier in small letters means all fields.
    EXPECT_TRUE(historyCondition(u"All"_s, u"x"_s) == Predicate::contains(u"All"_s, u"x"_s));
}

TEST(HistorySearchTest, NewestFirstIsTheReverseOfOldestFirst)
{
    const auto newest = historyRequest({}, HistoryColumn::Date, false);
    EXPECT_EQ(newest.order, QList<SortDescriptor>({{u"date"_s, false}}));
    EXPECT_TRUE(newest.latestFirst);
    const auto oldest = historyRequest({}, HistoryColumn::Date, true);
    EXPECT_EQ(oldest.order, QList<SortDescriptor>({{u"date"_s, true}}));
    EXPECT_FALSE(oldest.latestFirst);
}

TEST(HistorySearchTest, WhatIsAlikeInAnotherColumnComesNewestFirst)
{
    const auto byNetwork = historyRequest({}, HistoryColumn::Network, true);
    EXPECT_EQ(
        byNetwork.order, QList<SortDescriptor>({{u"ssid"_s, true, true}, {u"date"_s, false}}));
    EXPECT_TRUE(byNetwork.latestFirst);
}

} // namespace quillon::test
