// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

#include <optional>

namespace quillon {

class Rule;

/// One thing to be done to a device when its rules are carried out.
struct RuleAction
{
    enum class Kind
    {
        RandomAddress, ///< inside the prefix of `vendor`
        FixedAddress,  ///< `address`
        StopCountdown,
        StartCountdown,
    };

    Kind kind = Kind::StopCountdown;
    QString address;
    /// A manufacturer as the rule names it, "" for any; without one the device's own choice
    /// applies.
    std::optional<QString> vendor;

    bool operator==(const RuleAction &) const = default;
};

/// What a login rule asks for: its change. Nothing for a null rule.
QList<RuleAction> actionsOfLoginRule(const Rule &rule);
/// What the network rule in force asks for, in order. A null rule, that is none, ends a countdown.
QList<RuleAction> actionsOfNetworkRule(const Rule &rule, bool linkIsUp);

/// The text that stands for a random address where a rule holds an address.
QString randomAddressTitle();
/// Whether `address`, as a rule holds it, is that text. Rules keep it as it was shown: who has
/// another language today still means the same.
bool isRandomAddress(const QString &address);

} // namespace quillon
