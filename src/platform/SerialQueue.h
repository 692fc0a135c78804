// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Scheduler.h"

#include <memory>

namespace quillon {

/// Background tasks one at a time, in the order in which they were added. Safe from every thread.
/// Destroying it drops the tasks that have not begun.
class SerialQueue
{
public:
    explicit SerialQueue(Scheduler &scheduler);
    ~SerialQueue();
    SerialQueue(const SerialQueue &) = delete;
    SerialQueue &operator=(const SerialQueue &) = delete;

    void add(Scheduler::Task task);

private:
    struct State;
    static void runNext(const std::shared_ptr<State> &state);

    std::shared_ptr<State> m_state;
};

} // namespace quillon
