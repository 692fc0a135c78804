// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace quillon {

/// How the rule status of an interface is shown on a button.
struct RuleStatusSign
{
    /// "NSStatusAvailable", "NSStatusPartiallyAvailable" or "NSStatusNone".
    QString image;
    QString toolTip;

    /// That of a record's `hasRule`; every value that is no status has no rule.
    static RuleStatusSign of(qlonglong hasRule);

    bool operator==(const RuleStatusSign &) const = default;
};

} // namespace quillon
