// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "rules/RuleActions.h"

#include "base/Localized.h"
#include "base/SettingsKeys.h"
#include "rules/Rule.h"
#include "store/model/QuillonModel.h"

namespace quillon {

namespace {

using Kind = RuleAction::Kind;

const QString linkIsUp = QStringLiteral("active");

bool isRandom(const QVariantMap &rule)
{
    return rule.value(model::rule::address).toString() == randomAddressTitle();
}

RuleAction addressChange(const QVariantMap &rule)
{
    if (isRandom(rule)) {
        const QVariant vendor = rule.value(model::rule::vendor);
        const bool isText = vendor.typeId() == QMetaType::QString;
        return {Kind::RandomAddress, {}, isText ? std::optional(vendor.toString()) : std::nullopt};
    }
    return {Kind::FixedAddress, rule.value(model::rule::address).toString(), {}};
}

} // namespace

QString randomAddressTitle()
{
    return localized("Random Address");
}

QList<RuleAction> actionsOfLoginRule(const QVariantMap &deviceRecord)
{
    const QVariantMap rule = deviceRecord.value(record::loginRule).toMap();
    return rule.isEmpty() ? QList<RuleAction>() : QList{addressChange(rule)};
}

QList<RuleAction> actionsOfNetworkRule(const QVariantMap &deviceRecord)
{
    const QVariantMap rule = deviceRecord.value(record::rule).toMap();
    QList<RuleAction> actions;
    if (rule.isEmpty()) {
        return {{Kind::StopCountdown, {}, {}}};
    }
    if (deviceRecord.value(record::status).toString() != linkIsUp ||
        rule.value(model::rule::active).toInt() != 1) {
        return {};
    }
    actions.append({Kind::StopCountdown, {}, {}});
    if (rule.value(model::rule::action).toInt() != Rule::changeAddress) {
        return actions;
    }
    // A fixed address is given once, however often the rule says.
    if (isRandom(rule) && rule.value(model::rule::changeAction).toInt() == Rule::every) {
        actions.append({Kind::StartCountdown, {}, {}});
    } else {
        actions.append(addressChange(rule));
    }
    return actions;
}

} // namespace quillon
