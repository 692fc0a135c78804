// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/UniqueName.h"

#include <gtest/gtest.h>

namespace quillon {

using namespace Qt::StringLiterals;
namespace {

const QString home = u"Home"_s;
const QString home2 = u"Home (2)"_s;
const QString home3 = u"Home (3)"_s;

TEST(UniqueName, AFreeNameStaysAsItIs)
{
    EXPECT_EQ(getOriginalNameFromArray(home, {}), home);
    EXPECT_EQ(getOriginalNameFromArray(home, {u"Office"_s, home2}), home);
    EXPECT_EQ(getOriginalNameFromArray(home2, {home}), home2);
}

TEST(UniqueName, ATakenNameGetsTheFirstFreeNumber)
{
    EXPECT_EQ(getOriginalNameFromArray(home, {home}), home2);
    EXPECT_EQ(getOriginalNameFromArray(home, {home, home2}), home3);
    EXPECT_EQ(getOriginalNameFromArray(home, {home3, home}), home2) << "a gap is filled";
}

TEST(UniqueName, ANumberInTheNameIsPartOfIt)
{
    EXPECT_EQ(getOriginalNameFromArray(home2, {home2}), u"Home (2) (2)"_s);
    EXPECT_EQ(getOriginalNameFromArray(home2, {home, home2, home3}), u"Home (2) (2)"_s);
}

TEST(UniqueName, ComparisonIsExact)
{
    EXPECT_EQ(getOriginalNameFromArray(home, {u"home"_s, u"Home "_s}), home);
    EXPECT_EQ(getOriginalNameFromArray(QString(), {QString()}), u" (2)"_s);
}

TEST(UniqueName, ManyTakenNumbersAreCountedThrough)
{
    QStringList taken{home};
    for (int number = 2; number < 200; ++number) {
        taken << getOriginalNameFromArray(home, taken);
    }
    EXPECT_EQ(taken.last(), u"Home (199)"_s);
    EXPECT_EQ(getOriginalNameFromArray(home, taken), u"Home (200)"_s);
}

} // namespace
} // namespace quillon
