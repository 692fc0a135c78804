// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/RuleExecution.h"

#include "devices/AddressChanger.h"
#include "devices/DeviceTable.h"
#include "platform/NetworkHost.h"
#include "platform/Scheduler.h"
#include "rules/CountdownTimers.h"
#include "rules/RuleActions.h"
#include "rules/RuleQueries.h"
#include "store/model/QuillonModel.h"

#include <algorithm>

namespace quillon {

namespace {

/// How long after the helper's answer the link may still go down because of the change.
constexpr std::chrono::milliseconds settlingTime{5000};

bool changesAddress(const QList<RuleAction> &actions)
{
    return std::any_of(actions.begin(), actions.end(), [](const RuleAction &action) {
        return action.kind == RuleAction::Kind::RandomAddress ||
               action.kind == RuleAction::Kind::FixedAddress;
    });
}

/// A rule under another name is the same rule.
Visits::Act actOf(const RuleOutcome &outcome)
{
    QVariantMap rule = updateRuledictWithRule({}, outcome.networkRule);
    rule.remove(model::rule::name);
    return {rule, outcome.ssid};
}

} // namespace

RuleExecution::RuleExecution(const Collaborators &collaborators)
    : m_deps(collaborators)
{
}

void RuleExecution::applyRulesForDevice(
    const QString &device, const RuleOutcome &outcome, RuleChange change)
{
    const bool isDone = m_visits.isCarriedOut(device, actOf(outcome));
    switch (change) {
    case RuleChange::None:
    case RuleChange::OncePerVisit:
        // Under another rule, or on another network, what was carried out before is over.
        if (!isDone) {
            m_visits.sawOffNetwork(device, m_deps.scheduler.now());
        }
        if (change == RuleChange::OncePerVisit && !isDone) {
            applyNetworkRule(device, outcome);
        }
        break;
    case RuleChange::LoginAndNetworkRule:
        perform(device, actionsOfLoginRule(outcome.loginRule));
        [[fallthrough]];
    case RuleChange::NetworkRule:
        applyNetworkRule(device, outcome);
        break;
    }
}

void RuleExecution::applyNetworkRule(const QString &device, const RuleOutcome &outcome)
{
    const QList<RuleAction> actions = actionsOfNetworkRule(outcome.networkRule, outcome.linkIsUp);
    if (changesAddress(actions)) {
        m_visits.carryOut(device, actOf(outcome));
    }
    perform(device, actions);
}

void RuleExecution::perform(const QString &device, const QList<RuleAction> &actions)
{
    for (const RuleAction &action : actions) {
        switch (action.kind) {
        case RuleAction::Kind::RandomAddress:
            m_deps.addressChanger.genRandomMacAddressWithVendor(device, action.vendor);
            break;
        case RuleAction::Kind::FixedAddress:
            m_deps.addressChanger.updateMacAddressWithAddress(device, action.address);
            break;
        case RuleAction::Kind::StopCountdown:
            m_deps.timers.stopCountdownTimer(device);
            break;
        case RuleAction::Kind::StartCountdown:
            m_deps.timers.startCountDownTimer(device);
            break;
        }
    }
}

void RuleExecution::followVisits()
{
    const QStringList devices = m_visits.devices();
    const QDateTime now = m_deps.scheduler.now();
    for (const QString &device : devices) {
        // A table that could not be read, or a device that is no port for now, is not "taken away".
        if (!m_deps.devices.isPresent(device) &&
            m_deps.devices.getInfoForDevice(device).macAddress.isEmpty()) {
            m_visits.sawGone(device);
        } else if (m_deps.devices.record(device).isUp()) {
            m_visits.sawOnNetwork(device, now);
        } else {
            m_visits.sawOffNetwork(device, now);
        }
    }
}

void RuleExecution::addressChangeBegan(const QString &device)
{
    m_visits.changeBegan(device);
}

void RuleExecution::addressChangeEnded(const QString &device)
{
    m_deps.scheduler.onMainAfter(settlingTime, this, [this, device] {
        m_visits.changeSettled(
            device, m_deps.devices.record(device).isUp(), m_deps.scheduler.now());
    });
}

} // namespace quillon
