// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/RuleDecision.h"

#include "networks/SpecialNetworks.h"

namespace quillon {

RuleGroup ruleGroup(const RuleInfo &rule)
{
    if (rule.isLogin) {
        return RuleGroup::Login;
    }
    if (rule.network == anUnknownNetwork) {
        return RuleGroup::Unknown;
    }
    if (rule.network == anyNetwork) {
        return RuleGroup::Any;
    }
    return RuleGroup::Specific;
}

RuleDecision decideRules(const QList<RuleInfo> &selected, const QString &device)
{
    RuleDecision decision;
    if (selected.isEmpty()) {
        return decision;
    }
    decision.status = RuleStatus::NotActive;
    for (qsizetype place = 0; place < selected.size(); ++place) {
        const RuleInfo &rule = selected.at(place);
        if (rule.device != device || !rule.enabled) {
            continue;
        }
        decision.status = RuleStatus::Active;
        const RuleGroup group = ruleGroup(rule);
        std::optional<qsizetype> &inForce =
            group == RuleGroup::Login ? decision.loginRule : decision.networkRule;
        // The first rule of a group stays, a rule of a group that goes before takes its place.
        if (!inForce || group < ruleGroup(selected.at(*inForce))) {
            inForce = place;
        }
    }
    return decision;
}

} // namespace quillon
