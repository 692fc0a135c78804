// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/owner/WatchedInterface.h"

#include <utility>

namespace quillon {

namespace {

using namespace std::chrono_literals;

// To join a network again, and a DHCP server's answer. Whoever takes longer than that most often
// does nothing at all.
constexpr auto limit = 20s;

} // namespace

WatchedInterface::WatchedInterface(Scheduler &scheduler, QString device, QString owner)
    : m_scheduler(scheduler)
    , m_device(std::move(device))
    , m_owner(std::move(owner))
    , m_watch(scheduler)
{
}

QString WatchedInterface::name() const
{
    return m_owner;
}

void WatchedInterface::prepare(Prepared prepared)
{
    m_before = readTraces(m_device);
    m_scheduler.onMain(this, [prepared = std::move(prepared)] { prepared(true); });
}

void WatchedInterface::settle(bool isChanged, Settled settled)
{
    if (!isChanged || !m_before) {
        m_scheduler.onMain(this, [settled = std::move(settled)] { settled(Outcome::Settled); });
        return;
    }
    m_watch.waitUntil(
        limit, [this] { return hasSettled(); },
        [this, settled = std::move(settled)](bool) { settled(m_lacking); });
}

bool WatchedInterface::hasSettled()
{
    const auto now = readTraces(m_device);
    if (now) {
        m_lacking = lacking(*m_before, *now);
    }
    // One that has gone does not come back as the same.
    return now && (m_lacking == Outcome::Settled || !now->isThere);
}

} // namespace quillon
