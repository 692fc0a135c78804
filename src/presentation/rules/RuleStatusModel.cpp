// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/rules/RuleStatusModel.h"

#include "devices/DeviceTable.h"
#include "rules/RuleDecision.h"
#include "rules/RuleStatusSign.h"

namespace quillon {

RuleStatusModel::RuleStatusModel(const DeviceTable &devices)
    : m_devices(devices)
{
}

void RuleStatusModel::updateRuleStatusForDevice(const QString &device)
{
    const qlonglong hasRule = m_devices.record(device).hasRule.value_or(0);
    const RuleStatusSign sign = RuleStatusSign::of(hasRule);
    const bool isActive = hasRule == static_cast<qlonglong>(RuleStatus::Active);
    const bool hasRules = isActive || hasRule == static_cast<qlonglong>(RuleStatus::NotActive);
    const State now{.image = sign.image,
        .toolTip = sign.toolTip,
        .activeRuleStruckThrough = !isActive,
        .noActiveRulesStruckThrough = isActive || !hasRules,
        .noRulesStruckThrough = hasRules};
    m_state.update([&now](State &state) { state = now; });
}

} // namespace quillon
