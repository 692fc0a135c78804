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

#include <utility>

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
    evaluate(device);
    m_deps.rulesList.filterRulesArrayController();
}

void NetworkChange::evaluate(const QString &device)
{
    if (device.isEmpty() && m_withheld.isEmpty()) {
        return;
    }
    m_withheld.removeOne(device);
    const bool isReachable = m_deps.reachability.isReachable();
    if (!device.isEmpty()) {
        m_deps.evaluation.checkDeviceForCurrentRuleAndChange(
            device, isReachable ? RuleChange::OncePerVisit : RuleChange::None);
    }
    if (!isReachable) {
        m_withheld.append(device);
        m_withheld.removeAll(QString());
        return;
    }
    const QStringList withheld = std::exchange(m_withheld, {});
    for (const QString &other : withheld) {
        if (m_deps.devices.isDeviceWifi(other)) {
            m_deps.wifi.updateWiFiNetwork();
        }
        m_deps.evaluation.checkDeviceForCurrentRuleAndChange(other, RuleChange::OncePerVisit);
    }
}

} // namespace quillon
