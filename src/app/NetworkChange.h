// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

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
    /// in key order; none, not even an empty list, when they could not be read.
    std::optional<QStringList> readInterfaces();
    /// One network change is about one device, "" when none has changed. Its rule is carried out
    /// when the internet can be reached now, but a rule that changes the address once is not
    /// carried out again while the device stays on its network.
    void networkChanged(const QString &device);
    /// Both, for the first device that has changed, and what was withheld. Others stay news for the
    /// next network change.
    void networkChanged();
    /// Evaluates the devices whose rules were held back, once, if the internet can be reached now.
    /// How an event ends: of what it has evaluated itself nothing is held back any more.
    void makeUpForWithheld();

private:
    void takeNews(const QString &device);

    Collaborators m_deps;
};

} // namespace quillon
