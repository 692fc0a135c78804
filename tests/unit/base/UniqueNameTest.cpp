// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/UniqueName.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

const QString home = QStringLiteral("Home");
const QString home2 = QStringLiteral("Home (2)");
const QString home3 = QStringLiteral("Home (3)");

TEST(UniqueName, AFreeNameStaysAsItIs)
{
    EXPECT_EQ(getOriginalNameFromArray(home, {}), home);
    EXPECT_EQ(getOriginalNameFromArray(home, {QStringLiteral("Office"), home2}), home);
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
    EXPECT_EQ(getOriginalNameFromArray(home2, {home2}), QStringLiteral("Home (2) (2)"));
    EXPECT_EQ(
        getOriginalNameFromArray(home2, {home, home2, home3}), QStringLiteral("Home (2) (2)"));
}

TEST(UniqueName, ComparisonIsExact)
{
    EXPECT_EQ(
        getOriginalNameFromArray(home, {QStringLiteral("home"), QStringLiteral("Home ")}), home);
    EXPECT_EQ(getOriginalNameFromArray(QString(), {QString()}), QStringLiteral(" (2)"));
}

TEST(UniqueName, ManyTakenNumbersAreCountedThrough)
{
    QStringList taken{home};
    for (int number = 2; number < 200; ++number) {
        taken << getOriginalNameFromArray(home, taken);
    }
    EXPECT_EQ(taken.last(), QStringLiteral("Home (199)"));
    EXPECT_EQ(getOriginalNameFromArray(home, taken), QStringLiteral("Home (200)"));
}

} // namespace
} // namespace quillon
