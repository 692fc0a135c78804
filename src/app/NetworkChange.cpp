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
    networkChanged(readInterfaces().value_or(QStringList()).value(0));
    makeUpForWithheld();
}

std::optional<QStringList> NetworkChange::readInterfaces()
{
    m_deps.externalAddress.updateExternalIPAddress(false);
    const bool isRead = m_deps.devices.updateNetWorkInterfaces();
    m_deps.execution.followVisits();
    m_deps.currentInterface.selectAnyIfNone();
    return isRead ? std::optional(m_deps.devices.devicesWithNews()) : std::nullopt;
}

void NetworkChange::networkChanged(const QString &device)
{
    takeNews(device);
    if (!device.isEmpty()) {
        m_deps.evaluation.checkDeviceForCurrentRuleAndChange(device,
            m_deps.reachability.isReachable() ? RuleChange::OncePerVisit : RuleChange::Withheld);
    }
    m_deps.rulesList.filterRulesArrayController();
}

void NetworkChange::takeNews(const QString &device)
{
    m_deps.devices.forgetNews(device);
    if (m_deps.devices.isDeviceWifi(device)) {
        m_deps.wifi.updateWiFiNetwork();
    }
    if (device == m_deps.currentInterface.device()) {
        // The table was read just now.
        m_deps.currentInterface.selectInterface(device);
    }
}

void NetworkChange::makeUpForWithheld()
{
    const QStringList withheld = m_deps.execution.withheldDevices();
    if (withheld.isEmpty() || !m_deps.reachability.isReachable()) {
        return;
    }
    const QStringList withNews = m_deps.devices.devicesWithNews();
    for (const QString &device : withheld) {
        if (withNews.contains(device)) {
            // Else it would be evaluated again for them.
            takeNews(device);
        } else if (m_deps.devices.isDeviceWifi(device)) {
            m_deps.wifi.updateWiFiNetwork();
        }
        m_deps.evaluation.checkDeviceForCurrentRuleAndChange(device, RuleChange::OncePerVisit);
    }
    m_deps.rulesList.filterRulesArrayController();
}

} // namespace quillon
