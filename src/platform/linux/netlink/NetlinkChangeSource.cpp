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
constexpr auto longestBurst = 1s;
// A burst that is longer is read on at the main loop's next turn.
constexpr int datagramsAtOnce = 1000;

} // namespace

NetlinkChangeSource::NetlinkChangeSource(Scheduler &scheduler)
    : m_scheduler(scheduler)
    , m_socket({.protocol = NETLINK_ROUTE,
          .groups = RTMGRP_LINK | RTMGRP_IPV4_IFADDR | RTMGRP_IPV4_ROUTE})
{
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
        error = lost ? 0 : error;
        changed = changed || lost || tellsOfChange(datagram);
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
