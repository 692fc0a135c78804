// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "devices/MenuItem.h"

#include <gtest/gtest.h>

namespace quillon::test {
namespace {

TEST(MenuItem, KnowsItsPlaceInTheMenu)
{
    MenuItem menu{QString()};
    const MenuItem &first = menu.append(QStringLiteral("first"));
    const MenuItem &second = menu.append(QStringLiteral("second"));
    const MenuItem &third = menu.append(QStringLiteral("third"));

    EXPECT_EQ(third.itemAbove(1), &second);
    EXPECT_EQ(third.itemAbove(2), &first);
    EXPECT_EQ(third.itemAbove(0), &third);
    EXPECT_EQ(third.itemAbove(3), nullptr);
    EXPECT_EQ(first.itemAbove(-3), nullptr);
    EXPECT_EQ(menu.itemAbove(1), nullptr);
}

TEST(MenuItem, OfASubmenuKnowsTheItemItStandsIn)
{
    MenuItem menu{QString()};
    MenuItem &address = menu.append(QStringLiteral("address"));
    const MenuItem &action = address.append(QStringLiteral("action"));

    EXPECT_EQ(action.parentItem(), &address);
    EXPECT_EQ(address.parentItem(), nullptr);
    EXPECT_EQ(action.itemAbove(1), nullptr);
    EXPECT_EQ(address.items().size(), 1U);
}

} // namespace
} // namespace quillon::test
