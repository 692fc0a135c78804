// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Scheduler.h"

#include <QPointer>

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

} // namespace

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
