// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quillon {

class RecordStore;
class RuleEvaluation;

/// The rules of saved networks follow how their network is recognized. Main thread.
class NetworkRules
{
public:
    NetworkRules(RecordStore &records, RuleEvaluation &evaluation);

    /// Writes the mode into every rule of the network and evaluates the rules without changing an
    /// address. When the rules cannot be read, that is logged and nothing changes.
    void updateSsidDefinedForRulesWithNetwork(bool ssidDefined, const QString &bssid);

private:
    RecordStore &m_records;
    RuleEvaluation &m_evaluation;
};

} // namespace quillon
