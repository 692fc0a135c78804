// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "devices/MenuItem.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;
namespace {

TEST(MenuItem, KnowsItsPlaceInTheMenu)
{
    MenuItem menu{QString()};
    const MenuItem &first = menu.append(u"first"_s);
    const MenuItem &second = menu.append(u"second"_s);
    const MenuItem &third = menu.append(u"third"_s);

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
    MenuItem &address = menu.append(u"address"_s);
    const MenuItem &action = address.append(u"action"_s);

    EXPECT_EQ(action.parentItem(), &address);
    EXPECT_EQ(address.parentItem(), nullptr);
    EXPECT_EQ(action.itemAbove(1), nullptr);
    EXPECT_EQ(address.items().size(), 1U);
}

} // namespace
} // namespace quillon::test
