// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/NetworkRules.h"

#include "base/Log.h"
#include "rules/RuleEvaluation.h"
#include "store/RecordStore.h"
#include "store/graph/FetchFailure.h"
#include "store/model/QuillonModel.h"

namespace quillon {

NetworkRules::NetworkRules(RecordStore &records, RuleEvaluation &evaluation)
    : m_records(records)
    , m_evaluation(evaluation)
{
}

void NetworkRules::updateSsidDefinedForRulesWithNetwork(bool ssidDefined, const QString &bssid)
{
    ManagedObjectContext &context = m_records.managedObjectContext();
    const Result<ManagedObjectList> rules =
        context.fetch({.entity = model::Rule, .predicate = {}, .order = {}});
    if (!rules) {
        logFetchFailure(logNetworks, rules.error());
        return;
    }
    {
        // The flag follows from the saved network, which no undo brings back.
        const ManagedObjectContext::UndoDisabled undoDisabled(context);
        for (const ManagedObjectPtr &rule : rules.value()) {
            if (rule->value(model::rule::network) == bssid) {
                rule->setValue(model::rule::ssidDefined, ssidDefined);
            }
        }
    }
    context.processPendingChanges();
    m_evaluation.rulesWereChanged();
}

} // namespace quillon
