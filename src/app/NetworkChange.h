// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace quillon {

class CurrentInterface;
class DeviceTable;
class ExternalIPAddress;
class Reachability;
class RuleEvaluation;
class RuleExecution;
class RulesListModel;
class WiFiNetwork;

/// What a change of the network configuration leads to, in order. Main thread.
class NetworkChange
{
public:
    struct Collaborators
    {
        ExternalIPAddress &externalAddress;
        DeviceTable &devices;
        WiFiNetwork &wifi;
        CurrentInterface &currentInterface;
        Reachability &reachability;
        RuleExecution &execution;
        RuleEvaluation &evaluation;
        RulesListModel &rulesList;
    };

    explicit NetworkChange(const Collaborators &collaborators);

    /// How an event begins: a refresh of the external address is started and the interfaces are
    /// read, once for all of them. The devices that have changed since their last network change,
    /// in key order.
    QStringList readInterfaces();
    /// One network change is about one device, "" when none has changed. Its rule is carried out
    /// when the internet can be reached now, but a rule that changes the address once is not
    /// carried out again while the device stays on its network. What had to be left undone because
    /// the internet could not be reached is made up for at the first one that finds it reachable.
    void networkChanged(const QString &device);
    /// Both, for the first device that has changed. Others stay news for the next network change.
    void networkChanged();
    /// Evaluates the devices whose rules were held back, once, if the internet can be reached now.
    void makeUpForWithheld();

private:
    Collaborators m_deps;
};

} // namespace quillon
