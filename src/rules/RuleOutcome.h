// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "rules/Rule.h"
#include "rules/RuleDecision.h"

namespace quillon {

/// What an evaluation is to do beyond saying which rules are in force.
enum class RuleChange
{
    None,
    Withheld,            ///< nothing now; OncePerVisit when the internet can be reached again
    OncePerVisit,        ///< the network rule, unless it was carried out on this visit already
    NetworkRule,         ///< the network rule, again if need be
    LoginAndNetworkRule, ///< both: the first evaluation after a launch at login
};

/// Which rules are in force for a device, and on what they were decided.
struct RuleOutcome
{
    RuleStatus status = RuleStatus::NoRule;
    Rule networkRule; ///< null when none is in force
    Rule loginRule;   ///< null when none is in force
    bool linkIsUp = false;
    bool isWifi = false;
    QString address; ///< the one in use, "" when it is not known
    QString ssid;    ///< of the network that a Wi-Fi device is on, else ""
};

} // namespace quillon
