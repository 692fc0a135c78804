// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "devices/AddressChanger.h"
#include "rules/ChangeLimit.h"
#include "rules/RuleOutcome.h"
#include "rules/VisitWatch.h"
#include "rules/Visits.h"

#include <QHash>
#include <QObject>
#include <QSet>

#include <chrono>
#include <optional>

namespace quillon {

class CountdownTimers;
class DeviceTable;
class Scheduler;
struct RuleAction;

/// Carries rules out: changes addresses, starts and stops countdowns. A rule that changes an
/// address once is not carried out again by news of the network while its device stays on it,
/// unless that failed or another program has undone it. Main thread.
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
    void followVisits() { m_watch.followVisits(); }
    /// The machine was suspended, however short: visits of wired devices end.
    void machineSlept() { m_watch.machineSlept(); }
    /// An address change of `device` is about to be asked of the helper, or has come to its end.
    void addressChangeBegan(const QString &device);
    void addressChangeEnded(const QString &device, const ChangeOutcome &outcome = {});

    /// The devices whose rule was not carried out though there was news of them. To be evaluated
    /// once the internet can be reached. One that is away is not among them until it is back.
    QStringList withheldDevices() const;
    /// The helper was found installed, or not. Where it was missing, as a status or a change said,
    /// rules that failed are carried out now, once a minute at most: whoever may have the status
    /// read must not be able to make questions of it.
    void helperWasFound();
    void helperWasMissed() { m_helperIsMissing = true; }

Q_SIGNALS:
    /// What held a rule back, other than the internet, has ended: its device is withheld.
    void obstacleEnded();

private:
    void applyLoginRule(const QString &device, const RuleOutcome &outcome);
    void applyOncePerVisit(const QString &device, const RuleOutcome &outcome);
    void applyNetworkRule(const QString &device, const RuleOutcome &outcome);
    void perform(const QString &device, const QList<RuleAction> &actions,
        const AddressChanger::Reply &reply);
    void changeAnswered(const QString &device, quint64 number, const ChangeOutcome &outcome);
    void putOff(const QString &device, std::chrono::milliseconds time);
    void cancelPutOff(const QString &device);
    void noteWaiting(const QString &device, const RuleOutcome &outcome);
    void userChose(const QString &device);
    void makeUpForUnjudged(const QString &device);

    Collaborators m_deps;
    Visits m_visits;
    VisitWatch m_watch;
    ChangeLimit m_limit;
    QSet<QString> m_withheld;
    /// There is something to judge of these when a change has its answer, or has settled.
    QSet<QString> m_unjudged;
    /// What is to come at the end of a pause.
    QHash<QString, quint64> m_putOff;
    /// What was held back or put off on the network that the device is on.
    QHash<QString, Visits::Act> m_waiting;
    bool m_helperIsMissing = false;
    std::optional<std::chrono::milliseconds> m_failuresForgottenAt;
};

} // namespace quillon
