// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "netlink/NetlinkAttributes.h"

#include "unit/netlink/NetlinkBytes.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace quillon::test {

namespace {

using Attributes = NetlinkAttributes<3>;

} // namespace

TEST(NetlinkAttributes, AreFoundByTypeAndTheLastOfATypeCounts)
{
    NetlinkBytes bytes;
    bytes.attribute(1, "one").attribute(9, "beyond the highest").attribute(3, "old");
    bytes.attribute(3, "new");
    const Attributes attributes(bytes.span());
    EXPECT_EQ(attributes.text(1), "one");
    EXPECT_EQ(attributes.text(3), "new");
    EXPECT_FALSE(attributes.has(2));
    EXPECT_TRUE(attributes.bytes(2).empty());
    EXPECT_EQ(attributes.text(2), "");
}

TEST(NetlinkAttributes, ValuesThatAreTooShortAreNone)
{
    NetlinkBytes bytes;
    bytes.attribute(1, QByteArray::fromHex("010000")).attribute(2, QByteArray(5, '\1'));
    const Attributes attributes(bytes.span());
    EXPECT_EQ(attributes.value<std::uint32_t>(1), std::nullopt);
    EXPECT_EQ(attributes.value<std::uint16_t>(1), 1);
    EXPECT_EQ(attributes.value<std::uint32_t>(2), 0x01010101U);
    EXPECT_EQ(attributes.value<std::uint32_t>(3), std::nullopt);
}

TEST(NetlinkAttributes, TextGoesUpToItsZeroOrItsEnd)
{
    NetlinkBytes bytes;
    bytes.attribute(1, QByteArray("ab\0cd", 5)).attribute(2, "unterminated").attribute(3, {});
    const Attributes attributes(bytes.span());
    EXPECT_EQ(attributes.text(1), "ab");
    EXPECT_EQ(attributes.text(2), "unterminated");
    EXPECT_EQ(attributes.text(3), "");
    EXPECT_TRUE(attributes.has(3));
}

TEST(NetlinkAttributes, OneAgainstThePolicyLeavesNone)
{
    Attributes::Policy policy{};
    policy[2] = {.type = NLA_U32, .minlen = 0, .maxlen = 0};
    NetlinkBytes good;
    good.text(1, "one").attribute(2, QByteArray(4, '\0'));
    EXPECT_TRUE(Attributes(good.span(), &policy).has(1));
    NetlinkBytes bad;
    bad.text(1, "one").attribute(2, QByteArray(3, '\0'));
    EXPECT_TRUE(Attributes(bad.span()).has(1));
    EXPECT_FALSE(Attributes(bad.span(), &policy).has(1));
}

// In memory of exactly each size, so that the sanitizers see a byte too far.
TEST(NetlinkAttributes, CutShortAnywhereNothingIsReadBeyond)
{
    NetlinkBytes whole;
    whole.attribute(1, "12345").attribute(2, "1234");
    for (std::size_t size = 0; size < whole.size(); ++size) {
        const std::vector<std::byte> cut(
            whole.span().begin(), whole.span().begin() + static_cast<std::ptrdiff_t>(size));
        const Attributes attributes(cut);
        EXPECT_EQ(attributes.has(1), size >= 9) << size;
        EXPECT_FALSE(attributes.has(2)) << size;
    }
}

} // namespace quillon::test
