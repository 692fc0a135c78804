// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "netlink/NetlinkSocket.h"

#include "unit/netlink/NetlinkBytes.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cerrno>
#include <linux/rtnetlink.h>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

namespace quillon::test {

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr NetlinkSocket::Options routing{.protocol = NETLINK_ROUTE};

NetlinkSocket::Options patientFor(std::chrono::milliseconds patience)
{
    return {.protocol = NETLINK_ROUTE, .patience = patience};
}

/// The other end of a socket, which answers each request as it is told.
class FakeKernel
{
public:
    using Send = std::function<bool(const NetlinkBytes &)>;
    using Answer = std::function<void(quint32 sequence, const Send &send)>;

    explicit FakeKernel(Answer answer)
    {
        std::array<int, 2> ends{};
        EXPECT_EQ(::socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()), 0);
        m_descriptor = ends[0];
        m_thread = std::thread([own = ends[1], answer = std::move(answer), this] {
            const auto send = [own](const NetlinkBytes &bytes) {
                return ::send(own, bytes.span().data(), bytes.size(), MSG_NOSIGNAL) >= 0;
            };
            nlmsghdr request{};
            while (::recv(own, &request, sizeof request, 0) > 0) {
                ++m_requests;
                answer(request.nlmsg_seq, send);
            }
            ::close(own);
        });
    }
    /// Waits until the socket is closed.
    ~FakeKernel() { m_thread.join(); }
    FakeKernel(const FakeKernel &) = delete;
    FakeKernel &operator=(const FakeKernel &) = delete;

    int requests() const { return m_requests; }
    /// For a NetlinkSocket, which takes it over.
    int descriptor() const { return m_descriptor; }

private:
    int m_descriptor = -1;
    std::atomic_int m_requests = 0;
    std::thread m_thread;
};

NetlinkMessage question(int flags = NLM_F_DUMP)
{
    return netlinkMessage(RTM_GETLINK, flags, ifinfomsg{});
}

NetlinkBytes links(quint32 sequence, int count, quint16 flags = NLM_F_MULTI)
{
    NetlinkBytes bytes;
    for (int i = 0; i < count; ++i) {
        bytes.message(RTM_NEWLINK, ifinfomsg{}, flags, sequence);
    }
    return bytes;
}

NetlinkBytes table(quint32 sequence, int count, quint16 flags = NLM_F_MULTI)
{
    return links(sequence, count, flags).message(NLMSG_DONE, int{0}, NLM_F_MULTI, sequence);
}

/// What a question to a socket gave, and how long it took.
struct Reading
{
    explicit Reading(NetlinkSocket &socket)
    {
        const auto start = Clock::now();
        answer = socket.readTable(
            question(), [this] { ++restarts, taken = 0; },
            [this](const nlmsghdr &message) { taken += message.nlmsg_type == RTM_NEWLINK; });
        time = Clock::now() - start;
    }

    NetlinkAnswer answer;
    int taken = 0;
    int restarts = 0;
    Clock::duration time{};
};

} // namespace

TEST(NetlinkSocket, ReadsATableOfTheKernel)
{
    NetlinkSocket socket(routing);
    const Reading reading(socket);
    EXPECT_TRUE(reading.answer.finished);
    EXPECT_EQ(reading.answer.error, 0);
    EXPECT_GE(reading.taken, 1) << "the loopback at least";
}

TEST(NetlinkSocket, GivesTheKernelsRefusalAndGoesOn)
{
    NetlinkSocket socket(routing);
    ifinfomsg none{};
    none.ifi_index = 0x7ffffffe;
    EXPECT_EQ(socket.request(netlinkMessage(RTM_GETLINK, 0, none)).error, ENODEV);
    const int before = socket.descriptor();
    EXPECT_EQ(Reading(socket).answer.error, 0);
    EXPECT_EQ(socket.descriptor(), before);
}

TEST(NetlinkSocket, TellsWhyItCannotBeOpened)
{
    NetlinkSocket socket({.protocol = 1000});
    EXPECT_EQ(socket.open(), EPROTONOSUPPORT);
    EXPECT_EQ(Reading(socket).answer.error, EPROTONOSUPPORT);
    EXPECT_EQ(NetlinkSocket(routing).request(nullptr).error, ENOMEM);
}

TEST(NetlinkSocket, GivesUpWhenNothingComes)
{
    const FakeKernel kernel([](quint32, const auto &) {});
    NetlinkSocket socket(kernel.descriptor(), patientFor(50ms));
    const Reading reading(socket);
    EXPECT_EQ(reading.answer.error, ETIMEDOUT);
    EXPECT_FALSE(reading.answer.finished);
    EXPECT_GE(reading.time, 50ms);
}

TEST(NetlinkSocket, GivesUpAfterItsPatienceWhateverArrives)
{
    for (const bool toUs : {true, false}) {
        const FakeKernel kernel([toUs](quint32 sequence, const auto &send) {
            // Ends by itself, so that the test does when the reading does not.
            const auto end = Clock::now() + 1min;
            while (send(links(toUs ? sequence : sequence + 1, 1)) && Clock::now() < end) {
                std::this_thread::sleep_for(2ms);
            }
        });
        NetlinkSocket socket(kernel.descriptor(), patientFor(200ms));
        const Reading reading(socket);
        EXPECT_EQ(reading.answer.error, ETIMEDOUT);
        EXPECT_GE(reading.time, 200ms);
        EXPECT_LT(reading.time, 50s);
        EXPECT_EQ(reading.taken, 0) << "what was taken does not count";
        EXPECT_EQ(reading.restarts, 1);
    }
}

