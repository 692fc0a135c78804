// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/RuleExecution.h"

#include "base/PropertyList.h"
#include "devices/DeviceTable.h"
#include "platform/Scheduler.h"
#include "rules/CountdownTimers.h"
#include "rules/RuleActions.h"
#include "rules/RuleQueries.h"
#include "store/model/QuillonModel.h"

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

using namespace std::chrono_literals;

/// How long after the helper's answer the link may still go down because of the change.
constexpr std::chrono::milliseconds settlingTime = 5s;
/// Failures are forgotten at most this often.
constexpr std::chrono::milliseconds forgettingTime = 1min;

bool changesAddress(const QList<RuleAction> &actions)
{
    return std::any_of(actions.begin(), actions.end(), [](const RuleAction &action) {
        return action.kind == RuleAction::Kind::RandomAddress ||
               action.kind == RuleAction::Kind::FixedAddress;
    });
}

/// A rule under another name is the same rule. Read from the record alone, and in one form: a
/// record that comes back from its file may spell a text otherwise that no file can hold.
Visits::Act actOf(const RuleOutcome &outcome)
{
    QVariantMap rule = updateRuledictWithRule({}, outcome.networkRule);
    rule.remove(model::rule::name);
    return {normalizedPropertyList(rule).toMap(), outcome.ssid};
}

} // namespace

RuleExecution::RuleExecution(const Collaborators &collaborators)
    : m_deps(collaborators)
    , m_watch(m_visits, collaborators.devices, collaborators.scheduler)
{
}

void RuleExecution::applyRulesForDevice(
    const QString &device, const RuleOutcome &outcome, RuleChange change)
{
    m_watch.followNetwork(device, outcome, actOf(outcome));
    if (change != RuleChange::None) {
        m_withheld.remove(device);
        if (!m_visits.isChanging(device)) {
            m_waiting.remove(device);
        }
    }
    switch (change) {
    case RuleChange::None:
        break;
    case RuleChange::Withheld:
        m_withheld.insert(device);
        noteWaiting(device, outcome);
        break;
    case RuleChange::OncePerVisit:
        applyOncePerVisit(device, outcome);
        break;
    case RuleChange::NetworkRule:
        m_visits.forget(device);
        applyNetworkRule(device, outcome);
        break;
    case RuleChange::LoginAndNetworkRule:
        if (outcome.loginRule.isNull()) {
            applyOncePerVisit(device, outcome);
            break;
        }
        applyLoginRule(device, outcome);
        m_visits.forget(device);
        applyNetworkRule(device, outcome);
        break;
    }
}

void RuleExecution::applyLoginRule(const QString &device, const RuleOutcome &outcome)
{
    perform(device, actionsOfLoginRule(outcome.loginRule),
        m_deps.scheduler.replyOnMain<ChangeOutcome>(
            this, [this, device, outcome](const ChangeOutcome &answer) {
                // The rule of the network has the last word, also where its address was in use
                // before.
                const auto standing = m_visits.standing(device, actOf(outcome), answer.address);
                if (standing == Visits::Standing::Undone) {
                    applyNetworkRule(device, outcome);
                }
            }));
}

void RuleExecution::applyOncePerVisit(const QString &device, const RuleOutcome &outcome)
{
    if (!changesAddress(actionsOfNetworkRule(outcome.networkRule, outcome.linkIsUp))) {
        applyNetworkRule(device, outcome);
        return;
    }
    switch (m_visits.standing(device, actOf(outcome), outcome.address)) {
    case Visits::Standing::UnderWay:
    case Visits::Standing::OwnNews:
        // Whether it was only news of the change itself is known when that has its answer, and
        // where it failed, when it has settled.
        m_unjudged.insert(device);
        break;
    case Visits::Standing::Done:
        break;
    case Visits::Standing::GivenUp:
        m_visits.leaveAsItIs(device);
        m_deps.addressChanger.tellUndone(device);
        break;
    case Visits::Standing::New:
    case Visits::Standing::Failed:
    case Visits::Standing::Undone: {
        const auto now = m_deps.scheduler.monotonic();
        const auto wait = std::max(m_limit.wait(device, now), m_visits.pause(device, now));
        if (wait.count() > 0) {
            putOff(device, wait);
            noteWaiting(device, outcome);
        } else {
            applyNetworkRule(device, outcome);
        }
        break;
    }
    }
}

void RuleExecution::applyNetworkRule(const QString &device, const RuleOutcome &outcome)
{
    const QList<RuleAction> actions = actionsOfNetworkRule(outcome.networkRule, outcome.linkIsUp);
    if (!changesAddress(actions)) {
        perform(device, actions, {});
        return;
    }
    m_unjudged.remove(device);
    m_waiting.remove(device);
    m_limit.asked(device, m_deps.scheduler.monotonic());
    const quint64 number = m_visits.carryOut(device, actOf(outcome));
    perform(device, actions,
        m_deps.scheduler.replyOnMain<ChangeOutcome>(
            this, [this, device, number](
                      const ChangeOutcome &answer) { changeAnswered(device, number, answer); }));
}

