// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// usage: link-storm RATE SECONDS DEVICE...
// Started as root. Makes the kernel tell of RATE changes per second of the interfaces: link
// addresses, sizes, IPv4 addresses coming and going. Leaves each with the IPv4 address 10.99.N.1,
// N counting from 0, and the link address 02:57:00:00:00:N. The answer is one line: milliseconds
// taken, requests made, messages of links, of IPv4 addresses and of IPv4 routes that the kernel
// sent to whoever listens, and messages that even this program lost.
#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <linux/if_link.h>
#include <linux/rtnetlink.h>
#include <net/if.h>
#include <poll.h>
#include <span>
#include <stdexcept>
#include <string>
#include <sys/socket.h>
#include <system_error>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

constexpr int ownBuffer = 64 * 1024 * 1024;
constexpr auto pace = 2ms;
constexpr std::array<unsigned char, 4> firstAddress{10, 99, 0, 1};

void check(bool works, const char *what)
{
    if (!works) {
        throw std::system_error(errno, std::generic_category(), what);
    }
}

class RoutingSocket
{
public:
    explicit RoutingSocket(unsigned groups = 0)
        : m_descriptor(socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC, NETLINK_ROUTE))
    {
        check(m_descriptor >= 0, "socket");
        sockaddr_nl own{};
        own.nl_family = AF_NETLINK;
        own.nl_groups = groups;
        check(bind(m_descriptor, reinterpret_cast<sockaddr *>(&own), sizeof own) == 0, "bind");
        setsockopt(m_descriptor, SOL_SOCKET, SO_RCVBUFFORCE, &ownBuffer, sizeof ownBuffer);
    }
    ~RoutingSocket() { close(m_descriptor); }
    RoutingSocket(const RoutingSocket &) = delete;
    RoutingSocket &operator=(const RoutingSocket &) = delete;

    int descriptor() const { return m_descriptor; }
    ssize_t receive(std::span<std::byte> buffer, int flags = 0) const
    {
        return recv(m_descriptor, buffer.data(), buffer.size(), flags);
    }

private:
    int m_descriptor;
};

/// One request of rtnetlink(7) about an interface.
class Request
{
public:
    template <typename Header>
    Request(std::uint16_t type, int flags, const Header &header)
    {
        static_assert(sizeof header <= 32);
        head()->nlmsg_type = type;
        head()->nlmsg_flags = static_cast<std::uint16_t>(NLM_F_REQUEST | NLM_F_ACK | flags);
        head()->nlmsg_len = NLMSG_LENGTH(sizeof header);
        std::memcpy(NLMSG_DATA(head()), &header, sizeof header);
    }

    Request &add(std::uint16_t type, std::span<const unsigned char> value)
    {
        const auto begin = NLMSG_ALIGN(head()->nlmsg_len);
        const rtattr attribute{static_cast<std::uint16_t>(RTA_LENGTH(value.size())), type};
        std::memcpy(m_bytes.data() + begin, &attribute, sizeof attribute);
        std::memcpy(m_bytes.data() + begin + RTA_LENGTH(0), value.data(), value.size());
        head()->nlmsg_len = static_cast<std::uint32_t>(begin + RTA_SPACE(value.size()));
        return *this;
    }

    /// 0 or the kernel's errno.
    int make(const RoutingSocket &socket)
    {
        check(send(socket.descriptor(), m_bytes.data(), head()->nlmsg_len, 0) >= 0, "send");
        alignas(nlmsghdr) std::array<std::byte, 4096> answer{};
        check(socket.receive(answer) >= 0, "recv");
        const auto *const header = reinterpret_cast<const nlmsghdr *>(answer.data());
        const auto *const error = static_cast<const nlmsgerr *>(NLMSG_DATA(header));
        return header->nlmsg_type == NLMSG_ERROR ? -error->error : 0;
    }

private:
    nlmsghdr *head() { return reinterpret_cast<nlmsghdr *>(m_bytes.data()); }

    alignas(nlmsghdr) std::array<std::byte, 128> m_bytes{};
};

ifinfomsg linkHeader(int index)
{
    ifinfomsg header{};
    header.ifi_index = index;
    return header;
}

class Device
{
public:
    Device(const char *name, unsigned char number)
        : m_index(static_cast<int>(if_nametoindex(name)))
        , m_number(number)
    {
        check(m_index > 0, name);
    }

    int setLinkAddress(const RoutingSocket &socket, unsigned char variant) const
    {
        const std::array<unsigned char, 6> address{0x02, 0x57, 0, 0, variant, m_number};
        return Request(RTM_SETLINK, 0, linkHeader(m_index)).add(IFLA_ADDRESS, address).make(socket);
    }
    int setSize(const RoutingSocket &socket, std::uint32_t size) const
    {
        std::array<unsigned char, sizeof size> bytes{};
        std::memcpy(bytes.data(), &size, sizeof size);
        return Request(RTM_SETLINK, 0, linkHeader(m_index)).add(IFLA_MTU, bytes).make(socket);
    }
    int changeIPv4(const RoutingSocket &socket, bool add) const
    {
        ifaddrmsg header{};
        header.ifa_family = AF_INET;
        header.ifa_prefixlen = 32;
        header.ifa_index = static_cast<unsigned>(m_index);
        auto address = firstAddress;
        address[2] = m_number;
        return Request(add ? RTM_NEWADDR : RTM_DELADDR, add ? NLM_F_CREATE | NLM_F_EXCL : 0, header)
            .add(IFA_LOCAL, address)
            .add(IFA_ADDRESS, address)
            .make(socket);
    }

private:
    int m_index;
    unsigned char m_number;
};

