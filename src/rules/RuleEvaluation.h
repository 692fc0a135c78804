// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "rules/RuleOutcome.h"
#include "rules/RuleQueries.h"

#include <QObject>

namespace quillon {

class CurrentInterface;
class NotificationCenter;
class RuleExecution;
class RuleInvariants;

/// Decides which rule is in force for each device on the network that it is on, keeps that decision
/// in the device record and in the rules' `active`, and has rules carried out. Main thread.
class RuleEvaluation : public QObject
{
    Q_OBJECT

public:
    struct Collaborators
    {
        const SettingsStore &settings;
        NotificationCenter &notifications;
        DeviceTable &devices;
        const CurrentInterface &currentInterface;
        RecordStore &store;
        RuleInvariants &invariants;
        const RuleQueries &queries;
        RuleExecution &execution;
    };

    explicit RuleEvaluation(const Collaborators &collaborators);

    /// Evaluates `device`, or every device for "all", and carries out what `change` says. Records
    /// are not saved.
    void checkDeviceForCurrentRuleAndChange(const QString &device, RuleChange change);
    /// Rules were edited: what they say is shown, and nothing is changed.
    void rulesWereChanged();

Q_SIGNALS:
    /// The rule status of the selected device was evaluated. Before "updateOverview" is posted.
    void ruleStatusEvaluated(const QString &device);

private:
    void evaluateDevice(const QString &device, RuleChange change);
    RuleOutcome decide(const QString &device);
    void markActive(const RuleList &rules, const RuleList &inForce);
    void store(const QString &device, const RuleOutcome &outcome);
    void postOverview(const QString &device, const RuleOutcome &outcome);

    Collaborators m_deps;
};

} // namespace quillon
