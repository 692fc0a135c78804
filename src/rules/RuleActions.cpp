// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/RuleActions.h"

#include "base/Languages.h"
#include "base/Localized.h"
#include "devices/AddressText.h"
#include "rules/Rule.h"
#include "store/model/QuillonModel.h"

namespace quillon {

namespace {

using Kind = RuleAction::Kind;

/// Rules keep the title as it was shown. Who has another language today still means the same, and
/// without this such a rule would give an address that is none.
bool isRandom(const Rule &rule)
{
    const QString address = rule.address();
    return !isStringValidHEX(address) && isInAnyLanguage(address, "Random Address");
}

RuleAction addressChange(const Rule &rule)
{
    if (isRandom(rule)) {
        const QVariant vendor = rule.object()->value(model::rule::vendor);
        return {Kind::RandomAddress, {},
            vendor.isValid() ? std::optional(vendor.toString()) : std::nullopt};
    }
    return {Kind::FixedAddress, rule.address(), {}};
}

} // namespace

QString randomAddressTitle()
{
    return localized("Random Address");
}

QList<RuleAction> actionsOfLoginRule(const Rule &rule)
{
    return rule.isNull() ? QList<RuleAction>() : QList{addressChange(rule)};
}

QList<RuleAction> actionsOfNetworkRule(const Rule &rule, bool linkIsUp)
{
    if (rule.isNull()) {
        return {{Kind::StopCountdown, {}, {}}};
    }
    if (!linkIsUp || !rule.active()) {
        return {};
    }
    QList<RuleAction> actions{{Kind::StopCountdown, {}, {}}};
    if (rule.action() != Rule::changeAddress) {
        return actions;
    }
    // A fixed address is given once, however often the rule says.
    if (isRandom(rule) && rule.changeAction() == Rule::every) {
        actions.append({Kind::StartCountdown, {}, {}});
    } else {
        actions.append(addressChange(rule));
    }
    return actions;
}

} // namespace quillon
