// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The program's rooms and the programs without Qt write the same names down separately.
#include "base/NotificationNames.h"
#include "contract/Names.h"
#include "helperlink/XPCMethods.h"

#include <gtest/gtest.h>

namespace quillon::test {
namespace {

TEST(SharedNames, AreTheContractsNames)
{
    EXPECT_EQ(notifications::helperUpdated, QLatin1String(contract::helperUpdated));
    EXPECT_EQ(notifications::helperUpdatedObject, QLatin1String(contract::helperUpdatedObject));
    EXPECT_EQ(notifications::terminateLoginHelper, QLatin1String(contract::terminateLoginHelper));
    EXPECT_EQ(
        notifications::applicationObject, QLatin1String(contract::terminateLoginHelperObject));
    EXPECT_EQ(XPCMethods::helperToolVersion(), QLatin1String(contract::helperVersion));
}

} // namespace
} // namespace quillon::test
