// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/RuleSwitches.h"

#include "base/Log.h"
#include "base/NotificationNames.h"
#include "platform/NotificationCenter.h"
#include "rules/RuleEvaluation.h"
#include "rules/RuleQueries.h"
#include "store/RecordStore.h"

namespace quillon {

using namespace Qt::StringLiterals;

namespace {

const QString objIDKey = u"objID"_s;
const QString stateKey = u"state"_s;

} // namespace

RuleSwitches::RuleSwitches(const Collaborators &collaborators)
    : m_deps(collaborators)
{
}

void RuleSwitches::toggleRule(const QVariantMap &userInfo)
{
    if (!userInfo.contains(objIDKey)) {
        return;
    }
    updateEnabledWithID(userInfo.value(stateKey).toBool(), userInfo.value(objIDKey).toString());
    Q_EMIT ruleToggled();
}

void RuleSwitches::updateEnabledWithID(bool enabled, const QString &objID)
{
    const Rule rule = m_deps.queries.ruleWithID(objID);
    if (rule.isNull()) {
        return;
    }
    rule.setEnabled(enabled);
    m_deps.store.managedObjectContext().processPendingChanges();
    enabledStatusChanged(rule);
    Q_EMIT ruleSwitched();
    if (m_deps.store.managedObjectContext().save()) {
        qCWarning(logRules) << "Rule not updated...";
    }
}

void RuleSwitches::enabledStatusChanged(const Rule &rule)
{
    const bool switchedOff = switchOffOthers(rule);
    m_deps.evaluation.checkDeviceForCurrentRuleAndChange(rule.device(), RuleChange::NetworkRule);
    if (switchedOff) {
        m_deps.notifications.post(notifications::showNetworkWarning, this);
    }
}

bool RuleSwitches::switchOffOthers(const Rule &rule)
{
    const QString device = rule.device();
    const QString network = rule.network();
    bool switchedOff = false;
    const RuleList rules = m_deps.queries.managedRuleArrayForDevice(device);
    for (const Rule &other : rules) {
        if (other != rule && other.enabled() && other.network() == network &&
            other.device() == device) {
            other.setEnabled(false);
            switchedOff = true;
        }
    }
    return switchedOff;
}

void RuleSwitches::disableAllRules()
{
    const RuleList rules = m_deps.queries.managedRuleArrayForDevice(allDevices);
    for (const Rule &rule : rules) {
        if (rule.enabled()) {
            rule.setEnabled(false);
        }
    }
    m_deps.store.managedObjectContext().processPendingChanges();
}

} // namespace quillon
