// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/owner/KernelWatch.h"

#include "base/Log.h"

#include <cerrno>
#include <cstring>
#include <linux/rtnetlink.h>
#include <utility>

namespace quillon {

namespace {

using namespace std::chrono_literals;

constexpr auto period = 1s;
// What is more is read at the main loop's next turn.
constexpr int datagramsAtOnce = 100;

constexpr std::uint32_t groups = RTMGRP_LINK | RTMGRP_IPV4_IFADDR | RTMGRP_IPV6_IFADDR;

} // namespace

KernelWatch::KernelWatch(Scheduler &scheduler)
    : m_scheduler(scheduler)
    , m_socket({.protocol = NETLINK_ROUTE, .groups = groups})
{
}

KernelWatch::~KernelWatch()
{
    if (m_tick) {
        m_scheduler.cancel(*m_tick);
    }
}

void KernelWatch::waitUntil(std::chrono::milliseconds limit, Look look, End end)
{
    m_look = std::move(look);
    m_end = std::move(end);
    m_deadline = m_scheduler.monotonic() + limit;
    m_tick = m_scheduler.repeat(period, [this] { lookNow(); });
    // Before the first look, so that nothing is missed between the two.
    listen();
    m_scheduler.onMain(this, [this] { lookNow(); });
}

void KernelWatch::listen()
{
    if (const int error = m_socket.open(); error != 0) {
        qCWarning(logPlatform, "The kernel is only asked once a second: %s", std::strerror(error));
        return;
    }
    m_notifier = std::make_unique<QSocketNotifier>(m_socket.descriptor(), QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] { read(); });
}

void KernelWatch::read()
{
    int error = 0;
    for (int left = datagramsAtOnce; left > 0 && error == 0; --left) {
        ByteSpan ignored;
        error = m_socket.receive(ignored);
        // Something was told, though it was lost.
        error = error == ENOBUFS || error == EMSGSIZE ? 0 : error;
    }
    if (error != 0 && error != EAGAIN) {
        m_notifier->setEnabled(false);
    }
    lookNow();
}

void KernelWatch::lookNow()
{
    if (!m_look) {
        return;
    }
    if (m_look()) {
        finish(true);
    } else if (m_scheduler.monotonic() >= m_deadline) {
        finish(false);
    }
}

void KernelWatch::finish(bool isInTime)
{
    m_scheduler.cancel(*std::exchange(m_tick, std::nullopt));
    if (m_notifier) {
        // It may be what calls.
        m_notifier->setEnabled(false);
        m_notifier.release()->deleteLater();
    }
    m_look = nullptr;
    const End end = std::exchange(m_end, nullptr);
    end(isInTime);
}

} // namespace quillon
