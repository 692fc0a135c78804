// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/HelperLink.h"
#include "platform/Scheduler.h"

#include <QList>

#include <chrono>
#include <functional>

namespace quillon::test {

/// Another link, and what the helper was asked to change through it, and when.
class WatchedHelperLink : public HelperLink
{
public:
    struct Change
    {
        QString device;
        QString address;
        QDateTime asked; ///< by `clock`
        std::chrono::steady_clock::time_point moment;
    };

    WatchedHelperLink(HelperLink &link, const Scheduler &clock)
        : m_link(link)
        , m_clock(clock)
    {
    }

    Result<QByteArray> createAuthorization() override { return m_link.createAuthorization(); }
    std::shared_ptr<XPCServiceConnection> connectToService(const QString &serviceName) override
    {
        return m_link.connectToService(serviceName);
    }
    std::shared_ptr<HelperToolConnection> connectToListenerEndpoint(
        const QString &endpoint) override;

    QList<Change> changes;
    /// Runs when the helper has answered a change, before anybody hears of the answer.
    std::function<void()> whenAnswered;

private:
    HelperLink &m_link;
    const Scheduler &m_clock;
};

} // namespace quillon::test
