// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/CountdownModel.h"
#include "app/RuleStatusModel.h"
#include "app/RulesListModel.h"
#include "platform/NotificationCenter.h"
#include "rules/CountdownTimers.h"
#include "rules/RuleEvaluation.h"
#include "rules/RuleQueries.h"
#include "rules/RuleSwitches.h"
#include "store/RecordInvariants.h"

#include <functional>
#include <optional>

namespace quillon {

class EventWiring;
class LaunchSequence;
class Notifier;
struct NetworkRoom;
struct Platform;
struct RecordRoom;

/// Everything about rules, put together: their queries, evaluation, switches and countdowns, what
/// keeps their records consistent, and what the window shows of them.
struct RuleRoom
{
    struct Collaborators
    {
        Notifier &notifier;
        DeviceTable &devices;
        CurrentInterface &currentInterface;
        RandomAddress &randomAddress;
        AddressChanger &addressChanger;
        RecordRoom &records;
        NetworkRoom &networks;
        std::function<bool()> startedFromLogin;
    };

    RuleRoom(const Platform &platform, const Collaborators &with);
    ~RuleRoom();
    RuleRoom(const RuleRoom &) = delete;
    RuleRoom &operator=(const RuleRoom &) = delete;

    /// Connections only; they end with `wiring`.
    void connectTo(EventWiring &wiring, LaunchSequence &launch);

    RuleQueries queries;
    RecordInvariants invariants;
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
