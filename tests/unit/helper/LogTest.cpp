// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/Log.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(LogTest, keepsWhatIsHarmless)
{
    EXPECT_EQ(harmless("enp1s0"), "\"enp1s0\"");
    EXPECT_EQ(harmless(""), "\"\"");
}

TEST(LogTest, cannotForgeALine)
{
    EXPECT_EQ(harmless("a\nroot: done"), "\"a\\x0aroot: done\"");
    EXPECT_EQ(harmless(std::string_view{"a\0b", 3}), "\"a\\x00b\"");
    EXPECT_EQ(harmless("a\x1b[2J"), "\"a\\x1b[2J\"");
    EXPECT_EQ(harmless("\" : done \\"), "\"\\x22 : done \\x5c\"");
    EXPECT_EQ(harmless("\xc3\xa9"), "\"\\xc3\\xa9\"");
}

TEST(LogTest, cannotFillTheLog)
{
    EXPECT_EQ(harmless(std::string(1 << 20, 'x')), '"' + std::string(64, 'x') + "\"...");
}

} // namespace
} // namespace quillon