/// Counts what the kernel tells, in a thread of its own, with room for all of it.
class Count
{
public:
    Count()
        : m_thread([this] { count(); })
    {
    }
    ~Count() { end(); }
    Count(const Count &) = delete;
    Count &operator=(const Count &) = delete;

    /// Once everything that was sent has been counted.
    void end()
    {
        if (m_thread.joinable()) {
            m_ending = true;
            m_thread.join();
        }
    }
    long events() const { return links + addresses; }

    std::atomic<long> links = 0;
    std::atomic<long> addresses = 0;
    std::atomic<long> routes = 0;
    std::atomic<long> lost = 0;

private:
    void count()
    {
        alignas(nlmsghdr) std::array<std::byte, 64 * 1024> buffer{};
        for (;;) {
            const ssize_t size = m_socket.receive(buffer, MSG_DONTWAIT);
            if (size < 0 && errno == ENOBUFS) {
                ++lost;
            } else if (size < 0) {
                if (m_ending) {
                    return;
                }
                pollfd readable{m_socket.descriptor(), POLLIN, 0};
                poll(&readable, 1, 20);
            } else {
                add(buffer.data(), static_cast<std::uint32_t>(size));
            }
        }
    }
    void add(std::byte *bytes, std::uint32_t size)
    {
        auto *header = reinterpret_cast<nlmsghdr *>(bytes);
        for (; NLMSG_OK(header, size); header = NLMSG_NEXT(header, size)) {
            const auto type = header->nlmsg_type;
            links += type == RTM_NEWLINK || type == RTM_DELLINK;
            addresses += type == RTM_NEWADDR || type == RTM_DELADDR;
            routes += type == RTM_NEWROUTE || type == RTM_DELROUTE;
        }
    }

    const RoutingSocket m_socket{RTMGRP_LINK | RTMGRP_IPV4_IFADDR | RTMGRP_IPV4_ROUTE};
    std::atomic<bool> m_ending = false;
    std::thread m_thread;
};

class Storm
{
public:
    explicit Storm(std::span<char *> names)
    {
        for (const char *name : names) {
            m_devices.emplace_back(name, static_cast<unsigned char>(m_devices.size()));
        }
    }

    long blow(long rate, std::chrono::seconds time)
    {
        const auto begin = Clock::now();
        // What the kernel tells is what counts: one request may make it send several messages.
        for (auto now = begin; now - begin < time; now = Clock::now()) {
            const double passed = std::chrono::duration<double>(now - begin).count();
            while (static_cast<double>(m_count.events()) < passed * static_cast<double>(rate) &&
                   Clock::now() - now < pace) {
                change();
            }
            std::this_thread::sleep_until(now + pace);
        }
        const auto taken = Clock::now() - begin;
        calm();
        return static_cast<long>(
            std::chrono::duration_cast<std::chrono::milliseconds>(taken).count());
    }

    void report(long milliseconds)
    {
        m_count.end();
        std::printf("%ld %ld %ld %ld %ld %ld\n", milliseconds, m_requests, m_count.links.load(),
            m_count.addresses.load(), m_count.routes.load(), m_count.lost.load());
    }

private:
    void change()
    {
        const Device &device =
            m_devices.at(static_cast<std::size_t>(m_requests / 4) % m_devices.size());
        const auto round = static_cast<unsigned char>(m_requests / 16);
        switch (m_requests++ % 4) {
        case 0:
            device.changeIPv4(m_socket, true);
            break;
        case 1:
            device.setLinkAddress(m_socket, round);
            break;
        case 2:
            device.changeIPv4(m_socket, false);
            break;
        default:
            device.setSize(m_socket, 1300U + round);
        }
    }
    void calm()
    {
        for (const Device &device : m_devices) {
            const int address = device.setLinkAddress(m_socket, 0);
            const int ipv4 = device.changeIPv4(m_socket, true);
            if (address != 0 || (ipv4 != 0 && ipv4 != EEXIST)) {
                throw std::system_error(
                    std::max(address, ipv4), std::generic_category(), "at the end");
            }
        }
    }

    const RoutingSocket m_socket;
    std::vector<Device> m_devices;
    long m_requests = 0;
    Count m_count;
};

} // namespace

int main(int argc, char **argv)
{
    if (argc < 4) {
        return 2;
    }
    try {
        Storm storm(std::span(argv, static_cast<std::size_t>(argc)).subspan(3));
        const long rate = std::stol(argv[1]);
        storm.report(storm.blow(rate, std::chrono::seconds(std::stol(argv[2]))));
    } catch (const std::exception &problem) {
        std::fprintf(stderr, "link-storm: %s\n", problem.what());
        return 1;
    }
}
