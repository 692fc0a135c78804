// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
// usage: measure-end-to-end FOLDER DEVICE
// Started as the ordinary user. Runs the program without windows, in FOLDER, with a rule that gives
// DEVICE a random address once whenever it joins a network. Its own clock runs fast, so that a stay
// on a network needs no minutes; nothing that is measured waits for that clock. Requests:
//   status TEXT     waits until the program knows DEVICE as TEXT and nothing is under way any more:
//                   the number of changes asked of the helper so far
//   latency COUNT   waits for the change after COUNT of them to be done: nanoseconds from the
//                   kernel's report of the last default route to the helper's request
//   watch           begins to watch the main thread and the memory
//   watched         nanoseconds of the longest stall since then, and kilobytes resident then, now
//                   and at most ever
//   table           device, link address, status and IPv4 address of every device in the table
#include "base/SettingsKeys.h"
#include "bench/ServeInLoop.h"
#include "integration/app/ComposedProgram.h"
#include "integration/app/Heartbeat.h"
#include "integration/app/RecordsFile.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFile>

#include <array>
#include <atomic>
#include <linux/rtnetlink.h>
#include <stdexcept>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

using namespace quillon;
using namespace quillon::bench;
using namespace std::chrono_literals;

constexpr int speed = 20;
constexpr auto patience = 20s;
// By the program's clock: longer than a change of an address may take to settle.
constexpr int settlingSeconds = 3;

/// When the kernel last told of a default route, noted by a thread that does nothing else.
class RouteWatch
{
public:
    RouteWatch()
        : m_descriptor(socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC, NETLINK_ROUTE))
    {
        sockaddr_nl own{};
        own.nl_family = AF_NETLINK;
        own.nl_groups = RTMGRP_IPV4_ROUTE;
        if (bind(m_descriptor, reinterpret_cast<sockaddr *>(&own), sizeof own) != 0) {
            throw std::runtime_error("no routing socket");
        }
        m_thread = std::thread([this] { watch(); });
        m_thread.detach(); // it ends with the process
    }

    Clock::time_point last() const { return m_last; }

private:
    void watch()
    {
        alignas(nlmsghdr) std::array<std::byte, 16 * 1024> buffer{};
        for (;;) {
            const ssize_t size = recv(m_descriptor, buffer.data(), buffer.size(), 0);
            const Clock::time_point now = Clock::now();
            auto left = static_cast<std::uint32_t>(std::max<ssize_t>(size, 0));
            auto *header = reinterpret_cast<nlmsghdr *>(buffer.data());
            for (; NLMSG_OK(header, left); header = NLMSG_NEXT(header, left)) {
                const auto *const route = static_cast<const rtmsg *>(NLMSG_DATA(header));
                if (header->nlmsg_type == RTM_NEWROUTE && route->rtm_dst_len == 0) {
                    m_last = now;
                }
            }
        }
    }

    int m_descriptor;
    std::atomic<Clock::time_point> m_last{Clock::time_point()};
    std::thread m_thread;
};

std::string kilobytes(const QByteArray &name)
{
    QFile status(u"/proc/self/status"_s);
    if (status.open(QIODevice::ReadOnly)) {
        const QList<QByteArray> lines = status.readAll().split('\n');
        for (const QByteArray &line : lines) {
            if (line.startsWith(name)) {
                return line.mid(name.size()).trimmed().split(' ').first().toStdString();
            }
        }
    }
    throw std::runtime_error("no " + name.toStdString());
}

class ProgramUnderTest
{
public:
    ProgramUnderTest(const QString &folder, QString device)
        : m_program(folder, speed)
        , m_device(std::move(device))
    {
        m_program.launch();
    }

    Words handle(const Words &request)
    {
        const std::string &what = request.at(0);
        if (what == "status") {
            return status(QString::fromStdString(request.at(1)));
        }
        if (what == "latency") {
            return latency(std::stol(request.at(1)));
        }
        if (what == "watch") {
            m_resident = kilobytes("VmRSS:");
            m_heartbeat.forget();
            return {m_resident};
        }
        if (what == "watched") {
            return {
                word(m_heartbeat.longest()), m_resident, kilobytes("VmRSS:"), kilobytes("VmHWM:")};
        }
        if (what == "table") {
            return table();
        }
        throw std::runtime_error("no such request: " + what);
    }

private:
    void waitFor(const std::function<bool()> &condition)
    {
        const QDeadlineTimer deadline(patience);
        while (!condition()) {
            if (deadline.hasExpired()) {
                throw std::runtime_error("it does not happen");
            }
            // The heartbeat wakes it.
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    }

    Words status(const QString &wanted)
    {
        waitFor([&] { return m_program.record(m_device).value(record::status) == wanted; });
        const QDateTime settled = m_program.now().addSecs(settlingSeconds);
        waitFor([&] { return m_program.now() >= settled; });
        return {std::to_string(m_program.helperLink.changes.size())};
    }

    Words latency(qsizetype before)
    {
        waitFor([&] { return m_program.helperLink.changes.size() > before; });
        const auto &change = m_program.helperLink.changes.at(before);
        // Only then does the change begin to settle.
        waitFor([&] {
            const QString known = m_program.record(m_device).value(record::current).toString();
            return known.compare(change.address, Qt::CaseInsensitive) == 0;
        });
        return {word(change.moment - m_routes.last())};
    }

    Words table() const
    {
        Words words;
        const QVariantMap devices = m_program.devices();
        for (auto device = devices.begin(); device != devices.end(); ++device) {
            const QVariantMap entry = device.value().toMap();
            words.push_back(device.key().toStdString());
            for (const QString &key : {record::current, record::status, record::ipAddress}) {
                words.push_back(entry.value(key).toString().toStdString());
            }
        }
        return words;
    }

    RouteWatch m_routes;
    test::ComposedProgram m_program;
    const QString m_device;
    test::Heartbeat m_heartbeat;
    std::string m_resident;
};

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    if (argc != 3) {
        return 2;
    }
    const QString folder = QString::fromLocal8Bit(argv[1]);
    const QString device = QString::fromLocal8Bit(argv[2]);
    if (!test::addRule(test::ComposedProgram::recordsPath(folder), test::randomOnceRule(device))) {
        return 1;
    }
    ProgramUnderTest program(folder, device);
    return serveInLoop([&program](const Words &request) { return program.handle(request); });
}
