// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Scheduler.h"

#include <QPointer>

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

Scheduler::Task whileAlive(const QObject *context, Scheduler::Task task)
{
    return [context = QPointer(context), task = std::move(task)] {
        if (context) {
            task();
        }
    };
}

/// A wait of a scheduler that outlives it.
class Wait : public Scheduler::Alarm
{
public:
    Wait(Scheduler &scheduler, Scheduler::Token token)
        : m_scheduler(scheduler)
        , m_token(token)
    {
    }
    ~Wait() override { m_scheduler.cancel(m_token); }
    Wait(const Wait &) = delete;
    Wait &operator=(const Wait &) = delete;

private:
    Scheduler &m_scheduler;
    Scheduler::Token m_token;
};

} // namespace

std::unique_ptr<Scheduler::Alarm> Scheduler::alarmAt(const QDateTime &moment, Task task)
{
    const std::chrono::milliseconds wait(std::max<qint64>(now().msecsTo(moment), 0));
    return std::make_unique<Wait>(*this, onMainAfter(wait, std::move(task)));
}

void Scheduler::onMain(const QObject *context, Task task)
{
    onMain(whileAlive(context, std::move(task)));
}

Scheduler::Token Scheduler::onMainAfter(
    std::chrono::milliseconds delay, const QObject *context, Task task)
{
    return onMainAfter(delay, whileAlive(context, std::move(task)));
}

} // namespace quillon
