// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "devices/HexFormatter.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

bool mayType(const char *text)
{
    HexFormatter formatter;
    return formatter.isPartialStringValid(QString::fromUtf8(text));
}

TEST(HexFormatter, TakesTwelveBareDigits)
{
    EXPECT_TRUE(mayType("a1b2c3d4e5f6"));
    EXPECT_TRUE(mayType("A1B2C3D4E5F6"));
}

TEST(HexFormatter, RefusesThirteenDigitsWithoutColons)
{
    EXPECT_FALSE(mayType("a1b2c3d4e5f60"));
}

TEST(HexFormatter, TakesSeventeenCharactersWithColonsAndNoMore)
{
    EXPECT_TRUE(mayType("a1:b2:c3:d4:e5:f6"));
    EXPECT_FALSE(mayType("a1:b2:c3:d4:e5:f6:"));
    EXPECT_FALSE(mayType("a1:b2:c3:d4:e5:f60"));
    EXPECT_TRUE(mayType(":a1b2c3d4e5f60718")) << "one colon anywhere makes it seventeen";
}

TEST(HexFormatter, RefusesOtherCharactersAtOnce)
{
    EXPECT_FALSE(mayType("g"));
    EXPECT_FALSE(mayType("a1:g"));
    EXPECT_FALSE(mayType("a1 b2"));
    EXPECT_FALSE(mayType("\u0661"));
}

TEST(HexFormatter, MayBeEmptied)
{
    EXPECT_TRUE(mayType(""));
}

TEST(HexFormatter, KnowsTheMaximumThatApplied)
{
    HexFormatter formatter;
    EXPECT_EQ(formatter.maximumLength(), 2147483647);
    formatter.isPartialStringValid(u"a1"_s);
    EXPECT_EQ(formatter.maximumLength(), 12);
    formatter.isPartialStringValid(u"a1:"_s);
    EXPECT_EQ(formatter.maximumLength(), 17);
    formatter.isPartialStringValid(u"g"_s);
    EXPECT_EQ(formatter.maximumLength(), 17);
    formatter.isPartialStringValid(QString());
    EXPECT_EQ(formatter.maximumLength(), 12);
}

TEST(HexFormatter, KeepsTextsAsTheyAre)
{
    const HexFormatter formatter;
    const QString typed = u"a1:B2:c3"_s;
    EXPECT_EQ(formatter.stringForObjectValue(typed), typed);
    EXPECT_EQ(formatter.getObjectValueForString(typed), typed);
}

} // namespace
} // namespace quillon::test
