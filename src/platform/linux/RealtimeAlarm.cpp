// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/RealtimeAlarm.h"

#include "base/Log.h"

#include <QSocketNotifier>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <sys/timerfd.h>
#include <unistd.h>
#include <utility>

namespace quillon {

namespace {

constexpr qint64 millisecondsInSecond = 1000;
constexpr long nanosecondsInMillisecond = 1'000'000;

} // namespace

std::unique_ptr<Scheduler::Alarm> RealtimeAlarm::make(const QDateTime &moment, Scheduler::Task task)
{
    const int descriptor = ::timerfd_create(CLOCK_REALTIME, TFD_CLOEXEC | TFD_NONBLOCK);
    if (descriptor < 0) {
        qCWarning(logPlatform, "no descriptor for an alarm");
        return nullptr;
    }
    std::unique_ptr<RealtimeAlarm> alarm(new RealtimeAlarm(descriptor, moment, std::move(task)));
    if (!alarm->arm()) {
        return nullptr;
    }
    return alarm;
}

RealtimeAlarm::RealtimeAlarm(int descriptor, const QDateTime &moment, Scheduler::Task task)
    : m_descriptor(descriptor)
    , m_moment(moment)
    , m_task(std::move(task))
    , m_notifier(std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Read))
{
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, [this] { read(); });
}

RealtimeAlarm::~RealtimeAlarm()
{
    m_notifier->setEnabled(false);
    // It may be this alarm's own task that ends it.
    m_notifier.release()->deleteLater();
    ::close(m_descriptor);
}

bool RealtimeAlarm::arm()
{
    // Zero would disarm it.
    const qint64 due = std::max<qint64>(m_moment.toMSecsSinceEpoch(), 1);
    itimerspec when{};
    when.it_value.tv_sec = due / millisecondsInSecond;
    when.it_value.tv_nsec =
        static_cast<long>(due % millisecondsInSecond) * nanosecondsInMillisecond;
    return ::timerfd_settime(
               m_descriptor, TFD_TIMER_ABSTIME | TFD_TIMER_CANCEL_ON_SET, &when, nullptr) == 0;
}

void RealtimeAlarm::read()
{
    std::uint64_t count = 0;
    if (::read(m_descriptor, &count, sizeof count) == sizeof count) {
        m_notifier->setEnabled(false);
        // A copy: the task may end this alarm.
        const Scheduler::Task task = m_task;
        task();
    } else if (errno == ECANCELED) {
        // The clock was set. The moment is the same one; one that is past comes at once.
        arm();
    }
}

} // namespace quillon
