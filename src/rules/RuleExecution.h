// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "rules/RuleOutcome.h"
#include "rules/Visits.h"

#include <QObject>

namespace quillon {

class AddressChanger;
class CountdownTimers;
class DeviceTable;
class Scheduler;
struct RuleAction;

/// Carries rules out: changes addresses, starts and stops countdowns. A rule that changes an
/// address once is not carried out again by news of the network while its device stays on it. Main
/// thread.
class RuleExecution : public QObject
{
    Q_OBJECT

public:
    struct Collaborators
    {
        Scheduler &scheduler;
        const DeviceTable &devices;
        AddressChanger &addressChanger;
        CountdownTimers &timers;
    };

    explicit RuleExecution(const Collaborators &collaborators);

    /// Does with what is in force for `device` what `change` says: the login rule's change, then
    /// what the network rule wants.
    void applyRulesForDevice(const QString &device, const RuleOutcome &outcome, RuleChange change);

    /// The device table was read anew: visits of devices whose link is down, or that are gone, end.
    void followVisits();
    /// An address change of `device` is about to be asked of the helper, or has come to its end.
    void addressChangeBegan(const QString &device);
    void addressChangeEnded(const QString &device);

private:
    void applyNetworkRule(const QString &device, const RuleOutcome &outcome);
    void perform(const QString &device, const QList<RuleAction> &actions);

    Collaborators m_deps;
    Visits m_visits;
};

} // namespace quillon
