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
    known.add(VersionVector{{1, 4}, {2, 9}});
    EXPECT_EQ(known.vector(), (VersionVector{{1, 5}, {2, 9}}));
    known.add(VersionVector{{2, 3}});
    EXPECT_EQ(known.vector().value(2), 9u);
}

TEST(KnownFilesTest, CoversIsForEachWriter)
{
    EXPECT_TRUE(covers({{1, 2}, {2, 1}}, {{1, 2}}));
    EXPECT_FALSE(covers({{1, 2}}, {{1, 2}, {2, 1}}));
    EXPECT_FALSE(covers({{1, 2}}, {{1, 3}}));
    EXPECT_TRUE(covers({}, {}));
}

} // namespace
} // namespace quillon::test
