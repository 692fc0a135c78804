// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Scheduler.h"

class QSocketNotifier;

namespace quillon {

/// An alarm of the kernel's wall clock (timerfd_create(2), CLOCK_REALTIME): it also goes off when
/// the clock is set past its moment, and at once after a suspension. Main thread.
class RealtimeAlarm : public Scheduler::Alarm
{
public:
    /// None where the kernel has no descriptor left.
    static std::unique_ptr<Scheduler::Alarm> make(const QDateTime &moment, Scheduler::Task task);

    ~RealtimeAlarm() override;
    RealtimeAlarm(const RealtimeAlarm &) = delete;
    RealtimeAlarm &operator=(const RealtimeAlarm &) = delete;

private:
    RealtimeAlarm(int descriptor, const QDateTime &moment, Scheduler::Task task);

    bool arm();
    void read();

    int m_descriptor;
    QDateTime m_moment;
    Scheduler::Task m_task;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace quillon
