// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

#include <optional>

namespace quillon {

/// What the decision reads of a rule.
struct RuleInfo
{
    QString device;
    QString network;
    bool isLogin = false;
    bool enabled = false;
};

/// The kinds of rules, the first one first: of network rules, the first kind with an enabled rule
/// gives the one in force.
enum class RuleGroup
{
    Login,
    Specific, ///< for a saved network
    Unknown,  ///< for every network that is not saved
    Any,
};

RuleGroup ruleGroup(const RuleInfo &rule);

/// What a device record says under `hasRule`.
enum class RuleStatus
{
    NoRule = 0,    ///< no rule applies
    Active = 1,    ///< at least one rule that applies is enabled
    NotActive = 2, ///< rules apply, none is enabled
};

/// Which rules are in force for a device. At most one login rule and one network rule; a rule is
/// marked active exactly when it is one of them.
struct RuleDecision
{
    RuleStatus status = RuleStatus::NoRule;
    std::optional<qsizetype> loginRule;   ///< a place in the list of rules
    std::optional<qsizetype> networkRule; ///< a place in the list of rules

    bool operator==(const RuleDecision &) const = default;
};

/// Decides for `device` among the rules that were selected for it, in their order. Rules of other
/// devices are passed over, but are rules that were selected: with nothing else the status is
/// NotActive.
RuleDecision decideRules(const QList<RuleInfo> &selected, const QString &device);

} // namespace quillon
