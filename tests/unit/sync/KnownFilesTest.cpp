// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/KnownFiles.h"

#include <gtest/gtest.h>

namespace quillon::test {
namespace {

TEST(KnownFilesTest, NothingIsPassedOver)
{
    KnownFiles known;
    known.add(1, 3);
    known.add(1, 2);
    EXPECT_TRUE(known.contains(1, 3));
    EXPECT_FALSE(known.contains(1, 1));
    EXPECT_EQ(known.vector(), VersionVector());
    known.add(1, 1);
    EXPECT_EQ(known.vector(), (VersionVector{{1, 3}}));
    EXPECT_TRUE(known.scattered().isEmpty());
}

TEST(KnownFilesTest, SnapshotClosesTheGap)
{
    KnownFiles known;
    known.add(1, 5);
    known.add(KnownFiles({{1, 4}, {2, 9}}, {}));
    EXPECT_EQ(known.vector(), (VersionVector{{1, 5}, {2, 9}}));
    known.add(KnownFiles({{2, 3}}, {}));
    EXPECT_EQ(known.vector().value(2), 9u);
}

TEST(KnownFilesTest, CoversIsForEachWriter)
{
    const KnownFiles both({{1, 2}, {2, 1}}, {});
    EXPECT_TRUE(both.covers(KnownFiles({{1, 2}}, {})));
    EXPECT_FALSE(KnownFiles({{1, 2}}, {}).covers(both));
    EXPECT_FALSE(KnownFiles({{1, 2}}, {}).covers(KnownFiles({{1, 3}}, {})));
    EXPECT_TRUE(KnownFiles().covers(KnownFiles()));
}

TEST(KnownFilesTest, CoversCountsWhatIsKnownBehindAGap)
{
    const KnownFiles gap({{1, 2}}, {{1, {4, 6}}});
    EXPECT_FALSE(gap.covers(KnownFiles({{1, 4}}, {})));
    EXPECT_FALSE(KnownFiles({{1, 5}}, {}).covers(gap));
    EXPECT_TRUE(KnownFiles({{1, 6}}, {}).covers(gap));
    EXPECT_TRUE(gap.covers(KnownFiles({{1, 1}}, {{1, {6}}})));
    EXPECT_EQ(KnownFiles({{1, 6}}, {}).countBeyond(gap), 2u); // 3 and 5
    EXPECT_EQ(gap.countBeyond(KnownFiles({{1, 3}}, {})), 2u); // 4 and 6
    EXPECT_EQ(gap.last(1), 6u);
}

} // namespace
} // namespace quillon::test
