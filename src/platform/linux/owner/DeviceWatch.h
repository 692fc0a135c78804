// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Scheduler.h"
#include "platform/linux/owner/NetworkManager.h"

#include <QObject>

#include <chrono>
#include <functional>
#include <optional>

namespace quillon {

/// Follows one device of NetworkManager until it is as wanted: also over a restart of
/// NetworkManager, after which the device has another path. One wait at a time. Main thread.
class DeviceWatch : public QObject
{
    Q_OBJECT

public:
    /// True ends the wait. None: NetworkManager does not know the device, or does not run.
    using Look = std::function<bool(const std::optional<NetworkManager::Device> &device)>;
    using End = std::function<void(bool isInTime)>;

    DeviceWatch(NetworkManager &networkManager, Scheduler &scheduler, QString device);
    ~DeviceWatch() override;

    /// `look` sees the device soon, whenever something has changed, and once a second. `end` is
    /// called once, within `limit`.
    void waitUntil(std::chrono::milliseconds limit, Look look, End end);

private:
    void lookNow();
    void finish(bool isInTime);

    NetworkManager &m_networkManager;
    Scheduler &m_scheduler;
    const QString m_device;
    Look m_look;
    End m_end;
    std::chrono::milliseconds m_deadline{};
    std::optional<Scheduler::Token> m_tick;
    bool m_isAsking = false;
    bool m_isStale = false; ///< something changed while it was asked
};

} // namespace quillon
