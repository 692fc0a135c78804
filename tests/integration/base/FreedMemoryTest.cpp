// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/FreedMemory.h"

#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <vector>

namespace quillon::test {
namespace {

/// What this process has written and holds, as the kernel counts it.
long writtenKilobytes()
{
    std::ifstream file("/proc/self/smaps_rollup");
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("Private_Dirty:")) {
            return std::stol(line.substr(line.find(':') + 1));
        }
    }
    ADD_FAILURE() << "the kernel does not say";
    return 0;
}

TEST(FreedMemory, GoesBackToTheSystemFromBetweenWhatIsStillInUse)
{
    constexpr std::size_t count = 40'000;
    constexpr std::size_t size = 500;
    std::vector<std::string> kept;
    {
        std::vector<std::string> freed(count, std::string(size, 'x'));
        // The last allocations stay: the C library gives back by itself what is free at the end.
        kept.assign(100, std::string(size, 'y'));
    }
    const long before = writtenKilobytes();
    returnFreedMemory();
    const long after = writtenKilobytes();
    EXPECT_GT(before - after, 15'000);
    EXPECT_EQ(kept.size(), 100U);
}

} // namespace
} // namespace quillon::test
