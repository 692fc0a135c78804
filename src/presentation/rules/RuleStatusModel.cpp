// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/rules/RuleStatusModel.h"

#include "base/Localized.h"
#include "devices/DeviceTable.h"
#include "rules/RuleDecision.h"

namespace quillon {

using namespace Qt::StringLiterals;

RuleStatusModel::RuleStatusModel(const DeviceTable &devices)
    : m_devices(devices)
{
}

void RuleStatusModel::updateRuleStatusForDevice(const QString &device)
{
    const qlonglong hasRule = m_devices.record(device).hasRule.value_or(0);
    State now{.image = u"NSStatusNone"_s,
        .toolTip = localized("no rules have been configured"),
        .activeRuleStruckThrough = true,
        .noActiveRulesStruckThrough = true,
        .noRulesStruckThrough = true};
    if (hasRule == static_cast<qlonglong>(RuleStatus::Active)) {
        now.image = u"NSStatusAvailable"_s;
        now.toolTip = localized("has an Active rule");
        now.activeRuleStruckThrough = false;
    } else if (hasRule == static_cast<qlonglong>(RuleStatus::NotActive)) {
        now.image = u"NSStatusPartiallyAvailable"_s;
        now.toolTip = localized("no rules are currently Active");
        now.noActiveRulesStruckThrough = false;
    } else {
        now.noRulesStruckThrough = false;
    }
    m_state.update([&now](State &state) { state = now; });
}

} // namespace quillon
