// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/exposure/KernelAddresses.h"

#include "unit/netlink/NetlinkBytes.h"

#include <gtest/gtest.h>

#include <linux/if_addr.h>
#include <linux/rtnetlink.h>
#include <sys/socket.h>

namespace quillon::test {

namespace {

using namespace std::chrono_literals;

const QByteArray octets = QByteArray::fromHex("20010db8000000001234567890abcdef");

class KernelAddressesTest : public testing::Test
{
protected:
    KernelAddressesTest()
    {
        header.ifa_family = AF_INET6;
        header.ifa_prefixlen = 64;
        times.ifa_valid = 3600;
        times.cstamp = 6000; // a minute after the start
    }

    std::optional<ExposureFacts::Ipv6Address> read(
        quint16 type = RTM_NEWADDR, const QByteArray &address = octets)
    {
        NetlinkBytes bytes;
        bytes.message(type, header)
            .attribute(IFA_ADDRESS, address)
            .attribute(
                IFA_CACHEINFO, QByteArray(reinterpret_cast<const char *>(&times), sizeof times))
            .attribute(IFA_FLAGS, QByteArray(reinterpret_cast<const char *>(&flags), sizeof flags));
        std::optional<ExposureFacts::Ipv6Address> found;
        forEachMessage(
            bytes.span(), [&](const nlmsghdr &message) { found = ipv6AddressIn(message, 100s); });
        return found;
    }

    ifaddrmsg header{};
    ifa_cacheinfo times{};
    quint32 flags = 0;
};

TEST_F(KernelAddressesTest, TellWhatTheKernelSays)
{
    const auto found = read();
    ASSERT_TRUE(found);
    EXPECT_EQ(found->octets, octets);
    EXPECT_EQ(found->age, 40s);
    EXPECT_TRUE(found->hasEnd);
    EXPECT_FALSE(found->isLinkLocal || found->isTemporary || found->isLeased);
}

TEST_F(KernelAddressesTest, TellTheKinds)
{
    flags = IFA_F_TEMPORARY;
    EXPECT_TRUE(read()->isTemporary);
    header.ifa_scope = RT_SCOPE_LINK;
    EXPECT_TRUE(read()->isLinkLocal);
    header.ifa_prefixlen = 128;
    EXPECT_TRUE(read()->isLeased);
    times.ifa_valid = 0xffffffff;
    EXPECT_FALSE(read()->hasEnd);
    EXPECT_FALSE(read()->isLeased) << "somebody has set it";
}

TEST_F(KernelAddressesTest, CountOverTheEndOfTheTicks)
{
    times.cstamp = 0U - 1000;
    EXPECT_EQ(read()->age, 110s);
}

TEST_F(KernelAddressesTest, LeaveOutWhatIsNoAddressOfOurs)
{
    flags = IFA_F_DADFAILED;
    EXPECT_FALSE(read()) << "another computer has it";
    flags = 0;
    EXPECT_FALSE(read(RTM_DELADDR));
    EXPECT_FALSE(read(RTM_NEWADDR, octets.chopped(1)));
    EXPECT_FALSE(read(RTM_NEWADDR, {}));
    header.ifa_family = AF_INET;
    EXPECT_FALSE(read());
}

TEST_F(KernelAddressesTest, AreThoseOfTheRealKernel)
{
    const auto found = kernelIpv6Addresses(1);
    ASSERT_TRUE(found) << "it can be asked by anybody";
    for (const auto &address : *found) {
        EXPECT_EQ(address.octets.size(), 16);
    }
}

} // namespace
} // namespace quillon::test
