// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <QVariantMap>

#include <optional>

namespace quillon {

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

/// What a device record asks for, in order: its login rule's change, only when the program was
/// started by the login item, then what its network rule wants. Values of unexpected types read as
/// nothing.
QList<RuleAction> actionsOfLoginRule(const QVariantMap &deviceRecord);
QList<RuleAction> actionsOfNetworkRule(const QVariantMap &deviceRecord);

/// The text that stands for a random address where a rule holds an address.
QString randomAddressTitle();

} // namespace quillon
