// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/TimerFormatter.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

TEST(TimerFormatterTest, TakesUpToThreeDigits)
{
    for (const char *text : {"", "0", "7", "12", "007", "999"}) {
        EXPECT_TRUE(TimerFormatter().isPartialStringValid(QString::fromLatin1(text))) << text;
    }
}

TEST(TimerFormatterTest, RefusesAFourthDigitAndEverythingElse)
{
    for (const char *text : {"1000", "0001", "-1", "+1", "1.", "1 ", " ", "a", "1e2", "0x1"}) {
        EXPECT_FALSE(TimerFormatter().isPartialStringValid(QString::fromLatin1(text))) << text;
    }
}

TEST(TimerFormatterTest, RefusesTheDigitsOfOtherScripts)
{
    EXPECT_FALSE(TimerFormatter().isPartialStringValid(u"\u0663"_s));
    EXPECT_FALSE(TimerFormatter().isPartialStringValid(u"\uFF11"_s));
    EXPECT_FALSE(TimerFormatter().isPartialStringValid(u"\u00B2"_s));
}

TEST(TimerFormatterTest, RefusesAnEmbeddedNull)
{
    EXPECT_FALSE(TimerFormatter().isPartialStringValid(QString(1, QChar())));
}

} // namespace
} // namespace quillon::test
