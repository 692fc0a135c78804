// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/CutText.h"

#include "fakes/QtPrinting.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

TEST(CutTextTest, LeavesWhatIsShortEnough)
{
    EXPECT_EQ(cutText(u"Harbor"_s, 6), u"Harbor"_s);
    EXPECT_EQ(cutText({}, 1), QString());
}

TEST(CutTextTest, EndsWhatIsLongerWithAnEllipsis)
{
    EXPECT_EQ(cutText(u"Harbor"_s, 5), u"Harb…"_s);
    EXPECT_EQ(cutText(u"Harbor"_s, 1), u"…"_s);
}

TEST(CutTextTest, CutsNoCharacterInTwo)
{
    EXPECT_EQ(cutText(u"ab\U0001F980cd"_s, 4), u"ab…"_s);
    EXPECT_EQ(cutText(u"ab\U0001F980cd"_s, 5), u"ab\U0001F980…"_s);
}

} // namespace
} // namespace quillon::test
