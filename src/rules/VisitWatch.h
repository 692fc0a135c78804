// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "rules/Visits.h"

#include <chrono>

namespace quillon {

class DeviceTable;
class Scheduler;
struct RuleOutcome;

/// Tells visits what is seen of their devices: on which network they are, whether they have a link,
/// and that the computer was suspended. Main thread.
class VisitWatch
{
public:
    /// Suspension is told by how far the wall clock runs ahead from here on.
    VisitWatch(Visits &visits, const DeviceTable &devices, const Scheduler &scheduler);

    /// The rules of `device` were evaluated; `act` is what that would carry out.
    void followNetwork(const QString &device, const RuleOutcome &outcome, const Visits::Act &act);
    /// The device table was read anew: visits of devices whose link is down, or that are gone, end.
    void followVisits();
    /// Wired networks have no names: whoever closes a computer may open it in another office.
    void machineSlept();

private:
    void followDevice(const QString &device);
    void noteSuspension();

    Visits &m_visits;
    const DeviceTable &m_devices;
    const Scheduler &m_scheduler;
    /// How far the wall clock was ahead of the one that stands still in suspension.
    std::chrono::milliseconds m_clockAhead;
};

} // namespace quillon
