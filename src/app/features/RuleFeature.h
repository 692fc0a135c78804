// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "presentation/rules/CountdownModel.h"
#include "presentation/rules/RuleStatusModel.h"
#include "presentation/rules/RulesListModel.h"
#include "rules/CountdownTimers.h"
#include "rules/NetworkRules.h"
#include "rules/RuleEvaluation.h"
#include "rules/RuleExecution.h"
#include "rules/RuleInvariants.h"
#include "rules/RuleQueries.h"
#include "rules/RuleSwitches.h"

namespace quillon {

class Notifier;
struct DeviceFeature;
struct Platform;

/// Everything about rules, put together: their queries, evaluation, switches and countdowns, what
/// keeps their records consistent, and what the window shows of them.
struct RuleFeature
{
    RuleFeature(
        const Platform &platform, Notifier &notifier, DeviceFeature &devices, RecordStore &store);

    RuleQueries queries;
    RuleInvariants invariants;
    CountdownTimers timers;
    RuleExecution execution;
    RuleEvaluation evaluation;
    RuleSwitches switches;
    NetworkRules networkRules;

    RuleStatusModel status;
    RulesListModel list;
    CountdownModel countdown;
};

} // namespace quillon
