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

RuleAction addressChange(const Rule &rule)
{
    if (isRandomAddress(rule.address())) {
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

bool isRandomAddress(const QString &address)
{
    return !isStringValidHEX(address) && isInAnyLanguage(address, "Random Address");
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
    if (isRandomAddress(rule.address()) && rule.changeAction() == Rule::every) {
        actions.append({Kind::StartCountdown, {}, {}});
    } else {
        actions.append(addressChange(rule));
    }
    return actions;
}

} // namespace quillon
