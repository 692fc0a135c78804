// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/GetrandomSource.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace quillon::test {

namespace {

int interruptions = 0;

ssize_t failing(void *, size_t, unsigned int)
{
    errno = ENOSYS;
    return -1;
}

ssize_t interruptedAndThreeAtATime(void *buffer, size_t length, unsigned int)
{
    if (interruptions-- > 0) {
        errno = EINTR;
        return -1;
    }
    const size_t size = std::min<size_t>(length, 3);
    std::memset(buffer, 'x', size);
    return static_cast<ssize_t>(size);
}

ssize_t failingAfterThree(void *buffer, size_t length, unsigned int)
{
    static bool first = true;
    if (std::exchange(first, false)) {
        return interruptedAndThreeAtATime(buffer, length, 0);
    }
    errno = EFAULT;
    return -1;
}

} // namespace

TEST(GetrandomSource, GivesAsManyBytesAsAskedFor)
{
    GetrandomSource source;
    EXPECT_EQ(source.bytes(32).size(), 32);
    EXPECT_EQ(source.bytes(100'000).size(), 100'000);
    EXPECT_EQ(source.bytes(0).size(), 0);
    EXPECT_NE(source.bytes(32), source.bytes(32));
}

TEST(GetrandomSource, GoesOnAfterASignalAndAShortAnswer)
{
    interruptions = 2;
    GetrandomSource source(&interruptedAndThreeAtATime);
    EXPECT_EQ(source.bytes(8), QByteArray(8, 'x'));
}

TEST(GetrandomSource, AFailureGivesNothingRatherThanAFew)
{
    EXPECT_TRUE(GetrandomSource(&failing).bytes(8).isEmpty());
    interruptions = 0;
    EXPECT_TRUE(GetrandomSource(&failingAfterThree).bytes(8).isEmpty());
}

} // namespace quillon::test
