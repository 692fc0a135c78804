// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "rules/CarriedOutRules.h"
#include "rules/RuleDecision.h"
#include "rules/RuleQueries.h"

#include <QObject>

#include <functional>

namespace quillon {

class AddressChanger;
class CountdownTimers;
class CurrentInterface;
class ExternalIPAddress;
class NotificationCenter;
class RandomAddress;
class Reachability;
class RuleInvariants;
class Scheduler;
class WiFiNetwork;
struct RuleAction;

/// Decides which rule is in force for each device on the network that it is on, keeps that decision
/// in the device record and in the rules' `active`, and carries rules out. Main thread.
class RuleEvaluation : public QObject
{
    Q_OBJECT

public:
    struct Collaborators
    {
        SettingsStore &settings;
        Scheduler &scheduler;
        NotificationCenter &notifications;
        DeviceTable &devices;
        CurrentInterface &currentInterface;
        WiFiNetwork &wifi;
        ExternalIPAddress &externalAddress;
        Reachability &reachability;
        RandomAddress &randomAddress;
        AddressChanger &addressChanger;
        RecordStore &store;
        RuleInvariants &invariants;
        const RuleQueries &queries;
        CountdownTimers &timers;
        /// True for a launch at login until the first evaluation of all devices has ended.
        std::function<bool()> startedFromLogin;
    };

    explicit RuleEvaluation(const Collaborators &collaborators);

    /// The network configuration changed. The first device whose record is not what it was is
    /// evaluated; others that changed as well are not. Its rule is carried out when the internet
    /// can be reached now, but a rule that changes the address once is not carried out again while
    /// the device stays on its network. Login rules wait for the evaluation of all devices.
    void networkChanged();
    /// Evaluates `device`, or every device for "all"; with `change` its network rule is carried
    /// out, and its login rule for "all" alone: a rule that is switched before the first evaluation
    /// of a launch at login would carry it out twice. Records are not saved.
    void checkDeviceForCurrentRuleAndChange(const QString &device, bool change);
    /// Carries out what the device record holds: the login rule for a launch at login, then the
    /// network rule.
    void applyRulesForDevice(const QString &device);
    /// Rules were edited: what they say is shown, and nothing is changed.
    void rulesWereChanged();

    /// An address change of `device` is about to be asked of the helper, or has come to its end.
    void addressChangeBegan(const QString &device);
    void addressChangeEnded(const QString &device);

Q_SIGNALS:
    /// The rule status of the selected device was evaluated. Before "updateOverview" is posted.
    void ruleStatusEvaluated(const QString &device);
    /// The rules that apply to the selected device may be other ones.
    void rulesListStale();

private:
    enum class Change
    {
        No,
        OncePerStay,    ///< the network rule, unless it was carried out already
        Yes,            ///< the network rule
        WithLoginRules, ///< both, as applyRulesForDevice() does it
    };

    /// What evaluation finds for one device.
    struct Outcome
    {
        RuleStatus status = RuleStatus::NoRule;
        QVariantMap rule;
        QVariantMap loginRule;
    };

    void evaluate(const QStringList &devices, Change change);
    void evaluateDevice(const QString &device, Change change);
    Outcome decide(const QString &device);
    void markActive(const RuleList &rules, const RuleList &inForce);
    QVariantMap record(const QString &device, const Outcome &outcome);
    void carryOut(const QString &device, const QVariantMap &record, Change change);
    void applyNetworkRule(const QString &device);
    void perform(const QString &device, const QList<RuleAction> &actions);
    void postOverview(const QString &device, const QVariantMap &record);
    void followStays();
    CarriedOutRules::Occasion occasion(const QVariantMap &record) const;

    Collaborators m_with;
    CarriedOutRules m_carriedOut;
};

} // namespace quillon
