// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "netlink/NetlinkSocket.h"
#include "platform/Scheduler.h"

#include <QObject>
#include <QSocketNotifier>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace quillon {

/// Waits until links and addresses are as wanted. One wait at a time. Main thread.
class KernelWatch : public QObject
{
    Q_OBJECT

public:
    /// True ends the wait.
    using Look = std::function<bool()>;
    using End = std::function<void(bool isInTime)>;

    explicit KernelWatch(Scheduler &scheduler);
    ~KernelWatch() override;

    /// `look` is called in a later turn, whenever the kernel has told something, and once a second.
    /// `end` is called once, within `limit`, never before the call returns, and after that none of
    /// the two.
    void waitUntil(std::chrono::milliseconds limit, Look look, End end);

private:
    void listen();
    void read();
    void lookNow();
    void finish(bool isInTime);

    Scheduler &m_scheduler;
    NetlinkSocket m_socket;
    std::unique_ptr<QSocketNotifier> m_notifier;
    Look m_look;
    End m_end;
    std::chrono::milliseconds m_deadline{};
    std::optional<Scheduler::Token> m_tick;
};

} // namespace quillon
