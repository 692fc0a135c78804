// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/features/RuleFeature.h"

#include "app/EventWiring.h"
#include "app/LaunchSequence.h"
#include "app/features/HistoryFeature.h"
#include "app/features/NetworkFeature.h"
#include "base/NotificationNames.h"
#include "devices/AddressChanger.h"
#include "platform/Platform.h"

namespace quillon {

namespace {

/// Connects a signal to a reaction until `wiring` ends.
template <typename From, typename Signal, typename Reaction>
void on(EventWiring &wiring, From &from, Signal signal, Reaction reaction)
{
    QObject::connect(&from, signal, &wiring, reaction);
}

} // namespace

RuleFeature::RuleFeature(const Platform &platform, const Collaborators &with)
    : queries(with.records.store, platform.settings, with.devices)
    , invariants({with.records.store, platform.scheduler, platform.notifications,
          [this] { return queries.namesArray(); }})
    , timers({platform.scheduler, platform.notifications, with.notifier, with.devices,
          with.randomAddress})
    , evaluation({platform.settings, platform.scheduler, platform.notifications, with.devices,
          with.currentInterface, with.networks.wifi, with.networks.externalAddress,
          platform.reachability, with.randomAddress, with.addressChanger, with.records.store,
          invariants, queries, timers, with.startedFromLogin})
    , switches({with.records.store, platform.notifications, queries, evaluation})
    , status(with.devices)
    , list({platform.settings, platform.notifications, with.currentInterface, queries})
    , countdown(timers, with.currentInterface)
    , m_notifications(platform.notifications)
    , m_with(with)
{
}

RuleFeature::~RuleFeature()
{
    if (m_namesArrayToken) {
        m_notifications.removeObserver(*m_namesArrayToken);
    }
}

void RuleFeature::connectTo(EventWiring &wiring, LaunchSequence &launch)
{
    connectRecords(wiring, launch);
    connectEvaluation(wiring, launch);
    connectModels(wiring, launch);
}

void RuleFeature::connectRecords(EventWiring &wiring, LaunchSequence &launch)
{
    RecordStore &store = m_with.records.store;
    on(wiring, launch, &LaunchSequence::recordStoreDue, [this] { queries.updateNamesArray(); });
    on(wiring, launch, &LaunchSequence::recordStoreDue,
        [this] { list.filterRulesArrayController(); });
    on(wiring, store, &RecordStore::objectsDidChange,
        [this](const ObjectsDidChange &change) { invariants.contextDidChange(change); });
    on(wiring, store, &RecordStore::objectsDidChange,
        [this](const ObjectsDidChange &change) { list.reloadAfter(change); });
    on(wiring, store, &RecordStore::recordsMerged, [this] { queries.updateNamesArray(); });
    on(wiring, store, &RecordStore::recordsMerged, [this] { list.reload(); });
    on(wiring, store, &RecordStore::managedObjectContextReplaced,
        [this] { queries.updateNamesArray(); });
    on(wiring, store, &RecordStore::managedObjectContextReplaced, [this] { list.reload(); });
    on(wiring, invariants, &RuleInvariants::ruleTableStale, [this] { list.reload(); });
    m_namesArrayToken = m_notifications.addObserver(
        notifications::updateNamesArray, [this](const auto &) { queries.updateNamesArray(); });
}

void RuleFeature::connectEvaluation(EventWiring &wiring, LaunchSequence &launch)
{
    on(wiring, launch, &LaunchSequence::firstRuleCheckDue,
        [this] { evaluation.checkDeviceForCurrentRuleAndChange(allDevices, true); });
    on(wiring, wiring, &EventWiring::ruleEvaluationDue,
        [this] { evaluation.checkDeviceForCurrentRuleAndChange(allDevices, false); });
    on(wiring, wiring, &EventWiring::networkChanged, [this] { evaluation.networkChanged(); });
    on(wiring, wiring, &EventWiring::ruleToggled,
        [this](const QVariantMap &userInfo) { switches.toggleRule(userInfo); });
    on(wiring, m_with.networks.networkEditing, &SavedNetworkEditing::rulesChanged,
        [this] { evaluation.rulesWereChanged(); });
    on(wiring, m_with.addressChanger, &AddressChanger::changeBegan,
        [this](const QString &device) { evaluation.addressChangeBegan(device); });
    on(wiring, m_with.addressChanger, &AddressChanger::changeEnded,
        [this](const QString &device) { evaluation.addressChangeEnded(device); });
}

void RuleFeature::connectModels(EventWiring &wiring, LaunchSequence &launch)
{
    on(wiring, launch, &LaunchSequence::countdownLabelDue, [this] { countdown.hideTimerLabel(); });
    on(wiring, wiring, &EventWiring::countdownLabelStale, [this] { countdown.hideTimerLabel(); });
    on(wiring, timers, &CountdownTimers::ticked,
        [this](const QString &device, const QString &text, bool isPaused) {
            countdown.showCountdown(device, text, isPaused);
        });
    on(wiring, timers, &CountdownTimers::timerLabelStale, [this] { countdown.hideTimerLabel(); });
    on(wiring, timers, &CountdownTimers::timerButtonsStale,
        [this] { countdown.resetTimerButtons(); });

    const auto showStatus = [this](const QString &device) {
        status.updateRuleStatusForDevice(device);
    };
    on(wiring, wiring, &EventWiring::ruleStatusStale, showStatus);
    on(wiring, evaluation, &RuleEvaluation::ruleStatusEvaluated, showStatus);
    on(wiring, evaluation, &RuleEvaluation::rulesListStale,
        [this] { list.filterRulesArrayController(); });
    on(wiring, switches, &RuleSwitches::rulesListStale,
        [this] { list.filterRulesArrayController(); });
    on(wiring, switches, &RuleSwitches::rulesTableStale, [this] { list.reload(); });
}

} // namespace quillon
