// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/rules/RuleStatusModel.h"

#include "base/Localized.h"
#include "base/SettingsKeys.h"
#include "devices/DeviceTable.h"
#include "rules/RuleDecision.h"

namespace quillon {

RuleStatusModel::RuleStatusModel(const DeviceTable &devices)
    : m_devices(devices)
{
}

void RuleStatusModel::updateRuleStatusForDevice(const QString &device)
{
    const int hasRule = m_devices.record(device).value(record::hasRule).toInt();
    State state{.image = QStringLiteral("NSStatusNone"),
        .toolTip = localized("no rules have been configured"),
        .activeRuleStruckThrough = true,
        .noActiveRulesStruckThrough = true,
        .noRulesStruckThrough = true};
    if (hasRule == static_cast<int>(RuleStatus::Active)) {
        state.image = QStringLiteral("NSStatusAvailable");
        state.toolTip = localized("has an Active rule");
        state.activeRuleStruckThrough = false;
    } else if (hasRule == static_cast<int>(RuleStatus::NotActive)) {
        state.image = QStringLiteral("NSStatusPartiallyAvailable");
        state.toolTip = localized("no rules are currently Active");
        state.noActiveRulesStruckThrough = false;
    } else {
        state.noRulesStruckThrough = false;
    }
    if (state != m_state) {
        m_state = state;
        Q_EMIT changed();
    }
}

} // namespace quillon
