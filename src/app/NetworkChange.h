// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

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

    /// The first device whose record is not what it was is evaluated; others that changed as well
    /// are not. Its rule is carried out when the internet can be reached now, but a rule that
    /// changes the address once is not carried out again while the device stays on its network.
    void networkChanged();

private:
    Collaborators m_deps;
};

} // namespace quillon
