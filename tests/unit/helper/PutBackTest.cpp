// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/PutBack.h"

#include "unit/helper/KernelMessage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <linux/if_addr.h>
#include <linux/neighbour.h>
#include <linux/rtnetlink.h>

namespace quillon {
namespace {

using namespace test;

KernelMessage<ifaddrmsg> address(int family, int index = ourIndex)
{
    ifaddrmsg header{};
    header.ifa_family = static_cast<std::uint8_t>(family);
    header.ifa_index = static_cast<unsigned>(index);
    header.ifa_prefixlen = 24;
    return {RTM_NEWADDR, header};
}

TEST(PutBackAddress, keepsPrefixScopeLabelAndLifetimes)
{
    ifa_cacheinfo lifetimes{100, 200, 0, 0};
    Bytes lifetimeBytes(sizeof lifetimes);
    std::memcpy(lifetimeBytes.data(), &lifetimes, sizeof lifetimes);
    auto message = address(AF_INET);
    message.with(IFA_LOCAL, ourIPv4)
        .with(IFA_LABEL, Bytes{'e', ':', '1', 0})
        .with(IFA_CACHEINFO, lifetimeBytes);
    const auto body = addressToPutBack(message.header(), ourLink());
    ASSERT_TRUE(body);
    EXPECT_EQ(reinterpret_cast<const ifaddrmsg *>(body->data())->ifa_prefixlen, 24);
    EXPECT_EQ(attributeOf<ifaddrmsg>(*body, IFA_LOCAL), ourIPv4);
    EXPECT_EQ(attributeOf<ifaddrmsg>(*body, IFA_LABEL), (Bytes{'e', ':', '1', 0}));
    EXPECT_EQ(attributeOf<ifaddrmsg>(*body, IFA_CACHEINFO), lifetimeBytes);
}

TEST(PutBackAddress, asksOnlyForFlagsThatCanBeAsked)
{
    auto message = address(AF_INET6);
    message.with(IFA_ADDRESS, otherIPv6)
        .with(IFA_FLAGS, unsigned{IFA_F_PERMANENT | IFA_F_TENTATIVE | IFA_F_NOPREFIXROUTE});
    const auto body = addressToPutBack(message.header(), ourLink());
    ASSERT_TRUE(body);
    EXPECT_EQ(numberOf(attributeOf<ifaddrmsg>(*body, IFA_FLAGS)), unsigned{IFA_F_NOPREFIXROUTE});
}

TEST(PutBackAddress, leavesOtherInterfacesAlone)
{
    auto message = address(AF_INET, ourIndex + 1);
    message.with(IFA_LOCAL, ourIPv4);
    EXPECT_FALSE(addressToPutBack(message.header(), ourLink()));
}

TEST(PutBackAddress, neverBringsAnAddressBackThatBetraysTheOldLinkAddress)
{
    auto message = address(AF_INET6);
    message.with(IFA_ADDRESS, formedIPv6);
    EXPECT_FALSE(addressToPutBack(message.header(), ourLink()));
}

TEST(PutBackAddress, leavesToTheKernelWhatTheKernelMade)
{
    for (std::uint32_t flag :
        {std::uint32_t{IFA_F_TEMPORARY}, std::uint32_t{IFA_F_STABLE_PRIVACY}}) {
        auto message = address(AF_INET6);
        message.with(IFA_ADDRESS, otherIPv6).with(IFA_FLAGS, flag);
        EXPECT_FALSE(addressToPutBack(message.header(), ourLink())) << flag;
    }
    for (std::uint8_t origin : {std::uint8_t{IFAPROT_KERNEL_RA}, std::uint8_t{IFAPROT_KERNEL_LL}}) {
        auto message = address(AF_INET6);
        message.with(IFA_ADDRESS, linkLocal).with(IFA_PROTO, Bytes{origin});
        EXPECT_FALSE(addressToPutBack(message.header(), ourLink())) << int{origin};
    }
}

TEST(PutBackFormedAddress, isWhatWasFormedFromTheLinkAddressWhoeverDidIt)
{
    auto message = address(AF_INET6);
    message.with(IFA_ADDRESS, formedIPv6);
    const auto body = formedAddress(message.header(), ourLink());
    ASSERT_TRUE(body);
    EXPECT_EQ(attributeOf<ifaddrmsg>(*body, IFA_ADDRESS), formedIPv6);
    EXPECT_EQ(reinterpret_cast<const ifaddrmsg *>(body->data())->ifa_prefixlen, 24);
}

TEST(PutBackFormedAddress, isWhatTheKernelFormedFromAnEarlierLinkAddress)
{
    Bytes ofAnother = formedIPv6;
    ofAnother[15] ^= 1;
    for (std::uint8_t origin : {std::uint8_t{IFAPROT_KERNEL_RA}, std::uint8_t{IFAPROT_KERNEL_LL}}) {
        auto message = address(AF_INET6);
        message.with(IFA_ADDRESS, ofAnother).with(IFA_PROTO, Bytes{origin});
        EXPECT_TRUE(formedAddress(message.header(), ourLink())) << int{origin};
    }
    auto given = address(AF_INET6);
    given.with(IFA_ADDRESS, ofAnother);
    EXPECT_FALSE(formedAddress(given.header(), ourLink())) << "it may be a person's choice";
}

TEST(PutBackFormedAddress, isFormedAnewWithItsSubnetFlagsAndLifetimes)
{
    const ifa_cacheinfo lifetimes{100, 200, 0, 0};
    Bytes left(sizeof lifetimes);
    std::memcpy(left.data(), &lifetimes, sizeof lifetimes);
    auto message = address(AF_INET6);
    message.with(IFA_ADDRESS, formedIPv6)
        .with(IFA_CACHEINFO, left)
        .with(IFA_FLAGS, unsigned{IFA_F_MANAGETEMPADDR | IFA_F_DEPRECATED});
    const auto before = formedAddress(message.header(), ourLink());
    ASSERT_TRUE(before);
    EXPECT_EQ(linkOfAddress(*before), ourIndex);
    EXPECT_EQ(formedAnew(*before, ourLink().address), *before);

    const auto now = formedAnew(*before, {0x02, 0x11, 0x22, 0x33, 0x44, 0x55});
    Bytes expected = formedIPv6;
    const Bytes identifier{0x00, 0x11, 0x22, 0xff, 0xfe, 0x33, 0x44, 0x55};
    std::copy(identifier.begin(), identifier.end(), expected.begin() + 8);
    EXPECT_EQ(attributeOf<ifaddrmsg>(now, IFA_ADDRESS), expected);
    EXPECT_EQ(attributeOf<ifaddrmsg>(now, IFA_CACHEINFO), left);
    EXPECT_EQ(attributeOf<ifaddrmsg>(now, IFA_FLAGS), (Bytes{0, 1, 0, 0}))
        << "what the kernel found is no request";
}

TEST(PutBackFormedAddress, ofWhatIsNoneStaysAsItIs)
{
    const LinkConfiguration::Message nothing{1, 2, 3};
    EXPECT_EQ(formedAnew(nothing, ourLink().address), nothing);
    EXPECT_EQ(linkOfAddress(nothing), 0);
}

TEST(PutBackFormedAddress, isNothingElse)
{
    auto temporary = address(AF_INET6);
    temporary.with(IFA_ADDRESS, otherIPv6)
        .with(IFA_FLAGS, unsigned{IFA_F_TEMPORARY})
        .with(IFA_PROTO, Bytes{IFAPROT_KERNEL_RA});
    EXPECT_FALSE(formedAddress(temporary.header(), ourLink()));
    auto another = address(AF_INET6, ourIndex + 1);
    another.with(IFA_ADDRESS, formedIPv6);
    EXPECT_FALSE(formedAddress(another.header(), ourLink()));
    auto ipv4 = address(AF_INET);
    ipv4.with(IFA_ADDRESS, ourIPv4);
    EXPECT_FALSE(formedAddress(ipv4.header(), ourLink()));
    auto without = address(AF_INET6);
    EXPECT_FALSE(formedAddress(without.header(), ourLink()));
}

TEST(PutBackAddress, keepsALinkLocalAddressThatAPersonGave)
{
    auto message = address(AF_INET6);
    message.with(IFA_ADDRESS, linkLocal);
    EXPECT_TRUE(addressToPutBack(message.header(), ourLink()));
}

const Bytes routersLinkAddress{0x02, 0, 0, 0, 0, 0x99};
const Bytes ownLinkAddress{0x02, 0x11, 0x22, 0x33, 0x44, 0x55};
const Bytes groupLinkAddress{0x33, 0x33, 0, 0, 0, 0x16};

KernelMessage<ndmsg> neighbor(int state, int flags = 0, int index = ourIndex, int family = AF_INET)
{
    ndmsg header{};
    header.ndm_family = static_cast<std::uint8_t>(family);
    header.ndm_ifindex = index;
    header.ndm_state = static_cast<std::uint16_t>(state);
    header.ndm_flags = static_cast<std::uint8_t>(flags);
    return {RTM_NEWNEIGH, header};
}

TEST(PutBackNeighbor, keepsAStaticEntryAsItIs)
{
    auto message = neighbor(NUD_PERMANENT, NTF_ROUTER, ourIndex, AF_INET6);
    message.with(NDA_DST, otherIPv6)
        .with(NDA_LLADDR, routersLinkAddress)
        .with(NDA_PROBES, 3)
        .with(NDA_PROTOCOL, Bytes{RTPROT_STATIC});
    const auto body = neighborToPutBack(message.header(), ourLink());
    ASSERT_TRUE(body);
    const auto *header = reinterpret_cast<const ndmsg *>(body->data());
    EXPECT_EQ(header->ndm_state, NUD_PERMANENT);
    EXPECT_EQ(header->ndm_flags, NTF_ROUTER);
    EXPECT_EQ(header->ndm_ifindex, ourIndex);
    EXPECT_EQ(attributeOf<ndmsg>(*body, NDA_DST), otherIPv6);
    EXPECT_EQ(attributeOf<ndmsg>(*body, NDA_LLADDR), routersLinkAddress);
    EXPECT_EQ(attributeOf<ndmsg>(*body, NDA_PROTOCOL), Bytes{RTPROT_STATIC});
    EXPECT_TRUE(attributeOf<ndmsg>(*body, NDA_PROBES).empty());
}

TEST(PutBackNeighbor, leavesToTheKernelWhatTheKernelLearned)
{
    for (int state : {NUD_REACHABLE, NUD_STALE, NUD_DELAY, NUD_PROBE, NUD_FAILED, NUD_INCOMPLETE}) {
        auto message = neighbor(state);
        message.with(NDA_DST, gateway).with(NDA_LLADDR, routersLinkAddress);
        EXPECT_FALSE(neighborToPutBack(message.header(), ourLink())) << state;
    }
}

TEST(PutBackNeighbor, withoutResolutionIsKeptUnlessTheKernelMadeIt)
{
    const auto isKept = [](const Bytes &linkAddress) {
        auto message = neighbor(NUD_NOARP);
        message.with(NDA_DST, gateway).with(NDA_LLADDR, linkAddress);
        return neighborToPutBack(message.header(), ourLink()).has_value();
    };
    EXPECT_TRUE(isKept(routersLinkAddress));
    EXPECT_FALSE(isKept(groupLinkAddress));
    EXPECT_FALSE(isKept(ownLinkAddress));
}

TEST(PutBackNeighbor, keepsWhatAProgramLearnedManagesOrAnswersFor)
{
    auto learned = neighbor(NUD_REACHABLE, NTF_EXT_LEARNED);
    learned.with(NDA_DST, gateway).with(NDA_LLADDR, routersLinkAddress);
    EXPECT_TRUE(neighborToPutBack(learned.header(), ourLink()));
    auto proxy = neighbor(NUD_NONE, NTF_PROXY);
    proxy.with(NDA_DST, gateway);
    EXPECT_TRUE(neighborToPutBack(proxy.header(), ourLink()));
    auto managed = neighbor(NUD_REACHABLE);
    managed.with(NDA_DST, gateway)
        .with(NDA_LLADDR, routersLinkAddress)
        .with(NDA_FLAGS_EXT, unsigned{NTF_EXT_MANAGED});
    const auto body = neighborToPutBack(managed.header(), ourLink());
    ASSERT_TRUE(body);
    EXPECT_EQ(reinterpret_cast<const ndmsg *>(body->data())->ndm_state, NUD_NONE);
    EXPECT_TRUE(attributeOf<ndmsg>(*body, NDA_LLADDR).empty());
    EXPECT_EQ(numberOf(attributeOf<ndmsg>(*body, NDA_FLAGS_EXT)), unsigned{NTF_EXT_MANAGED});
}

TEST(PutBackNeighbor, leavesOtherInterfacesFamiliesAndMessagesAlone)
{
    auto other = neighbor(NUD_PERMANENT, 0, ourIndex + 1);
    other.with(NDA_DST, gateway).with(NDA_LLADDR, routersLinkAddress);
    EXPECT_FALSE(neighborToPutBack(other.header(), ourLink()));
    auto bridged = neighbor(NUD_PERMANENT, 0, ourIndex, AF_BRIDGE);
    bridged.with(NDA_DST, gateway).with(NDA_LLADDR, routersLinkAddress);
    EXPECT_FALSE(neighborToPutBack(bridged.header(), ourLink()));
    EXPECT_FALSE(neighborToPutBack(neighbor(NUD_PERMANENT).header(), ourLink()));
    KernelMessage notOne(RTM_NEWROUTE, rtmsg{});
    notOne.with(RTA_OIF, unsigned{ourIndex});
    EXPECT_FALSE(neighborToPutBack(notOne.header(), ourLink()));
}

} // namespace
} // namespace quillon
