// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "contract/Names.h"
#include "integration/helper/BusClient.h"
#include "integration/helper/Introspection.h"

#include <gtest/gtest.h>

namespace quillon::test {
namespace {

TEST(ContractTest, isWhatTheHelperOffers)
{
    const auto documented = documentedMembersOf(contract::helper::interface);
    EXPECT_EQ(documented.size(), 4U);
    const auto offered = BusClient{"root"}.call(contract::helperName, contract::helper::path,
        "org.freedesktop.DBus.Introspectable", "Introspect");
    EXPECT_EQ(
        membersOf(contract::helper::interface, QByteArray::fromStdString(offered)), documented);
}

TEST(ContractTest, theVersionIsToldToEverybody)
{
    EXPECT_EQ(BusClient{"mallory"}.version(), "2.0");
}

TEST(ContractTest, theEndpointIsTheHelpersUniqueName)
{
    BusClient mallory{"mallory"};
    const auto endpoint = mallory.endpoint();
    ASSERT_EQ(endpoint.substr(0, 1), ":");
    EXPECT_EQ(mallory.processOf(endpoint), mallory.processOf(contract::helperName));
    EXPECT_NE(endpoint, mallory.uniqueName());
}

} // namespace
} // namespace quillon::test
