// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/NotificationCenter.h"
#include "presentation/rules/CountdownModel.h"
#include "presentation/rules/RuleStatusModel.h"
#include "presentation/rules/RulesListModel.h"
#include "rules/CountdownTimers.h"
#include "rules/RuleEvaluation.h"
#include "rules/RuleInvariants.h"
#include "rules/RuleQueries.h"
#include "rules/RuleSwitches.h"

#include <functional>
#include <optional>

namespace quillon {

class EventWiring;
class LaunchSequence;
class Notifier;
struct NetworkFeature;
struct Platform;
struct HistoryFeature;

/// Everything about rules, put together: their queries, evaluation, switches and countdowns, what
/// keeps their records consistent, and what the window shows of them.
struct RuleFeature
{
    struct Collaborators
    {
        Notifier &notifier;
        DeviceTable &devices;
        CurrentInterface &currentInterface;
        RandomAddress &randomAddress;
        AddressChanger &addressChanger;
        HistoryFeature &records;
        NetworkFeature &networks;
        std::function<bool()> startedFromLogin;
    };

    RuleFeature(const Platform &platform, const Collaborators &with);
    ~RuleFeature();
    RuleFeature(const RuleFeature &) = delete;
    RuleFeature &operator=(const RuleFeature &) = delete;

    /// Connections only; they end with `wiring`.
    void connectTo(EventWiring &wiring, LaunchSequence &launch);

    RuleQueries queries;
    RuleInvariants invariants;
    CountdownTimers timers;
    RuleEvaluation evaluation;
    RuleSwitches switches;

    RuleStatusModel status;
    RulesListModel list;
    CountdownModel countdown;

private:
    void connectRecords(EventWiring &wiring, LaunchSequence &launch);
    void connectEvaluation(EventWiring &wiring, LaunchSequence &launch);
    void connectModels(EventWiring &wiring, LaunchSequence &launch);

    NotificationCenter &m_notifications;
    Collaborators m_with;
    std::optional<NotificationCenter::Token> m_namesArrayToken;
};

} // namespace quillon
