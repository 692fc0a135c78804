// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/netlink/NetlinkChangeSource.h"

#include "base/Log.h"
#include "platform/linux/netlink/LinkMessages.h"

#include <cerrno>
#include <cstring>
#include <linux/rtnetlink.h>
#include <utility>

namespace quillon {

namespace {

using namespace std::chrono_literals;

constexpr auto quietTime = 100ms;
constexpr auto longestBurst = 500ms;
// A burst that is longer is read on at the main loop's next turn.
constexpr int datagramsAtOnce = 1000;

constexpr std::uint32_t bitOf(rtnetlink_groups group)
{
    return std::uint32_t{1} << (group - 1);
}

constexpr std::uint32_t groups = bitOf(RTNLGRP_LINK) | bitOf(RTNLGRP_IPV4_IFADDR) |
                                 bitOf(RTNLGRP_IPV4_ROUTE) | bitOf(RTNLGRP_IPV6_IFADDR) |
                                 bitOf(RTNLGRP_IPV6_ROUTE) | bitOf(RTNLGRP_NEXTHOP);

} // namespace

NetlinkChangeSource::NetlinkChangeSource(Scheduler &scheduler)
    : m_scheduler(scheduler)
    , m_socket({.protocol = NETLINK_ROUTE, .groups = groups})
{
    // Before anybody reads the interfaces: what changes between that and start() waits here. When
    // it fails, start() tries again and says so.
    m_socket.open();
}

NetlinkChangeSource::~NetlinkChangeSource() = default;

void NetlinkChangeSource::start(std::function<void()> changed)
{
    m_burst =
        std::make_unique<BurstCollector>(m_scheduler, quietTime, longestBurst, std::move(changed));
    if (const int error = m_socket.open(); error != 0) {
        qCWarning(logPlatform, "Network changes will not be noticed: %s", std::strerror(error));
        return;
    }
    m_notifier = std::make_unique<QSocketNotifier>(m_socket.descriptor(), QSocketNotifier::Read);
    QObject::connect(
        m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] { read(); });
}

void NetlinkChangeSource::read()
{
    bool changed = false;
    int error = 0;
    for (int left = datagramsAtOnce; left > 0 && error == 0; --left) {
        ByteSpan datagram;
        error = m_socket.receive(datagram);
        // Messages that were lost told of something, and the socket goes on with the next one.
        const bool lost = error == ENOBUFS || error == EMSGSIZE;
        if (lost) {
            error = 0;
            m_addresses.forget();
            m_routes.forget();
        }
        const bool tells = tellsOfChange(datagram, m_addresses, m_routes);
        changed = changed || lost || tells;
    }
    if (error != 0 && error != EAGAIN) {
        qCWarning(logPlatform, "Network changes end: %s", std::strerror(error));
        m_notifier->setEnabled(false);
    }
    if (changed) {
        m_burst->happened();
    }
}

} // namespace quillon
