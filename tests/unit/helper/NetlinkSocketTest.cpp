// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helper/NetlinkSocket.h"

#include <gtest/gtest.h>
#include <netlink/msg.h>

#include <cerrno>

namespace quillon {
namespace {

NetlinkMessage end()
{
    return NetlinkMessage{nlmsg_alloc_simple(NLMSG_DONE, NLM_F_MULTI)};
}

TEST(NetlinkSocketTest, tellsThatItBrokeOff)
{
    const NetlinkMessage message = end();
    int status = -ENOBUFS;
    ASSERT_EQ(nlmsg_append(message.get(), &status, sizeof status, NLMSG_ALIGNTO), 0);
    EXPECT_EQ(failureOfTable(nlmsg_hdr(message.get())), ENOBUFS);
}

TEST(NetlinkSocketTest, isGoodWithStatusZeroOrWithoutOne)
{
    const NetlinkMessage message = end();
    EXPECT_EQ(failureOfTable(nlmsg_hdr(message.get())), 0);
    int status = 0;
    ASSERT_EQ(nlmsg_append(message.get(), &status, sizeof status, NLMSG_ALIGNTO), 0);
    EXPECT_EQ(failureOfTable(nlmsg_hdr(message.get())), 0);
}

} // namespace
} // namespace quillon
