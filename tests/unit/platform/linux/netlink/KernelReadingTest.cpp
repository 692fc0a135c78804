// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/netlink/KernelReading.h"

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <gtest/gtest.h>

#include <atomic>
#include <cerrno>
#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

namespace quillon::test {
namespace {

using namespace std::chrono_literals;

class NetlinkSocket
{
public:
    explicit NetlinkSocket(int protocol)
        : m_descriptor(::socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC, protocol))
    {
        sockaddr_nl any{};
        any.nl_family = AF_NETLINK;
        EXPECT_EQ(::bind(m_descriptor, reinterpret_cast<sockaddr *>(&any), sizeof any), 0);
    }
    ~NetlinkSocket() { ::close(m_descriptor); }
    NetlinkSocket(const NetlinkSocket &) = delete;
    NetlinkSocket &operator=(const NetlinkSocket &) = delete;

    int descriptor() const { return m_descriptor; }
    sockaddr_nl address() const
    {
        sockaddr_nl own{};
        socklen_t size = sizeof own;
        ::getsockname(m_descriptor, reinterpret_cast<sockaddr *>(&own), &size);
        return own;
    }
    void send(const void *bytes, std::size_t size, sockaddr_nl to) const
    {
        ::sendto(
            m_descriptor, bytes, size, MSG_DONTWAIT, reinterpret_cast<sockaddr *>(&to), sizeof to);
    }

private:
    int m_descriptor;
};

TEST(KernelReading, EndsWithTheAnswer)
{
    const NetlinkSocket socket(NETLINK_ROUTE);
    struct
    {
        nlmsghdr header{};
        rtgenmsg body{};
    } question;
    question.header.nlmsg_len = sizeof question;
    question.header.nlmsg_type = RTM_GETLINK;
    question.header.nlmsg_flags = NLM_F_REQUEST | NLM_F_DUMP;
    sockaddr_nl kernel{};
    kernel.nl_family = AF_NETLINK;
    socket.send(&question, sizeof question, kernel);
    std::size_t read = 0;
    const int error =
        readFromKernel(socket.descriptor(), QDeadlineTimer(10s), [&read](ByteSpan datagram) {
            read += datagram.size();
            return true;
        });
    EXPECT_EQ(error, 0);
    EXPECT_GT(read, sizeof(nlmsghdr));
}

TEST(KernelReading, GivesUpAtTheDeadlineWhenNothingComes)
{
    const NetlinkSocket socket(NETLINK_ROUTE);
    QElapsedTimer elapsed;
    elapsed.start();
    const auto never = [](ByteSpan) { return true; };
    EXPECT_EQ(readFromKernel(socket.descriptor(), QDeadlineTimer(50ms), never), ETIMEDOUT);
    EXPECT_GE(elapsed.elapsed(), 50);
}

TEST(KernelReading, GivesUpAtTheDeadlineWhateverOthersSend)
{
    const NetlinkSocket socket(NETLINK_USERSOCK);
    const NetlinkSocket other(NETLINK_USERSOCK);
    std::atomic_bool isOver = false;
    std::thread sender([&] {
        // Ends by itself, so that the test does when the reading does not.
        for (const QDeadlineTimer end(5s); !isOver && !end.hasExpired();) {
            other.send("noise", 5, socket.address());
            std::this_thread::sleep_for(5ms);
        }
    });
    QElapsedTimer elapsed;
    elapsed.start();
    int taken = 0;
    const auto count = [&taken](ByteSpan) { return ++taken > 0; };
    EXPECT_EQ(readFromKernel(socket.descriptor(), QDeadlineTimer(200ms), count), ETIMEDOUT);
    EXPECT_LT(elapsed.elapsed(), 3000);
    EXPECT_EQ(taken, 0);
    isOver = true;
    sender.join();
}

TEST(KernelReading, AFaultIsNotWaitedFor)
{
    const auto never = [](ByteSpan) { return true; };
    EXPECT_EQ(readFromKernel(STDIN_FILENO + 1000, QDeadlineTimer(10s), never), EBADF);
}

} // namespace
} // namespace quillon::test