void RuleExecution::perform(
    const QString &device, const QList<RuleAction> &actions, const AddressChanger::Reply &reply)
{
    for (const RuleAction &action : actions) {
        switch (action.kind) {
        case RuleAction::Kind::RandomAddress:
            m_deps.addressChanger.genRandomMacAddressWithVendor(device, action.vendor, reply);
            break;
        case RuleAction::Kind::FixedAddress:
            m_deps.addressChanger.updateMacAddressWithAddress(device, action.address, reply);
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

void RuleExecution::changeAnswered(
    const QString &device, quint64 number, const ChangeOutcome &outcome)
{
    const auto now = m_deps.scheduler.monotonic();
    if (outcome.isInPlace) {
        m_visits.succeeded(device, number, outcome.requested);
    } else if (outcome.isConfirmed && !outcome.address.isEmpty()) {
        // Another program was quicker than the reading, or the driver keeps its address: nobody
        // will tell of that, so it is judged when the change has settled.
        m_limit.failed(device, now);
        m_visits.succeeded(device, number, outcome.requested);
        m_unjudged.insert(device);
        return;
    } else {
        m_limit.failed(device, now);
        // The cable was moved while somebody was asked: where it is now nobody was.
        if (m_visits.failed(device, number, outcome.requested, now)) {
            m_unjudged.insert(device);
        }
    }
    makeUpForUnjudged(device);
}

void RuleExecution::makeUpForUnjudged(const QString &device)
{
    if (m_unjudged.remove(device)) {
        m_withheld.insert(device);
        Q_EMIT obstacleEnded();
    }
}

void RuleExecution::putOff(const QString &device, std::chrono::milliseconds time)
{
    // The latest reckoning counts: a pause of another visit may be much longer.
    cancelPutOff(device);
    m_putOff[device] = m_deps.scheduler.onMainAfter(time, this, [this, device] {
        m_putOff.remove(device);
        m_withheld.insert(device);
        Q_EMIT obstacleEnded();
    });
}

void RuleExecution::cancelPutOff(const QString &device)
{
    if (const auto token = m_putOff.constFind(device); token != m_putOff.constEnd()) {
        m_deps.scheduler.cancel(*token);
        m_putOff.erase(token);
    }
}

void RuleExecution::noteWaiting(const QString &device, const RuleOutcome &outcome)
{
    if (changesAddress(actionsOfNetworkRule(outcome.networkRule, outcome.linkIsUp))) {
        m_waiting[device] = actOf(outcome);
    }
}

// A rule never undoes that on the same visit, whether it has acted there or was about to.
void RuleExecution::userChose(const QString &device)
{
    // A countdown goes on with other addresses, also over one of the user's: what waits has its
    // turn all the same.
    const bool isWaiting = m_waiting.contains(device) && !m_deps.timers.timers().contains(device);
    if (!isWaiting) {
        m_visits.leaveAsItIs(device);
        return;
    }
    m_visits.leaveAsItIs(device, m_waiting.take(device));
    m_withheld.remove(device);
    cancelPutOff(device);
}

void RuleExecution::helperWasFound()
{
    const auto now = m_deps.scheduler.monotonic();
    if (!m_helperIsMissing ||
        (m_failuresForgottenAt && now - *m_failuresForgottenAt < forgettingTime)) {
        return;
    }
    m_helperIsMissing = false;
    const QStringList failed = m_visits.forgetFailures();
    if (failed.isEmpty()) {
        return;
    }
    m_failuresForgottenAt = now;
    for (const QString &device : failed) {
        m_limit.forgetFailures(device);
        m_withheld.insert(device);
    }
    Q_EMIT obstacleEnded();
}

QStringList RuleExecution::withheldDevices() const
{
    QStringList devices = m_withheld.values();
    devices.removeIf([this](const QString &device) { return !m_deps.devices.isPresent(device); });
    devices.sort();
    return devices;
}

void RuleExecution::addressChangeBegan(const QString &device)
{
    m_visits.changeBegan(device);
}

void RuleExecution::addressChangeEnded(const QString &device, const ChangeOutcome &outcome)
{
    m_visits.changeAnswered(device);
    if (!outcome.wasAsked) {
        m_visits.changeNotAsked(device);
        helperWasMissed();
    }
    if (!outcome.isReported) {
        // By hand, or by a countdown.
        if (outcome.isInPlace) {
            userChose(device);
        } else {
            m_visits.otherChangeFailed(device);
        }
        makeUpForUnjudged(device);
    }
    if (!outcome.wasAsked) {
        return;
    }
    m_deps.scheduler.onMainAfter(settlingTime, this, [this, device] {
        m_visits.changeSettled(
            device, m_deps.devices.record(device).isUp(), m_deps.scheduler.now());
        makeUpForUnjudged(device);
    });
}

} // namespace quillon
