// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/RuleEvaluation.h"

#include "base/NetworkKeys.h"
#include "base/NotificationNames.h"
#include "base/SettingsKeys.h"
#include "devices/AddressChanger.h"
#include "devices/CurrentInterface.h"
#include "devices/DeviceTable.h"
#include "devices/RandomAddress.h"
#include "networks/ExternalIPAddress.h"
#include "networks/WiFiNetwork.h"
#include "platform/NetworkHost.h"
#include "platform/NotificationCenter.h"
#include "platform/Reachability.h"
#include "platform/Scheduler.h"
#include "platform/SettingsStore.h"
#include "rules/CountdownTimers.h"
#include "rules/RuleActions.h"
#include "rules/RuleInvariants.h"
#include "store/RecordStore.h"
#include "store/model/QuillonModel.h"

#include <QPointer>

#include <algorithm>

namespace quillon {

namespace {

const QString linkIsUp = QStringLiteral("active");
const QString networkKey = QStringLiteral("network");

/// How long after the helper's answer the link may still go down because of the change.
constexpr std::chrono::milliseconds settlingTime{5000};

bool isUp(const QVariantMap &record)
{
    return record.value(record::status).toString() == linkIsUp;
}

QList<RuleFacts> factsOf(const RuleList &rules)
{
    QList<RuleFacts> facts;
    facts.reserve(rules.size());
    for (const Rule &rule : rules) {
        facts.append({rule.device(), rule.network(), rule.isLogin(), rule.enabled()});
    }
    return facts;
}

bool changesAddress(const QList<RuleAction> &actions)
{
    return std::any_of(actions.begin(), actions.end(), [](const RuleAction &action) {
        return action.kind == RuleAction::Kind::RandomAddress ||
               action.kind == RuleAction::Kind::FixedAddress;
    });
}

} // namespace

RuleEvaluation::RuleEvaluation(const Collaborators &collaborators)
    : m_with(collaborators)
{
}

void RuleEvaluation::networkChanged()
{
    m_with.externalAddress.updateExternalIPAddress(false);
    const QVariantMap before = m_with.devices.devices();
    m_with.devices.updateNetWorkInterfaces();
    const QString changed = firstChangedDevice(before, m_with.devices.devices());
    followStays();
    if (m_with.devices.isDeviceWifi(changed)) {
        m_with.wifi.updateWiFiNetwork();
    }
    if (changed == m_with.currentInterface.device()) {
        m_with.currentInterface.updateInterface(changed);
    }
    if (!changed.isEmpty()) {
        const bool reachable = m_with.reachability.isReachable();
        evaluate({changed}, reachable ? Change::OncePerStay : Change::No);
    }
    Q_EMIT rulesListStale();
}

void RuleEvaluation::followStays()
{
    const QStringList devices = m_carriedOut.devices();
    const QDateTime now = m_with.scheduler.now();
    for (const QString &device : devices) {
        // The table keeps the last record of a device that was taken away.
        if (m_with.devices.getInfoForDevice(device).macAddress.isEmpty()) {
            m_carriedOut.sawGone(device);
        } else if (isUp(m_with.devices.record(device))) {
            m_carriedOut.sawOnNetwork(device, now);
        } else {
            m_carriedOut.sawOffNetwork(device, now);
        }
    }
}

void RuleEvaluation::checkDeviceForCurrentRuleAndChange(const QString &device, bool change)
{
    if (device == allDevices) {
        evaluate(m_with.devices.devices().keys(), change ? Change::WithLoginRules : Change::No);
    } else {
        evaluate({device}, change ? Change::Yes : Change::No);
    }
}

void RuleEvaluation::rulesWereChanged()
{
    checkDeviceForCurrentRuleAndChange(allDevices, false);
}

void RuleEvaluation::evaluate(const QStringList &devices, Change change)
{
    // The flags written here follow from the rules: nobody has to look after them.
    const RuleInvariants::Suspension suspension(m_with.invariants);
    for (const QString &device : devices) {
        evaluateDevice(device, change);
    }
}

void RuleEvaluation::evaluateDevice(const QString &device, Change change)
{
    const QVariantMap evaluated = record(device, decide(device));
    carryOut(device, evaluated, change);
    if (device == m_with.currentInterface.device()) {
        Q_EMIT ruleStatusEvaluated(device);
    }
    postOverview(device, evaluated);
}

RuleEvaluation::Outcome RuleEvaluation::decide(const QString &device)
{
    const RuleList selected = m_with.queries.rules(m_with.queries.filterPredicateForDevice(device));
    const RuleDecision decision = decideRules(factsOf(selected), device);
    const Rule loginRule = decision.loginRule ? selected.at(*decision.loginRule) : Rule();
    const Rule networkRule = decision.networkRule ? selected.at(*decision.networkRule) : Rule();
    markActive(m_with.queries.managedRuleArrayForDevice(device), {loginRule, networkRule});
    return {decision.status, updateRuledictWithRule({}, networkRule),
        updateRuledictWithRule({}, loginRule)};
}

void RuleEvaluation::markActive(const RuleList &rules, const RuleList &inForce)
{
    // A fact about the network, nothing that the user did and could undo.
    const ManagedObjectContext::UndoDisabled undoDisabled(m_with.store.managedObjectContext());
    for (const Rule &rule : rules) {
        const bool active = inForce.contains(rule);
        // Only what is not so already: an untouched rule needs no saving.
        if (rule.object()->value(model::rule::active) != QVariant(active)) {
            rule.setActive(active);
        }
    }
}

QVariantMap RuleEvaluation::record(const QString &device, const Outcome &outcome)
{
    QVariantMap table = m_with.devices.devices();
    QVariantMap record = table.value(device).toMap();
    record[record::hasRule] = static_cast<qlonglong>(outcome.status);
    record[record::rule] = outcome.rule;
    record[record::loginRule] = outcome.loginRule;
    // Rules come from other computers too; their devices are none of this one's.
    if (table.contains(device)) {
        table[device] = record;
        m_with.settings.set(keys::deviceDict, table);
        m_with.settings.synchronize();
    }
    return record;
}

void RuleEvaluation::carryOut(const QString &device, const QVariantMap &record, Change change)
{
    const CarriedOutRules::Occasion here = occasion(record);
    const bool isDone = m_carriedOut.isCarriedOut(device, here);
    // Under another rule, or on another network, what was carried out before is over.
    if ((change == Change::No || change == Change::OncePerStay) && !isDone) {
        m_carriedOut.sawOffNetwork(device, m_with.scheduler.now());
    }
    switch (change) {
    case Change::No:
        break;
    case Change::Yes:
        applyNetworkRule(device);
        break;
    case Change::WithLoginRules:
        applyRulesForDevice(device);
        break;
    case Change::OncePerStay:
        if (!isDone) {
            applyNetworkRule(device);
        }
        break;
    }
}

void RuleEvaluation::applyRulesForDevice(const QString &device)
{
    if (m_with.startedFromLogin()) {
        perform(device, actionsOfLoginRule(m_with.devices.record(device)));
    }
    applyNetworkRule(device);
}

void RuleEvaluation::applyNetworkRule(const QString &device)
{
    const QVariantMap record = m_with.devices.record(device);
    const QList<RuleAction> actions = actionsOfNetworkRule(record);
    if (changesAddress(actions)) {
        m_carriedOut.carryOut(device, occasion(record));
    }
    perform(device, actions);
}

void RuleEvaluation::perform(const QString &device, const QList<RuleAction> &actions)
{
    for (const RuleAction &action : actions) {
        switch (action.kind) {
        case RuleAction::Kind::RandomAddress:
            m_with.randomAddress.genRandomMacAddressWithVendor(device, action.vendor);
            break;
        case RuleAction::Kind::FixedAddress:
            m_with.addressChanger.updateMacAddressWithAddress(device, action.address);
            break;
        case RuleAction::Kind::StopCountdown:
            m_with.timers.stopCountdownTimer(device);
            break;
        case RuleAction::Kind::StartCountdown:
            m_with.timers.startCountDownTimer(device);
            break;
        }
    }
}

void RuleEvaluation::postOverview(const QString &device, const QVariantMap &record)
{
    const QVariantMap wifi = m_with.settings.getDictionary(keys::currentWiFiDict);
    const QVariantMap entry{
        {record::hasRule, record.value(record::hasRule)},
        {record::status, record.value(record::status).toString()},
        {networkKey, wifi.value(wifirecord::name).toString()},
    };
    m_with.notifications.post(notifications::updateOverview, this, {{device, entry}});
}

CarriedOutRules::Occasion RuleEvaluation::occasion(const QVariantMap &record) const
{
    QVariantMap rule = record.value(record::rule).toMap();
    rule.remove(model::rule::name);
    const QVariantMap wifi =
        isWifiRecord(record) ? m_with.settings.getDictionary(keys::currentWiFiDict) : QVariantMap();
    return {rule, wifi.value(wifirecord::SSID).toString()};
}

void RuleEvaluation::addressChangeBegan(const QString &device)
{
    m_carriedOut.changeBegan(device);
}

void RuleEvaluation::addressChangeEnded(const QString &device)
{
    m_with.scheduler.onMainAfter(settlingTime, [self = QPointer(this), device] {
        if (auto *const that = self.data()) {
            const bool isBack = isUp(that->m_with.devices.record(device));
            that->m_carriedOut.changeSettled(device, isBack, that->m_with.scheduler.now());
        }
    });
}

} // namespace quillon
