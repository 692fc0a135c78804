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
    networkChanged(readInterfaces().value(0));
}

QStringList NetworkChange::readInterfaces()
{
    m_deps.externalAddress.updateExternalIPAddress(false);
    m_deps.devices.updateNetWorkInterfaces();
    m_deps.execution.followVisits();
    m_deps.currentInterface.selectAnyIfNone();
    return m_deps.devices.devicesWithNews();
}

void NetworkChange::networkChanged(const QString &device)
{
    m_deps.devices.forgetNews(device);
    if (m_deps.devices.isDeviceWifi(device)) {
        m_deps.wifi.updateWiFiNetwork();
    }
    if (device == m_deps.currentInterface.device()) {
        // The table was read just now.
        m_deps.currentInterface.selectInterface(device);
    }
    if (!device.isEmpty()) {
        m_deps.evaluation.checkDeviceForCurrentRuleAndChange(device,
            m_deps.reachability.isReachable() ? RuleChange::OncePerVisit : RuleChange::Withheld);
    }
    makeUpForWithheld();
    m_deps.rulesList.filterRulesArrayController();
}

void NetworkChange::makeUpForWithheld()
{
    const QStringList withheld = m_deps.execution.withheldDevices();
    if (withheld.isEmpty() || !m_deps.reachability.isReachable()) {
        return;
    }
    for (const QString &device : withheld) {
        if (m_deps.devices.isDeviceWifi(device)) {
            m_deps.wifi.updateWiFiNetwork();
        }
        m_deps.evaluation.checkDeviceForCurrentRuleAndChange(device, RuleChange::OncePerVisit);
    }
}

} // namespace quillon
