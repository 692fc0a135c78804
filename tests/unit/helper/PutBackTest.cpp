// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/PutBack.h"

#include <gtest/gtest.h>
#include <netlink/attr.h>
#include <netlink/msg.h>

#include <array>
#include <cstring>
#include <linux/if_addr.h>
#include <linux/neighbour.h>
#include <linux/rtnetlink.h>
#include <memory>

namespace quillon {
namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr int ourIndex = 7;
const Bytes gateway{192, 0, 2, 1};
const Bytes ourIPv4{192, 0, 2, 10};
const Bytes otherIPv6{0xfd, 0, 0x0d, 0xb8, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0x10};
// Formed from 02:11:22:33:44:55.
const Bytes formedIPv6{
    0xfd, 0, 0x0d, 0xb8, 0, 0, 0, 0, 0x00, 0x11, 0x22, 0xff, 0xfe, 0x33, 0x44, 0x55};
const Bytes linkLocal{0xfe, 0x80, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1};

/// A message as the kernel sends it.
template <typename Header>
class KernelMessage
{
public:
    KernelMessage(int type, const Header &header)
        : m_message{nlmsg_alloc_simple(type, 0), nlmsg_free}
    {
        auto copy = header;
        nlmsg_append(m_message.get(), &copy, sizeof copy, NLMSG_ALIGNTO);
    }
    KernelMessage &with(int type, const Bytes &value)
    {
        nla_put(m_message.get(), type, static_cast<int>(value.size()), value.data());
        return *this;
    }
    KernelMessage &with(int type, std::uint32_t value)
    {
        nla_put_u32(m_message.get(), type, value);
        return *this;
    }
    const nlmsghdr *header() const { return nlmsg_hdr(m_message.get()); }

private:
    std::unique_ptr<nl_msg, decltype(&nlmsg_free)> m_message;
};

LinkState ourLink()
{
    return {ourIndex, "enp1s0", 1, 0, {0x02, 0x11, 0x22, 0x33, 0x44, 0x55}};
}

KernelMessage<ifaddrmsg> address(int family, int index = ourIndex)
{
    ifaddrmsg header{};
    header.ifa_family = static_cast<std::uint8_t>(family);
    header.ifa_index = static_cast<unsigned>(index);
    header.ifa_prefixlen = 24;
    return {RTM_NEWADDR, header};
}

rtmsg routeHeader(int family)
{
    rtmsg header{};
    header.rtm_family = static_cast<std::uint8_t>(family);
    header.rtm_type = RTN_UNICAST;
    header.rtm_protocol = RTPROT_STATIC;
    header.rtm_table = RT_TABLE_MAIN;
    return header;
}

KernelMessage<rtmsg> route(rtmsg header = routeHeader(AF_INET))
{
    return {RTM_NEWROUTE, header};
}

/// The value of an attribute in a message's body, or nothing.
template <typename Header>
Bytes attributeOf(const Bytes &body, int type)
{
    const auto start = NLMSG_ALIGN(sizeof(Header));
    auto *attributes = reinterpret_cast<nlattr *>(const_cast<std::uint8_t *>(body.data()) + start);
    const auto *found = nla_find(attributes, static_cast<int>(body.size() - start), type);
    if (found == nullptr) {
        return {};
    }
    const auto *data = static_cast<const std::uint8_t *>(nla_data(found));
    return {data, data + nla_len(found)};
}

std::uint32_t numberOf(const Bytes &bytes)
{
    std::uint32_t number = 0;
    if (bytes.size() == sizeof number) {
        std::memcpy(&number, bytes.data(), sizeof number);
    }
    return number;
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

TEST(PutBackAddress, keepsALinkLocalAddressThatAPersonGave)
{
    auto message = address(AF_INET6);
    message.with(IFA_ADDRESS, linkLocal);
    EXPECT_TRUE(addressToPutBack(message.header(), ourLink()));
}

TEST(PutBackRoute, keepsEverythingButWhatTheKernelFound)
{
    auto header = routeHeader(AF_INET);
    header.rtm_flags = RTNH_F_LINKDOWN | RTNH_F_DEAD | RTNH_F_ONLINK;
    auto message = route(header);
    message.with(RTA_OIF, unsigned{ourIndex})
        .with(RTA_GATEWAY, gateway)
        .with(RTA_PRIORITY, 100)
        .with(RTA_TABLE, 1234)
        .with(RTA_NH_ID, 5);
    const auto body = routeToPutBack(message.header(), ourLink());
    ASSERT_TRUE(body);
    EXPECT_EQ(reinterpret_cast<const rtmsg *>(body->data())->rtm_flags, unsigned{RTNH_F_ONLINK});
    EXPECT_EQ(attributeOf<rtmsg>(*body, RTA_GATEWAY), gateway);
    EXPECT_EQ(numberOf(attributeOf<rtmsg>(*body, RTA_PRIORITY)), 100U);
    EXPECT_EQ(numberOf(attributeOf<rtmsg>(*body, RTA_TABLE)), 1234U);
    EXPECT_TRUE(attributeOf<rtmsg>(*body, RTA_NH_ID).empty());
    EXPECT_TRUE(hasGateway(*body));
    EXPECT_FALSE(hasSourceAddress(*body));
}

TEST(PutBackRoute, turnsWhatIsLeftOfItsTimeIntoANewTime)
{
    rta_cacheinfo info{};
    info.rta_expires = static_cast<int>(60 * sysconf(_SC_CLK_TCK));
    Bytes bytes(sizeof info);
    std::memcpy(bytes.data(), &info, sizeof info);
    auto message = route(routeHeader(AF_INET6));
    message.with(RTA_OIF, unsigned{ourIndex}).with(RTA_CACHEINFO, bytes);
    const auto body = routeToPutBack(message.header(), ourLink());
    ASSERT_TRUE(body);
    EXPECT_EQ(numberOf(attributeOf<rtmsg>(*body, RTA_EXPIRES)), 61U);
    EXPECT_TRUE(attributeOf<rtmsg>(*body, RTA_CACHEINFO).empty());
}

TEST(PutBackRoute, leavesOtherInterfacesAlone)
{
    auto message = route();
    message.with(RTA_OIF, unsigned{ourIndex + 1});
    EXPECT_FALSE(routeToPutBack(message.header(), ourLink()));
    EXPECT_FALSE(routeToPutBack(route().header(), ourLink()));
}

TEST(PutBackRoute, findsTheInterfaceAmongSeveralHopsAndClearsTheirStates)
{
    Bytes hops;
    for (int index : {ourIndex + 1, ourIndex}) {
        rtnexthop hop{};
        hop.rtnh_len = sizeof hop;
        hop.rtnh_flags = RTNH_F_DEAD | RTNH_F_LINKDOWN;
        hop.rtnh_ifindex = index;
        const auto *bytes = reinterpret_cast<const std::uint8_t *>(&hop);
        hops.insert(hops.end(), bytes, bytes + sizeof hop);
    }
    auto message = route();
    message.with(RTA_MULTIPATH, hops);
    const auto body = routeToPutBack(message.header(), ourLink());
    ASSERT_TRUE(body);
    const auto kept = attributeOf<rtmsg>(*body, RTA_MULTIPATH);
    ASSERT_EQ(kept.size(), hops.size());
    EXPECT_EQ(reinterpret_cast<const rtnexthop *>(kept.data())->rtnh_flags, 0);
    EXPECT_TRUE(hasGateway(*body));
}

TEST(PutBackRoute, withHopsOfImpossibleLengthIsNotFollowed)
{
    rtnexthop hop{};
    hop.rtnh_ifindex = ourIndex;
    for (std::uint16_t length : {std::uint16_t{0}, std::uint16_t{4}, std::uint16_t{200}}) {
        hop.rtnh_len = length;
        Bytes bytes(sizeof hop);
        std::memcpy(bytes.data(), &hop, sizeof hop);
        auto message = route();
        message.with(RTA_MULTIPATH, bytes);
        EXPECT_FALSE(routeToPutBack(message.header(), ourLink())) << length;
    }
}

TEST(PutBackRoute, leavesToOthersWhatOthersMake)
{
    auto cloned = routeHeader(AF_INET6);
    cloned.rtm_flags = RTM_F_CLONED;
    auto advertised = routeHeader(AF_INET6);
    advertised.rtm_protocol = RTPROT_RA;
    auto redirected = routeHeader(AF_INET6);
    redirected.rtm_protocol = RTPROT_REDIRECT;
    for (const auto &header : {cloned, advertised, redirected}) {
        auto message = route(header);
        message.with(RTA_OIF, unsigned{ourIndex});
        EXPECT_FALSE(routeToPutBack(message.header(), ourLink()));
    }
    auto kernels = routeHeader(AF_INET6);
    kernels.rtm_protocol = RTPROT_KERNEL;
    auto message = route(kernels);
    message.with(RTA_OIF, unsigned{ourIndex}).with(RTA_DST, linkLocal);
    EXPECT_FALSE(routeToPutBack(message.header(), ourLink()));
}

TEST(PutBackRoute, ofAnyTypeIsKeptUnlessTheKernelMadeIt)
{
    for (int family : {AF_INET, AF_INET6}) {
        for (std::uint8_t type : {RTN_LOCAL, RTN_BROADCAST, RTN_ANYCAST, RTN_MULTICAST}) {
            auto header = routeHeader(family);
            header.rtm_type = type;
            auto given = route(header);
            given.with(RTA_OIF, unsigned{ourIndex});
            const auto body = routeToPutBack(given.header(), ourLink());
            ASSERT_TRUE(body) << int{type};
            EXPECT_EQ(reinterpret_cast<const rtmsg *>(body->data())->rtm_type, type);
            header.rtm_protocol = RTPROT_KERNEL;
            auto kernels = route(header);
            kernels.with(RTA_OIF, unsigned{ourIndex});
            EXPECT_FALSE(routeToPutBack(kernels.header(), ourLink())) << int{type};
        }
    }
}

TEST(PutBackRoute, keepsPrefixRoutesThatAManagerAddedUnderTheKernelsName)
{
    auto header = routeHeader(AF_INET);
    header.rtm_protocol = RTPROT_KERNEL;
    auto message = route(header);
    message.with(RTA_OIF, unsigned{ourIndex}).with(RTA_PREFSRC, ourIPv4);
    const auto body = routeToPutBack(message.header(), ourLink());
    ASSERT_TRUE(body);
    EXPECT_TRUE(hasSourceAddress(*body));
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
    auto notOne = route();
    notOne.with(RTA_OIF, unsigned{ourIndex});
    EXPECT_FALSE(neighborToPutBack(notOne.header(), ourLink()));
}

} // namespace
} // namespace quillon