TEST(NetlinkSocket, GivesUpAlsoWhenTheKernelNeverStopsToSend)
{
    const FakeKernel kernel([](quint32 sequence, const auto &send) {
        for (const auto end = Clock::now() + 1min;
            Clock::now() < end && send(links(sequence, 1));) {
        }
    });
    NetlinkSocket socket(kernel.descriptor(), patientFor(100ms));
    const Reading reading(socket);
    EXPECT_EQ(reading.answer.error, ETIMEDOUT);
    EXPECT_LT(reading.time, 50s);
}

TEST(NetlinkSocket, ReadsATableThatChangedMeanwhileAgain)
{
    const FakeKernel kernel([count = 0](quint32 sequence, const auto &send) mutable {
        const bool interrupted = ++count < 3;
        send(table(sequence, count, interrupted ? NLM_F_MULTI | NLM_F_DUMP_INTR : NLM_F_MULTI));
    });
    NetlinkSocket socket(kernel.descriptor(), routing);
    const Reading reading(socket);
    EXPECT_EQ(reading.answer.error, 0);
    EXPECT_FALSE(reading.answer.interrupted);
    EXPECT_EQ(reading.restarts, 2);
    EXPECT_EQ(reading.taken, 3) << "of the third reading only";
}

TEST(NetlinkSocket, SaysThatATableChangesAllTheTime)
{
    const FakeKernel kernel([](quint32 sequence, const auto &send) {
        send(table(sequence, 2, NLM_F_MULTI | NLM_F_DUMP_INTR));
    });
    NetlinkSocket socket(kernel.descriptor(), routing);
    const Reading reading(socket);
    EXPECT_EQ(reading.answer.error, EINTR);
    EXPECT_TRUE(reading.answer.interrupted);
    EXPECT_EQ(reading.taken, 2);
    EXPECT_EQ(kernel.requests(), 8);
}

TEST(NetlinkSocket, AllReadingsOfATableShareItsPatience)
{
    const FakeKernel kernel([](quint32 sequence, const auto &send) {
        std::this_thread::sleep_for(80ms);
        send(table(sequence, 1, NLM_F_MULTI | NLM_F_DUMP_INTR));
    });
    NetlinkSocket socket(kernel.descriptor(), patientFor(200ms));
    const Reading reading(socket);
    // Each with a patience of its own would end otherwise, with a table that changes.
    EXPECT_EQ(reading.answer.error, ETIMEDOUT);
    EXPECT_EQ(reading.taken, 0);
}

TEST(NetlinkSocket, NeverTakesTheRestOfABrokenAnswerForAnother)
{
    const FakeKernel kernel([](quint32 sequence, const auto &send) { send(links(sequence, 1)); });
    NetlinkSocket socket(kernel.descriptor(), patientFor(50ms));
    EXPECT_EQ(Reading(socket).answer.error, ETIMEDOUT);
    EXPECT_EQ(socket.descriptor(), -1);
    // The next one is a new socket, to the real kernel.
    EXPECT_EQ(Reading(socket).answer.error, 0);
}

TEST(NetlinkSocket, AFaultIsNotWaitedFor)
{
    {
        NetlinkSocket socket(STDERR_FILENO + 1000, routing);
        EXPECT_EQ(Reading(socket).answer.error, EBADF);
    }
    const FakeKernel tooLarge([](quint32 sequence, const auto &send) {
        send(links(sequence, 1)
                .attribute(1, QByteArray(60'000, 'x'))
                .attribute(2, QByteArray(60'000, 'x')));
    });
    NetlinkSocket socket(tooLarge.descriptor(), routing);
    EXPECT_EQ(Reading(socket).answer.error, EMSGSIZE);
}

TEST(NetlinkSocket, LeavesOutWhatOtherProcessesSend)
{
    NetlinkSocket socket({.protocol = NETLINK_USERSOCK});
    NetlinkSocket other({.protocol = NETLINK_USERSOCK});
    ASSERT_EQ(socket.open(), 0);
    ASSERT_EQ(other.open(), 0);
    ByteSpan datagram;
    EXPECT_EQ(socket.receive(datagram), EAGAIN);
    sockaddr_nl to{};
    socklen_t size = sizeof to;
    ASSERT_EQ(::getsockname(socket.descriptor(), reinterpret_cast<sockaddr *>(&to), &size), 0);
    ASSERT_EQ(
        ::sendto(other.descriptor(), "noise", 5, 0, reinterpret_cast<sockaddr *>(&to), size), 5);
    EXPECT_EQ(socket.receive(datagram), 0);
    EXPECT_TRUE(datagram.empty());
    EXPECT_EQ(socket.receive(datagram), EAGAIN);
}

} // namespace quillon::test
