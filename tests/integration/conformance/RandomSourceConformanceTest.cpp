// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/FakeRandomSource.h"
#include "platform/linux/GetrandomSource.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace quillon::test {
namespace {

/// What a random source promises, asked of the one that a test fills and of the kernel's.
struct FilledByTheTest
{
    FilledByTheTest() { working.put(QByteArrayLiteral("ten bytes.")); }

    void fail() { source().fail(); }
    FakeRandomSource &source() { return working; }

    FakeRandomSource working;
};

struct FilledByTheKernel
{
    void fail() { isFailing = true; }
    RandomSource &source() { return isFailing ? failing : working; }

    GetrandomSource working;
    GetrandomSource failing{[](void *, size_t, unsigned int) -> ssize_t {
        errno = ENOSYS;
        return -1;
    }};
    bool isFailing = false;
};

template <typename Kind>
class RandomSourceConformance : public ::testing::Test
{
protected:
    Kind kind;
};

using Kinds = ::testing::Types<FilledByTheTest, FilledByTheKernel>;
TYPED_TEST_SUITE(RandomSourceConformance, Kinds);

TYPED_TEST(RandomSourceConformance, GivesExactlyAsManyBytesAsAskedFor)
{
    for (const int count : {1, 6, 0, 32, 100'000}) {
        EXPECT_EQ(this->kind.source().bytes(count).size(), count);
    }
}

TYPED_TEST(RandomSourceConformance, GivesNoneWhenItFailed)
{
    this->kind.fail();
    EXPECT_TRUE(this->kind.source().bytes(6).isEmpty());
    EXPECT_TRUE(this->kind.source().bytes(1).isEmpty());
}

} // namespace
} // namespace quillon::test
