// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "presentation/rules/CountdownModel.h"
#include "presentation/rules/RuleFormModel.h"
#include "presentation/rules/RuleStatusModel.h"
#include "presentation/rules/RulesListModel.h"
#include "presentation/rules/RulesPreferencesViewController.h"
#include "presentation/rules/RulesTableModel.h"
#include "rules/CountdownTimers.h"
#include "rules/NetworkRules.h"
#include "rules/RuleEditing.h"
#include "rules/RuleEvaluation.h"
#include "rules/RuleExecution.h"
#include "rules/RuleInvariants.h"
#include "rules/RuleQueries.h"
#include "rules/RuleSwitches.h"

namespace quillon {

class Notifier;
struct DeviceFeature;
struct NetworkFeature;
struct Platform;

/// Everything about rules, put together: their queries, evaluation, switches and countdowns, what
/// keeps their records consistent, their editor, and what the windows show of them.
struct RuleFeature
{
    RuleFeature(const Platform &platform, Notifier &notifier, DeviceFeature &devices,
        NetworkFeature &networks, RecordStore &store);

    RuleQueries queries;
    RuleInvariants invariants;
    CountdownTimers timers;
    RuleExecution execution;
    RuleEvaluation evaluation;
    RuleSwitches switches;
    NetworkRules networkRules;
    RuleEditing editing;

    RuleStatusModel status;
    RulesListModel list;
    CountdownModel countdown;
    RulesTableModel table;
    RuleFormModel form;
    RulesPreferencesViewController preferences;
};

} // namespace quillon
