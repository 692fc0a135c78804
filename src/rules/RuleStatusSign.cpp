// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/RuleStatusSign.h"

#include "base/Localized.h"
#include "rules/RuleDecision.h"

namespace quillon {

using namespace Qt::StringLiterals;

RuleStatusSign RuleStatusSign::of(qlonglong hasRule)
{
    if (hasRule == static_cast<qlonglong>(RuleStatus::Active)) {
        return {u"NSStatusAvailable"_s, localized("has an Active rule")};
    }
    if (hasRule == static_cast<qlonglong>(RuleStatus::NotActive)) {
        return {u"NSStatusPartiallyAvailable"_s, localized("no rules are currently Active")};
    }
    return {u"NSStatusNone"_s, localized("no rules have been configured")};
}

} // namespace quillon
