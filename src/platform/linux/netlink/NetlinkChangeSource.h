// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "netlink/NetlinkSocket.h"
#include "platform/NetworkChangeSource.h"
#include "platform/linux/netlink/BurstCollector.h"
#include "platform/linux/netlink/KnownAddresses.h"
#include "platform/linux/netlink/KnownRoutes.h"

#include <QSocketNotifier>

#include <memory>

namespace quillon {

class Scheduler;

/// The rtnetlink(7) groups for links, addresses and routes, IPv4 and IPv6, and for the objects that
/// routes may lead to. One action of a person or a network manager gives several messages within
/// milliseconds: they are one change, told when it has been quiet for 100 ms, at the latest after
/// half a second. What happens from the construction on is told, after start(). Main thread.
class NetlinkChangeSource : public NetworkChangeSource
{
public:
    explicit NetlinkChangeSource(Scheduler &scheduler);
    ~NetlinkChangeSource() override;

    void start(std::function<void()> changed) override;

private:
    void read();

    Scheduler &m_scheduler;
    NetlinkSocket m_socket;
    KnownAddresses m_addresses;
    KnownRoutes m_routes;
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::unique_ptr<BurstCollector> m_burst;
};

} // namespace quillon
