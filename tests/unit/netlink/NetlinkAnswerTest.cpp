// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "netlink/NetlinkAnswer.h"

#include "unit/netlink/NetlinkBytes.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <climits>
#include <linux/rtnetlink.h>

namespace quillon::test {

namespace {

/// What the answer made of one datagram, and the types of the messages that it gave.
struct Taken
{
    NetlinkAnswer answer{.sequence = NetlinkBytes::sequence};
    std::vector<int> types;

    Taken &add(const NetlinkBytes &bytes)
    {
        answer.add(
            bytes.span(), [this](const nlmsghdr &message) { types.push_back(message.nlmsg_type); });
        return *this;
    }
};

Taken read(const NetlinkBytes &bytes)
{
    return Taken().add(bytes);
}

NetlinkBytes refusal(int status)
{
    nlmsgerr error{};
    error.error = status;
    return NetlinkBytes().message(NLMSG_ERROR, error, 0);
}

} // namespace

TEST(NetlinkAnswer, GoesOnAcrossDatagramsUntilTheTablesEnd)
{
    NetlinkBytes first;
    first.message(RTM_NEWLINK, ifinfomsg{}).message(RTM_NEWADDR, ifaddrmsg{});
    NetlinkBytes last;
    last.message(NLMSG_DONE, int{0}).message(RTM_NEWLINK, ifinfomsg{});
    Taken taken;
    EXPECT_FALSE(taken.add(first).answer.finished);
    EXPECT_TRUE(taken.add(last).add(first).answer.finished);
    EXPECT_EQ(taken.types, (std::vector<int>{RTM_NEWLINK, RTM_NEWADDR, NLMSG_DONE}));
    EXPECT_EQ(taken.answer.error, 0);
    EXPECT_FALSE(taken.answer.interrupted);
}

TEST(NetlinkAnswer, OneMessageIsCompleteWithItsAcknowledgement)
{
    NetlinkBytes bytes;
    bytes.message(RTM_NEWLINK, ifinfomsg{}, 0);
    EXPECT_FALSE(read(bytes).answer.finished);
    EXPECT_TRUE(read(bytes).add(refusal(0)).answer.finished);
    EXPECT_EQ(read(bytes).add(refusal(0)).answer.error, 0);
}

TEST(NetlinkAnswer, AnswersToOtherRequestsAreLeftOut)
{
    NetlinkBytes bytes;
    bytes.message(RTM_NEWLINK, ifinfomsg{}, NLM_F_MULTI | NLM_F_DUMP_INTR, 8);
    bytes.message(NLMSG_DONE, int{-ENOBUFS}, NLM_F_MULTI, 8);
    const Taken taken = read(bytes);
    EXPECT_TRUE(taken.types.empty());
    EXPECT_FALSE(taken.answer.finished || taken.answer.interrupted || taken.answer.error);
}

TEST(NetlinkAnswer, SeesThatTheTableChangedMeanwhile)
{
    NetlinkBytes bytes;
    bytes.message(RTM_NEWLINK, ifinfomsg{}, NLM_F_MULTI | NLM_F_DUMP_INTR);
    bytes.message(NLMSG_DONE, int{0});
    EXPECT_TRUE(read(bytes).answer.interrupted);
}

TEST(NetlinkAnswer, ARefusalEndsItWithItsErrno)
{
    EXPECT_EQ(read(refusal(-ENODEV)).answer.error, ENODEV);
    EXPECT_TRUE(read(refusal(-ENODEV)).answer.finished);
}

TEST(NetlinkAnswer, ATableThatBreaksOffIsAnErrorAndNotAShorterTable)
{
    NetlinkBytes bytes;
    bytes.message(RTM_NEWLINK, ifinfomsg{}).message(NLMSG_DONE, int{-ENOBUFS});
    EXPECT_EQ(read(bytes).answer.error, ENOBUFS);
    EXPECT_TRUE(read(bytes).answer.finished);
}

TEST(NetlinkAnswer, AStatusThatIsNoErrnoIsStillAnError)
{
    for (const int status : {1, -4096, INT_MIN}) {
        EXPECT_EQ(read(NetlinkBytes().message(NLMSG_DONE, status)).answer.error, EBADMSG) << status;
        EXPECT_EQ(read(refusal(status)).answer.error, EBADMSG) << status;
    }
    EXPECT_EQ(read(refusal(0).setMessageLength(sizeof(nlmsghdr))).answer.error, EBADMSG);
}

TEST(NetlinkAnswer, ATablesEndWithoutAStatusIsAGoodEnd)
{
    NetlinkBytes bytes;
    bytes.message(NLMSG_DONE, int{-ENOBUFS}).setMessageLength(sizeof(nlmsghdr));
    EXPECT_EQ(read(bytes).answer.error, 0);
    EXPECT_TRUE(read(bytes).answer.finished);
}

TEST(NetlinkAnswer, LyingLengthsEndTheReading)
{
    for (const std::size_t length : {0U, 1U, 15U, 21U, 4000U, 0x7fffffffU, 0xffffffffU}) {
        NetlinkBytes bytes;
        bytes.message(NLMSG_DONE, int{0}).setMessageLength(length);
        EXPECT_FALSE(read(bytes).answer.finished) << length;
    }
}

} // namespace quillon::test
