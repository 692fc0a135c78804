// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "exposure/Ipv6Text.h"

#include <gtest/gtest.h>

namespace quillon::test {

using namespace Qt::StringLiterals;

TEST(Ipv6Text, IsTheShortestForm)
{
    const auto text = [](const char *octets) { return ipv6Text(QByteArray::fromHex(octets)); };
    EXPECT_EQ(text("fe800000000000000200 5efffe005301"), u"fe80::200:5eff:fe00:5301"_s);
    EXPECT_EQ(text("20010db8000000000000000000000001"), u"2001:db8::1"_s);
    EXPECT_EQ(text("00000000000000000000000000000000"), u"::"_s);
}

TEST(Ipv6Text, IsEmptyForWhatIsNone)
{
    EXPECT_EQ(ipv6Text({}), QString());
    EXPECT_EQ(ipv6Text(QByteArray(15, '\0')), QString());
    EXPECT_EQ(ipv6Text(QByteArray(17, '\0')), QString());
}

} // namespace quillon::test
