// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "rules/Rule.h"

namespace quillon {

/// What a rule says, by value: all but its switch and whether it is in force.
struct RuleValues
{
    QString name = {};
    QString device = {};
    bool isLogin = false;
    QString network = {};
    QString ssid = {};
    bool ssidDefined = false;
    int action = Rule::doNothing;
    QString address = {};
    QString vendor = {};
    int changeAction = Rule::once;
    int timerMins = 0;

    static RuleValues of(const Rule &rule)
    {
        return {rule.name(), rule.device(), rule.isLogin(), rule.network(), rule.ssid(),
            rule.ssidDefined(), rule.action(), rule.address(), rule.vendor(), rule.changeAction(),
            rule.timerMins()};
    }

    bool operator==(const RuleValues &) const = default;
};

} // namespace quillon
