// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/NetworkChange.h"

#include "devices/CurrentInterface.h"
#include "devices/DeviceTable.h"
#include "networks/ExternalIPAddress.h"
#include "networks/WiFiNetwork.h"
#include "platform/Reachability.h"
#include "presentation/rules/RulesListModel.h"
#include "rules/RuleEvaluation.h"
#include "rules/RuleExecution.h"

namespace quillon {

NetworkChange::NetworkChange(const Collaborators &collaborators)
    : m_deps(collaborators)
{
}

void NetworkChange::networkChanged()
{
    m_deps.externalAddress.updateExternalIPAddress(false);
    const DeviceRecords before = m_deps.devices.devices();
    m_deps.devices.updateNetWorkInterfaces();
    const QString changed = firstChangedDevice(before, m_deps.devices.devices());
    m_deps.execution.followVisits();
    if (m_deps.devices.isDeviceWifi(changed)) {
        m_deps.wifi.updateWiFiNetwork();
    }
    if (changed == m_deps.currentInterface.device()) {
        // The table was read just now.
        m_deps.currentInterface.selectInterface(changed);
    }
    if (!changed.isEmpty()) {
        m_deps.evaluation.checkDeviceForCurrentRuleAndChange(changed,
            m_deps.reachability.isReachable() ? RuleChange::OncePerVisit : RuleChange::None);
    }
    m_deps.rulesList.filterRulesArrayController();
}

} // namespace quillon
