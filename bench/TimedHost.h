// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bench/Request.h"
#include "platform/NetworkHost.h"

namespace quillon::bench {

/// Another host, and when its last answer about one interface was there.
class TimedHost : public NetworkHost
{
public:
    explicit TimedHost(NetworkHost &host)
        : m_host(host)
    {
    }

    std::optional<QList<PortRecord>> ports() override { return m_host.ports(); }
    InterfaceInfo info(const QString &device) override
    {
        const InterfaceInfo info = m_host.info(device);
        m_lastAnswer = Clock::now();
        return info;
    }
    Clock::time_point lastAnswer() const { return m_lastAnswer; }

private:
    NetworkHost &m_host;
    Clock::time_point m_lastAnswer;
};

} // namespace quillon::bench
