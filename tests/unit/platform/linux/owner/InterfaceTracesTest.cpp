// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/owner/InterfaceTraces.h"

#include <gtest/gtest.h>

namespace quillon::test {

namespace {

using Outcome = AddressOwner::Outcome;

const QByteArray oldAddress = QByteArray::fromHex("005056000001");
const QByteArray newAddress = QByteArray::fromHex("021122334455");
const QByteArray oldLinkLocal = QByteArray::fromHex("fe80000000000000025056fffe000001");
const QByteArray newLinkLocal = QByteArray::fromHex("fe80000000000000001122fffe334455");
const QByteArray oldIPv4 = QByteArray::fromHex("c0000214");
const QByteArray newIPv4 = QByteArray::fromHex("c0000215");

/// Connected, with a lease.
class InterfaceTracesTest : public testing::Test
{
protected:
    const InterfaceTraces before{true, true, oldAddress, {{oldIPv4, 100}}, {oldLinkLocal}};
    InterfaceTraces now{true, true, newAddress, {{newIPv4, 200}}, {newLinkLocal}};
};

TEST_F(InterfaceTracesTest, LackNothingWithALeaseOfTheirOwn)
{
    EXPECT_EQ(lacking(before, now), Outcome::Settled);
    now.leases = {{oldIPv4, 200}};
    EXPECT_EQ(lacking(before, now), Outcome::Settled) << "the same address, given anew";
    now.ipv6.clear();
    EXPECT_EQ(lacking(before, now), Outcome::Settled);
}

TEST_F(InterfaceTracesTest, LackANetwork)
{
    now.isRunning = false;
    EXPECT_EQ(lacking(before, now), Outcome::NotBack);
    now.isRunning = true;
    now.leases.clear();
    EXPECT_EQ(lacking(before, now), Outcome::NotBack);
    now.isThere = false;
    EXPECT_EQ(lacking(before, now), Outcome::NotBack);
}

TEST_F(InterfaceTracesTest, LackNoNetworkThatTheyWereNotOn)
{
    InterfaceTraces apart = before;
    apart.isRunning = false;
    now.isRunning = false;
    now.leases.clear();
    EXPECT_EQ(lacking(apart, now), Outcome::Settled);
    now.isThere = false;
    EXPECT_EQ(lacking(apart, now), Outcome::Settled);
}

TEST_F(InterfaceTracesTest, KeepALeaseOfBefore)
{
    now.leases = {{newIPv4, 200}, {oldIPv4, 100}};
    EXPECT_EQ(lacking(before, now), Outcome::KeepsIPAddress);
}

TEST_F(InterfaceTracesTest, KeepAnIPv6AddressOfBeforeInAnyNetwork)
{
    now.ipv6.append(QByteArray::fromHex("20010db800000001025056fffe000001"));
    EXPECT_EQ(lacking(before, now), Outcome::KeepsIPv6Address);
    now.leases = before.leases;
    EXPECT_EQ(lacking(before, now),
        AddressOwner::Outcomes(Outcome::KeepsIPv6Address) | Outcome::KeepsIPAddress);
}

TEST_F(InterfaceTracesTest, AreToldOnlyOfAChange)
{
    EXPECT_EQ(lacking(before, before), Outcome::Settled);
    InterfaceTraces unlike = before;
    unlike.linkAddress.clear();
    EXPECT_EQ(lacking(unlike, now), Outcome::Settled);
}

TEST_F(InterfaceTracesTest, OfNoInterfaceAreNotThere)
{
    const auto traces = readTraces(QStringLiteral("none0"));
    ASSERT_TRUE(traces.has_value());
    EXPECT_FALSE(traces->isThere);
}

} // namespace

} // namespace quillon::test
