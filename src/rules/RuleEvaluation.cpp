// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/RuleEvaluation.h"

#include "base/NotificationNames.h"
#include "base/SettingsKeys.h"
#include "devices/CurrentInterface.h"
#include "devices/DeviceTable.h"
#include "networks/WiFiRecord.h"
#include "platform/NotificationCenter.h"
#include "rules/RuleExecution.h"
#include "rules/RuleInvariants.h"
#include "store/RecordStore.h"
#include "store/model/QuillonModel.h"

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

const QString networkKey = u"network"_s;

QList<RuleInfo> infoOf(const RuleList &rules)
{
    QList<RuleInfo> info;
    info.reserve(rules.size());
    for (const Rule &rule : rules) {
        info.append({rule.device(), rule.network(), rule.isLogin(), rule.enabled()});
    }
    return info;
}

} // namespace

RuleEvaluation::RuleEvaluation(const Collaborators &collaborators)
    : m_deps(collaborators)
{
}

void RuleEvaluation::checkDeviceForCurrentRuleAndChange(const QString &device, RuleChange change)
{
    // The flags written here follow from the rules: nobody has to look after them.
    const RuleInvariants::Suspension suspension(m_deps.invariants);
    const QStringList devices = device == allDevices ? m_deps.devices.names() : QStringList{device};
    for (const QString &one : devices) {
        evaluateDevice(one, change);
    }
}

void RuleEvaluation::rulesWereChanged()
{
    checkDeviceForCurrentRuleAndChange(allDevices, RuleChange::None);
}

void RuleEvaluation::evaluateDevice(const QString &device, RuleChange change)
{
    const RuleOutcome outcome = decide(device);
    // Rules come from other computers too; their devices are none of this one's.
    if (m_deps.devices.contains(device)) {
        store(device, outcome);
        m_deps.execution.applyRulesForDevice(device, outcome, change);
    } else {
        m_deps.execution.applyRulesForDevice(device, {}, change);
    }
    if (device == m_deps.currentInterface.device()) {
        Q_EMIT ruleStatusEvaluated(device);
    }
    postOverview(device, outcome);
}

RuleOutcome RuleEvaluation::decide(const QString &device)
{
    const RuleList selected = m_deps.queries.rules(m_deps.queries.filterPredicateForDevice(device));
    const RuleDecision decision = decideRules(infoOf(selected), device);
    RuleOutcome outcome;
    outcome.status = decision.status;
    outcome.networkRule = decision.networkRule ? selected.at(*decision.networkRule) : Rule();
    outcome.loginRule = decision.loginRule ? selected.at(*decision.loginRule) : Rule();
    const DeviceRecord record = m_deps.devices.record(device);
    outcome.linkIsUp = record.isUp();
    outcome.isWifi = record.isWifi();
    outcome.address = record.current.value_or(QString());
    if (outcome.isWifi) {
        const WiFiRecord wifi = WiFiRecord::stored(m_deps.settings);
        outcome.ssid = wifi.isOf(device) ? wifi.ssid : QString();
    }
    markActive(
        m_deps.queries.managedRuleArrayForDevice(device), {outcome.loginRule, outcome.networkRule});
    return outcome;
}

void RuleEvaluation::markActive(const RuleList &rules, const RuleList &inForce)
{
    // A fact about the network, nothing that the user did and could undo.
    const ManagedObjectContext::UndoDisabled undoDisabled(m_deps.store.managedObjectContext());
    for (const Rule &rule : rules) {
        const bool active = inForce.contains(rule);
        // Only what is not so already: an untouched rule needs no saving.
        if (rule.object()->value(model::rule::active) != QVariant(active)) {
            rule.setActive(active);
        }
    }
}

void RuleEvaluation::store(const QString &device, const RuleOutcome &outcome)
{
    m_deps.devices.update(device, [&outcome](DeviceRecord &record) {
        record.hasRule = static_cast<qlonglong>(outcome.status);
        record.rule = updateRuledictWithRule({}, outcome.networkRule);
        record.loginRule = updateRuledictWithRule({}, outcome.loginRule);
    });
}

void RuleEvaluation::postOverview(const QString &device, const RuleOutcome &outcome)
{
    const QVariantMap entry{
        {record::hasRule, static_cast<qlonglong>(outcome.status)},
        {record::status, m_deps.devices.record(device).status.value_or(QString())},
        {networkKey, WiFiRecord::stored(m_deps.settings).name},
    };
    m_deps.notifications.post(notifications::updateOverview, this, {{device, entry}});
}

} // namespace quillon
